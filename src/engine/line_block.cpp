#include "engine/line_block.h"

#include <algorithm>
#include <array>

#include "base/letter_case.h"
#include "base/utf8.h"
#include "engine/html_entities.h"
#include "engine/normal_text.h"

namespace quillomat {
namespace {

/// The first line end of `text` at or behind `position`, or the size of `text`.
std::size_t LineEnd(std::string_view text, std::size_t position) {
  const std::size_t lineFeed = std::min(text.find('\n', position), text.size());
  return std::min(text.substr(0, lineFeed).find('\r', position), lineFeed);
}

/// With which comments start; where no pair of markers is in force, any sign that starts none will
/// do.
SignPair StartSigns(const ScanSettings& settings) {
  const std::string& one = settings.CommentStart[0];
  const std::string& other = settings.CommentStart[1];
  if (one.empty()) return {other[0], other[0]};
  return {one[0], other.empty() ? one[0] : other[0]};
}

}  // namespace

void LineBlock::Take(std::string_view lines, const CommentMarkers& markers, ScanSettings& settings,
                     bool caseSignificant, bool ascii) {
  Rewrite(lines, caseSignificant, ascii);
  FindTokens(markers, settings);
}

void LineBlock::TakePart(std::string_view part, const CommentMarkers& markers,
                         ScanSettings& settings, bool caseSignificant, LinePartState& state) {
  caseSignificant_ = caseSignificant;
  const std::string_view normal = Normal(part);
  const bool decoded = DecodeHtmlEntitiesOfPart(normal, !caseSignificant, state.hidden, decoded_);
  text_ = decoded ? std::string_view(decoded_) : normal;
  if (state.inLineComment) text_ = {};
  endsInLineComment_ = state.inLineComment;
  FindTokens(markers, settings);
  state.inLineComment = endsInLineComment_;
}

void LineBlock::FindTokens(const CommentMarkers& markers, ScanSettings& settings) {
  edges_.Classify(classes_, text_);
  if (settings.UseCommentMarkers) {
    const auto cutOut = [this](std::size_t first, std::size_t end) { edges_.CutOut(first, end); };
    FindComments(markers, settings, cutOut);
  }
  edges_.Find(text_.size());
}

void LineBlock::PassOver(std::string_view lines, const CommentMarkers& markers,
                         ScanSettings& settings, bool caseSignificant) {
  if (!settings.UseCommentMarkers) return;
  Rewrite(lines, caseSignificant);
  FindComments(markers, settings, [](std::size_t /*first*/, std::size_t /*end*/) {});
}

/// As the letters want it.
std::string_view LineBlock::Normal(std::string_view text) {
  if (letters_ == LetterRule::kWestern) return text;
  const auto dotted = caseSignificant_ ? DottedCapitalI::kKept : DottedCapitalI::kLowered;
  return NormalForm(text, dotted, normal_);
}

void LineBlock::Rewrite(std::string_view lines, bool caseSignificant, bool ascii) {
  caseSignificant_ = caseSignificant;
  const std::string_view normal = ascii ? lines : Normal(lines);
  const bool decoded = DecodeHtmlEntitiesOfLines(normal, !caseSignificant, decoded_);
  text_ = decoded ? std::string_view(decoded_) : normal;
}

/// Tells where every comment starts, and where it ends.
template <typename OnComment>
void LineBlock::FindComments(const CommentMarkers& markers, ScanSettings& settings,
                             OnComment onComment) {
  endsFound_ = {};
  CommentEnd end{0, settings.OpenComment};
  if (end.open != kNoComment) {
    // Empty lines are passed over, and end no comment either.
    const std::size_t start = std::min(text_.find_first_not_of(" \r\n"), text_.size());
    if (start == text_.size()) return;
    end = EndOfComment(markers, start, end.open);
    onComment(std::size_t{0}, end.position);
  }
  starts_.Find(StartSigns(settings), text_);
  for (std::size_t start = starts_.Next(end.position); start < text_.size();) {
    const int pair = markers.PairOfSignsAt(text_.substr(start));
    const bool mustBeEntity = markers.MustBeEntity(pair, settings.ForceCommentMarkers);
    if (pair == kNoComment || (mustBeEntity && !IsEntityAt(start))) {
      start = starts_.Next(start + 1);
      continue;
    }
    end = EndOfComment(markers, start, pair);
    onComment(start, end.position);
    start = starts_.Next(end.position);
  }
  settings.OpenComment = end.open;
}

/// Whether an entity stands there once the line is rewritten.
bool LineBlock::IsEntityAt(std::size_t position) const {
  const std::string_view rest = text_.substr(position);
  if (const auto plain = EndOfPlainHtmlEntity(rest, true); plain != kNotPlain) return plain > 0;
  // Letters and their marks may become fewer characters.
  const std::size_t most = kLongestHtmlEntity * (letters_ == LetterRule::kAll ? 4 : 1);
  std::string_view entity = rest.substr(0, BytesOfFirst(rest, most));
  entity = entity.substr(0, LineEnd(entity, 0));
  entity = entity.substr(0, entity.find("--"));  // they stand for a blank, which none holds
  if (letters_ == LetterRule::kAll) {
    std::string scratch;
    if (!caseSignificant_) return HtmlEntityEnd(NormalLowerCase(entity)) > 0;
    return HtmlEntityEnd(NormalForm(entity, DottedCapitalI::kKept, scratch)) > 0;
  }
  const bool accented = entity.size() > 1 && static_cast<unsigned char>(entity[1]) >= 0x80;
  // Of a letter that begins the name, its small form counts.
  if (accented && !caseSignificant_) return HtmlEntityEnd(LowerCase(entity)) > 0;
  return HtmlEntityEnd(entity) > 0;
}

/// Where a comment of the pair that is open at `start` ends. One that does not end in the text
/// stays open.
LineBlock::CommentEnd LineBlock::EndOfComment(const CommentMarkers& markers, std::size_t start,
                                              int pair) {
  const std::string& marker = markers.EndMarker(pair);
  const SignPlaces& ends = EndsOf(pair, marker);
  std::size_t end = ends.Next(start);
  if (marker.size() > 1) {
    while (end < text_.size() && !text_.substr(end).starts_with(marker)) end = ends.Next(end + 1);
  }
  if (end < text_.size()) return {end + marker.size(), kNoComment};
  endsInLineComment_ = marker.empty();
  return {end, marker.empty() ? kNoComment : pair};
}

/// Where comments of a pair may end in the text: they are looked for once, when one has started.
const SignPlaces& LineBlock::EndsOf(int pair, const std::string& marker) {
  const auto number = static_cast<std::size_t>(pair);
  if (!endsFound_[number]) {
    const SignPair signs = marker.empty() ? SignPair{'\n', '\r'} : SignPair{marker[0], marker[0]};
    ends_[number].Find(signs, text_);
    endsFound_[number] = true;
  }
  return ends_[number];
}

}  // namespace quillomat
