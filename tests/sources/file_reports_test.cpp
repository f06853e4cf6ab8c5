// The reports of a count by file: what is known of each, with any number of threads.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "sources/counter_fixture.h"
#include "sources/file_columns.h"
#include "support/chunked_source.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

class FileReports : public CounterFixture {
 protected:
  FileReports() { request.keepReports = true; }

  /// All columns behind the path, with blanks between them and "-" for what is not known.
  [[nodiscard]] static std::string RowOf(const FileReport& report) {
    std::string row = FileNamePartOf(report.path);
    for (std::size_t i = 1; i < kFileColumnNames.size(); ++i) {
      const FileCell cell = CellOf(report, static_cast<FileColumn>(i));
      row += ' ';
      if (const auto* number = std::get_if<std::int64_t>(&cell)) {
        row += std::to_string(*number);
      } else {
        const auto* text = std::get_if<std::string>(&cell);
        row += text != nullptr ? *text : "-";
      }
    }
    return row;
  }
  std::vector<std::string> RowsOf(CountSource source) {
    std::vector<std::string> rows;
    for (const FileReport& report : Run(std::move(source)).reports) rows.push_back(RowOf(report));
    return rows;
  }
  void Put(const std::string& name, std::string_view contents) {
    static_cast<void>(folder.Write(name, contents));
  }
};

TEST_F(FileReports, NameFilesWhoseExtensionsAreNeverText) {
  Put("a.txt", "cat");
  Put("b.pdf", "cat");
  Put("sub/c.exe", "cat");
  Put("sub/d.log", "cat");
  for (const std::size_t threads : {1U, 3U}) {
    request.threads = threads;
    EXPECT_THAT(RowsOf(TextOfFolder{folder.Path(), true, {{}, {"log"}}}),
                ElementsAre("a.txt 3 ASCII none 1 1 0 0 0 -",
                            "b.pdf 3 - - - - - - - never text by its extension",
                            "c.exe 3 - - - - - - - never text by its extension"));
    EXPECT_THAT(RowsOf(TextOfFolder{folder.Path(), true, {{"txt"}, {}}}),
                ElementsAre("a.txt 3 ASCII none 1 1 0 0 0 -"))
        << "the others are not asked for";
  }
  EXPECT_THAT(RowsOf(TextOfPaths{{folder / "b.pdf"}, false, {}, nullptr}),
              ElementsAre("b.pdf 3 ASCII none 1 1 0 0 0 -"))
      << "it was named";
}

TEST_F(FileReports, TellOfEachFileHowItWasRead) {
  Put("a.txt", "The cat\nsat\n");
  Put("b.txt", "café\r\nłódź\r\n");
  Put("c.txt", "\xE9t\xE9\nor\r\n");
  Put("d.txt", std::string_view("\0\1\2", 3));
  Put("e.txt", "");
  Put("f.txt", std::string_view("\xFF\xFE"
                                "a\0b\0\r\0",
                                8));
  EXPECT_THAT(
      RowsOf(TextOfFolder{folder.Path(), false, {}}),
      ElementsAre("a.txt 12 ASCII Unix 2 3 0 0 0 -", "b.txt 16 UTF-8 DOS 2 2 2 0 0 -",
                  "c.txt 8 UTF-8, Windows-1252 mixed 2 2 0 1 0 -", "d.txt 3 - - - - - - - not text",
                  "e.txt 0 - - - - - - - empty", "f.txt 8 UTF-16 Macintosh 1 1 0 0 0 -"));
}

TEST_F(FileReports, TellOfFilesThatAreNotThereAndOfStreams) {
  ChunkedSource input("one\ntwo", 2);
  EXPECT_THAT(RowsOf(TextOfPaths{{folder / "gone.txt", "-"}, false, {}, &input}),
              ElementsAre(testing::StartsWith("gone.txt - - - - - - - - not found"),
                          "- 7 ASCII Unix 2 2 0 0 0 -"));
}

TEST_F(FileReports, OfASingleFileAreThereToo) {
  const std::string path = folder.Write("a.txt", "cat\rdog\r");
  EXPECT_THAT(RowsOf(TextOfFile{path}), ElementsAre("a.txt 8 ASCII Macintosh 2 2 0 0 0 -"));
  request.keepReports = false;
  EXPECT_FALSE(Run().reports.at(0).lines.has_value()) << "nobody asked for its lines";
}

TEST_F(FileReports, AreTheSameWithAnyNumberOfThreads) {
  for (int i = 0; i < 300; ++i) {
    const std::string number = std::to_string(1000 + i);
    std::string text;
    for (int line = 0; line <= i % 40; ++line) {
      text += "line of words café сло " + std::to_string(line);
      if (line % 7 == 3) text += "\xE9";
      text += i % 3 == 0 ? "\r\n" : "\n";
    }
    if (i % 11 == 5) text = std::string("\0\1", 2);
    if (i % 13 == 5) text.clear();
    if (i % 17 == 5) text += "/* open";
    Put("f" + number + (i % 17 == 5 ? ".c" : ".txt"), text);
  }
  std::string large;
  while (large.size() < 3'000'000) large += "a large file of many lines, with \xE9 in some\n";
  Put("f1150-large.txt", large);
  const TextOfFolder whole{folder.Path(), false, {}};
  const std::vector<std::string> alone = RowsOf(whole);
  EXPECT_EQ(alone.size(), 301U);
  for (const std::size_t threads : {2U, 3U, 8U}) {
    request.threads = threads;
    EXPECT_EQ(RowsOf(whole), alone) << threads << " threads";
  }
}

TEST_F(FileReports, WordsOfTheFilesAreThoseOfTheCount) {
  Put("a.txt", "the cat the dog");
  Put("b.txt", "the fox");
  request.lists.ExtraIgnoreList = WordList({"the"});
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  ASSERT_EQ(result.reports.size(), 2U);
  EXPECT_EQ(result.reports[0].wordsRead, 4);
  EXPECT_EQ(result.reports[1].wordsRead, 2);
  EXPECT_EQ(result.wordsRead, 6);
}

}  // namespace
}  // namespace quillomat
