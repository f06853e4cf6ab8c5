// Lists in files.
#include "listing/file_list_sink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "base/run_time_error.h"
#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

class ListInAFile : public ListingFixture {
 protected:
  /// What the writer is given, piece by piece.
  std::vector<std::string> written;

  [[nodiscard]] FileListSink::Writer Writer() {
    return [this](std::string_view bytes) { written.emplace_back(bytes); };
  }
  [[nodiscard]] static FileListSink::StopTest Never() {
    return [] { return false; };
  }
};

TEST_F(ListInAFile, EveryLineIsEndedAsThePlatformDoes) {
  AddSample();
  Finish();
  options.format = DisplayFormat::kWordFrequency;
  EXPECT_EQ(FileList(WordOrder::kByFrequency),
            "  Word         Freq\n"
            "  the            12\n"
            "  cat             3\n"
            "  sat             3\n"
            "  well-known      1\n");
}

TEST_F(ListInAFile, WordsWithCommasRunOnWithoutLineEnd) {
  AddSample();
  Finish();
  options.format = DisplayFormat::kWordCommas;
  EXPECT_EQ(FileList(WordOrder::kAlphabetical), "cat, sat, the, well-known");
}

TEST_F(ListInAFile, WordsByFrequencyMayEndWithACommaAndLackOneInTheMiddle) {
  Add("zebra", 2);
  Add("ant", 3);
  Add("cat");
  Finish();
  options.format = DisplayFormat::kWordCommas;
  EXPECT_EQ(FileList(WordOrder::kByFrequency), "ant, zebracat, ");
}

TEST_F(ListInAFile, WithoutTheLastRecordEveryWordHasItsComma) {
  Add("ant");
  Add("cat");
  Add("zebra");
  store.SetIncluded(3, false);
  Finish();
  options.format = DisplayFormat::kWordCommas;
  EXPECT_EQ(FileList(WordOrder::kAlphabetical), "ant, cat, ");
}

TEST_F(ListInAFile, MayBeTheStartOfAListOnly) {
  Add("ant");
  Add("cat");
  Add("zebra");
  Finish();
  for (const DisplayFormat format : {DisplayFormat::kWord, DisplayFormat::kWordCommas}) {
    options.format = format;
    options.lineBreak = "\n";
    const LineFormatter formatter(Counted(), options);
    FileListSink sink(Writer(), Never(), options, store.NumDifferentWords());
    sink.TakeAtMost(2);
    EXPECT_FALSE(ListAlphabetical(Counted(), formatter, sink)) << "nothing more is wanted";
    sink.Flush();
  }
  EXPECT_THAT(written, testing::ElementsAre("ant\ncat\n", "ant, cat"));
}

TEST_F(ListInAFile, ColumnsWithCommasCanBeReadByOthers) {
  Add("the", 2);
  Add("cat");
  Finish();
  options.withCommas = true;
  EXPECT_EQ(FileList(WordOrder::kByFrequency),
            "    Rank,    Freq,  Word (longest has 3 characters)\n"
            "       1,       2,  the\n"
            "       2,       1,  cat\n");
}

TEST_F(ListInAFile, NothingIsWrittenBeforeTheEndOfAShortList) {
  options.lineBreak = "\r\n";
  FileListSink sink(Writer(), Never(), options, 1);
  sink.TakeHeader("header");
  EXPECT_TRUE(sink.TakeWord(1, "line"));
  EXPECT_TRUE(written.empty());
  sink.Flush();
  EXPECT_THAT(written, testing::ElementsAre("header\r\nline\r\n"));
  sink.Flush();
  EXPECT_EQ(written.size(), 1U);
}

TEST_F(ListInAFile, LongListIsWrittenInLargePieces) {
  FileListSink sink(Writer(), Never(), options, 40'000);
  std::string expected;
  for (std::int32_t i = 1; i <= 40'000; ++i) {
    const std::string line = "line number " + std::to_string(i);
    EXPECT_TRUE(sink.TakeWord(i, line));
    expected += line + options.lineBreak;
  }
  EXPECT_GE(written.size(), 2U);
  EXPECT_LE(written.size(), 5U);
  sink.Flush();
  std::string whole;
  for (const std::string& piece : written) whole += piece;
  EXPECT_EQ(whole, expected);
}

TEST_F(ListInAFile, StopEndsTheListBehindTheWordAtHand) {
  AddSample();
  Finish();
  options.format = DisplayFormat::kWord;
  options.lineBreak = "\n";
  int words = 0;
  FileListSink sink(
      Writer(), [&words] { return ++words == 2; }, options, 4);
  Walk(WordOrder::kByFrequency, sink);
  sink.Flush();
  EXPECT_THAT(written, testing::ElementsAre("Word (longest has 10 characters)\nthe\ncat\n"));
}

TEST_F(ListInAFile, ErrorOfTheWriterIsPassedOn) {
  FileListSink sink([](std::string_view) { throw RunTimeError(RunTimeErrorNumber::kDiskFull); },
                    Never(), options, 1);
  EXPECT_TRUE(sink.TakeWord(1, "line"));
  EXPECT_THROW(sink.Flush(), RunTimeError);
}

}  // namespace
}  // namespace quillomat
