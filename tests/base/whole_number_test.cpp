#include "base/whole_number.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(ReadWholeNumber, TakesAllOfTheText) {
  std::int32_t number = 0;
  EXPECT_EQ(ReadWholeNumber("-42", number), std::errc());
  EXPECT_EQ(number, -42);
  for (const char* text : {"", " 1", "1 ", "+1", "1.5", "cat"}) {
    EXPECT_EQ(ReadWholeNumber(text, number), std::errc::invalid_argument) << text;
  }
  EXPECT_EQ(number, -42) << "what is no number changes nothing";
}

TEST(ReadWholeNumber, TellsNumbersThatDoNotFit) {
  std::int32_t number = 0;
  EXPECT_EQ(ReadWholeNumber("2147483647", number), std::errc());
  EXPECT_EQ(ReadWholeNumber("2147483648", number), std::errc::result_out_of_range);
  EXPECT_EQ(number, 2'147'483'647);
}

}  // namespace
}  // namespace quillomat
