// Whether a count is to stop: the question to its observer, and the same for those who scan a text.
#pragma once

#include <cstdint>

#include "engine/word_scanner.h"
#include "sources/count_observer.h"

namespace quillomat {

/// Asks the observer whether to stop, and remembers that it said so.
class StopQuestion final : public ScanYield {
 public:
  explicit StopQuestion(CountObserver& observer) : observer_(observer) {}

  bool Yield() override {
    stopped_ = observer_.Yield() || stopped_;
    return stopped_;
  }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return observer_.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override {
    stopped_ = observer_.YieldFor(calls) || stopped_;
    return stopped_;
  }
  /// For many words together, however many they were.
  bool YieldForMany() { return YieldFor(CallsLeft()); }

  /// Without asking anew.
  [[nodiscard]] bool Stopped() const { return stopped_; }

 private:
  CountObserver& observer_;
  bool stopped_ = false;
};

/// What the scan of a text asks. A stream is stopped where its bytes come from (UntilStop): all
/// that came is scanned.
class ScanQuestion final : public ScanYield {
 public:
  explicit ScanQuestion(StopQuestion& stop) : stop_(stop) {}

  void SetStream(bool isStream) { isStream_ = isStream; }

  bool Yield() override { return stop_.Yield() && !isStream_; }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return stop_.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override { return stop_.YieldFor(calls) && !isStream_; }

 private:
  StopQuestion& stop_;
  bool isStream_ = false;
};

}  // namespace quillomat
