#pragma once
// A count whose list shall not take the place of what it read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"

namespace quillomat {

class OutputRules : public CountFixture {
 protected:
  OutputRules() {
    ListWordsOnly();
    DoNotWarn();
  }

  /// Counts the folder of three words with that output file, and sees it refused.
  void ExpectRefusedInFolder(const std::string& output) {
    desktop.ForgetQuestions();
    ListTo(output);
    CountFolder(folder / "g");
    EXPECT_THAT(desktop.Titles(), ::testing::ElementsAre("Invalid output file")) << output;
    EXPECT_EQ(ContentsOf(folder / "g/a.txt"), "dog");
  }
};

}  // namespace quillomat
