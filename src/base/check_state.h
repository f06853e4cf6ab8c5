// The value of a check box. A box counts as set only when it is exactly checked; the grey third
// state counts as clear wherever a rule asks "is it set", but it is not "unchecked" either.
#pragma once

namespace quillomat {

enum class CheckState { kUnchecked = 0, kChecked = 1, kGrayed = 2 };

[[nodiscard]] constexpr bool IsSet(CheckState state) {
  return state == CheckState::kChecked;
}

}  // namespace quillomat
