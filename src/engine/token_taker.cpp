#include "engine/token_taker.h"

#include <algorithm>
#include <array>
#include <cstring>
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

constexpr LongTokenMemo::Key kNoLongKey = {nullptr, 0, 0};
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
  const TokenMemo::Key key = KeyOf(token, token.size());
  const TokenOutcome known = memo_.Find(key);
  if (known == kUnknownToken) {
    ForgetNewTokens();
    newTokens_.push_back({0, key, kNoLongKey, 0});
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

TokenMemo::Key TokenTaker::KeyOf(std::string_view token, std::size_t readable) const {
  return token.size() > TokenMemo::kMostBytes ? TokenMemo::NoKey()
                                              : memo_.KeyOf(token.data(), token.size(), readable);
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
  memo_.Clear();
  longMemo_.Clear();
  several_.clear();
  memoGeneration_ = store_.Generation();
}

void TokenTaker::TakeMany(const LineBlock& block, std::size_t first, std::size_t count) {
  ForgetTokensOfOldStore();
  ForgetNewTokens();
  // In steps, so that the memory has time to bring what the next step needs.
  Batch batch;  // NOLINT(cppcoreguidelines-pro-type-member-init): see there
  FindKeys(block, first, count, batch);
  FindShort(first, batch);
  if (batch.longKeyCount > 0) FindLong(first, batch);
  AddChecked(wordsRead_, batch.words);
  store_.CountWordsAt(std::span(batch.places).first(batch.placeCount));
  const bool orderMatters = store_.OrderListener() != nullptr;
  if (orderMatters) NoteOutcomes(block, first, count);
  for (NewToken& token : newTokens_) {
    const LineBlock::Token found = block.TokenAt(token.number);
    const std::string_view text(found.text, found.bytes);
    if (!WorkOutPlainToken(text, token.key)) WorkOutToken(text);
    token.wordsEnd = newWords_.size();
  }
  if (!newTokens_.empty()) AddNewWords();
  if (orderMatters) TellOrder(first);
}

void TokenTaker::FindKeys(const LineBlock& block, std::size_t first, std::size_t count,
                          Batch& batch) const {
  for (std::size_t i = 0; i < count; ++i) {
    const LineBlock::Token token = block.TokenAt(first + i);
    if (token.bytes <= TokenMemo::kMostBytes) {
      const TokenMemo::Key key = memo_.KeyOf(token.text, token.bytes, token.readable);
      memo_.Prefetch(key);
      batch.keys[batch.keyCount] = key;
      batch.numbers[batch.keyCount++] = static_cast<std::uint8_t>(i);
    } else {
      const LongTokenMemo::Key key = longMemo_.KeyOf(token.text, token.bytes);
      longMemo_.Prefetch(key);
      batch.longKeys[batch.longKeyCount] = key;
      batch.longNumbers[batch.longKeyCount++] = static_cast<std::uint8_t>(i);
    }
  }
}

void TokenTaker::FindShort(std::size_t first, Batch& batch) {
  for (std::size_t i = 0; i < batch.keyCount; ++i) {
    const TokenOutcome outcome = memo_.Find(batch.keys[i]);
    batch.places[batch.placeCount] = outcome;
    batch.placeCount += static_cast<std::size_t>(IsPlace(outcome));
    batch.words += static_cast<std::int32_t>(outcome <= kWordNotStored);
    if (outcome < kUnknownToken) continue;
    if (IsSeveral(outcome)) {
      TakeSeveral(outcome);
    } else {
      newTokens_.push_back({first + batch.numbers[i], batch.keys[i], kNoLongKey, 0});
    }
  }
}

void TokenTaker::FindLong(std::size_t first, Batch& batch) {
  const std::size_t shortOnes = newTokens_.size();
  for (std::size_t i = 0; i < batch.longKeyCount; ++i) {
    const TokenOutcome outcome = longMemo_.Find(batch.longKeys[i]);
    batch.places[batch.placeCount] = outcome;
    batch.placeCount += static_cast<std::size_t>(IsPlace(outcome));
    batch.words += static_cast<std::int32_t>(outcome <= kWordNotStored);
    if (outcome < kUnknownToken) continue;
    if (IsSeveral(outcome)) {
      TakeSeveral(outcome);
    } else {
      const std::size_t number = first + batch.longNumbers[i];
      newTokens_.push_back({number, TokenMemo::NoKey(), batch.longKeys[i], 0});
    }
  }
  // New words are new in the order of the text.
  const auto middle = newTokens_.begin() + static_cast<std::ptrdiff_t>(shortOnes);
  const auto isBefore = [](const NewToken& left, const NewToken& right) {
    return left.number < right.number;
  };
  std::inplace_merge(newTokens_.begin(), middle, newTokens_.end(), isBefore);
}

TokenOutcome TokenTaker::OutcomeOf(const LineBlock::Token& token) const {
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
  if (token.size() > TokenMemo::kMostBytes || !AreAscii(key.low | key.high)) return false;
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
  if (lists_.Admits(word, settings_.CountOnlyMode, keyRule_.letters)) {
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
  if (!lists_.Admits(word, settings_.CountOnlyMode, keyRule_.letters) || IsLongWord(word)) {
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
  const bool isShort = token.key.low != 0;
  if (!isShort && token.longKey.hash == 0) return;
  // It may stand in the block twice.
  const TokenOutcome known = isShort ? memo_.Find(token.key) : longMemo_.Find(token.longKey);
  if (known != kUnknownToken) return;
  TokenOutcome outcome = kNoWord;
  if (words.size() == 1) outcome = words[0].outcome;
  if (words.size() > 1) outcome = KeepSeveral(words);
  if (isShort) {
    memo_.Remember(token.key, outcome);
  } else {
    longMemo_.Remember(token.longKey, outcome);
  }
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
