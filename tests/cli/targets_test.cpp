// The files that a run writes: what is wrong with them is told before anything is counted.
#include "cli/targets.h"

#include <gmock/gmock.h>

#include "cli/exit_status.h"
#include "cli/terminal_fixture.h"
#include "cli/written_files.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/last_words.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Targets : public TerminalFixture {
 protected:
  /// Standard input is read only when it is counted.
  void ExpectRefusal(std::vector<std::string> arguments, int status, const std::string& told) {
    arguments.emplace_back("-");
    input = "cat";
    inputWasOpened = false;
    EXPECT_EQ(Run(arguments), status);
    EXPECT_THAT(err, HasSubstr(told));
    EXPECT_FALSE(inputWasOpened) << told;
    EXPECT_EQ(out, "");
  }

  const std::string table = folder / "table.csv";
};

TEST_F(Targets, AFolderThatIsNotThereIsToldBeforeTheCount) {
  for (const char* option : {"--output", "--export", "--report", "--save-state"}) {
    const std::string path = folder / "none/a.csv";
    ExpectRefusal({option, path}, kRunFailed,
                  std::string(option) + " " + path + " cannot be written: Path not found");
  }
}

TEST_F(Targets, AFolderIsNoTarget) {
  const std::string path = folder.Make("many.csv");
  for (const char* option : {"--output", "--export", "--report", "--save-state"}) {
    ExpectRefusal({option, path}, kRunFailed, "(it is a folder; name a file in it)");
  }
}

TEST_F(Targets, WhatExistsIsToldBeforeTheCount) {
  static_cast<void>(folder.Write("table.csv", "mine"));
  for (const char* option : {"--export", "--report"}) {
    ExpectRefusal({option, table}, kRunFailed,
                  std::string(option) + " " + table + " exists and is left as it is (--overwrite");
  }
  ExpectRefusal({"--output", table}, kRunFailed, "is left as it is (--overwrite replaces it");
  EXPECT_EQ(ContentsOf(table), "mine");
  EXPECT_EQ(Run({"-", "--output", table, "--answer", "The output file exists.=OK"}), kListMade);
  EXPECT_NE(ContentsOf(table), "mine");
}

TEST_F(Targets, TwoThatAreOneFileAreRefused) {
  const std::string other = folder / "x/../table.csv";
  static_cast<void>(folder.Make("x"));
  for (const char* option : {"--output", "--report", "--save-state", "--export"}) {
    ExpectRefusal({"--export", table, option, other, "--overwrite"}, kWrongCommandLine,
                  " would replace what ");
  }
  EXPECT_FALSE(FileExists(table));
}

TEST_F(Targets, WhatIsCountedIsNoTarget) {
  const std::string path = folder.Write("a.csv", "cat");
  ExpectRefusal({path, "--export", path, "--overwrite"}, kRunFailed,
                "--export " + path + " is read by this count; it is not overwritten");
  ExpectRefusal({folder.Path(), "--report", table}, kRunFailed,
                "--report " + table + " lies in the folder that is counted");
  const std::string words = folder.Write("words.csv", "cat\r\n");
  ExpectRefusal({"--ignore", words, "--export", words, "--overwrite"}, kRunFailed,
                "is read by this count");
}

TEST_F(Targets, ColumnsThatNobodyWillKnowAreToldBeforeTheCount) {
  ExpectRefusal({"--export", table, "--columns", "word,files"}, kRunFailed, "--columns: ");
}

TEST_F(Targets, WordsFilesThatAreNotThereAreToldBeforeTheCount) {
  ExpectRefusal({"--ignore", folder / "no.txt"}, kRunFailed,
                "--ignore " + folder / "no.txt" + " does not exist; check the path");
  ExpectRefusal({"--only", folder.Path()}, kRunFailed, "is a folder; name a file of words");
}

