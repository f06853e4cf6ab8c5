#include "engine/word_store.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "base/checked_count.h"
#include "base/run_time_error.h"
#include "base/utf8.h"
#include "engine/fold_accents.h"

namespace quillomat {
namespace {

/// Room for one more item, and for many where there was none, so that adding one cannot fail.
template <typename Items>
void ReserveOneMore(Items& items) {
  constexpr std::size_t kFirstItems = 64;
  if (items.size() == items.capacity()) items.reserve(std::max(kFirstItems, 2 * items.size()));
}

constexpr std::size_t kFirstSlots = 1024;  // a power of two, as every number of slots

}  // namespace

bool IsLongWord(std::string_view word) {
  // Bytes are at least as many as characters, so most words need no counting.
  return word.size() > kLongWordLimit && CharacterCount(word) > kLongWordLimit;
}

void WordStore::Clear() {
  keeper_.Drop();
  ++generation_;
  letters_.Clear();
  counts_.clear();
  included_.clear();
  tallies_.clear();
  slots_.clear();
  arena_.Clear();
  counted_.clear();
  sorted_ = true;
  occurrences_ = 0;
}

std::optional<std::uint32_t> WordStore::AddWord(std::string_view word, bool anyLength) {
  if (!anyLength && IsLongWord(word)) return {};
  const std::string_view key = SortKeyOf(word, keyRule_, keyScratch_);
  SettleHashes();
  return AddKeyedWord({word, key, HashOf(key)});
}

std::uint32_t WordStore::AddKeyedWord(const KeyedWord& word) {
  if (files_.IsOn()) files_.NoteCurrentFile();
  MakeRoom();
  const std::size_t found = FindSlot(word);
  Slot& slot = slots_[found];
  if (slot.place != 0) {
    const std::uint32_t place = slot.place - 1;
    CountWordAt(place);
    return place;
  }
  if (letters_.Size() == std::numeric_limits<std::int32_t>::max()) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  }
  if (((found - (word.hash >> slotShift_)) & (slots_.size() - 1)) > kFarthest) crowded_ = true;
  const auto place = static_cast<std::uint32_t>(letters_.Size());
  AppendWord(word);
  slot = {word.hash, place + 1};
  if (listener_ != nullptr) listener_->OnNewWord(word.word, NumDifferentWords());
  return place;
}

void WordStore::CountWordWithNotes(std::uint32_t place, std::int32_t times) {
  BringCounts();  // the counts may overflow now
  if (notesCounted_ && counts_[place] == 0) counted_.push_back(place);
  AddChecked(counts_[place], times);
  occurrences_ += times;
  if (!files_.IsOn()) return;
  files_.NoteCurrentFile();
  FileTally& tally = tallies_[place];
  tally.CountWordInFile(files_.CurrentFileNumber(), times);
  if (files_.Use() == TallyUse::kUnlisted || !tally.ExceedsRecord()) return;
  throw RunTimeError(RunTimeErrorNumber::kOverflow,
                     "Overflow: the word \"" + std::string(WordAtPlace(place)) +
                         "\" occurs more than 32,767 times in " + files_.FileBeingScanned() +
                         ", the most that lists of files take.  Count that file by itself, in a "
                         "display format without files.");
}

bool WordStore::TallyTakes(std::uint32_t place, std::int32_t times) const {
  if (!files_.IsOn() || files_.Use() == TallyUse::kUnlisted) return true;
  const bool isNoted = files_.CurrentFileIsNoted();
  const std::int32_t sofar = isNoted ? tallies_[place].CountInFile(files_.CurrentFileNumber()) : 0;
  return sofar <= FileTally::kMostInListedFile - times;
}

bool WordStore::TallyTakes(std::string_view word, std::int32_t times) const {
  if (!files_.IsOn() || files_.Use() == TallyUse::kUnlisted) return true;
  if (files_.CurrentFileIsNoted() && !slots_.empty()) {
    std::string buffer;
    const std::string_view key = SortKeyOf(word, keyRule_, buffer);
    const Slot& slot = slots_[FindSlot({word, key, HashOf(key)})];
    if (slot.place != 0) return TallyTakes(slot.place - 1, times);
  }
  return times <= FileTally::kMostInListedFile;
}

void WordStore::CountWithNotes(std::span<const std::uint32_t> places) {
  if (files_.IsOn() || !HasRoomFor(static_cast<std::int64_t>(places.size()))) {
    for (const std::uint32_t place : places) CountWordAt(place);
    return;
  }
  // Without a branch, as a text has its words in no order that could be foreseen.
  std::size_t counted = counted_.size();
  counted_.resize(counted + places.size());
  for (const std::uint32_t place : places) {
    counted_[counted] = place;
    counted += static_cast<std::size_t>(counts_[place] == 0);
    ++counts_[place];
  }
  counted_.resize(counted);
  occurrences_ += static_cast<std::int64_t>(places.size());
}

