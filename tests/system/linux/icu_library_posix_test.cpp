// Which of the system's versions of ICU is taken.
#include <gtest/gtest.h>
#include <memory>
#include <unicode/uvernum.h>
#include <vector>

#include "base/run_segmenter.h"
#include "system/linux/icu_library.h"

namespace quillomat {
namespace {

TEST(IcuLibrary, AnotherVersionIsTakenWhereThatOfTheHeadersIsMissing) {
  for (const int missing : {U_ICU_VERSION_MAJOR_NUM - 1, U_ICU_VERSION_MAJOR_NUM + 1}) {
    const std::optional<IcuFunctions> functions = LoadIcu(missing);
    ASSERT_TRUE(functions) << missing;
    std::vector<std::size_t> cuts;
    EXPECT_TRUE(MakeIcuSegmenter(*functions)->FindCuts("日本語の文章", cuts));
    EXPECT_EQ(cuts, (std::vector<std::size_t>{9, 12})) << missing;
  }
}

TEST(IcuLibrary, NoneIsFoundWhereAllVersionsAreTooOld) {
  constexpr int kLongBefore = -1000;
  EXPECT_FALSE(LoadIcu(kLongBefore));
}

}  // namespace
}  // namespace quillomat
