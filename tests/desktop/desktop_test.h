// What the tests of this folder share.
#pragma once

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/environment.h"
#include "support/permissions.h"

namespace quillomat {

/// The number of the RunTimeError that the action throws; 0 when it throws none.
template <class Action>
int ErrorNumberOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace quillomat
