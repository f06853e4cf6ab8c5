// Colours between those of the desktop, so that they fit a light and a dark one.
#pragma once

#include <QColor>
#include <QPalette>

namespace quillomat {

/// `share` (0 to 1) of `over`, the rest of `ground`.
[[nodiscard]] QColor MixedColor(const QColor& ground, const QColor& over, qreal share);

/// `color`, or what of the text's colour makes it readable on the palette's base.
[[nodiscard]] QColor ReadableColor(const QColor& color, const QPalette& palette);

/// How much lighter one is than the other, from 1 to 21, as accessibility guidelines reckon it.
[[nodiscard]] double ContrastOf(const QColor& one, const QColor& other);

}  // namespace quillomat
