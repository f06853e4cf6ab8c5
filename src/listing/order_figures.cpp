#include "listing/order_figures.h"

#include <algorithm>

namespace quillomat {

void OrderFigureCounter::OnWords(std::span<const std::uint32_t> places) {
  for (const std::uint32_t place : places) Take(place);
}

void OrderFigureCounter::Take(std::uint32_t place) {
  if (place >= lastSeen_.size()) lastSeen_.resize(std::size_t{place} + 1);
  ++words_;
  const std::uint32_t before = lastSeen_[place];
  if (before == 0) ++differentWords_;
  TakeIntoWindow(place, before);
  lastSeen_[place] = words_;
  TakeIntoPart(before);
  if (words_ == nextPoint_) NoteGrowth();
}

/// `before` is which word of the text the new one was the last time. A word leaves the window with
/// its last occurrence there.
void OrderFigureCounter::TakeIntoWindow(std::uint32_t place, std::uint32_t before) {
  std::uint32_t& slot = inWindow_[nextInWindow_];
  nextInWindow_ = nextInWindow_ + 1 == sizes_.window ? 0 : nextInWindow_ + 1;
  const std::uint32_t gone = words_ > sizes_.window ? words_ - sizes_.window : 0;
  if (gone > 0 && lastSeen_[slot] == gone) --differentInWindow_;
  if (before <= gone) ++differentInWindow_;
  slot = place;
  if (words_ >= sizes_.window) differentInWindows_ += differentInWindow_;
}

void OrderFigureCounter::TakeIntoPart(std::uint32_t before) {
  if (before <= partStart_) ++differentInPart_;
  if (words_ - partStart_ < sizes_.part) return;
  differentInParts_ += differentInPart_;
  differentInPart_ = 0;
  partStart_ = words_;
}

void OrderFigureCounter::NoteGrowth() {
  if (points_.size() == sizes_.mostPoints) {
    for (std::size_t i = 0; i < points_.size() / 2; ++i) points_[i] = points_[2 * i + 1];
    points_.resize(points_.size() / 2);
    step_ *= 2;
  }
  if (words_ % step_ == 0) points_.push_back({words_, differentWords_});
  nextPoint_ = words_ - words_ % step_ + step_;
}

OrderFigures OrderFigureCounter::Figures() const {
  OrderFigures figures;
  if (partStart_ > 0) {
    figures.standardisedRatio =
        static_cast<double>(differentInParts_) / static_cast<double>(partStart_);
  }
  if (words_ >= sizes_.window) {
    const std::uint64_t windows = words_ - sizes_.window + 1;
    figures.movingAverageRatio =
        static_cast<double>(differentInWindows_) / static_cast<double>(windows * sizes_.window);
  }
  figures.growth = points_;
  const bool endIsThere = !points_.empty() && points_.back().instances == words_;
  if (words_ > 0 && !endIsThere) figures.growth.push_back({words_, differentWords_});
  return figures;
}

}  // namespace quillomat
