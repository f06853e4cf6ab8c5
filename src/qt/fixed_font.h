// A font whose letters all have the same width, which the list's columns need.
#pragma once

#include <QFont>

namespace quillomat {

/// `wish` when its letters have one width on this machine, else a font of the same size whose
/// letters have. `wish` itself when there is none at all.
[[nodiscard]] QFont FixedPitchFont(const QFont& wish);

/// The font of lists: the system's fixed font, if it is one.
[[nodiscard]] QFont ListFont();

}  // namespace quillomat
