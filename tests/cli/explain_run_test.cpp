// --explain: a line for every piece of a text, by the settings of the command line.
#include <gmock/gmock.h>

#include "cli/exit_status.h"
#include "cli/terminal_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using ExplainRun = TerminalFixture;

TEST_F(ExplainRun, PrintsEveryPieceWithWhatBecomesOfIt) {
  EXPECT_EQ(Run({"--explain", "Don't skip (XIV)"}), kListMade);
  EXPECT_EQ(out,
            "Don't\tcut\tat ': not allowed in words\n"
            "Don\tcounted\tdon\n"
            "t\tleft out\ttaken for the rest of a contraction\n"
            "skip\tcounted\tskip\n"
            "XIV\tleft out\tRoman numeral < XL\n");
  EXPECT_EQ(err, "");
}

TEST_F(ExplainRun, GoesByTheOptionsAndLists) {
  EXPECT_EQ(
      Run({"--explain", "Don't let cats // out", "--apostrophes", "--drop-final-s",
           "--skip-comments", "--ignore", folder.Write("ignore.txt", "let"), "--min-length", "4"}),
      kListMade);
  EXPECT_EQ(out,
            "Don't\tcounted\tdon't\n"
            "let\tleft out\tin the words-to-ignore file\n"
            "cats\tleft out\tfewer than 4 characters\twithout its final s\n"
            "// out\tleft out\tcomment\n");
}

TEST_F(ExplainRun, ReadsStandardInput) {
  input = "two\r\nlines";
  EXPECT_EQ(Run({"--explain", "-"}), kListMade);
  EXPECT_EQ(out, "two\tcounted\ttwo\nlines\tcounted\tlines\n");
}

TEST_F(ExplainRun, EveryPieceHasOneLineWhateverStandsInIt) {
  EXPECT_EQ(Run({"--explain", "a /* b\tc\r\nd */ e", "--skip-comments"}), kListMade);
  EXPECT_EQ(out, "a\tcounted\ta\n/* b c  d */\tleft out\tcomment\ne\tcounted\te\n");
}

TEST_F(ExplainRun, DecodesItsBytesByTheEncodingThatIsNamed) {
  input = "\xC4\xC5\xCC\xCF";
  EXPECT_EQ(Run({"--explain", "-", "--encoding", "koi8-r", "--letters", "all"}), kListMade);
  EXPECT_EQ(out, "дело\tcounted\tдело\n");
  EXPECT_EQ(err, "");
}

TEST_F(ExplainRun, TakesAnArgumentAsItWasTypedWhateverTheEncodingOfFilesIs) {
  for (const std::string encoding : {"koi8-r", "utf-16", "guess"}) {
    EXPECT_EQ(Run({"--explain", "дело", "--encoding", encoding, "--letters", "all"}), kListMade);
    EXPECT_EQ(out, "дело\tcounted\tдело\n") << encoding;
    EXPECT_EQ(err, "") << encoding;
  }
}

TEST_F(ExplainRun, NamesNoEncodingOfFilesWhereAnArgumentIsNotUtf8) {
  EXPECT_EQ(Run({"--explain", "caf\xE9"}), kListMade);
  EXPECT_EQ(out, "café\tcounted\tcafé\n");
  EXPECT_EQ(err, "Note: the text of --explain is not UTF-8 and was read as Windows-1252\n");
}

TEST_F(ExplainRun, TellsOfBytesThatWereReadOtherwise) {
  input = "caf\xE9";
  EXPECT_EQ(Run({"--explain", "-"}), kListMade);
  EXPECT_EQ(out, "café\tcounted\tcafé\n");
  EXPECT_THAT(err, HasSubstr("Note: 1 line was not UTF-8 and was read as Windows-1252"));
  EXPECT_EQ(Run({"--explain", "-", "--encoding", "utf-8"}), kListMade);
  EXPECT_THAT(err, HasSubstr("Note: 1 byte could not be decoded"));
}

