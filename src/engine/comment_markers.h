// The comment markers of a scan, made ready for finding them in text. A marker is found in any
// letter case; the text is lower-cased unless letter case is significant.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>

#include "engine/letter_rule.h"
#include "engine/scan_settings.h"
#include "engine/token_classes.h"

namespace quillomat {

/// ScanSettings::OpenComment outside comments.
inline constexpr int kNoComment = -1;

class CommentMarkers {
 public:
  /// Takes the markers that are in force; costs nothing when they are the same as before.
  void Prepare(const ScanSettings& settings);

  /// Whether a comment may start with this byte.
  [[nodiscard]] bool MayStartWith(char first) const {
    return mayStart_[static_cast<unsigned char>(first)];
  }

  /// The pair whose start marker stands at the start of `text`, which is not empty; kNoComment when
  /// none does. The first pair wins by order, not by length. Where the markers are forced, a start
  /// marker "&" is one only at the start of an entity.
  [[nodiscard]] int StartAt(std::string_view text, bool forced) const;
  // Its two steps: the pair, and whether there must be an entity for it.
  [[nodiscard]] int PairAt(std::string_view text) const;
  /// The same where the markers can be found in raw lines: signs are told apart by one comparison.
  [[nodiscard]] int PairOfSignsAt(std::string_view text) const {
    for (std::size_t pair = 0; pair < 2; ++pair) {
      const std::string& marker = start_[pair];
      if (marker.empty() || marker[0] != text[0]) continue;
      if (marker.size() == 1 || text.starts_with(marker)) return static_cast<int>(pair);
    }
    return kNoComment;
  }
  [[nodiscard]] bool MustBeEntity(int pair, bool forced) const {
    return pair == 1 && forced && start_[1] == "&";
  }

  /// The end marker of a pair; empty when the comment ends with its line.
  [[nodiscard]] const std::string& EndMarker(int pair) const {
    return end_[static_cast<std::size_t>(pair)];
  }

  /// Whether comments can be found in lines as they stand in a file: the markers consist of ASCII
  /// signs that neither the rewriting of a line nor lower case touches, and none starts inside a
  /// token.
  [[nodiscard]] bool CanBeFoundInRawLines(const TokenClasses& tokens) const;

 private:
  void NoteStart(char first);
  [[nodiscard]] bool StartsWithMarker(std::string_view text, std::string_view marker) const;

  /// What the other members were made from.
  LetterRule letters_ = LetterRule::kWestern;
  std::array<std::string, 2> preparedStart_;
  std::array<std::string, 2> preparedEnd_;
  std::bitset<256> mayStart_;
  /// Lower-cased.
  std::array<std::string, 2> start_;
  std::array<std::string, 2> end_;
};

}  // namespace quillomat
