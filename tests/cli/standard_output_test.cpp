#include "cli/standard_output.h"

#include <gtest/gtest.h>
#include <ostream>
#include <sstream>

namespace quillomat {
namespace {

TEST(EscapingBuffer, PassesOnWhatATerminalShowsAndEscapesTheRest) {
  std::stringbuf target;
  EscapingBuffer buffer(target);
  std::ostream stream(&buffer);
  stream << "a file: " << std::string("odd\x1B[1m") << '\x07' << 12 << '\n';
  EXPECT_EQ(target.str(), "a file: odd\\x1B[1m\\x0712\n");
  EXPECT_TRUE(stream.good());
}

}  // namespace
}  // namespace quillomat
