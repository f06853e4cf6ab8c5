#include "system/unfinished_files.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>

#include "system/signals.h"

namespace quillomat {
namespace {

/// More than the program writes at the same time, and longer than the system's paths are.
constexpr std::size_t kPlaces = 32;
constexpr std::size_t kMostPathBytes = 4096;

enum class Use { kFree, kInWork, kThere };

struct Place {
  std::atomic<Use> use = Use::kFree;
  std::array<char, kMostPathBytes> path{};
};
static_assert(std::atomic<Use>::is_always_lock_free);

/// Not constant: all that a signal handler can get at are variables of the process.
std::array<Place, kPlaces> places;     // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<bool> programEnds{false};  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// The place that was free and is taken now; kPlaces when the table is full.
std::size_t TakePlace() {
  std::size_t place = 0;
  for (Use free = Use::kFree; place < kPlaces; ++place, free = Use::kFree) {
    if (places[place].use.compare_exchange_strong(free, Use::kInWork)) break;
  }
  return place;
}

void Release(std::size_t place) {
  if (place < kPlaces) places[place].use = Use::kFree;
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::string& path) noexcept {
  HoldSignalsBack();
  place_ = path.size() < kMostPathBytes ? TakePlace() : kPlaces;
  if (programEnds) {
    Release(place_);
    for (;;) WaitAMoment();
  }
  // Only now: who ends the program reads no path of a place that is just being taken.
  if (place_ < kPlaces) *std::ranges::copy(path, places[place_].path.begin()).out = '\0';
}

void UnfinishedFile::LetTheEndCome() noexcept {
  if (place_ < kPlaces) places[place_].use = Use::kThere;
  signalsWait_ = false;
  LetSignalsCome();
}

void UnfinishedFile::HoldTheEnd() noexcept {
  HoldSignalsBack();
  signalsWait_ = true;
  if (place_ < kPlaces) places[place_].use = Use::kInWork;
  if (!programEnds) return;
  if (place_ < kPlaces) places[place_].use = Use::kThere;
  for (;;) WaitAMoment();
}

UnfinishedFile::~UnfinishedFile() {
  Release(place_);
  if (signalsWait_) LetSignalsCome();
}

void RemoveUnfinishedFiles() noexcept {
  programEnds = true;
  for (const Place& place : places) {
    // Another thread is at work on it: this one may not be, as its signals wait.
    while (place.use == Use::kInWork) WaitAMoment();
    if (place.use == Use::kThere) RemoveInHandler(place.path.data());
  }
}

void RemoveUnfinishedFilesAtExit() noexcept {
  [[maybe_unused]] static const int isAtExit = std::atexit(RemoveUnfinishedFiles);  // once
}

}  // namespace quillomat
