// Where the characters of a text that was rewritten for a scan come from.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/scan_settings.h"

namespace quillomat {

class TextOrigins {
 public:
  /// `scanned` is what a scan has made of `text`, with the blank at its end. Both outlive it.
  TextOrigins(std::string_view text, std::string_view scanned, const ScanChoices& choices);

  /// What stands in the text for the bytes from `start` to `end`, at least one, of the scanned one.
  /// Where that cannot be told, as next to signs that are dropped between a letter and its marks,
  /// the bytes themselves.
  [[nodiscard]] std::string_view At(std::size_t start, std::size_t end) const;

 private:
  /// A piece of the text that is rewritten by itself.
  struct Unit {
    std::size_t start = 0;
    std::size_t end = 0;
  };

  [[nodiscard]] std::size_t UnitEnd(std::size_t start);
  [[nodiscard]] std::size_t EntityEnd(std::size_t start);
  [[nodiscard]] std::string Rewritten(std::string_view unit) const;

  std::string_view text_;
  std::string_view scanned_;
  const ScanChoices& choices_;
  /// Up to there no entity is looked for, as an ampersand without one hides what follows.
  std::size_t hiddenUntil_ = 0;
  /// For every byte of the scanned text the place of what it comes from; empty if not known.
  std::vector<Unit> origins_;
};

}  // namespace quillomat
