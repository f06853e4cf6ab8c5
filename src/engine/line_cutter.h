// Finds the places where a line may be cut in two, so that what the parts give, one after the
// other, is what the line gives: no word, marker or entity and no two hyphens lie across. It holds
// whether the bytes are UTF-8 or Windows-1252. What else may be open there is carried on, see
// LinePartState.
#pragma once

#include <bitset>
#include <cstddef>
#include <string_view>

#include "engine/scan_settings.h"
#include "engine/token_classes.h"

namespace quillomat {

class LineCutter {
 public:
  /// The markers of `settings` can be found in raw lines, see CommentMarkers.
  LineCutter(const TokenClasses& classes, const ScanSettings& settings);

  /// The last place in `text` behind the byte number `from` where it may be cut; 0 when there is
  /// none. `text` starts with a line or at a cut.
  [[nodiscard]] std::size_t LastCut(std::string_view text, std::size_t from) const;

 private:
  [[nodiscard]] bool MayCutAt(std::string_view text, std::size_t position) const;
  [[nodiscard]] bool MayBeInEntity(std::string_view text, std::size_t position) const;
  [[nodiscard]] std::size_t CutOfLongWord(std::string_view text) const;

  const TokenClasses& classes_;
  LetterRule letters_;
  /// The signs behind which a line may be cut.
  std::bitset<128> separators_;
};

}  // namespace quillomat
