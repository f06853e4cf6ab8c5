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

/// Finds the places where a comment may start, in order.
class MarkerSearch {
 public:
  MarkerSearch(const ScanSettings& settings, std::string_view text) : text_(text) {
    for (const std::string& start : settings.CommentStart) {
      if (start.empty() || (firsts_ == 1 && first_[0] == start[0])) continue;
      first_[firsts_++] = start[0];
    }
  }

  /// The first at or behind `position`, which never goes back; the size of the text behind the
  /// last.
  std::size_t Next(std::size_t position) {
    std::size_t nearest = text_.size();
    for (std::size_t i = 0; i < firsts_; ++i) {
      if (!searched_[i] || next_[i] < position) {
        next_[i] = std::min(text_.find(first_[i], position), text_.size());
        searched_[i] = true;
      }
      nearest = std::min(nearest, next_[i]);
    }
    return nearest;
  }

 private:
  std::string_view text_;
  std::array<char, 2> first_{};
  std::array<std::size_t, 2> next_{};
  std::array<bool, 2> searched_{};
  std::size_t firsts_ = 0;
};

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
  int& open = settings.OpenComment;
  MarkerSearch search(settings, text_);
  std::size_t position = 0;
  if (open != kNoComment) {
    // Empty lines are passed over, and end no comment either.
    const std::size_t start = std::min(text_.find_first_not_of(" \r\n"), text_.size());
    if (start == text_.size()) return;
    position = EndOfComment(markers, start, open);
    onComment(std::size_t{0}, position);
  }
  for (;;) {
    position = search.Next(position);
    if (position == text_.size()) return;
    open = markers.PairAt(text_.substr(position));
    if (markers.MustBeEntity(open, settings.ForceCommentMarkers) && !IsEntityAt(position)) {
      open = kNoComment;
    }
    if (open == kNoComment) {
      ++position;
      continue;
    }
    const std::size_t start = position;
    position = EndOfComment(markers, start, open);
    onComment(start, position);
  }
}

/// Whether an entity stands there once the line is rewritten.
bool LineBlock::IsEntityAt(std::size_t position) const {
  const std::string_view rest = text_.substr(position);
  if (const auto plain = EndOfPlainHtmlEntity(rest, true)) return *plain > 0;
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

/// Where a comment that is open at `start` ends. A comment that does not end in the text stays
/// open.
std::size_t LineBlock::EndOfComment(const CommentMarkers& markers, std::size_t start, int& open) {
  const std::string& marker = markers.EndMarker(open);
  // Most markers are one sign, which is found without comparing texts.
  const std::size_t end = marker.empty()       ? LineEnd(text_, start)
                          : marker.size() == 1 ? text_.find(marker[0], start)
                                               : text_.find(marker, start);
  if (end == std::string_view::npos) return text_.size();
  endsInLineComment_ = marker.empty() && end == text_.size();
  open = kNoComment;
  return end + marker.size();
}

}  // namespace quillomat
