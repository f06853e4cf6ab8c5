// How far a long work has come, as a value: beside the text that says so in letters.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace quillomat {

struct Progress {
  /// In bytes, for the whole run; `whole` is 0 while nobody knows.
  std::int64_t done = 0;
  std::int64_t whole = 0;
  /// The file that is being read, counted from 1, of so many; 0 of 0 where there is just one text.
  std::int32_t file = 0;
  std::int32_t files = 0;
  /// Since the work began.
  std::chrono::milliseconds elapsed{0};

  bool operator==(const Progress&) const = default;

  /// What is done, from 0 to 1.
  [[nodiscard]] double Share() const {
    if (whole <= 0) return 0.0;
    return std::clamp(static_cast<double>(done) / static_cast<double>(whole), 0.0, 1.0);
  }
};

}  // namespace quillomat
