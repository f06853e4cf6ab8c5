// Colours between those of the desktop, so that they fit a light and a dark one.
#pragma once

#include <QColor>

namespace quillomat {

/// `share` (0 to 1) of `over`, the rest of `ground`.
[[nodiscard]] QColor MixedColor(const QColor& ground, const QColor& over, qreal share);

}  // namespace quillomat
