#include "qt/mixed_color.h"

#include <cmath>

namespace quillomat {

QColor MixedColor(const QColor& ground, const QColor& over, qreal share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a * (1 - share) + b * share));
  };
  return {mix(ground.red(), over.red()), mix(ground.green(), over.green()),
          mix(ground.blue(), over.blue())};
}

}  // namespace quillomat
