#include "text/load_result.h"

#include <gtest/gtest.h>
#include <limits>

namespace quillomat {
namespace {

const std::string kPath = "/opt/quillomat/qlav_text.dat";

TEST(LoadErrorMessage, EveryPlainCodeHasItsMessage) {
  EXPECT_EQ(LoadErrorMessage(0, kPath), "No program text was read.");
  EXPECT_EQ(LoadErrorMessage(-1, kPath),
            "Cannot open file containing program text.\r\n/opt/quillomat/qlav_text.dat");
  EXPECT_EQ(LoadErrorMessage(-2, kPath), "Particular memory allocation error.");
  EXPECT_EQ(LoadErrorMessage(-3, kPath), "Too much program text.");
  EXPECT_EQ(LoadErrorMessage(-4, kPath), "Text not recovered.");
  EXPECT_EQ(LoadErrorMessage(-6, kPath), "File is empty.");
  EXPECT_EQ(LoadErrorMessage(-7, kPath), "Error reading file.");
  EXPECT_EQ(LoadErrorMessage(-8, kPath), "General memory allocation error.");
}

TEST(LoadErrorMessage, AnyOtherCodeIsShownAsItIs) {
  EXPECT_EQ(LoadErrorMessage(-5, kPath), "Error -5");
  EXPECT_EQ(LoadErrorMessage(-9, kPath), "Error -9");
  EXPECT_EQ(LoadErrorMessage(-500, kPath), "Error -500");
}

TEST(LoadErrorMessage, BandsTellTheLine) {
  EXPECT_EQ(LoadErrorMessage(-501, kPath), "Missing string at line 1.");
  EXPECT_EQ(LoadErrorMessage(-1000, kPath), "Missing string at line 500.");
  EXPECT_EQ(LoadErrorMessage(-1001, kPath), "String too long at line 1.");
  EXPECT_EQ(LoadErrorMessage(-1500, kPath), "String too long at line 500.");
  EXPECT_EQ(LoadErrorMessage(-1501, kPath), "Duplicate in program text at line 1.");
  EXPECT_EQ(LoadErrorMessage(-1512, kPath), "Duplicate in program text at line 12.");
  EXPECT_EQ(LoadErrorMessage(-101500, kPath), "Duplicate in program text at line 100000.");
}

TEST(LoadErrorMessage, TheSmallestCodeIsADuplicateToo) {
  EXPECT_EQ(LoadErrorMessage(std::numeric_limits<int>::min(), kPath),
            "Duplicate in program text at line 2147482148.");
}

TEST(LoadResult, CodesStayInTheirBands) {
  EXPECT_EQ(load_result::MissingAt(1), -501);
  EXPECT_EQ(load_result::MissingAt(500), -1000);
  EXPECT_EQ(load_result::MissingAt(501), load_result::kNotRecovered);
  EXPECT_EQ(load_result::TooLongAt(1), -1001);
  EXPECT_EQ(load_result::TooLongAt(500), -1500);
  EXPECT_EQ(load_result::TooLongAt(501), load_result::kNotRecovered);
  EXPECT_EQ(load_result::DuplicateAt(2), -1502);
  EXPECT_EQ(load_result::DuplicateAt(40000), -41500);
}

}  // namespace
}  // namespace quillomat
