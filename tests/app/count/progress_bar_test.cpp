#include "app/count/progress_bar.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/pace_text.h"
#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

const std::string kEmptyBar = "[" + std::string(39, ' ') + "]";

TEST(ProgressBarText, GrowsFromATipToAFullBar) {
  EXPECT_EQ(ProgressBar::Bar(0), "[>" + std::string(38, ' ') + "]");
  EXPECT_EQ(ProgressBar::Bar(1), "[>" + std::string(38, ' ') + "]");
  EXPECT_EQ(ProgressBar::Bar(2), "[->" + std::string(37, ' ') + "]");
  EXPECT_EQ(ProgressBar::Bar(20), "[" + std::string(19, '-') + ">" + std::string(19, ' ') + "]");
  EXPECT_EQ(ProgressBar::Bar(39), "[" + std::string(38, '-') + ">]");
}

TEST(ProgressBarValue, TellsTheTimeSinceTheStart) {
  MainForm frmMain;
  std::chrono::steady_clock::time_point now{};
  ProgressBar bar(frmMain.lblNumOccurrences, [&now] { return now; });
  now += std::chrono::seconds(5);
  bar.StartProgressBar();
  now += std::chrono::milliseconds(1500);
  bar.SetProgress({10, 100});
  EXPECT_EQ(frmMain.lblNumOccurrences.ShownProgress()->elapsed, std::chrono::milliseconds(1500));
  EXPECT_EQ(frmMain.lblNumOccurrences.ShownProgress()->done, 10);
}

TEST_F(SourcesFixture, PaceIsToldWhenItIsKnown) {
  const NumberSigns signs{.group = ".", .decimal = ","};
  const auto pace = [&](std::int64_t done, std::int64_t whole, int milliseconds) {
    return PaceText({done, whole, 0, 0, std::chrono::milliseconds(milliseconds)}, program.Text(),
                    signs);
  };
  EXPECT_EQ(pace(500'000'000, 2'000'000'000, 2000), "238 MB/s, 0:06 left");
  EXPECT_EQ(pace(3'000'000, 6'000'000, 2000), "1,4 MB/s, 0:02 left");
  EXPECT_EQ(pace(1'999'000'000, 2'000'000'000, 8000), "238 MB/s, almost done");
  EXPECT_EQ(pace(500'000'000, 2'000'000'000, 900), "") << "too early to tell";
  EXPECT_EQ(pace(0, 2'000'000'000, 2000), "");
  EXPECT_EQ(pace(500'000'000, 0, 2000), "");
}

/// The bar as a count shows it.
class ProgressBarOfACount : public SourcesFixture {
 protected:
  /// From now on each new bar in the label is remembered.
  void Watch(Label& label) {
    label.Changed.Connect([this, &label] {
      const std::string& caption = label.Caption();
      if (!caption.starts_with("[") || !label.Visible()) return;
      if (!bars_.empty() && bars_.back() == caption) return;
      EXPECT_EQ(label.FontName(), "Courier New");
      EXPECT_EQ(caption.size(), 41U);
      bars_.push_back(caption);
    });
  }

  /// The bars shown while a file of lines of that length, breaks included, is read.
  std::vector<std::string> BarsOf(std::size_t lines, std::size_t bytesEach,
                                  const std::string& lineBreak) {
    std::string contents;
    for (std::size_t i = 0; i < lines; ++i) {
      contents += std::string(bytesEach - lineBreak.size(), 'a') + lineBreak;
    }
    bars_.clear();
    Watch(Main().lblTotalNumOccurrences);
    CountFile(folder.Write("long.txt", contents));
    return bars_;
  }

  static std::vector<std::string> Bars(const std::vector<int>& places) {
    std::vector<std::string> bars = {kEmptyBar};
    for (const int place : places) bars.push_back(ProgressBar::Bar(place));
    return bars;
  }

  std::vector<std::string> bars_;
};

TEST_F(ProgressBarOfACount, FollowsTheBytesOfALongFile) {
  EXPECT_EQ(BarsOf(10, 2'000, "\r\n"), Bars({4, 8, 12, 16, 20, 23, 27, 31, 35, 39}));
  ExpectIdle();
}

TEST_F(ProgressBarOfACount, RunsAFifthAheadForAUnixFile) {
  EXPECT_EQ(BarsOf(10, 2'000, "\n"), Bars({5, 10, 14, 19, 24, 28, 32, 37, 39}));
}

TEST_F(ProgressBarOfACount, RunsAsUsualForAMacintoshFile) {
  EXPECT_EQ(BarsOf(10, 2'000, "\r"), Bars({4, 8, 12, 16, 20, 23, 27, 31, 35, 39}));
}

TEST_F(ProgressBarOfACount, IsShownForMoreThan10240BytesOnly) {
  EXPECT_TRUE(BarsOf(10, 1'024, "\r\n").empty());
  EXPECT_FALSE(BarsOf(1, 10'241, "\r\n").empty());
}

TEST_F(ProgressBarOfACount, CountsLinesOfBlanksToo) {
  Watch(Main().lblTotalNumOccurrences);
  CountFile(folder.Write("blank.txt",
                         std::string(9'998, ' ') + "\r\n" + std::string(9'998, ' ') + "\r\n"));
  EXPECT_EQ(bars_, Bars({20, 39}));
}

TEST_F(ProgressBarOfACount, LeavesItsLabelToTheSummary) {
  BarsOf(10, 2'000, "\n");
  EXPECT_EQ(Main().lblTotalNumOccurrences.FontName(), "Arial");
  EXPECT_EQ(Main().lblTotalNumOccurrences.Caption(), "Total number of instances of words: 10");
  CountFile(folder.Write("long.txt", std::string(20'000, ' ') + "cat"));
  EXPECT_EQ(Main().lblTotalNumOccurrences.Caption(), "Total number of instances of words: 1");
}

TEST_F(ProgressBarOfACount, LeavesItsLabelAlsoWhenTheScanIsStopped) {
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 2, [this] {
    EXPECT_TRUE(Main().lblTotalNumOccurrences.Caption().starts_with("["));
    Count();
  });
  desktop.Answer("Counting interrupted", MessageAnswer::kNo);
  std::string contents;
  for (int i = 0; i < 5'000; ++i) contents += "cat\n";
  CountFile(folder.Write("long.txt", contents));
  EXPECT_EQ(desktop.Messages().size(), 1U);
  ExpectIdle();
}

TEST_F(ProgressBarOfACount, OfAFolderFollowsItsFiles) {
  for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt"}) {
    static_cast<void>(folder.Write(name, "cat"));
  }
  Watch(Main().lblNumOccurrences);
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(bars_, Bars({10, 20, 29, 39}));
  EXPECT_EQ(Main().lblNumOccurrences.Caption(), "Number of instances of words in this list: 4");
  ExpectIdle();
}

TEST_F(ProgressBarOfACount, OfAFileInAFolderIsShownToo) {
  static_cast<void>(folder.Write("a.txt", std::string(30'000, 'a')));
  static_cast<void>(folder.Write("b.txt", "cat"));
  Watch(Main().lblTotalNumOccurrences);
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(bars_, Bars({39}));
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
