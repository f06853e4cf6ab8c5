// How fast a long work gets on and how long it takes still, and how that is written: the same in
// every face.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// How far a work is.
struct BytesDone {
  std::int64_t done = 0;
  /// 0 where it is not known.
  std::int64_t whole = 0;
};

/// 0 while no time has passed.
[[nodiscard]] double BytesPerSecond(BytesDone bytes, std::chrono::nanoseconds elapsed);
/// At the pace until now; nothing where the whole is not known, or nothing is done yet.
[[nodiscard]] std::optional<double> SecondsLeft(BytesDone bytes, std::chrono::nanoseconds elapsed);

/// "310 MB", of 1,024 KB each; at least two digits, so that it can be seen to grow.
[[nodiscard]] std::string AmountText(double bytes, std::string_view decimalSign = ".");
/// "0:05", "1:02:03".
[[nodiscard]] std::string ClockText(double seconds);

}  // namespace quillomat
