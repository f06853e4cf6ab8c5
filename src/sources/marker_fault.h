// What may be wrong with the user's own comment markers.
#pragma once

#include <optional>
#include <string>

#include "engine/scan_settings.h"

namespace quillomat {

struct MarkerFault {
  enum class Kind {
    /// The first pair has no start marker.
    kNoStart,
    /// A pair has an end marker, but no start marker.
    kEndWithoutStart,
    /// A pair's start and end marker are the same.
    kSame,
    /// The scanner could take `marker` for a part of a word.
    kPartOfWord,
  };
  Kind kind = Kind::kNoStart;
  /// The start marker at fault; for kPartOfWord only.
  std::string marker;
};

/// The first fault, if there is any. Whether the markers are in force is not asked.
[[nodiscard]] std::optional<MarkerFault> FindMarkerFault(const ScanChoices& choices);

}  // namespace quillomat
