// The statistics of a count as the window shows them, without a screen.
#include "app/table/result_statistics.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using Row = ResultStatistics::Row;

class ResultStatisticsTest : public ProgramFixture {
 protected:
  ResultStatisticsTest() {
    statistics_.Changed.Connect([this] { ++changes_; });
  }
  std::vector<Row> Rows() { return statistics_.Rows({.group = ".", .decimal = ","}); }

  ResultStatistics statistics_{program.Words(), program.Text()};
  int changes_ = 0;
};

TEST_F(ResultStatisticsTest, ComeWithACountAndGoBeforeItsWords) {
  EXPECT_THAT(Rows(), IsEmpty());
  CountClipboard("dog cat dog");
  EXPECT_EQ(Rows().front(), (Row{"Instances of words", "3"}));
  EXPECT_EQ(changes_, 1);
  program.Initialize();
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_EQ(changes_, 2);
}

TEST_F(ResultStatisticsTest, HaveTheSignsOfTheUsersNumbers) {
  std::string text;
  for (int i = 0; i < 1500; ++i) text += "dog ";
  CountClipboard(text + "cat");
  EXPECT_EQ(Rows()[0].value, "1.501");
  EXPECT_EQ(Rows()[2], (Row{"Type-token ratio", "0,001332"}));
}

TEST_F(ResultStatisticsTest, AreInTheCurrentLanguage) {
  CountClipboard("dog cat");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Rows()[1], (Row{"Verschiedene Wörter", "2"}));
  Main().cmdLanguage.PerformClick();
  for (const Row& row : Rows()) EXPECT_FALSE(row.name.empty());
}

TEST_F(ResultStatisticsTest, WhatNeedsTheOrderComesWithTheNextCountThatIsAskedFor) {
  CountClipboard("dog cat dog");
  const Row growth{"Different words after 3 instances", "2"};
  EXPECT_THAT(Rows(), Not(Contains(growth)));
  const int changes = changes_;
  program.WantOrderFigures(true);
  EXPECT_EQ(changes_, changes) << "nobody has asked for a count";
  EXPECT_EQ(Main().lblNotice.Caption(), "Figures of the order of words need a new count.");
  Main().cmdNotice[0].PerformClick();
  EXPECT_THAT(Rows(), Contains(growth));
  EXPECT_FALSE(Main().lblNotice.Visible());
  CountClipboard("ox");
  EXPECT_THAT(Rows(), Contains(Row{"Different words after 1 instance", "1"}));
  program.WantOrderFigures(false);
  CountClipboard("ox");
  EXPECT_THAT(Rows(), Not(Contains(Row{"Different words after 1 instance", "1"})));
}

TEST_F(ResultStatisticsTest, NothingIsCountedForWantsBeforeThereIsACount) {
  desktop.SetClipboard("dog");
  program.WantOrderFigures(true);
  EXPECT_THAT(Rows(), IsEmpty());
}

}  // namespace
}  // namespace quillomat
