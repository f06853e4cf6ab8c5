// A progress bar made of characters, in a label of the main window: "[---->      ]". Beside the
// characters the label holds the share as a value, which a face with real bars shows.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "ui/controls.h"

namespace quillomat {

class ProgressBar {
 public:
  /// Between the brackets, in characters.
  static constexpr int kWidth = 39;

  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  /// Tests give a clock of their own.
  explicit ProgressBar(Label& label, Clock clock = std::chrono::steady_clock::now)
      : label_(label), clock_(std::move(clock)) {}

  /// Shows the empty bar.
  void StartProgressBar();
  /// Sets the value alone, which is finer than the characters, with the time since the start.
  void SetProgress(Progress progress);
  /// Shows how much of the work is done. `overstated` moves the bar on by a fifth, as it is done
  /// for files whose line ends are shorter than the two characters that are counted for them.
  void UpdateProgressBar(std::int64_t done, std::int64_t whole, bool overstated);
  /// Gives the label back, empty.
  void EndProgressBar();

  /// The bar with its tip at the place `k`, 0 to kWidth.
  [[nodiscard]] static std::string Bar(int k);

 private:
  Label& label_;
  Clock clock_;
  std::chrono::steady_clock::time_point start_;
  int shown_ = -1;
};

}  // namespace quillomat
