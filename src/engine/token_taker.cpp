#include "engine/token_taker.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <span>

#include "base/checked_count.h"
#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/final_form.h"
#include "engine/fold_accents.h"
#include "engine/normal_text.h"
#include "engine/word_rules.h"

namespace quillomat {
namespace {

/// The most that is remembered of tokens that are several words.
constexpr std::size_t kMostOfSeveral = 65'536;

// Eight characters of ASCII at once, or fewer with zeros behind them.

constexpr std::uint64_t EightTimes(std::uint64_t byte) {
  return byte * 0x0101010101010101U;
}
constexpr std::uint64_t kUpperBits = EightTimes(0x80);

/// The upper bit of every byte that is not 0.
std::uint64_t NotZero(std::uint64_t characters) {
  return (characters + EightTimes(0x7F)) & kUpperBits;
}

bool AreAscii(std::uint64_t characters) {
  return (characters & kUpperBits) == 0;
}

bool AreSmallLetters(std::uint64_t characters) {
  // Each sum tells in the upper bits which characters are at least so large.
  const std::uint64_t fromA = characters + EightTimes(0x80 - 'a');
  const std::uint64_t beyondZ = characters + EightTimes(0x80 - ('z' + 1));
  return (fromA & ~beyondZ & kUpperBits) == NotZero(characters);
}

/// Letters made small; no other character becomes a small letter.
std::uint64_t LettersMadeSmall(std::uint64_t characters) {
  constexpr unsigned kToSmallBit = 2;  // from the upper bit to that between "A" and "a"
  return characters | NotZero(characters) >> kToSmallBit;
}

}  // namespace

/// What is left of a token that starts as words may start; often all of it, sometimes nothing.
std::string_view TokenTaker::FinalForm(std::string_view token) {
  if (!settings_.ReadingWordList) return FinalFormOf(token, choices_).word;
  const std::string_view word = TrimTrailingChars(token, kTrimmedFromWords);
  if (!word.empty()) settings_.NoteListWordChars(word);
  return word;
}

void TokenTaker::TakeCut(std::string_view token) {
  if (settings_.ReadingWordList) {
    return TakeListWords(token);
  }
  ForgetTokensOfOldStore();
  const LineBlock::Token found{token.data(), token.size(), token.size()};
  const TokenOutcome known = OutcomeOf(found);
  if (known == kUnknownToken) {
    ForgetNewTokens();
    newTokens_.push_back({0, found, 0});
    WorkOutRun(token);
    newTokens_.back().wordsEnd = newWords_.size();
    AddNewWords();
  } else if (IsSeveral(known)) {
    TakeSeveral(known);
  } else {
    if (known != kNoWord) IncrementChecked(wordsRead_);
    if (IsPlace(known)) store_.CountWordAt(known);
  }
  if (store_.OrderListener() == nullptr) return;
  if (known != kUnknownToken) newTokens_.clear();
  outcomes_.assign(1, known);
  TellOrder(0);
}

void TokenTaker::TakeListWords(std::string_view run) {
  cutter_.ForEachPart(run, [this](std::string_view part) {
    const std::string_view word = FinalForm(part);
    if (!word.empty()) store_.AddWord(word, true);
  });
}

void TokenTaker::ForgetNewTokens() {
  store_.SettleHashes();
  newTokens_.clear();
  newWords_.clear();
  newLetters_.Reuse();
}

void TokenTaker::ForgetTokensOfOldStore() {
  const bool full = memo_.IsCrowded() || longMemo_.IsCrowded() || several_.size() > kMostOfSeveral;
  if (memoGeneration_ == store_.Generation() && !full) return;
  store_.BringCounts();
  memo_.Clear();
  longMemo_.Clear();
  several_.clear();
  memoGeneration_ = store_.Generation();
}

void TokenTaker::TakeMany(const LineBlock& block, std::size_t first, std::size_t count) {
  ForgetTokensOfOldStore();
  ForgetNewTokens();
  const bool orderMatters = store_.OrderListener() != nullptr;
  if (memoRest_.Sleeps()) {
    for (std::size_t i = first; i < first + count; ++i) NoteNewToken(block, i);
  } else {
    TakeKnown(block, first, count, orderMatters);
  }
  if (orderMatters) NoteOutcomes(block, first, count);
  memoRest_.Note(count, newTokens_.size());
  if (!newTokens_.empty()) TakeNewTokens();
  if (orderMatters) TellOrder(first);
}

/// Counts the tokens that are remembered and notes the others, in steps, so that the memory has
/// time to bring what the next step needs.
void TokenTaker::TakeKnown(const LineBlock& block, std::size_t first, std::size_t count,
                           bool orderMatters) {
  Batch batch;  // NOLINT(cppcoreguidelines-pro-type-member-init): see there
  FindKeys(block, first, count, batch);
  if (!orderMatters && MayKeep(count)) {
    store_.KeepCounts(*this, count);
    KeepKnown(block, first, memo_, batch.shortOnes);
    KeepKnown(block, first, longMemo_, batch.longOnes);
  } else {
    CountKnown(block, first, memo_, batch.shortOnes);
    CountKnown(block, first, longMemo_, batch.longOnes);
  }
}

void TokenTaker::NoteNewToken(const LineBlock& block, std::size_t number) {
  newTokens_.push_back({number, block.TokenAt(number), 0});
}

/// Whether nothing can overflow within so many words.
bool TokenTaker::MayKeep(std::size_t words) const {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  return wordsRead_ <= kMost - static_cast<std::int32_t>(words) && store_.MayBeKept(words);
}

void TokenTaker::FindKeys(const LineBlock& block, std::size_t first, std::size_t count,
                          Batch& batch) {
  const TokenMemo::Finder finder(memo_);
  std::size_t shortCount = 0;
  std::size_t longCount = 0;
  const auto findKeys = [&](auto keyOf) {
    for (std::size_t i = 0; i < count; ++i) {
      const LineBlock::Token token = block.TokenAt(first + i);
      if (token.bytes <= TokenMemo::kMostBytes) {
        const TokenMemo::Key key = keyOf(token);
        finder.Prefetch(key);
        batch.shortOnes.keys.Put(shortCount, key);
        batch.shortOnes.numbers[shortCount++] = static_cast<std::uint16_t>(i);
      } else {
        batch.longOnes.numbers[longCount++] = static_cast<std::uint16_t>(i);
      }
    }
  };
  // Behind every token but the last ones of a text enough can be read.
  if (block.TokenAt(first + count - 1).readable >= TokenMemo::kMostBytes) [[likely]] {
    findKeys(
        [&](const LineBlock::Token& token) { return finder.KeyInside(token.text, token.bytes); });
  } else {
    findKeys([&](const LineBlock::Token& token) {
      return finder.KeyOf(token.text, token.bytes, token.readable);
    });
  }
  batch.shortOnes.count = shortCount;
  batch.longOnes.count = longCount;
  const LongTokenMemo::Finder longFinder(longMemo_);
  for (std::size_t i = 0; i < longCount; ++i) {
    const LineBlock::Token token = block.TokenAt(first + batch.longOnes.numbers[i]);
    batch.longOnes.keys[i] = longFinder.KeyOf(token.text, token.bytes);
    longFinder.Prefetch(batch.longOnes.keys[i]);
  }
}

/// Counts the tokens that the memo knows in the memo, and notes those that are new.
template <typename Memo>
void TokenTaker::KeepKnown(const LineBlock& block, std::size_t first, Memo& memo,
                           const Keys<Memo>& keys) {
  const typename Memo::Finder finder(memo);
  auto words = static_cast<std::int32_t>(keys.count);
  for (std::size_t i = 0; i < keys.count; ++i) {
    typename Memo::Entry* const entry = finder.Find(keys.keys[i]);
    if (entry != nullptr && ++entry->kept > 0) [[likely]]
      continue;
    --words;
    if (entry == nullptr) {
      NoteNewToken(block, first + keys.numbers[i]);
      continue;
    }
    entry->kept = MemoEntry::kNeverKept;
    const TokenOutcome outcome = memo.OutcomeOf(*entry);
    if (!IsSeveral(outcome)) continue;
    TakeSeveral(outcome);
    store_.KeepCounts(*this, 0);  // near the limit it has asked for them all
  }
  AddChecked(wordsRead_, words);
}

/// Counts the tokens that the memo knows in the store, and notes those that are new.
template <typename Memo>
void TokenTaker::CountKnown(const LineBlock& block, std::size_t first, Memo& memo,
                            const Keys<Memo>& keys) {
  std::array<std::uint32_t, kTokensAtOnce> places;  // NOLINT(*-member-init): written first
  std::size_t placeCount = 0;
  std::int32_t words = 0;
  for (std::size_t i = 0; i < keys.count; ++i) {
    const TokenOutcome outcome = memo.Find(keys.keys[i]);
    places[placeCount] = outcome;
    placeCount += static_cast<std::size_t>(IsPlace(outcome));
    words += static_cast<std::int32_t>(IsOneWord(outcome));
    if (outcome < kUnknownToken) continue;
    if (IsSeveral(outcome)) {
      TakeSeveral(outcome);
    } else {
      NoteNewToken(block, first + keys.numbers[i]);
    }
  }
  AddChecked(wordsRead_, words);
  store_.CountWordsAt(std::span(places).first(placeCount));
}

void TokenTaker::BringCounts() noexcept {
  const auto bring = [this](TokenOutcome outcome, std::int32_t times) {
    if (IsPlace(outcome)) store_.AddKept(outcome, times);
  };
  memo_.TakeKept(bring);
  longMemo_.TakeKept(bring);
}

TokenOutcome TokenTaker::OutcomeOf(const LineBlock::Token& token) {
  if (token.bytes > TokenMemo::kMostBytes) {
    return longMemo_.Find(longMemo_.KeyOf(token.text, token.bytes));
  }
  return memo_.Find(memo_.KeyOf(token.text, token.bytes, token.readable));
}

/// Of a token that consists of several words: what each of them is worth.
std::span<const TokenOutcome> TokenTaker::OutcomesOfSeveral(TokenOutcome several) const {
  const std::size_t start = several - kFirstOfSeveral;
  return std::span(several_).subspan(start + 1, several_[start]);
}

/// Counts the words of a token that consists of several.
void TokenTaker::TakeSeveral(TokenOutcome several) {
  for (const TokenOutcome outcome : OutcomesOfSeveral(several)) {
    IncrementChecked(wordsRead_);
    if (IsPlace(outcome)) store_.CountWordAt(outcome);
  }
}

/// What a token of these words is worth.
TokenOutcome TokenTaker::KeepSeveral(std::span<const NewWord> words) {
  const std::size_t start = several_.size();
  several_.push_back(static_cast<TokenOutcome>(words.size()));
  for (const NewWord& word : words) several_.push_back(word.outcome);
  return kFirstOfSeveral + static_cast<TokenOutcome>(start);
}

/// Before new tokens make the memos forget others.
void TokenTaker::NoteOutcomes(const LineBlock& block, std::size_t first, std::size_t count) {
  outcomes_.clear();
  for (std::size_t i = 0; i < count; ++i) outcomes_.push_back(OutcomeOf(block.TokenAt(first + i)));
}

/// Of the tokens of outcomes_, which are numbered from `first` on. The words of new ones have been
/// added.
void TokenTaker::TellOrder(std::size_t first) {
  order_.clear();
  const auto take = [this](TokenOutcome outcome) {
    if (IsPlace(outcome)) order_.push_back(outcome);
  };
  auto newToken = newTokens_.begin();
  std::size_t newWord = 0;
  for (std::size_t i = 0; i < outcomes_.size(); ++i) {
    if (newToken == newTokens_.end() || newToken->number != first + i) {
      if (IsSeveral(outcomes_[i])) {
        std::ranges::for_each(OutcomesOfSeveral(outcomes_[i]), take);
      } else {
        take(outcomes_[i]);
      }
      continue;
    }
    for (; newWord < newToken->wordsEnd; ++newWord) take(newWords_[newWord].outcome);
    ++newToken;
  }
  store_.OrderListener()->OnWords(order_);
}

/// Notes the words of a token as it stands in a file: seldom more than one ("well--known").
void TokenTaker::WorkOutToken(std::string_view token) {
  std::string_view text =
      PrepareLine(token, IsSet(choices_.caseSignificant), tokenText_, keyRule_.letters);
  if (text.find("--") != std::string_view::npos) {
    tokenText_ = ReplaceAll(text, "--", " ");
    text = tokenText_;
  }
  if (keyRule_.letters == LetterRule::kAll) {
    text = NormalForm(text, DottedCapitalI::kKept, normalText_);  // of what became small letters
  }
  for (std::size_t position = 0; position < text.size();) {
    if (!charClass_.MayStartWord(text, position)) {
      position += CharacterAt(text, position).bytes;
      continue;
    }
    const std::size_t bytes = charClass_.RunBytes(text, position);
    WorkOutRun(text.substr(position, bytes));
    position += bytes;
  }
}

/// Of word characters: one word, but for scripts without blanks.
void TokenTaker::WorkOutRun(std::string_view run) {
  cutter_.ForEachPart(run, [this](std::string_view part) { NoteNewWord(FinalForm(part)); });
  if (cutter_.HasLeftWhole()) settings_.Uncounted.runsLeftWhole = true;
}

/// The same for a short token of letters without accents, which most are; false for any other.
bool TokenTaker::WorkOutPlainToken(std::string_view token, const TokenMemo::Key& key) {
  if (!AreAscii(key.low | key.high)) return false;
  const bool isSmall = AreSmallLetters(key.low) && AreSmallLetters(key.high);
  std::string_view text = token;
  if (!isSmall) {
    const std::array<std::uint64_t, 2> letters = {LettersMadeSmall(key.low),
                                                  LettersMadeSmall(key.high)};
    if (IsSet(choices_.caseSignificant)) return false;
    if (!AreSmallLetters(letters[0]) || !AreSmallLetters(letters[1])) return false;
    std::array<char, sizeof letters> small{};
    std::memcpy(small.data(), letters.data(), sizeof letters);
    text = {newLetters_.Keep({small.data(), token.size()}), token.size()};
  }
  const std::string_view word = FinalForm(text);
  if (word.empty()) return true;
  if (lists_.Admits(word, settings_.CountOnlyMode)) {
    NoteStoredWord(word, word);
  } else {
    newWords_.emplace_back();
  }
  return true;
}

/// Nothing for a token of which nothing is left.
void TokenTaker::NoteNewWord(std::string_view word) {
  if (word.empty()) return;
  const auto kept = [this](std::string_view text) {
    return std::string_view(newLetters_.Keep(text), text.size());
  };
  if (!lists_.Admits(word, settings_.CountOnlyMode) || IsLongWord(word)) {
    newWords_.emplace_back();
    return;
  }
  const std::string_view lasting = kept(word);
  const std::string_view key = SortKeyOf(word, keyRule_, keyText_);
  NoteStoredWord(lasting, key.data() == word.data() ? lasting : kept(key));
}

/// Both stay until the words are added.
void TokenTaker::NoteStoredWord(std::string_view word, std::string_view key) {
  const std::uint32_t hash = store_.HashOf(key);
  store_.PrefetchSlot(hash);
  newWords_.push_back({{word, key, hash}, true, kWordNotStored});
}

/// Of a block. New words are new in the order of the text.
void TokenTaker::TakeNewTokens() {
  if (!std::ranges::is_sorted(newTokens_, {}, &NewToken::number)) {
    std::ranges::sort(newTokens_, {}, &NewToken::number);
  }
  for (NewToken& token : newTokens_) {
    const auto& [text, bytes, readable] = token.token;
    const bool isPlain = bytes <= TokenMemo::kMostBytes &&
                         WorkOutPlainToken({text, bytes}, memo_.KeyOf(text, bytes, readable));
    if (!isPlain) WorkOutToken({text, bytes});
    token.wordsEnd = newWords_.size();
  }
  AddNewWords();
}

void TokenTaker::AddNewWords() {
  AddChecked(wordsRead_, static_cast<std::int32_t>(newWords_.size()));
  for (const NewWord& word : newWords_) {
    if (word.isStored) store_.PrefetchLetters(word.letters.hash);
  }
  std::size_t next = 0;
  for (const NewToken& token : newTokens_) {
    const auto words = std::span(newWords_).subspan(next, token.wordsEnd - next);
    next = token.wordsEnd;
    for (NewWord& word : words) {
      if (word.isStored) word.outcome = store_.AddKeyedWord(word.letters);
    }
    RememberToken(token, words);
  }
}

/// What a token is worth that consists of these words, which have been added.
void TokenTaker::RememberToken(const NewToken& token, std::span<const NewWord> words) {
  const auto& [text, bytes, readable] = token.token;
  if (bytes > TokenMemo::kMostBytes) {
    RememberIn(longMemo_, longMemo_.KeyOf(text, bytes), bytes, words);
  } else {
    RememberIn(memo_, memo_.KeyOf(text, bytes, readable), bytes, words);
  }
}

template <typename Memo, typename Key>
void TokenTaker::RememberIn(Memo& memo, Key key, std::size_t bytes,
                            std::span<const NewWord> words) {
  if (memoRest_.Rests()) return;
  if (memo.Find(key) != kUnknownToken) return;  // it may stand in the block twice
  if (memo.IsFullFor(bytes)) {
    store_.BringCounts();
    memo.Forget();
  }
  TokenOutcome outcome = kNoWord;
  if (words.size() == 1) outcome = words[0].outcome;
  if (words.size() > 1) outcome = KeepSeveral(words);
  memo.Remember(key, outcome);
}

std::string_view PrepareLine(std::string_view line, bool caseSignificant, std::string& buffer,
                             LetterRule letters) {
  if (letters == LetterRule::kWestern) {
    buffer.assign(line);
    if (!caseSignificant) MakeLowerCase(buffer);
  } else if (caseSignificant) {
    std::string scratch;
    buffer.assign(NormalForm(line, DottedCapitalI::kKept, scratch));
  } else {
    std::string scratch;
    buffer = LowerCaseOfAll(NormalForm(line, DottedCapitalI::kLowered, scratch));
  }
  buffer.push_back(' ');
  return buffer;
}

}  // namespace quillomat
