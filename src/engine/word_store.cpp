#include "engine/word_store.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <utility>

#include "base/checked_count.h"
#include "base/run_time_error.h"
#include "base/utf8.h"
#include "engine/fold_accents.h"

namespace quillomat {
namespace {

constexpr std::size_t kFirstSlots = 1024;  // a power of two, as every number of slots

std::uint32_t HashOf(std::string_view key) {
  const std::uint64_t hash = std::hash<std::string_view>{}(key);
  return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

/// The first 8 bytes of the key as a number whose order is the order of the bytes. A shorter key is
/// filled up with zero bytes, which no key contains.
std::uint64_t LeadingBytes(std::string_view key) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < sizeof value; ++i) {
    const unsigned byte = i < key.size() ? static_cast<unsigned char>(key[i]) : 0;
    value = (value << 8U) | byte;
  }
  return value;
}

}  // namespace

void WordStore::Clear() {
  ++generation_;
  records_.clear();
  slots_.clear();
  tallies_.clear();
  sorted_ = true;
  letters_.release();
}

std::optional<std::uint32_t> WordStore::AddWord(std::string_view word, bool anyLength) {
  // Bytes are at least as many as characters, so most words need no counting.
  if (!anyLength && word.size() > kLongWordLimit && CharacterCount(word) > kLongWordLimit)
    return {};
  if (files_.IsOn()) files_.NoteCurrentFile();
  const std::string_view key = SortKeyOf(word, keyScratch_);
  const std::uint32_t hash = HashOf(key);
  if (sorted_) {
    FillSlots(std::max(kFirstSlots, std::bit_ceil(records_.size() * 2)));
    sorted_ = false;
  } else if (slots_.size() * 3 <= records_.size() * 4) {
    GrowSlots();
  }
  Slot& slot = SlotOf(key, hash);
  if (slot.place != 0) {
    CountAgain(slot.place - 1);
    return slot.place - 1;
  }
  if (records_.size() == std::numeric_limits<std::int32_t>::max()) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  }
  const auto place = static_cast<std::uint32_t>(records_.size());
  slot = {hash, place + 1};
  AppendWordRecord(word, key);
  if (listener_ != nullptr) listener_->OnNewWord(word, NumDifferentWords());
  return place;
}

WordStore::Slot& WordStore::SlotOf(std::string_view key, std::uint32_t hash) {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
    Slot& slot = slots_[i];
    if (slot.place == 0) return slot;
    if (slot.hash == hash && records_[slot.place - 1].SortKey == key) return slot;
  }
}

void WordStore::AppendWordRecord(std::string_view word, std::string_view key) {
  const std::string_view kept = Keep(word);
  records_.push_back({kept, key == word ? kept : Keep(key)});
  if (!files_.IsOn()) return;
  tallies_.emplace_back();
  tallies_.back().CountWordInFile(files_.CurrentFileNumber());
}

void WordStore::CountAgain(std::size_t place) {
  IncrementChecked(records_[place].Count);
  if (files_.IsOn()) tallies_[place].CountWordInFile(files_.CurrentFileNumber());
}

void WordStore::GrowSlots() {
  std::vector<Slot> old(slots_.size() * 2);
  old.swap(slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.place == 0) continue;
    std::size_t i = slot.hash & mask;
    while (slots_[i].place != 0) i = (i + 1) & mask;
    slots_[i] = slot;
  }
}

/// Makes the hash table anew from the records.
void WordStore::FillSlots(std::size_t slots) {
  slots_.assign(slots, Slot());
  for (std::size_t place = 0; place < records_.size(); ++place) {
    const std::uint32_t hash = HashOf(records_[place].SortKey);
    SlotOf(records_[place].SortKey, hash) = {hash, static_cast<std::uint32_t>(place + 1)};
  }
}

std::string_view WordStore::Keep(std::string_view text) {
  auto* const letters = static_cast<char*>(letters_.allocate(text.size(), 1));
  std::memcpy(letters, text.data(), text.size());
  return {letters, text.size()};
}

const FileTally* WordStore::FilesOf(std::int32_t index) const {
  if (!sorted_) SortRecords();
  return tallies_.empty() ? nullptr : &tallies_[static_cast<std::size_t>(index - 1)];
}

void WordStore::SortRecords() const {
  ++generation_;
  struct Entry {
    std::uint64_t leadingBytes;
    std::uint32_t place;
  };
  slots_ = {};
  std::vector<Entry> entries;
  entries.reserve(records_.size());
  for (std::uint32_t place = 0; place < records_.size(); ++place) {
    entries.push_back({LeadingBytes(records_[place].SortKey), place});
  }
  std::sort(entries.begin(), entries.end(), [this](const Entry& left, const Entry& right) {
    if (left.leadingBytes != right.leadingBytes) return left.leadingBytes < right.leadingBytes;
    return records_[left.place].SortKey < records_[right.place].SortKey;
  });
  std::vector<WordRec> records;
  std::vector<FileTally> tallies;
  records.reserve(records_.size());
  tallies.reserve(tallies_.size());
  for (const Entry& entry : entries) {
    records.push_back(records_[entry.place]);
    if (!tallies_.empty()) tallies.push_back(std::move(tallies_[entry.place]));
  }
  records_ = std::move(records);
  tallies_ = std::move(tallies);
  sorted_ = true;
}

WordTotals WordStore::TallyWords() const {
  WordTotals totals;
  for (const WordRec& record : records_) {
    if (!record.Included) {
      IncrementChecked(totals.NumExcludedWords);
      continue;
    }
    IncrementChecked(totals.NumIncludedWords);
    AddChecked(totals.TotalIncludedCount, record.Count);
    totals.MaxCount = std::max(totals.MaxCount, record.Count);
    const std::size_t length = CharacterCount(record.Word);
    if (length > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
      throw RunTimeError(RunTimeErrorNumber::kOverflow);
    }
    totals.MaxWordLength = std::max(totals.MaxWordLength, static_cast<std::int16_t>(length));
  }
  return totals;
}

}  // namespace quillomat
