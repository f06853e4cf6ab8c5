#include "engine/parallel/open_comment_finder.h"

#include <algorithm>
#include <utility>

#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "engine/comment_markers.h"

namespace quillomat {

OpenCommentFinder::OpenCommentFinder(ScanSettings settings, const ScanChoices& choices,
                                     const WordLists& lists, std::size_t lookedAt)
    : lookedAt_(lookedAt),
      settings_(std::move(settings)),
      choices_(choices),
      scanner_(settings_, choices, lists, store_, yield_) {}

int OpenCommentFinder::Behind(std::string_view text, const ScanSettings& settings) {
  return Behind(text, settings, false);
}

int OpenCommentFinder::LikelyBehind(std::string_view text, const ScanSettings& settings) {
  return Behind(text, settings, true);
}

int OpenCommentFinder::Behind(std::string_view text, const ScanSettings& settings, bool mayGuess) {
  settings_ = settings;
  const int before = settings.OpenComment;
  if (!scanner_.LooksForComments()) return before;
  const std::string_view last = LastLines(text);
  const int behind = BehindLines(last, kNoComment);
  if (BehindLines(last, 0) == behind && BehindLines(last, 1) == behind) return behind;
  return BehindLines(mayGuess && !last.empty() ? last : text, before);
}

std::string_view OpenCommentFinder::LastLines(std::string_view text) const {
  if (text.size() <= lookedAt_) return {};
  const std::string_view last = text.substr(text.size() - lookedAt_);
  const std::size_t lineEnd = FindLineEnd(last);
  return last.substr(std::min(lineEnd, last.size() - 1) + 1);
}

int OpenCommentFinder::BehindLines(std::string_view text, int open) {
  settings_.OpenComment = open;
  LineDecoder lines(text);
  for (;;) {
    const std::string_view atHand = lines.NextLines();
    if (const std::size_t plain = scanner_.PlainLineBytes(atHand); plain > 0) {
      scanner_.PassOverLines(atHand.substr(0, plain));
      lines.SkipLines(plain);
    } else if (const auto line = lines.NextLine()) {
      const std::string_view trimmed = TrimBlanks(*line);
      if (trimmed.empty()) continue;
      scanner_.PassOver(
          PrepareLine(trimmed, IsSet(choices_.caseSignificant), buffer_, choices_.letters));
    } else {
      return settings_.OpenComment;
    }
  }
}

}  // namespace quillomat
