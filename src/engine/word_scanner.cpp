#include "engine/word_scanner.h"

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
                 settings.ExtraWordChars) {}

void WordScanner::GetWords(std::string_view lineBuffer) {
  text_ = settings_.ReadingWordList ? lineBuffer : Rewritten(lineBuffer);
  PrepareMarkers();
  position_ = 0;
  std::size_t skipped = 0;
  const std::size_t lastCharacter = LastCharacterStart(text_);
  while (position_ < lastCharacter) {
    if (settings_.UseCommentMarkers && SkipComments() == AfterComments::kStop) return;
    if (!charClass_.MayStartWord(text_, position_)) {
      position_ += CharacterBytes();
      if (++skipped % kSkippedPerYield == 0 && yield_.Yield()) return;
      continue;
    }
    const std::string_view word = GetNextWord();
    if (!word.empty()) TakeWord(word);
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
  if (!settings_.UseCommentMarkers) return;
  for (std::size_t pair = 0; pair < 2; ++pair) {
    lowerStart_[pair] = LowerCase(settings_.CommentStart[pair]);
    lowerEnd_[pair] = LowerCase(settings_.CommentEnd[pair]);
  }
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

/// The word that starts at the position, in its final form; empty when nothing is left of it.
std::string_view WordScanner::GetNextWord() {
  std::string_view word = TrimTrailingChars(CutToken(), kTrimmedFromWords);
  if (settings_.ReadingWordList) {
    if (!word.empty()) settings_.NoteListWordChars(word);
    return word;
  }
  if (IsSet(choices_.dropFinalS)) word = DropFinalS(word);
  const bool dropFragments = choices_.AllowWith(AllowFlag::kApostrophe) == CheckState::kUnchecked;
  if (dropFragments && IsApostropheFragment(word)) return {};
  return word;
}

void WordScanner::TakeWord(std::string_view word) {
  if (settings_.ReadingWordList) {
    store_.AddWord(word, true);
    return;
  }
  IncrementChecked(wordsRead_);
  if (lists_.Admits(word, settings_.CountOnlyMode)) store_.AddWord(word);
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
