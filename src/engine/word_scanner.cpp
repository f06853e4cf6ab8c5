#include "engine/word_scanner.h"

#include <algorithm>

#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/html_entities.h"
#include "engine/normal_text.h"
#include "engine/utf8_kernels.h"

namespace quillomat {
namespace {

/// A long text without any word must not keep the user waiting either.
constexpr std::size_t kSkippedPerYield = 4096;

bool AllowsDigits(const ScanSettings& settings) {
  return settings.AllowFlags[static_cast<std::size_t>(AllowFlag::kNumerals)];
}

}  // namespace

WordScanner::WordScanner(ScanSettings& settings, const ScanChoices& choices, const WordLists& lists,
                         WordStore& store, ScanYield& yield)
    : settings_(settings),
      choices_(choices),
      yield_(yield),
      charClass_(AllowsDigits(settings), settings.ExtraWordChars, settings.Letters),
      tokenClasses_(AllowsDigits(settings), settings.ExtraWordChars),
      taker_(settings, choices, charClass_, lists, store),
      block_(tokenClasses_, settings.Letters) {
  store.SetKeyRule(choices.Keys());
}

/// For the user, of a text that is counted.
void WordScanner::NoteForeignLetters(std::string_view text, bool behindLetter) {
  if (settings_.Letters == LetterRule::kAll || settings_.ReadingWordList) return;
  settings_.Uncounted.foreignLetters +=
      CountForeignLetters(text, IsSet(choices_.caseSignificant), behindLetter);
}

void WordScanner::GetWords(std::string_view lineBuffer) {
  NoteForeignLetters(lineBuffer);
  ScanText(lineBuffer, [this](std::string_view token) { taker_.TakeCut(token); });
}

void WordScanner::ShowTokens(std::string_view lineBuffer, ScanWitness& witness) {
  witness_ = &witness;
  const auto show = [&witness](std::string_view token) { witness.OnToken(token); };
  ScanText(lineBuffer,
           [this, &show](std::string_view run) { taker_.Cutter().ForEachPart(run, show); });
  witness_ = nullptr;
  if (taker_.Cutter().HasLeftWhole()) settings_.Uncounted.runsLeftWhole = true;
}

void WordScanner::PassOver(std::string_view lineBuffer) {
  ScanText(lineBuffer, [](std::string_view /*token*/) {});
}

void WordScanner::PassOverLines(std::string_view lines) {
  block_.PassOver(lines, markers_, settings_, IsSet(choices_.caseSignificant));
}

/// `take` is given every token that may hold a word.
template <typename Take>
void WordScanner::ScanText(std::string_view lineBuffer, Take take) {
  text_ = settings_.ReadingWordList ? lineBuffer : Rewritten(lineBuffer);
  if (settings_.Letters == LetterRule::kAll) {
    text_ = NormalForm(text_, DottedCapitalI::kKept, normalText_);
  }
  PrepareMarkers();
  if (witness_ != nullptr) witness_->OnText(text_);
  position_ = 0;
  std::size_t skipped = 0;
  const std::size_t lastCharacter = LastCharacterStart(text_);
  while (position_ < lastCharacter) {
    if (MayMeetComment() && SkipComments() == AfterComments::kStop) return;
    if (!charClass_.MayStartWord(text_, position_)) {
      const bool ascii = static_cast<unsigned char>(text_[position_]) < 0x80;
      position_ += ascii ? 1 : CharacterAt(text_, position_).bytes;
      if (++skipped % kSkippedPerYield == 0 && yield_.Yield()) return;
      continue;
    }
    const std::size_t bytes = charClass_.RunBytes(text_, position_);
    take(text_.substr(position_, bytes));
    position_ += bytes;
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
  if (settings_.UseCommentMarkers) markers_.Prepare(settings_);
}

/// Skips the comments that start, or go on, at the position, one directly behind the other.
WordScanner::AfterComments WordScanner::SkipComments() {
  int& open = settings_.OpenComment;
  if (open == kNoComment) open = CommentStart();
  while (open != kNoComment) {
    const std::size_t start = position_;
    SkipComment();
    if (witness_ != nullptr) witness_->OnComment(text_.substr(start, position_ - start));
    if (position_ >= text_.size()) return AfterComments::kStop;
    if (RestIsOneBlank()) {
      open = kNoComment;
      return AfterComments::kStop;
    }
    open = CommentStart();
  }
  return AfterComments::kScan;
}

/// Moves past the end marker of the open comment. The search starts at the start marker itself, so
/// an end marker that overlaps the start marker closes the comment early.
void WordScanner::SkipComment() {
  const std::string& end = markers_.EndMarker(settings_.OpenComment);
  if (end.empty()) {
    position_ = text_.size();
    settings_.OpenComment = kNoComment;
    return;
  }
  const std::size_t found = text_.find(end, position_);
  position_ = found == std::string_view::npos ? text_.size() : found + end.size();
}

/// Lines of bytes that are not UTF-8 are not text yet. Markers that may be part of a word, or that
/// a line must be rewritten for, want the lines one by one.
std::size_t WordScanner::PlainLineBytes(std::string_view lines) {
  constexpr std::uint32_t kTooFewToPutOff = 16;
  if (settings_.ReadingWordList || yield_.CallsLeft() < kTooFewToPutOff) return 0;
  PrepareMarkers();
  if (settings_.UseCommentMarkers && !markers_.CanBeFoundInRawLines(tokenClasses_)) {
    if (settings_.OpenComment != kNoComment) return 0;
    // An entity may become the letter with which a marker starts, and two hyphens the blank.
    const bool atBlank = markers_.MayStartWith(' ');
    const bool all = settings_.Letters == LetterRule::kAll;  // others may become signs of ASCII
    const auto mayStart = [&](char ch) {
      return ch == '&' || (ch == '-' && atBlank) || markers_.MayStartWith(ch) ||
             (all && static_cast<unsigned char>(ch) >= 0x80);
    };
    const auto start = std::ranges::find_if(lines, mayStart);
    lines = lines.substr(0, static_cast<std::size_t>(start - lines.begin()));
  }
  linesAreAscii_ = IsAscii(lines);
  const bool allWellFormed = linesAreAscii_ || IsWellFormedText(lines);
  const std::size_t wellFormed = allWellFormed ? lines.size() : WellFormedUtf8Bytes(lines);
  return lines.substr(0, wellFormed).rfind('\n') + 1;
}

void WordScanner::GetWordsOfLines(std::string_view lines) {
  if (!linesAreAscii_) NoteForeignLetters(lines);
  block_.Take(lines, markers_, settings_, IsSet(choices_.caseSignificant), linesAreAscii_);
  TakeTokens();
}

bool WordScanner::CanTakeParts() {
  if (settings_.ReadingWordList) return false;
  PrepareMarkers();
  return !settings_.UseCommentMarkers || markers_.CanBeFoundInRawLines(tokenClasses_);
}

void WordScanner::GetWordsOfPart(std::string_view part, LinePartState& state) {
  PrepareMarkers();
  NoteForeignLetters(part, state.behindLetter);
  state.behindLetter = EndsInLetter(part, state.behindLetter);
  block_.TakePart(part, markers_, settings_, IsSet(choices_.caseSignificant), state);
  TakeTokens();
}

/// Those of the block.
void WordScanner::TakeTokens() {
  try {
    if (!TakeTokensOfBlock()) LeaveBlock();
  } catch (...) {  // a counter has overflowed, or a handler of the user's doing has failed
    LeaveBlock();
    throw;
  }
}

/// False when the scan is to stop before all are taken.
bool WordScanner::TakeTokensOfBlock() {
  for (std::size_t first = 0; first < block_.TokenCount();) {
    const std::size_t left = block_.TokenCount() - first;
    const std::size_t count =
        std::min({left, TokenTaker::kTokensAtOnce, std::size_t{yield_.CallsLeft()}});
    taker_.TakeMany(block_, first, count);
    if (yield_.YieldFor(static_cast<std::uint32_t>(count))) return false;
    first += count;
  }
  return true;
}

/// Behind a word no comment is open, whatever stands in the rest of the block; one that is not
/// looked for stays as it was.
void WordScanner::LeaveBlock() {
  if (settings_.UseCommentMarkers) settings_.OpenComment = kNoComment;
}

}  // namespace quillomat
