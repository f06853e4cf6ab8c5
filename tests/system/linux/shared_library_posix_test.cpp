#include <gtest/gtest.h>

#include "system/shared_library.h"

namespace quillomat {
namespace {

TEST(SharedLibrary, GivesFunctionsByTheirNames) {
  const std::optional<SharedLibrary> library = SharedLibrary::Load("libm.so.6");
  ASSERT_TRUE(library.has_value());
  double (*root)(double) = nullptr;
  ASSERT_TRUE(library->Find("sqrt", root));
  EXPECT_EQ(root(9), 3);
}

TEST(SharedLibrary, SaysWhatThereIsNot) {
  EXPECT_FALSE(SharedLibrary::Load("libquillomat_none.so.1").has_value());
  void (*none)() = nullptr;
  EXPECT_FALSE(SharedLibrary::Load("libm.so.6")->Find("quillomat_none", none));
}

}  // namespace
}  // namespace quillomat
