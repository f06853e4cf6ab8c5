// Characters that cannot be seen and turn the direction of writing.
#pragma once

namespace quillomat {

[[nodiscard]] constexpr bool IsDirectionMark(char32_t codePoint) {
  return codePoint == 0x61C || codePoint == 0x200E || codePoint == 0x200F ||
         (codePoint >= 0x202A && codePoint <= 0x202E) ||
         (codePoint >= 0x2066 && codePoint <= 0x2069);
}

}  // namespace quillomat
