#include "cli/state_fault.h"

#include <algorithm>
#include <array>

#include "base/run_time_error.h"

namespace quillomat {

std::string StateFaultText(const std::string& description) {
  using enum RunTimeErrorNumber;
  const bool liesInContents = std::ranges::any_of(
      std::to_array({kInputPastEnd, kTypeMismatch, kOverflow, kInvalidPropertyValue}),
      [&](RunTimeErrorNumber number) { return description == DescriptionOf(number); });
  return description + (liesInContents ? "; it is not what --save-state and the window write" : "");
}

}  // namespace quillomat
