#include "base/work_pace.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace quillomat {

double BytesPerSecond(BytesDone bytes, std::chrono::nanoseconds elapsed) {
  const double seconds = std::chrono::duration<double>(elapsed).count();
  return seconds > 0 ? static_cast<double>(bytes.done) / seconds : 0;
}

std::optional<double> SecondsLeft(BytesDone bytes, std::chrono::nanoseconds elapsed) {
  const double rate = BytesPerSecond(bytes, elapsed);
  if (bytes.whole <= 0 || rate <= 0) return std::nullopt;
  return std::max(0.0, static_cast<double>(bytes.whole - bytes.done)) / rate;
}

std::string AmountText(double bytes, std::string_view decimalSign) {
  constexpr double kStep = 1024;
  constexpr std::array<std::string_view, 5> kUnits = {"B", "KB", "MB", "GB", "TB"};
  std::size_t unit = 0;
  // What would be rounded up to a step is one.
  for (; std::round(bytes) >= kStep && unit + 1 < kUnits.size(); ++unit) bytes /= kStep;
  constexpr double kTenths = 10;
  constexpr double kFirstTenthsLeftOut = 100;
  const int decimals = unit > 0 && std::round(bytes * kTenths) < kFirstTenthsLeftOut ? 1 : 0;
  std::array<char, 32> text{};
  char* const end = std::to_chars(text.data(), text.data() + text.size(), bytes,
                                  std::chars_format::fixed, decimals)
                        .ptr;
  std::string amount(text.data(), end);
  if (const std::size_t point = amount.find('.'); point != std::string::npos) {
    amount.replace(point, 1, decimalSign);
  }
  return amount.append(" ").append(kUnits.at(unit));
}

std::string ClockText(double seconds) {
  constexpr std::int64_t kSixty = 60;
  const auto whole = static_cast<std::int64_t>(std::lround(seconds));
  const auto twoDigits = [](std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
  };
  const std::int64_t hours = whole / kSixty / kSixty;
  const std::int64_t minutes = whole / kSixty % kSixty;
  const std::string shownMinutes =
      hours > 0 ? std::to_string(hours) + ":" + twoDigits(minutes) : std::to_string(minutes);
  return shownMinutes + ":" + twoDigits(whole % kSixty);
}

}  // namespace quillomat
