#include "engine/word_scanner.h"

#include <algorithm>

#include "base/checked_count.h"
#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/html_entities.h"
#include "engine/word_rules.h"

namespace quillomat {
namespace {

constexpr std::string_view kTrimmedFromWords = "-'.,:()";
constexpr int kNoComment = -1;
/// As many tokens as are looked up together.
constexpr std::size_t kTokensAtOnce = 64;
/// A long text without any word must not keep the user waiting either.
constexpr std::size_t kSkippedPerYield = 4096;

/// Whether the lower-cased `marker`, which is not empty, stands at the start of `text` in any
/// letter case. Nearly always the first character decides.
bool StartsWithMarker(std::string_view text, std::string_view marker) {
  const auto first = static_cast<unsigned char>(text[0]);
  const auto wanted = static_cast<unsigned char>(marker[0]);
  const bool capital = first >= 'A' && first <= 'Z';
  if (wanted < 0x80 && wanted != (capital ? first + 0x20U : first)) return false;
  return EqualIgnoringCase(text.substr(0, marker.size()), marker);
}

}  // namespace

WordScanner::WordScanner(ScanSettings& settings, const ScanChoices& choices, const WordLists& lists,
                         WordStore& store, ScanYield& yield)
    : settings_(settings),
      choices_(choices),
      lists_(lists),
      store_(store),
      yield_(yield),
      charClass_(settings.AllowFlags[static_cast<std::size_t>(AllowFlag::kNumerals)],
                 settings.ExtraWordChars),
      tokenClasses_(settings.AllowFlags[static_cast<std::size_t>(AllowFlag::kNumerals)],
                    settings.ExtraWordChars),
      memoGeneration_(store.Generation()) {}

void WordScanner::GetWords(std::string_view lineBuffer) {
  text_ = settings_.ReadingWordList ? lineBuffer : Rewritten(lineBuffer);
  PrepareMarkers();
  position_ = 0;
  std::size_t skipped = 0;
  const std::size_t lastCharacter = LastCharacterStart(text_);
  while (position_ < lastCharacter) {
    if (MayMeetComment() && SkipComments() == AfterComments::kStop) return;
    if (!charClass_.MayStartWord(text_, position_)) {
      const bool ascii = static_cast<unsigned char>(text_[position_]) < 0x80;
      position_ += ascii ? 1 : CharacterBytes();
      if (++skipped % kSkippedPerYield == 0 && yield_.Yield()) return;
      continue;
    }
    TakeCutToken(CutToken());
    if (yield_.Yield()) return;
  }
}

/// A double hyphen always separates words, and entities of letters become letters. Dashes come
/// first, so no marker that holds "--" is ever met. Most lines need no rewriting and are scanned in
/// place.
std::string_view WordScanner::Rewritten(std::string_view text) {
  const bool dashes = text.find("--") != std::string_view::npos;
  const bool entities = text.find('&') != std::string_view::npos;
  if (!dashes && !entities) return text;
  rewritten_ = dashes ? ReplaceAll(text, "--", " ") : std::string(text);
  if (entities) DecodeHtmlEntities(rewritten_);
  return rewritten_;
}

void WordScanner::PrepareMarkers() {
  const bool allowed = IsSet(choices_.allowCommentMarkers) &&
                       !(settings_.CommentStart[0].empty() && settings_.CommentStart[1].empty());
  settings_.UseCommentMarkers =
      settings_.ReadingWordList || allowed || settings_.ForceCommentMarkers;
  const bool prepared =
      preparedStart_ == settings_.CommentStart && preparedEnd_ == settings_.CommentEnd;
  if (!settings_.UseCommentMarkers || prepared) return;
  preparedStart_ = settings_.CommentStart;
  preparedEnd_ = settings_.CommentEnd;
  mayStartMarker_.reset();
  for (std::size_t pair = 0; pair < 2; ++pair) {
    lowerStart_[pair] = LowerCase(preparedStart_[pair]);
    lowerEnd_[pair] = LowerCase(preparedEnd_[pair]);
    if (!lowerStart_[pair].empty()) NoteMarkerStart(lowerStart_[pair][0]);
  }
}

/// The bytes with which a lower-cased marker may start in a text of any letter case.
void WordScanner::NoteMarkerStart(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte >= 0x80) {
    for (std::size_t high = 0x80; high < mayStartMarker_.size(); ++high) mayStartMarker_.set(high);
    return;
  }
  mayStartMarker_.set(byte);
  if (byte >= 'a' && byte <= 'z') mayStartMarker_.set(byte - std::size_t{'a' - 'A'});
}

