// --report: a line for every file that a count has met.
#include "cli/file_report.h"

#include <gmock/gmock.h>

#include "cli/exit_status.h"
#include "cli/terminal_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kReportHead =
    "path,bytes,encoding,line-ends,lines,words,letters-not-counted,lines-not-utf8,bytes-not-"
    "decoded,skipped\r\n";

class FileReportRun : public TerminalFixture {
 protected:
  const std::string report = folder / "report.csv";
  [[nodiscard]] std::string Reported() const { return ContentsOf(report); }
};

TEST_F(FileReportRun, HasALineForEveryFileInTheirOrder) {
  const std::string b = folder.Write("texts/b, c.txt", "one\ntwo three\n");
  const std::string a = folder.Write("texts/a.txt", "caf\xE9\r\n");
  const std::string d = folder.Write("texts/d.txt", std::string_view("\0\1", 2));
  EXPECT_EQ(Run({folder / "texts", "--report", report, "--threads", "2"}), kListMade);
  EXPECT_EQ(Reported(), kReportHead + a + ",6,Windows-1252,DOS,1,1,0,1,0,\r\n\"" + b +
                            "\",14,ASCII,Unix,2,3,0,0,0,\r\n" + d + ",2,,,,,,,,not text\r\n");
}

TEST_F(FileReportRun, TellsWhyThereIsNoList) {
  const std::string path = folder.Write("a.txt", std::string_view("\0\1", 2));
  EXPECT_EQ(Run({path, "--report", report}), kRunFailed);
  EXPECT_EQ(Reported(), kReportHead + path + ",2,,,,,,,,not text\r\n");
  static_cast<void>(folder.Write("many/a.txt", "cat"));
  EXPECT_EQ(Run({folder / "many", "--only-extensions", "log", "--report", folder / "b.csv"}),
            kRunFailed);
  EXPECT_THAT(err, HasSubstr("b.csv is not written: no file was met"));
}

TEST_F(FileReportRun, IsMadeOfWhatTheWindowCounts) {
  const std::string path = folder.Write("a.txt", "one two");
  EXPECT_EQ(Run({"--file", path, "--window-text", "--report", report}), kListMade);
  EXPECT_EQ(Reported(), kReportHead + path + ",7,ASCII,none,1,2,0,0,0,\r\n");
}

TEST_F(FileReportRun, TellsTheEncodingThatEachFileWasReadIn) {
  const std::string a = folder.Write("texts/a.txt", "cat\x81\n");
  const std::string b = folder.Write("texts/b.txt", std::string_view("\xFF\xFE"
                                                                     "c\0\n\0",
                                                                     6));
  EXPECT_EQ(Run({folder / "texts", "--report", report, "--encoding", "cp1252"}), kListMade);
  EXPECT_EQ(Reported(), kReportHead + a + ",5,Windows-1252,Unix,1,1,0,0,1,\r\n" + b +
                            ",6,UTF-16,Unix,1,1,0,0,0,\r\n");
  const std::string c = folder.Write("c.txt", std::string_view("a\0\n\0i\0", 6));
  EXPECT_EQ(Run({c, "--report", folder / "c.csv", "--encoding", "utf16"}), kListMade);
  EXPECT_EQ(ContentsOf(folder / "c.csv"), kReportHead + c + ",6,UTF-16,Unix,2,2,0,0,0,\r\n");
}

TEST_F(FileReportRun, HasTheFormOfItsEnding) {
  input = "one two";
  const std::string json = folder / "report.json";
  EXPECT_EQ(Run({"-", "--report", json}), kListMade);
  EXPECT_THAT(ContentsOf(json), HasSubstr("\"bytes\": 7, \"encoding\": \"ASCII\""));
  EXPECT_EQ(Run({"-", "--report", "-"}), kWrongCommandLine);
  EXPECT_THAT(err, HasSubstr("--report -: a report goes to a file, whose name must end in one of"));
  EXPECT_EQ(Run({"-", "--report", "a.xlsx"}), kWrongCommandLine);
  EXPECT_THAT(err,
              HasSubstr("--report a.xlsx: the name must end in one of: csv, tsv, json, jsonl"));
}

TEST_F(FileReportRun, ReplacesNothingUnasked) {
  const std::string path = folder.Write("a.csv", "one two");
  static_cast<void>(folder.Write("report.csv", "mine"));
  EXPECT_EQ(Run({path, "--report", report}), kRunFailed);
  EXPECT_THAT(err, HasSubstr("exists and is left as it is (--overwrite replaces it)"));
  EXPECT_EQ(Reported(), "mine");
  EXPECT_EQ(Run({path, "--report", report, "--overwrite"}), kListMade);
  EXPECT_THAT(Reported(), StartsWith("path,"));
  EXPECT_EQ(Run({path, "--report", path, "--overwrite"}), kRunFailed);
  EXPECT_THAT(err, HasSubstr("is read by this count; it is not overwritten"));
  EXPECT_EQ(ContentsOf(path), "one two");
}

TEST_F(FileReportRun, GoesNowhereWhereSomethingElseGoes) {
  const std::string path = folder.Write("a.txt", "one two");
  EXPECT_EQ(Run({path, "--report", report, "--export", report}), kWrongCommandLine);
  EXPECT_EQ(Run({path, "--report", report, "--output", report}), kWrongCommandLine);
  EXPECT_THAT(err, HasSubstr("would replace what --output "));
  EXPECT_EQ(Run({"--text", path, "--report", report}), kWrongCommandLine);
  EXPECT_EQ(Run({folder.Path(), "--list-files", "--report", report}), kWrongCommandLine);
}

}  // namespace
}  // namespace quillomat
