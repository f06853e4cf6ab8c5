// Finds out which comment is open behind a piece of text, so that the next piece can be scanned at
// the same time. It costs less than a scan, and mostly next to nothing: the last lines of a piece
// tell it, as soon as they say the same whatever was open in front of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "engine/scan_settings.h"
#include "engine/word_list.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

class OpenCommentFinder {
 public:
  static constexpr std::size_t kLookedAt = 4096;

  /// `choices` and `lists` must outlive the finder. The settings' flags are those of all pieces. At
  /// most `lookedAt` bytes are the last lines of a piece.
  OpenCommentFinder(ScanSettings settings, const ScanChoices& choices, const WordLists& lists,
                    std::size_t lookedAt = kLookedAt);

  /// ScanSettings::OpenComment behind `text`, whole lines, as a scan of it leaves it. `settings`
  /// has the markers and says which comment is open in front.
  [[nodiscard]] int Behind(std::string_view text, const ScanSettings& settings);
  /// The same, but where the last lines do not tell, what they say if the same comment is open in
  /// front of them as in front of the text: nearly always right, and never slow.
  [[nodiscard]] int LikelyBehind(std::string_view text, const ScanSettings& settings);

 private:
  class NeverStops final : public ScanYield {
   public:
    bool Yield() override { return false; }
    [[nodiscard]] std::uint32_t CallsLeft() const override { return UINT32_MAX; }
  };

  [[nodiscard]] int Behind(std::string_view text, const ScanSettings& settings, bool mayGuess);
  [[nodiscard]] std::string_view LastLines(std::string_view text) const;
  [[nodiscard]] int BehindLines(std::string_view text, int open);

  std::size_t lookedAt_;
  ScanSettings settings_;
  const ScanChoices& choices_;
  WordStore store_;  // stays empty
  NeverStops yield_;
  WordScanner scanner_;
  std::string buffer_;
};

}  // namespace quillomat