/// Skips the comments that start, or go on, at the position, one directly behind the other.
WordScanner::AfterComments WordScanner::SkipComments() {
  int& open = settings_.OpenComment;
  if (open == kNoComment) open = FindCommentStart();
  while (open != kNoComment) {
    SkipComment();
    if (position_ >= text_.size()) return AfterComments::kStop;
    if (RestIsOneBlank()) {
      open = kNoComment;
      return AfterComments::kStop;
    }
    open = FindCommentStart();
  }
  return AfterComments::kScan;
}

/// The pair whose start marker begins at the position. The first pair wins by order, not by length.
int WordScanner::FindCommentStart() const {
  for (std::size_t pair = 0; pair < 2; ++pair) {
    const std::string& marker = lowerStart_[pair];
    if (marker.empty() || !StartsWithMarker(text_.substr(position_), marker)) continue;
    const bool mustBeEntity = pair == 1 && settings_.ForceCommentMarkers && marker == "&";
    if (mustBeEntity && HtmlEntityEnd(text_.substr(position_)) == 0) return kNoComment;
    return static_cast<int>(pair);
  }
  return kNoComment;
}

/// Moves past the end marker of the open comment. The search starts at the start marker itself, so
/// an end marker that overlaps the start marker closes the comment early.
void WordScanner::SkipComment() {
  const std::string& end = lowerEnd_[static_cast<std::size_t>(settings_.OpenComment)];
  if (end.empty()) {
    position_ = text_.size();
    settings_.OpenComment = kNoComment;
    return;
  }
  const std::size_t found = text_.find(end, position_);
  position_ = found == std::string_view::npos ? text_.size() : found + end.size();
}

std::string_view WordScanner::CutToken() {
  const std::size_t start = position_;
  for (std::size_t count = 0; count < kMaxWordRun && position_ < text_.size(); ++count) {
    const std::size_t bytes = charClass_.WordCharBytes(text_, position_);
    if (bytes == 0) break;
    position_ += bytes;
  }
  return text_.substr(start, position_ - start);
}

/// What is left of a token that starts as words may start; often all of it, sometimes nothing.
std::string_view WordScanner::FinalForm(std::string_view token) {
  std::string_view word = TrimTrailingChars(token, kTrimmedFromWords);
  if (settings_.ReadingWordList) {
    if (!word.empty()) settings_.NoteListWordChars(word);
    return word;
  }
  if (IsSet(choices_.dropFinalS)) word = DropFinalS(word);
  const bool dropFragments = choices_.AllowWith(AllowFlag::kApostrophe) == CheckState::kUnchecked;
  if (dropFragments && IsApostropheFragment(word)) return {};
  return word;
}

/// A token that starts as words may start, as it stands in a text that was lower-cased and
/// rewritten as the settings want it.
void WordScanner::TakeCutToken(std::string_view token) {
  if (settings_.ReadingWordList || token.size() > TokenMemo::kMostBytes) {
    static_cast<void>(WorkOutCutToken(token));
    return;
  }
  ForgetTokensOfOldStore();
  const TokenMemo::Key key = TokenMemo::KeyOf(token.data(), token.size(), token.size());
  if (const TokenOutcome* known = memo_.Find(key)) return CountToken(*known);
  memo_.Remember(key, WorkOutCutToken(token));
}

TokenOutcome WordScanner::WorkOutCutToken(std::string_view token) {
  const std::string_view word = FinalForm(token);
  return word.empty() ? TokenOutcome() : TakeWord(word);
}

/// Nothing when the token holds more than one word ("well--known"), which is seldom and is worked
/// out every time.
std::optional<TokenOutcome> WordScanner::WorkOutWholeToken(std::string_view token) {
  text_ = Rewritten(PrepareLine(token, IsSet(choices_.caseSignificant), tokenText_));
  position_ = 0;
  TokenOutcome outcome;
  std::size_t words = 0;
  while (position_ < text_.size()) {
    if (!charClass_.MayStartWord(text_, position_)) {
      position_ += CharacterBytes();
      continue;
    }
    const TokenOutcome next = WorkOutCutToken(CutToken());
    if (!next.isWord) continue;
    outcome = next;
    ++words;
  }
  if (words > 1) return std::nullopt;
  return outcome;
}

TokenOutcome WordScanner::TakeWord(std::string_view word) {
  TokenOutcome outcome;
  outcome.isWord = true;
  if (settings_.ReadingWordList) {
    store_.AddWord(word, true);
    return outcome;
  }
  IncrementChecked(wordsRead_);
  if (!lists_.Admits(word, settings_.CountOnlyMode)) return outcome;
  if (const auto place = store_.AddWord(word)) outcome.place = *place;
  return outcome;
}

