#include "engine/kernel_choice.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace quillomat {
namespace {

// The other tests of this program are worth what this one says: that they run on the kernel asked
// for.
TEST(KernelChoice, KernelInUseIsTheOneAskedForOrElseTheBest) {
  const char* const wanted = std::getenv("QUILLOMAT_KERNEL");
  EXPECT_EQ(KernelFault(), "");
  EXPECT_EQ(KernelName(), wanted != nullptr ? wanted : KernelNames().back());
}

TEST(KernelChoice, EveryMachineHasThePortableKernel) {
  EXPECT_EQ(KernelNames().front(), "portable");
}

}  // namespace
}  // namespace quillomat
