// Many lines of a file at once, as they stand there: entities of letters are decoded, comments are
// passed over, and the tokens of the rest are found. What is found is what the lines would give one
// after the other.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/comment_markers.h"
#include "engine/scan_settings.h"
#include "engine/token_classes.h"

namespace quillomat {

/// What is open where a line is cut, besides a comment that has an end marker.
struct LinePartState {
  /// An ampersand, which hides entities up to the next ";".
  bool hidden = false;
  /// A comment up to the end of the line: nothing of the rest counts.
  bool inLineComment = false;
  /// A letter, which marks belong to.
  bool behindLetter = false;
};

class LineBlock {
 public:
  explicit LineBlock(const TokenClasses& classes, LetterRule letters = LetterRule::kWestern)
      : classes_(classes), letters_(letters) {}

  /// Takes whole lines of well-formed UTF-8, and forgets those before. `settings` says whether
  /// markers are in force, and whether a comment is open: this is carried on. The markers can be
  /// found in raw lines. `ascii`: they are known to hold no byte above 127. `lines` must outlive
  /// the use of the tokens.
  void Take(std::string_view lines, const CommentMarkers& markers, ScanSettings& settings,
            bool caseSignificant, bool ascii = false);

  /// Takes a part of one line, cut as LineCutter does, in the same way.
  void TakePart(std::string_view part, const CommentMarkers& markers, ScanSettings& settings,
                bool caseSignificant, LinePartState& state);

  /// Carries the open comment on as Take does, and finds no tokens.
  void PassOver(std::string_view lines, const CommentMarkers& markers, ScanSettings& settings,
                bool caseSignificant);

  [[nodiscard]] std::size_t TokenCount() const { return edges_.TokenCount(); }
  struct Token {
    const char* text;
    std::size_t bytes;
    /// So many bytes can be read at the text.
    std::size_t readable;
  };
  /// `token` is less than TokenCount().
  [[nodiscard]] Token TokenAt(std::size_t token) const {
    const std::size_t start = edges_.Start(token);
    return {text_.data() + start, edges_.End(token) - start, text_.size() - start};
  }

 private:
  [[nodiscard]] std::string_view Normal(std::string_view text);
  void Rewrite(std::string_view lines, bool caseSignificant, bool ascii = false);
  void FindTokens(const CommentMarkers& markers, ScanSettings& settings);
  template <typename OnComment>
  void FindComments(const CommentMarkers& markers, ScanSettings& settings, OnComment onComment);
  [[nodiscard]] bool IsEntityAt(std::size_t position) const;
  /// `open` says which pair is open there.
  struct CommentEnd {
    std::size_t position;
    int open;
  };
  [[nodiscard]] CommentEnd EndOfComment(const CommentMarkers& markers, std::size_t start, int pair);
  [[nodiscard]] const SignPlaces& EndsOf(int pair, const std::string& marker);

  const TokenClasses& classes_;
  LetterRule letters_;
  std::string_view text_;
  bool caseSignificant_ = false;
  std::string normal_;
  std::string decoded_;
  /// Whether a comment ends at the end of the text, and with its line.
  bool endsInLineComment_ = false;
  TokenEdges edges_;
  /// Where comments of either pair may start, and where those of each may end, if that was asked.
  SignPlaces starts_;
  std::array<SignPlaces, 2> ends_;
  std::array<bool, 2> endsFound_{};
};

}  // namespace quillomat
