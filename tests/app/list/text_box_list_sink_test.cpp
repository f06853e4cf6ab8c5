// Lists in the output text box.
#include "app/list/text_box_list_sink.h"

#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"
#include "listing/listing_fixture.h"
#include "support/scripted_desktop.h"

namespace quillomat {
namespace {

class ListInTheTextBox : public ListingFixture {
 protected:
  [[nodiscard]] TextBoxListSink Sink() {
    return {frmMain, output, accumulator, [] { return false; }, options};
  }

  /// Takes a word whose line brings the accumulator to that many characters, its break included.
  static void FillUpTo(TextBoxListSink& sink, const std::string& accumulator,
                       std::size_t characters) {
    const std::size_t missing = characters - CharacterCount(accumulator) - kCrLfLength;
    EXPECT_TRUE(sink.TakeWord(1, std::string(missing, 'x')));
  }

  static constexpr std::size_t kCrLfLength = 2;

  MainForm frmMain;
  ScriptedDesktop desktop;
  OutputBox output{frmMain, desktop};
  std::string accumulator = "of an earlier list";
};

TEST_F(ListInTheTextBox, GathersLinesWithTheBreaksOfTheWindow) {
  TextBoxListSink sink = Sink();
  sink.TakeHeader("header");
  EXPECT_TRUE(sink.TakeWord(1, "one"));
  EXPECT_TRUE(sink.TakeWord(2, "two"));
  EXPECT_EQ(accumulator, "header\r\none\r\ntwo\r\n");
}

TEST_F(ListInTheTextBox, ShowsTheHeaderAtOnce) {
  TextBoxListSink sink = Sink();
  sink.TakeNotice("2 files (in 1 folder) were scanned.\r\n");
  sink.TakeHeader("header");
  EXPECT_TRUE(sink.TakeWord(1, "one"));
  EXPECT_EQ(frmMain.txbOutput.Text(), "2 files (in 1 folder) were scanned.\r\nheader\r\n");
}

TEST_F(ListInTheTextBox, WordsWithCommasRunOn) {
  options.format = DisplayFormat::kWordCommas;
  AddSample();
  Finish();
  TextBoxListSink sink = Sink();
  Walk(WordOrder::kByFrequency, sink);
  EXPECT_EQ(accumulator, "the, cat, sat, well-known, ");
}

TEST_F(ListInTheTextBox, WholeListIsThatOfTheWalk) {
  AddSample();
  Finish();
  TextBoxListSink sink = Sink();
  Walk(WordOrder::kAlphabetical, sink);
  EXPECT_EQ(accumulator,
            "   Rank    Freq  Word (longest has 10 characters)\r\n"
            "      2       3  cat\r\n"
            "      3       3  sat\r\n"
            "      1      12  the\r\n"
            "      4       1  well-known\r\n");
}

TEST_F(ListInTheTextBox, PreviewIsShownOnceBehind2048Characters) {
  TextBoxListSink sink = Sink();
  FillUpTo(sink, accumulator, 2048);
  EXPECT_EQ(frmMain.txbOutput.Text(), "");
  EXPECT_TRUE(sink.TakeWord(2, "y"));
  const std::string preview = accumulator;
  EXPECT_EQ(frmMain.txbOutput.Text(), preview);
  EXPECT_TRUE(sink.TakeWord(3, "z"));
  EXPECT_EQ(frmMain.txbOutput.Text(), preview);
}

TEST_F(ListInTheTextBox, LineThatCrossesTheLimitIsTakenAndFillsTheBox) {
  TextBoxListSink sink = Sink();
  FillUpTo(sink, accumulator, 43'999);
  EXPECT_FALSE(output.IsFull());
  EXPECT_TRUE(sink.TakeWord(2, "the last"));
  EXPECT_TRUE(output.IsFull());
  EXPECT_TRUE(accumulator.ends_with("the last\r\n"));
}

TEST_F(ListInTheTextBox, LinesBehindTheLimitAreDroppedAndTheWalkGoesOn) {
  TextBoxListSink sink = Sink();
  FillUpTo(sink, accumulator, 44'001);
  EXPECT_TRUE(sink.TakeWord(2, "dropped"));
  EXPECT_TRUE(output.IsFull());
  EXPECT_EQ(accumulator.size(), 44'001U);
}

TEST_F(ListInTheTextBox, ListThatJustReachesTheLimitIsNotFullButTakesNoMore) {
  TextBoxListSink sink = Sink();
  FillUpTo(sink, accumulator, 44'000);
  EXPECT_FALSE(output.IsFull());
  EXPECT_TRUE(sink.TakeWord(2, "dropped"));
  EXPECT_FALSE(output.IsFull());
  EXPECT_EQ(accumulator.size(), 44'000U);
}

TEST_F(ListInTheTextBox, LimitCountsCharactersNotBytes) {
  TextBoxListSink sink = Sink();
  std::string line;
  for (int i = 0; i < 30'000; ++i) line += "é";
  EXPECT_TRUE(sink.TakeWord(1, line));
  EXPECT_FALSE(output.IsFull());
  EXPECT_TRUE(sink.TakeWord(2, "still taken"));
  EXPECT_TRUE(accumulator.ends_with("still taken\r\n"));
}

TEST_F(ListInTheTextBox, TwirlerTurnsWithTheRecordsPlace) {
  TextBoxListSink sink = Sink();
  const char* const turns[] = {"\u2584", "\u258C", "\u2580", "\u2590"};
  for (std::int32_t index = 1; index <= 8; ++index) {
    EXPECT_TRUE(sink.TakeWord(index, "word"));
    EXPECT_EQ(frmMain.lblTwirler.Caption(), turns[index % 4]) << index;
  }
}

TEST_F(ListInTheTextBox, StopEndsTheWalkBehindTheWordAtHand) {
  AddSample();
  Finish();
  options.format = DisplayFormat::kWord;
  int words = 0;
  TextBoxListSink sink(
      frmMain, output, accumulator, [&words] { return ++words == 2; }, options);
  Walk(WordOrder::kByFrequency, sink);
  EXPECT_EQ(accumulator, "Word (longest has 10 characters)\r\nthe\r\ncat\r\n");
}

}  // namespace
}  // namespace quillomat
