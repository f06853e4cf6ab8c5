// The files of a count as the window shows them, without a screen.
#include "app/table/file_rows.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <vector>

#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileRowsTest : public ProgramFixture {
 protected:
  FileRowsTest() {
    program.WantFileReports(true);
    rows_.Changed.Connect([this] { ++changes_; });
  }

  [[nodiscard]] std::vector<std::string> Column(FileColumn column) const {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < rows_.Size(); ++row) {
      texts.push_back(rows_.TextAt(row, column, {.group = ".", .decimal = ","}));
    }
    return texts;
  }
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const std::string& path : Column(FileColumn::kPath)) {
      names.push_back(FileNamePartOf(path));
    }
    return names;
  }
  /// One with line feeds, one with both kinds of line ends, one that is no text.
  void CountThree() {
    std::string lines;
    for (int i = 0; i < 1200; ++i) lines += "a line\n";
    static_cast<void>(folder.Write("texts/a.txt", lines));
    static_cast<void>(folder.Write("texts/b.txt", "cat\r\ndog\n"));
    static_cast<void>(folder.Write("texts/c.txt", std::string_view("\0\1", 2)));
    desktop.Answer(MessageAnswer::kOk);
    desktop.AnswerFile(std::nullopt);
    CountFolder(folder / "texts");
  }

  FileRows rows_{program.Words(), program.Text()};
  int changes_ = 0;
};

TEST_F(FileRowsTest, ComeWithACountInItsOrderAndGoWithIt) {
  EXPECT_THAT(Names(), IsEmpty());
  CountThree();
  EXPECT_EQ(changes_, 1);
  EXPECT_THAT(Names(), ElementsAre("a.txt", "b.txt", "c.txt"));
  EXPECT_THAT(Column(FileColumn::kLines), ElementsAre("1.200", "2", ""));
  EXPECT_THAT(Column(FileColumn::kLineEnds), ElementsAre("Unix", "mixed", ""));
  EXPECT_THAT(Column(FileColumn::kSkipped), ElementsAre("", "", "not text"));
  program.Initialize();
  EXPECT_EQ(rows_.Size(), 0U);
}

TEST_F(FileRowsTest, AreThoseOfTheTextThatWasCountedLast) {
  CountThree();
  CountFile(folder.Write("one.txt", "one two"));
  EXPECT_THAT(Names(), ElementsAre("one.txt"));
  EXPECT_THAT(Column(FileColumn::kWords), ElementsAre("2"));
  CountClipboard("three");
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(FileRowsTest, StayWhenAFileOfWordsIsRead) {
  CountThree();
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "cat\r\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_THAT(Names(), ElementsAre("a.txt", "b.txt", "c.txt"));
  EXPECT_THAT(Column(FileColumn::kLines), ElementsAre("1.200", "2", ""));
  Main().txbFile[0].SetText(folder.Write("one.txt", "one two"));
  Main().optInFile.SetValue(true);
  Count();
  EXPECT_THAT(Names(), ElementsAre("one.txt"));
}

TEST_F(FileRowsTest, StandInTheOrderOfAColumnAlsoAfterTheNextCount) {
  CountThree();
  rows_.SetOrder(FileRows::Order{FileColumn::kBytes, false});
  EXPECT_THAT(Names(), ElementsAre("c.txt", "b.txt", "a.txt"));
  rows_.SetOrder(FileRows::Order{FileColumn::kSkipped, true});
  EXPECT_THAT(Names(), ElementsAre("c.txt", "a.txt", "b.txt")) << "the rest as it was counted";
  CountThree();
  EXPECT_THAT(Names(), ElementsAre("c.txt", "a.txt", "b.txt"));
  rows_.SetOrder({});
  EXPECT_THAT(Names(), ElementsAre("a.txt", "b.txt", "c.txt"));
}

TEST_F(FileRowsTest, StandInTheOrderOfWhatIsShownInAnyLanguage) {
  static_cast<void>(folder.Write("texts/dos.txt", "cat\r\n"));
  static_cast<void>(folder.Write("texts/empty.txt", ""));
  static_cast<void>(folder.Write("texts/mixed.txt", "cat\r\ndog\n"));
  static_cast<void>(folder.Write("texts/no.txt", std::string_view("\0\1", 2)));
  desktop.Answer(MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  CountFolder(folder / "texts");
  const auto shownOf = [this](FileColumn column) {
    std::vector<std::string> shown = Column(column);
    std::erase(shown, "");
    return shown;
  };
  rows_.SetOrder(FileRows::Order{FileColumn::kSkipped, false});
  EXPECT_THAT(shownOf(FileColumn::kSkipped), ElementsAre("empty", "not text"));
  Main().cmdLanguage.PerformClick();
  rows_.ShowLanguage();
  EXPECT_THAT(shownOf(FileColumn::kSkipped), ElementsAre("kein Text", "leer"));
  rows_.SetOrder(FileRows::Order{FileColumn::kLineEnds, true});
  EXPECT_THAT(shownOf(FileColumn::kLineEnds), ElementsAre("gemischt", "DOS"));
}

TEST_F(FileRowsTest, TellWhetherAndWhereOneWasNotRead) {
  CountFile(folder.Write("one.txt", "one two"));
  EXPECT_FALSE(rows_.AnyNotRead());
  EXPECT_EQ(rows_.FirstNotRead(true), std::nullopt);
  CountThree();
  EXPECT_TRUE(rows_.AnyNotRead());
  EXPECT_EQ(rows_.FirstNotRead(true), 2U);
  EXPECT_EQ(rows_.FirstNotRead(false), std::nullopt) << "what is no text is no fault";
}

TEST_F(FileRowsTest, SpeakTheLanguageOfTheProgram) {
  CountThree();
  Main().cmdLanguage.PerformClick();
  EXPECT_THAT(Column(FileColumn::kLineEnds), ElementsAre("Unix", "gemischt", ""));
  EXPECT_THAT(Column(FileColumn::kSkipped), ElementsAre("", "", "kein Text"));
}

}  // namespace
}  // namespace quillomat