TEST_F(ExplainRun, GoesThroughStandardInputLineByLineAsACountDoes) {
  input = "line one\nline // two\nthree /* four\r\n  \r\nfive */ six";
  EXPECT_EQ(Run({"--explain", "-", "--skip-comments"}), kListMade);
  EXPECT_EQ(out,
            "line\tcounted\tline\none\tcounted\tone\n"
            "line\tcounted\tline\n// two\tleft out\tcomment\n"
            "three\tcounted\tthree\n/* four\tleft out\tcomment\n"
            "five */\tleft out\tcomment\nsix\tcounted\tsix\n");
}

TEST_F(ExplainRun, TellsOfLinesThatWereNotUtf8) {
  input = "\xEF\xF0\xE8\nword\n";
  EXPECT_EQ(Run({"--explain", "-"}), kListMade);
  EXPECT_THAT(err, HasSubstr("1 line was not UTF-8"));
  EXPECT_EQ(Run({"--explain", "-", "--encoding", "windows-1251", "--letters", "all"}), kListMade);
  EXPECT_EQ(err, "");
}

TEST_F(ExplainRun, CallsAForeignLetterWhatACountCallsOne) {
  EXPECT_EQ(Run({"--explain", "Mu\u0308ller ma\u00BA 1\uFE0F"}), kListMade);
  EXPECT_EQ(out,
            "Mu\u0308ller\tcut\tat U+0308: letters of other alphabets are not counted\n"
            "Mu\tcounted\tmu\nller\tcounted\tller\n"
            "ma\u00BA\tcut\tat \u00BA: letters of other alphabets are not counted\n"
            "ma\tcounted\tma\n"
            "1\uFE0F\tleft out\tnumerals are not allowed in words\n");
}

TEST_F(ExplainRun, PrintsNothingForATextWithoutPieces) {
  EXPECT_EQ(Run({"--explain", "..."}), kListMade);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "Note: nothing in the text could be a word or a comment\n");
}

TEST_F(ExplainRun, TakesNoMoreThanAClipboardDoes) {
  input = std::string(100'001, 'a');
  EXPECT_EQ(Run({"--explain", "-"}), kRunFailed);
  EXPECT_THAT(err, HasSubstr("more than 100,000 characters"));
  EXPECT_EQ(out, "");
}

TEST_F(ExplainRun, RefusesMarkersAsACountDoes) {
  EXPECT_EQ(Run({"--explain", "a", "--skip-comments", "--comments", "rem"}), kRunFailed);
  EXPECT_THAT(err, HasSubstr("start-comment marker"));
}

TEST_F(ExplainRun, LeavesTheOutputFileOfAStateAlone) {
  const std::string state = folder / "a.qlm";
  const std::string text = folder.Write("a.txt", "a");
  const std::string list = folder / "list.txt";
  ASSERT_EQ(Run({text, "--output", list, "--save-state", state}), kListMade);
  const std::string before = ContentsOf(list);
  EXPECT_EQ(Run({"--explain", "word", "--state", state}), kListMade);
  EXPECT_EQ(out, "word\tcounted\tword\n");
  EXPECT_EQ(ContentsOf(list), before);
}

TEST_F(ExplainRun, IsNoListAndOfNoFile) {
  EXPECT_EQ(Run({"--explain", "a", folder.Write("a.txt", "a")}), kWrongCommandLine);
  EXPECT_THAT(err, HasSubstr("more than one text"));
  EXPECT_EQ(Run({"--explain", "a", "--output", folder / "list.txt"}), kWrongCommandLine);
  EXPECT_THAT(err, HasSubstr("--output: does not go with --explain"));
  EXPECT_EQ(Run({"--explain", "a", "--top", "3"}), kWrongCommandLine);
  EXPECT_THAT(err, HasSubstr("--top: does not go with --explain"));
}

}  // namespace
}  // namespace quillomat
