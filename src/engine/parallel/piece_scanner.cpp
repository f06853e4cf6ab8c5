#include "engine/parallel/piece_scanner.h"

#include <algorithm>
#include <utility>

#include "engine/fold_accents.h"
#include "engine/parallel/line_pieces.h"
#include "engine/whole_lines.h"

namespace quillomat {
namespace {

/// A scanner that has more different words forgets them: its table is to be small, and a text whose
/// words are all different gains nothing from it.
constexpr std::int32_t kMostWordsKept = 65'536;

/// Scanning so many bytes with notes costs as much more as looking at one word of the store.
constexpr std::size_t kBytesWorthLook = 8;

/// As many words as are joined together: first what they will need of the store is fetched.
constexpr std::size_t kWordsAtOnce = 64;

}  // namespace

PieceScanner::PieceScanner(ScanSettings settings, const ScanChoices& choices,
                           const WordLists& lists, const std::atomic<bool>& stop, bool keepOrder)
    : settings_(std::move(settings)),
      choices_(choices),
      lists_(lists),
      stopTest_(stop),
      scanner_(settings_, choices, lists, store_, stopTest_) {
  if (keepOrder) store_.SetOrderListener(&order_);
}

PieceCount PieceScanner::Scan(std::string_view text, const ScanSettings& settings, Counts counts) {
  PieceCount count = Begin(text.size(), settings, counts);
  Take(text, count);
  End(count);
  return count;
}

PieceCount PieceScanner::Scan(const PlacedPiece& piece, std::size_t bytesAtOnce,
                              const ScanSettings& settings) {
  const auto bytes = static_cast<std::size_t>(piece.end - piece.begin);
  PieceCount count = Begin(bytes, settings, Counts::kByPiece);
  PlacedLines lines(piece, memory_, bytesAtOnce);
  for (std::string_view some = lines.Next(); !some.empty() && !stopTest_.Yield();
       some = lines.Next()) {
    Take(some, count);
  }
  End(count);
  return count;
}

PieceCount PieceScanner::Begin(std::size_t bytes, const ScanSettings& settings, Counts counts) {
  const bool together = counts == Counts::kTogether;
  if (!owesCounts_) {
    if (forget_.exchange(false) || store_.NumDifferentWords() > kMostWordsKept) ForgetWords();
    // To note the words costs less than to look for them at the end where the text is short.
    const auto words = static_cast<std::size_t>(store_.NumDifferentWords());
    store_.NoteCountedWords(!together && bytes < words * kBytesWorthLook);
  }
  owesCounts_ = together;
  settings_ = settings;
  settings_.Uncounted = {};
  scanner_.SetWordsRead(0);
  PieceCount count;
  count.countsTogether = together;
  count.looksForComments = scanner_.LooksForComments();
  count.openBefore = settings_.OpenComment;
  return count;
}

void PieceScanner::Take(std::string_view lines, PieceCount& count) {
  ScanWholeLines({settings_, choices_, lists_, store_, stopTest_, scanner_}, lines);
  count.bytesWithLongLineEnds += BytesWithLongLineEnds(lines);
}

void PieceScanner::End(PieceCount& count) {
  count.numbersAnew = std::exchange(numbersAnew_, false);
  if (!count.countsTogether) count.words = store_.TakeCountedWords();
  count.order = std::exchange(order_.places, {});
  DescribeNewWords(count);
  count.wordsRead = scanner_.WordsRead();
  count.openComment = settings_.OpenComment;
  count.uncounted = settings_.Uncounted;
}

void PieceScanner::TakeCounts(PieceCount& last) {
  last.words = store_.TakeCountedWords();
  owesCounts_ = false;
}

void PieceScanner::DescribeNewWords(PieceCount& count) {
  for (; wordsTold_ < store_.NumDifferentWords(); ++wordsTold_) {
    const std::string_view word = store_.WordAtPlace(static_cast<std::uint32_t>(wordsTold_));
    count.newLetters.append(word);
    count.newWordBytes.push_back(static_cast<std::uint32_t>(word.size()));
  }
}

void PieceScanner::ForgetWords() {
  store_.Clear();
  order_.places.clear();
  wordsTold_ = 0;
  numbersAnew_ = true;
  owesCounts_ = false;
}

void PieceJoiner::Join(const PieceCount& piece, WordStore& store) {
  if (piece.numbersAnew) {
    places_.clear();
    firstOwed_ = 0;
  }
  knowsNumbers_ = false;  // for one that is not joined to its end
  NewWords left{piece.newLetters, piece.newWordBytes};
  while (piece.countsTogether && !left.bytes.empty()) JoinNewWords(left, store);
  for (std::span<const WordStore::CountedWord> rest = piece.words; !rest.empty();) {
    const auto some = rest.first(std::min(rest.size(), kWordsAtOnce));
    JoinSome(some, left, store);
    rest = rest.subspan(some.size());
  }
  if (!piece.words.empty()) firstOwed_ = places_.size();
  if (WordOrderListener* const listener = store.OrderListener()) {
    order_.clear();
    for (const std::uint32_t number : piece.order) order_.push_back(places_[number]);
    listener->OnWords(order_);
  }
  knowsNumbers_ = true;
}

bool PieceJoiner::CanJoin(const PieceCount& piece, const WordStore& store) const {
  if (!knowsNumbers_ && !piece.numbersAnew) return false;
  if (!store.Files().IsOn()) return true;
  const std::size_t known = piece.numbersAnew ? 0 : places_.size();
  NewWords left{piece.newLetters, piece.newWordBytes};
  return std::ranges::all_of(piece.words, [&](const WordStore::CountedWord& word) {
    // What is new to the scanner may have been met by others in the same file.
    return word.place < known ? store.TallyTakes(places_[word.place], word.times)
                              : store.TallyTakes(left.TakeFirst(), word.times);
  });
}

void PieceJoiner::TakeBackOwed(std::size_t words, WordStore& store) {
  for (; words > 0; --words) store.CountWordAt(places_[firstOwed_++], -1);
}

/// Gets the next new word ready for the store.
void PieceJoiner::FetchNewWord(NewWords& left, WordStore& store) {
  const std::string_view text = left.TakeFirst();
  std::string_view key = SortKeyOf(text, store.Rule(), keyText_);
  if (key.data() != text.data()) key = {newKeys_.Keep(key), key.size()};
  newWords_.push_back({text, key, store.HashOf(key)});
  store.PrefetchSlot(newWords_.back().hash);
}

/// Puts some of the new words of a piece into the store, of which the counts are still to come.
void PieceJoiner::JoinNewWords(NewWords& left, WordStore& store) {
  store.SettleHashes();
  newWords_.clear();
  newKeys_.Reuse();
  while (newWords_.size() < kWordsAtOnce && !left.bytes.empty()) FetchNewWord(left, store);
  for (const KeyedWord& word : newWords_) store.PrefetchLetters(word.hash);
  for (const KeyedWord& word : newWords_) places_.push_back(store.AddKeyedWord(word));
}

/// Puts some of the words of a piece into the store.
void PieceJoiner::JoinSome(std::span<const WordStore::CountedWord> words, NewWords& left,
                           WordStore& store) {
  store.SettleHashes();
  newWords_.clear();
  newKeys_.Reuse();
  // Words are numbered as they are met, so a number that is not known is that of the first of the
  // new words that are left.
  const std::size_t known = places_.size();
  for (const WordStore::CountedWord& word : words) {
    if (word.place >= known) FetchNewWord(left, store);
  }
  for (const KeyedWord& word : newWords_) store.PrefetchLetters(word.hash);
  auto newWord = newWords_.begin();
  for (const auto& [number, times] : words) {
    if (number < known) {
      const bool wasCounted = number >= firstOwed_;
      store.CountWordAt(places_[number], times - static_cast<std::int32_t>(wasCounted));
      continue;
    }
    const std::uint32_t place = store.AddKeyedWord(*newWord++);
    if (times > 1) store.CountWordAt(place, times - 1);
    places_.push_back(place);
  }
}

}  // namespace quillomat
