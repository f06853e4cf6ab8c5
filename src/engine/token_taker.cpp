#include "engine/token_taker.h"

#include <algorithm>
#include <array>
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

bool IsLetter(char ch) {
  return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
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
    const std::string_view word = FinalForm(token);
    if (!word.empty()) store_.AddWord(word, true);
    return;
  }
  ForgetTokensOfOldStore();
  const TokenMemo::Key key = KeyOf(token, token.size());
  const TokenOutcome known = memo_.Find(key);
  if (known == kUnknownToken) {
    ForgetNewTokens();
    newTokens_.push_back({0, key, 0});
    NoteNewWord(FinalForm(token));
    newTokens_.back().wordsEnd = newWords_.size();
    AddNewWords();
  } else {
    if (known != kNoWord) IncrementChecked(wordsRead_);
    if (IsPlace(known)) store_.CountWordAt(known);
  }
  if (store_.OrderListener() == nullptr) return;
  if (known != kUnknownToken) newTokens_.clear();
  outcomes_.assign(1, known);
  TellOrder(0);
}

TokenMemo::Key TokenTaker::KeyOf(std::string_view token, std::size_t readable) const {
  return token.size() > TokenMemo::kMostBytes ? TokenMemo::NoKey()
                                              : memo_.KeyOf(token.data(), token.size(), readable);
}

void TokenTaker::ForgetNewTokens() {
  store_.SettleHashes();
  newTokens_.clear();
  newWords_.clear();
  newLetters_.clear();
}

void TokenTaker::ForgetTokensOfOldStore() {
  if (memoGeneration_ == store_.Generation() && !memo_.IsCrowded()) return;
  memo_.Clear();
  memoGeneration_ = store_.Generation();
}

void TokenTaker::TakeMany(const LineBlock& block, std::size_t first, std::size_t count) {
  ForgetTokensOfOldStore();
  std::array<std::uint32_t, kTokensAtOnce> places{};
  std::size_t placed = 0;
  std::int32_t words = 0;
  ForgetNewTokens();
  // In steps, so that the memory has time to bring what the next step needs. The keys are written
  // before they are read, and are not worth a kilobyte of zeros.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
  std::array<TokenMemo::Key, kTokensAtOnce> keys;
  for (std::size_t i = 0; i < count; ++i) {
    const LineBlock::Token token = block.TokenAt(first + i);
    keys[i] = KeyOf({token.text, token.bytes}, token.readable);
    memo_.Prefetch(keys[i]);
  }
  for (std::size_t i = 0; i < count; ++i) {
    const TokenOutcome outcome = memo_.Find(keys[i]);
    places[placed] = outcome;
    placed += static_cast<std::size_t>(IsPlace(outcome));
    words += static_cast<std::int32_t>(outcome <= kWordNotStored);
    if (outcome == kUnknownToken) newTokens_.push_back({first + i, keys[i], 0});
  }
  AddChecked(wordsRead_, words);
  store_.CountWordsAt(std::span(places).first(placed));
  const bool orderMatters = store_.OrderListener() != nullptr;
  if (orderMatters) NoteOutcomes(std::span(keys).first(count));
  for (NewToken& token : newTokens_) {
    const LineBlock::Token found = block.TokenAt(token.number);
    WorkOutToken({found.text, found.bytes});
    token.wordsEnd = newWords_.size();
  }
  if (!newTokens_.empty()) AddNewWords();
  if (orderMatters) TellOrder(first);
}

/// Before new tokens make the memo forget others.
void TokenTaker::NoteOutcomes(std::span<const TokenMemo::Key> keys) {
  outcomes_.clear();
  for (const TokenMemo::Key& key : keys) outcomes_.push_back(memo_.Find(key));
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
      take(outcomes_[i]);
      continue;
    }
    for (; newWord < newToken->wordsEnd; ++newWord) take(newWords_[newWord].outcome);
    ++newToken;
  }
  store_.OrderListener()->OnWords(order_);
}

/// Notes the words of a token as it stands in a file: seldom more than one ("well--known").
void TokenTaker::WorkOutToken(std::string_view token) {
  if (WorkOutPlainToken(token)) return;
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
    NoteNewWord(FinalForm(text.substr(position, bytes)));
    position += bytes;
  }
}

/// The same for a short token of letters without accents, which most are; false for any other.
bool TokenTaker::WorkOutPlainToken(std::string_view token) {
  constexpr char kToLower = 'a' - 'A';
  std::array<char, TokenMemo::kMostBytes> letters{};
  if (token.size() > letters.size()) return false;
  const bool keepCase = IsSet(choices_.caseSignificant);
  for (std::size_t i = 0; i < token.size(); ++i) {
    if (!IsLetter(token[i])) return false;
    letters[i] = keepCase ? token[i] : static_cast<char>(token[i] | kToLower);
  }
  NoteNewWord(FinalForm({letters.data(), token.size()}));
  return true;
}

/// Nothing for a token of which nothing is left.
void TokenTaker::NoteNewWord(std::string_view word) {
  if (word.empty()) return;
  NewWord noted;
  noted.isStored =
      lists_.Admits(word, settings_.CountOnlyMode, keyRule_.letters) && !IsLongWord(word);
  if (noted.isStored) {
    const std::string_view key = SortKeyOf(word, keyRule_, keyText_);
    noted.wordStart = newLetters_.size();
    noted.wordBytes = word.size();
    newLetters_.append(word);
    noted.keyStart = noted.wordStart;
    noted.keyBytes = key.size();
    if (key.data() != word.data()) {
      noted.keyStart = newLetters_.size();
      newLetters_.append(key);
    }
    noted.hash = store_.HashOf(key);
    store_.PrefetchSlot(noted.hash);
  }
  newWords_.push_back(noted);
}

KeyedWord TokenTaker::Keyed(const NewWord& word) const {
  const std::string_view letters = newLetters_;
  return {letters.substr(word.wordStart, word.wordBytes),
          letters.substr(word.keyStart, word.keyBytes), word.hash};
}

void TokenTaker::AddNewWords() {
  AddChecked(wordsRead_, static_cast<std::int32_t>(newWords_.size()));
  for (const NewWord& word : newWords_) {
    if (word.isStored) store_.PrefetchLetters(word.hash);
  }
  std::size_t next = 0;
  for (const NewToken& token : newTokens_) {
    const std::size_t words = token.wordsEnd - next;
    TokenOutcome outcome = kNoWord;
    for (; next < token.wordsEnd; ++next) {
      NewWord& word = newWords_[next];
      if (word.isStored) word.outcome = store_.AddKeyedWord(Keyed(word));
      outcome = word.outcome;
    }
    const bool canBeRemembered = words <= 1 && token.key.low != 0;
    // It may stand in the block twice.
    if (canBeRemembered && memo_.Find(token.key) == kUnknownToken) {
      memo_.Remember(token.key, outcome);
    }
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
