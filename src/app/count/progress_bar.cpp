#include "app/count/progress_bar.h"

#include <algorithm>
#include <cmath>

namespace quillomat {

std::string ProgressBar::Bar(int k) {
  const int tip = std::max(k, 1);
  return "[" + std::string(static_cast<std::size_t>(tip - 1), '-') + ">" +
         std::string(static_cast<std::size_t>(kWidth - tip), ' ') + "]";
}

void ProgressBar::SetProgress(Progress progress) {
  progress.elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(clock_() - start_);
  label_.SetProgress(progress);
}

void ProgressBar::StartProgressBar() {
  start_ = clock_();
  label_.SetFontName("Courier New");
  label_.SetCaption("[" + std::string(kWidth, ' ') + "]");
  label_.SetVisible(true);
  label_.SetProgress(Progress{});
  shown_ = -1;
}

void ProgressBar::UpdateProgressBar(std::int64_t done, std::int64_t whole, bool overstated) {
  constexpr double kOverstatement = 1.2;
  double place = std::nearbyint(kWidth * static_cast<double>(done) / static_cast<double>(whole));
  if (overstated) place = std::nearbyint(place * kOverstatement);
  const int k = static_cast<int>(std::min<double>(place, kWidth));
  if (k == shown_) return;
  shown_ = k;
  label_.SetCaption(Bar(k));
}

void ProgressBar::EndProgressBar() {
  label_.SetFontName("Arial");
  label_.SetCaption("");
  label_.SetProgress(std::nullopt);
}

}  // namespace quillomat