TEST_F(Targets, AnExportThatFailsDoesNotTakeTheOthersAlong) {
  input.clear();
  for (int i = 0; i < 20'000; ++i) input += "cat dog bird\n";
  const std::string other = folder / "other.csv";
  interruption = [this] {  // while it is counted, long after the targets were looked at
    static_cast<void>(folder.Make("a.csv"));
    static_cast<void>(folder.Make("b.json"));
    return 0;
  };
  EXPECT_EQ(Run({"-", "--export", folder / "a.csv", "--export", table, "--export",
                 folder / "b.json", "--export", other}),
            kRunFailed);
  EXPECT_THAT(err, HasSubstr("--export " + folder / "a.csv" + " cannot be written: "));
  EXPECT_THAT(err, HasSubstr("--export " + folder / "b.json" + " cannot be written: "));
  EXPECT_THAT(ContentsOf(table), HasSubstr("bird"));
  EXPECT_EQ(ContentsOf(other), ContentsOf(table));
}

TEST_F(Targets, WhatIsWrittenIsToldByAnInterruptionThatComesThen) {
  input = "cat";
  const std::string list = folder / "list.txt";
  const std::string report = folder / "report.csv";
  const std::string state = folder / "state";
  TellOfWrittenFiles(LineOfWrittenFiles);
  EXPECT_EQ(Run({"-", "--output", list, "--export", folder / "no/a.csv", "--export", table}),
            kRunFailed);
  EXPECT_EQ(LastWords(), "") << "the count was refused";
  EXPECT_EQ(countsOver, 0);
  EXPECT_EQ(
      Run({"-", "--output", list, "--export", table, "--report", report, "--save-state", state}),
      kListMade)
      << err;
  EXPECT_EQ(LastWords(), "Interrupted. Written by then: " + state + ", " + list + ", " + report +
                             ", " + table + std::string(kPlatformLineBreak));
  TellOfWrittenFiles(nullptr);
  EXPECT_EQ(countsOver, 1);
}

TEST_F(Targets, AnExportIsWrittenWhenNobodyReadsTheOneThatIsPrinted) {
  input = "cat";
  outIsGone = true;
  EXPECT_EQ(Run({"-", "--export", "-", "--export", table}), kRunFailed);
  EXPECT_THAT(ContentsOf(table), HasSubstr("cat"));
}

TEST_F(Targets, AnExportOnStandardOutputTakesThePlaceOfTheList) {
  input = "cat dog cat";
  EXPECT_EQ(Run({"-", "--export", "-", "--columns", "word,frequency"}), kListMade);
  EXPECT_EQ(out, ReplaceAll("word,frequency\r\ncat,2\r\ndog,1\r\n", kPlatformLineBreak, "\n"));
  const std::string list = folder / "list.txt";
  EXPECT_EQ(Run({"-", "--export", "-", "--export-format", "jsonl", "--columns", "word", "--output",
                 list, "--format", "8"}),
            kListMade);
  EXPECT_EQ(out, "{\"word\": \"cat\"}\n{\"word\": \"dog\"}\n");
  EXPECT_THAT(TextOf(list), HasSubstr("\ncat\ndog\n"));
  ExpectRefusal({"--export", "-", "--output", "-"}, kWrongCommandLine, "standard output takes one");
}

TEST_F(Targets, WhatShapesAListIsRefusedWhereAnExportTakesItsPlace) {
  input = "cat";
  const std::string why = " goes with a list, of which --export - takes the place";
  ExpectRefusal({"--export", "-", "--null"}, kWrongCommandLine, "--null" + why);
  ExpectRefusal({"--export", "-", "--format", "8"}, kWrongCommandLine, "--format" + why);
  EXPECT_EQ(Run({"-", "--export", "-", "--null", "--output", folder / "list.txt"}), kListMade);
  EXPECT_EQ(Run({"-", "--export", "-", "--order", "alphabetical"}), kListMade);
}

TEST_F(Targets, AWorkbookIsNotShownOnATerminal) {
  input = "cat";
  EXPECT_EQ(Run({"-", "--export", "-", "--export-format", "xlsx"}), kListMade);
  EXPECT_THAT(out, StartsWith("PK"));
  outIsTerminal = true;
  ExpectRefusal({"--export", "-", "--export-format", "xlsx"}, kRunFailed,
                "a workbook is nothing for a terminal");
}

TEST_F(Targets, AListMayBeSentToStandardOutputByName) {
  input = "cat";
  EXPECT_EQ(Run({"-", "--output", "-", "--format", "8"}), kListMade);
  EXPECT_EQ(out, "Word (longest has 3 characters)\ncat\n");
}

}  // namespace
}  // namespace quillomat