std::vector<WordStore::CountedWord> WordStore::TakeCountedWords() {
  BringCounts();
  std::vector<CountedWord> taken;
  if (notesCounted_) {
    taken.reserve(counted_.size());
    for (const std::uint32_t place : counted_) {
      taken.push_back({place, std::exchange(counts_[place], 0)});
    }
    counted_.clear();
  } else {
    taken.resize(counts_.size());
    std::size_t counted = 0;
    for (std::size_t place = 0; place < counts_.size(); ++place) {  // without a branch, as above
      const std::int32_t times = std::exchange(counts_[place], 0);
      taken[counted] = {static_cast<std::uint32_t>(place), times};
      counted += static_cast<std::size_t>(times != 0);
    }
    taken.resize(counted);
  }
  occurrences_ = 0;
  return taken;
}

/// What needs memory comes first: where there is none, the store stays as it was.
void WordStore::AppendWord(const KeyedWord& word) {
  ReserveOneMore(counts_);
  if (notesCounted_) ReserveOneMore(counted_);
  if (files_.IsOn()) {
    ReserveOneMore(tallies_);
    FileTally tally;
    tally.CountWordInFile(files_.CurrentFileNumber());
    letters_.EmplaceBack(word.word, word.key, arena_);
    tallies_.push_back(std::move(tally));
  } else {
    letters_.EmplaceBack(word.word, word.key, arena_);
  }
  counts_.push_back(1);
  if (notesCounted_) counted_.push_back(static_cast<std::uint32_t>(letters_.Size() - 1));
  ++occurrences_;
}

/// The slot that holds the word, or the free slot where it belongs.
std::size_t WordStore::FindSlot(const KeyedWord& word) const {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = word.hash >> slotShift_;; i = (i + 1) & mask) {
    const Slot& slot = slots_[i];
    if (slot.place == 0) return i;
    if (slot.hash == word.hash && letters_[slot.place - 1].HasKey(word.key)) return i;
  }
}

/// For one more word in the hash table.
void WordStore::MakeRoom() {
  if (slots_.empty()) {  // sorted; or there was no memory to do so
    FillSlots(std::max(kFirstSlots, std::bit_ceil(letters_.Size() * 2)));
    sorted_ = false;
  } else if (slots_.size() * 3 <= letters_.Size() * 4) {
    GrowSlots();
  }
}

void WordStore::SetSlots(std::size_t slots) {
  slots_.assign(slots, Slot());
  slotShift_ = kHashBits - static_cast<unsigned>(std::countr_zero(slots));
}

void WordStore::GrowSlots() {
  std::pmr::vector<Slot> grown(slots_.size() * 2);  // where there is no memory for it, all stays
  grown.swap(slots_);
  --slotShift_;
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : grown) {
    if (slot.place == 0) continue;
    std::size_t i = slot.hash >> slotShift_;
    while (slots_[i].place != 0) i = (i + 1) & mask;
    slots_[i] = slot;
  }
}

/// Makes the hash table anew.
void WordStore::FillSlots(std::size_t slots) {
  SetSlots(slots);
  for (std::size_t place = 0; place < letters_.Size(); ++place) {
    const std::string_view key = letters_[place].Key();
    const std::uint32_t hash = HashOf(key);
    slots_[FindSlot({key, key, hash})] = {hash, static_cast<std::uint32_t>(place + 1)};
  }
}

void WordStore::ChangeSeed() {
  seed_ = HashSeedAfter(seed_);
  ++seedChanges_;
  crowded_ = false;
  if (!slots_.empty()) FillSlots(slots_.size());
}

const FileTally* WordStore::FilesOf(std::int32_t index) const {
  if (!sorted_) SortRecords();
  return tallies_.empty() ? nullptr : &tallies_[static_cast<std::size_t>(index - 1)];
}

WordTotals WordStore::TallyPart(const Part& part) const {
  WordTotals totals;
  std::size_t longest = 0;
  for (std::size_t place = part.begin; place < part.end; ++place) {
    const auto index = static_cast<std::int32_t>(place + 1);
    if (!IsIncluded(index)) {
      ++totals.NumExcludedWords;
      continue;
    }
    ++totals.NumIncludedWords;
    AddChecked(totals.TotalIncludedCount, CountOf(index));
    totals.MaxCount = std::max(totals.MaxCount, CountOf(index));
    // Characters are no more than bytes, so most words need no counting.
    const std::string_view word = WordOf(index);
    if (word.size() > longest) longest = std::max(longest, CharacterCount(word));
  }
  if (longest > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  }
  totals.MaxWordLength = static_cast<std::int16_t>(longest);
  return totals;
}

WordTotals WordStore::TallyWords(std::size_t threads) const {
  Sort(threads);
  const std::vector<Part> parts = PartsOf(letters_.Size(), threads);
  std::vector<WordTotals> ofParts(parts.size());
  ForEachPart(parts,
              [&](const Part& part, std::size_t number) { ofParts[number] = TallyPart(part); });
  WordTotals totals;
  for (const WordTotals& part : ofParts) {
    totals.NumIncludedWords += part.NumIncludedWords;
    totals.NumExcludedWords += part.NumExcludedWords;
    AddChecked(totals.TotalIncludedCount, part.TotalIncludedCount);
    totals.MaxCount = std::max(totals.MaxCount, part.MaxCount);
    totals.MaxWordLength = std::max(totals.MaxWordLength, part.MaxWordLength);
  }
  return totals;
}

}  // namespace quillomat
