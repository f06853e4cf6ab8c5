// What the tests of this folder share.
#pragma once

#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "base/byte_source.h"
#include "base/run_time_error.h"
#include "support/environment.h"
#include "support/permissions.h"
#include "support/temporary_folder.h"

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

/// All that `source` still has, asked for in blocks of `blockBytes`.
inline std::string ReadWhole(ByteSource& source, std::size_t blockBytes) {
  std::string contents;
  std::vector<char> block(blockBytes);
  while (const std::size_t bytes = source.Read(block)) contents.append(block.data(), bytes);
  return contents;
}

class TestInAFolder : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
};

}  // namespace quillomat