void WordScanner::CountToken(const TokenOutcome& outcome) {
  if (outcome.isWord) IncrementChecked(wordsRead_);
  if (outcome.place != TokenOutcome::kNotStored) store_.CountWordAt(outcome.place);
}

void WordScanner::ForgetTokensOfOldStore() {
  if (memoGeneration_ == store_.Generation()) return;
  memo_.Clear();
  memoGeneration_ = store_.Generation();
}

/// Comments and entities reach beyond a token, and bytes that are not UTF-8 are not text yet.
std::size_t WordScanner::PlainLineBytes(std::string_view lines) {
  constexpr std::uint32_t kTooFewToPutOff = 16;
  if (settings_.ReadingWordList || yield_.CallsLeft() < kTooFewToPutOff) return 0;
  PrepareMarkers();
  if (settings_.UseCommentMarkers && settings_.OpenComment != kNoComment) return 0;
  lines = lines.substr(0, FirstSpecialByte(lines));
  if (!IsWellFormedUtf8(lines)) {
    const auto isHigh = [](char ch) { return static_cast<unsigned char>(ch) >= 0x80; };
    const auto high = std::find_if(lines.begin(), lines.end(), isHigh);
    lines = lines.substr(0, static_cast<std::size_t>(high - lines.begin()));
  }
  return lines.rfind('\n') + 1;
}

/// The place of the first byte with which an entity or, while markers are in force, a comment may
/// start; the size of `lines` when there is none.
std::size_t WordScanner::FirstSpecialByte(std::string_view lines) const {
  std::size_t first = std::min(lines.find('&'), lines.size());
  if (!settings_.UseCommentMarkers) return first;
  for (const std::string& marker : lowerStart_) {
    if (marker.empty()) continue;
    const auto byte = static_cast<unsigned char>(marker[0]);
    if (byte >= 0x80) return 0;
    first = std::min(first, lines.substr(0, first).find(marker[0]));
    if (byte < 'a' || byte > 'z') continue;
    const char capital = static_cast<char>(byte - ('a' - 'A'));
    first = std::min(first, lines.substr(0, first).find(capital));
  }
  return first;
}

void WordScanner::GetWordsOfLines(std::string_view lines) {
  edges_.Find(tokenClasses_, lines);
  for (std::size_t first = 0; first < edges_.TokenCount();) {
    const std::size_t left = edges_.TokenCount() - first;
    const std::size_t count = std::min({left, kTokensAtOnce, std::size_t{yield_.CallsLeft()}});
    TakeTokens(lines, first, count);
    if (yield_.YieldFor(static_cast<std::uint32_t>(count))) return;
    first += count;
  }
}

/// In three steps, so that the memory has time to bring what the next step needs.
void WordScanner::TakeTokens(std::string_view lines, std::size_t first, std::size_t count) {
  ForgetTokensOfOldStore();
  std::array<TokenMemo::Key, kTokensAtOnce> keys;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t start = edges_.Start(first + i);
    const std::size_t bytes = std::min(edges_.End(first + i) - start, TokenMemo::kMostBytes);
    keys[i] = TokenMemo::KeyOf(lines.data() + start, bytes, lines.size() - start);
    memo_.Prefetch(keys[i]);
  }
  std::array<TokenOutcome, kTokensAtOnce> outcomes;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t start = edges_.Start(first + i);
    const std::string_view token = lines.substr(start, edges_.End(first + i) - start);
    const bool isLong = token.size() > TokenMemo::kMostBytes;
    if (const TokenOutcome* known = isLong ? nullptr : memo_.Find(keys[i])) {
      outcomes[i] = *known;
      if (known->place != TokenOutcome::kNotStored) store_.PrefetchWordAt(known->place);
      continue;
    }
    outcomes[i] = {};
    const auto outcome = WorkOutWholeToken(token);
    if (outcome && !isLong) memo_.Remember(keys[i], *outcome);
  }
  std::int32_t words = 0;
  for (std::size_t i = 0; i < count; ++i) {
    words += static_cast<std::int32_t>(outcomes[i].isWord);
    if (outcomes[i].place != TokenOutcome::kNotStored) store_.CountWordAt(outcomes[i].place);
  }
  AddChecked(wordsRead_, words);
}

std::size_t WordScanner::CharacterBytes() const {
  return CharacterAt(text_, position_).bytes;
}

std::string_view PrepareLine(std::string_view line, bool caseSignificant, std::string& buffer) {
  buffer.assign(line);
  if (!caseSignificant) MakeLowerCase(buffer);
  buffer.push_back(' ');
  return buffer;
}

}  // namespace quillomat
