// --statistics: what it prints, of whichever text, and what exports then hold.
#include <gmock/gmock.h>

#include "cli/exit_status.h"
#include "cli/terminal_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using StatisticsRun = TerminalFixture;

constexpr const char* kToBe = "To be or not to be";
constexpr const char* kGrowthOfToBe =
    "different-words-after-1\t1\ndifferent-words-after-2\t2\ndifferent-words-after-3\t3\n"
    "different-words-after-4\t4\ndifferent-words-after-5\t4\ndifferent-words-after-6\t4\n";

TEST_F(StatisticsRun, GoesToStandardErrorBesideTheList) {
  const std::string path = folder.Write("a.txt", kToBe);
  EXPECT_EQ(Run({path, "--statistics", "--format", "word", "--top", "1"}), kListMade);
  EXPECT_EQ(out, "Word (longest has 3 characters)\nbe\n");
  EXPECT_THAT(err, StartsWith("instances\t6\ndifferent-words\t4\ntype-token-ratio\t0.666667\n"
                              "words-once\t2\n"));
  EXPECT_THAT(err, HasSubstr(kGrowthOfToBe));
}

TEST_F(StatisticsRun, CountsFilesFoldersAndPipesInTheirOrder) {
  const std::string path = folder.Write("sub/a.txt", "To be");
  input = "not to be";
  EXPECT_EQ(Run({folder / "sub", folder.Write("b.txt", "or"), "-", "--statistics"}), kListMade);
  EXPECT_THAT(err, HasSubstr(kGrowthOfToBe));
}

TEST_F(StatisticsRun, CountsWhatTheWindowCounts) {
  const std::string path = folder.Write("a.txt", kToBe);
  EXPECT_EQ(Run({"--text", path, "--statistics"}), kListMade);
  EXPECT_THAT(err, HasSubstr(kGrowthOfToBe));
  EXPECT_EQ(Run({"--file", path, "--window-text", "--statistics"}), kListMade);
  EXPECT_THAT(err, HasSubstr(kGrowthOfToBe));
}

TEST_F(StatisticsRun, WordsToIgnoreAreNotAmongTheWords) {
  const std::string path = folder.Write("a.txt", kToBe);
  EXPECT_EQ(Run({path, "--statistics", "--ignore-words", "to be"}), kListMade);
  EXPECT_THAT(err, StartsWith("instances\t2\n"));
  EXPECT_THAT(err, HasSubstr("different-words-after-2\t2\n"));
}

TEST_F(StatisticsRun, WordsThatAreNotListedAre) {
  const std::string path = folder.Write("a.txt", kToBe);
  EXPECT_EQ(Run({path, "--statistics", "--min-count", "2"}), kListMade);
  EXPECT_THAT(err, StartsWith("instances\t6\n"));
}

TEST_F(StatisticsRun, WordsOfWhichNoneIsListedAreToo) {
  const std::string path = folder.Write("a.txt", kToBe);
  EXPECT_EQ(Run({path, "--statistics", "--min-count", "9"}), kRunFailed);
  EXPECT_THAT(err, HasSubstr("instances\t6\n"));
  EXPECT_THAT(err, HasSubstr(kGrowthOfToBe));
  EXPECT_THAT(err, StartsWith("quillomat-cli: No words with more than"));
  EXPECT_EQ(Run({"--file", path, "--window-text", "--statistics", "--min-count", "9"}), kRunFailed);
  EXPECT_THAT(err, HasSubstr("instances\t6\n"));
}

TEST_F(StatisticsRun, AreNotThoseOfAWordsFile) {
  const std::string words = folder.Write("words.txt", "cat dog\r\n");
  EXPECT_EQ(Run({folder.Write("a.txt", kToBe), "--only", words, "--statistics"}), kRunFailed);
  EXPECT_THAT(err, Not(HasSubstr("instances")));
}

TEST_F(StatisticsRun, IsPartOfAnExport) {
  const std::string path = folder.Write("a.txt", kToBe);
  const std::string json = folder / "words.json";
  EXPECT_EQ(Run({path, "--export", json}), kListMade);
  EXPECT_THAT(ContentsOf(json), HasSubstr(R"("different-words":4)"));
  EXPECT_THAT(ContentsOf(json), Not(HasSubstr("growth")));
  EXPECT_EQ(Run({path, "--export", json, "--overwrite", "--statistics"}), kListMade);
  EXPECT_THAT(ContentsOf(json), HasSubstr(R"("growth":[[1,1],[2,2],[3,3],[4,4],[5,4],[6,4]])"));
}

TEST_F(StatisticsRun, DoesNotGoWithAListOfFiles) {
  EXPECT_EQ(Run({folder.Path(), "--list-files", "--statistics"}), kWrongCommandLine);
  EXPECT_THAT(err, HasSubstr("--statistics: does not go with --list-files"));
}

TEST_F(StatisticsRun, OfARefusedTextAreNone) {
  EXPECT_EQ(Run({folder.Write("a.txt", ""), "--statistics"}), kRunFailed);
  EXPECT_THAT(err, Not(HasSubstr("instances")));
}

}  // namespace
}  // namespace quillomat
