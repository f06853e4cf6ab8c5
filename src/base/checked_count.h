// Counters that refuse to wrap: counts shown to the user are 32-bit signed numbers, and one that
// would leave that range is a run-time overflow error, never a wrong figure.
#pragma once

#include <cstdint>
#include <limits>

#include "base/run_time_error.h"

namespace quillomat {

/// Adds `amount` (not negative) to `counter`. Throws RunTimeError 6 and leaves the counter as it
/// was when the sum does not fit.
template <typename Integer>
void AddChecked(Integer& counter, Integer amount) {
  if (counter > std::numeric_limits<Integer>::max() - amount) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  }
  counter = static_cast<Integer>(counter + amount);
}

template <typename Integer>
void IncrementChecked(Integer& counter) {
  AddChecked(counter, Integer{1});
}

}  // namespace quillomat
