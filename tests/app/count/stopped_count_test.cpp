// A count that was stopped: nothing that shows or keeps its words may make them look like those of
// the whole text.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/count/count_fixture.h"
#include "app/exports/result_export.h"
#include "app/table/file_rows.h"
#include "app/table/result_statistics.h"
#include "export/cell_text.h"

namespace quillomat {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class StoppedCount : public CountFixture {
 protected:
  StoppedCount() {
    DoNotWarn();
    program.WantFileReports(true);
  }

  void PutFiles() {
    for (const char* name : {"a", "b", "c", "d"}) {
      static_cast<void>(folder.Write(std::string("texts/") + name + ".txt", "cat dog emu fox\r\n"));
    }
  }
  /// Of four files of four words in the second one.
  void StopInTheSecondFile() {
    PutFiles();
    desktop.Answer("Counting interrupted", MessageAnswer::kYes);
    Main().txbFile[1].SetText(folder / "list.txt");
    const std::string path = folder / "texts";
    Main().lblNumOccurrences.Changed.Connect([this] {
      const auto& progress = Main().lblNumOccurrences.ShownProgress();
      if (progress && progress->file == 2 && stops_-- > 0) Count();
    });
    CountFolder(path);
  }
  [[nodiscard]] std::string Facts() {
    std::string facts;
    const ResultExport result(Words(), ExportWish{.columns = {WordColumn::kWord}});
    for (const ExportFact& fact : result.Table().totals) {
      facts += fact.name + "=" + quillomat::TextOf(fact) + " ";
    }
    return facts;
  }
  [[nodiscard]] std::vector<std::string> Commands() {
    std::vector<std::string> captions;
    for (const CommandButton& command : Main().cmdNotice) {
      if (command.Visible()) captions.push_back(command.Caption());
    }
    return captions;
  }

  ResultStatistics statistics{program.Words(), program.Text()};
  FileRows files{program.Words(), program.Text()};

 private:
  int stops_ = 1;
};

TEST_F(StoppedCount, SaysSoAboveTheListAndOffersANewCount) {
  StopInTheSecondFile();
  EXPECT_EQ(Main().lblNotice.Caption(), "Stopped at file 2 of 4: this list is not complete.");
  EXPECT_THAT(Commands(), testing::ElementsAre("Count again"));
  Main().txbFolder.SetText(folder.Path());
  EXPECT_THAT(Main().lblNotice.Caption(), StartsWith("Stopped at file 2 of 4"));
  EXPECT_THAT(Commands(), testing::IsEmpty()) << "it would be of another text";
  Main().txbFolder.SetText(folder / "texts");
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(StoredWords(), "cat*4 dog*4 emu*4 fox*4");
  EXPECT_FALSE(Main().lblNotice.Visible());
}

TEST_F(StoppedCount, NoticeOfItThatWasClosedStaysAwayWhenAnotherTextIsNamed) {
  StopInTheSecondFile();
  Main().cmdDismissNotice.PerformClick();
  EXPECT_FALSE(Main().lblNotice.Visible());
  Main().txbFolder.SetText(folder.Path());
  EXPECT_THAT(Main().lblNotice.Caption(), StartsWith("This list is of"));
  Count();
  EXPECT_FALSE(Main().lblNotice.Visible());
}

TEST_F(StoppedCount, IsNotExportedAsAWholeOne) {
  StopInTheSecondFile();
  EXPECT_THAT(Facts(), AllOf(StartsWith("complete=false "), HasSubstr("files-begun=2 "),
                             HasSubstr("files-in-all=4 "), HasSubstr("files=2 ")))
      << "as many files as the list says";
  CountFile(folder / "texts/a.txt");
  EXPECT_THAT(Facts(), AllOf(StartsWith("complete=true "), Not(HasSubstr("files-in-all"))));
}

TEST_F(StoppedCount, HasFiguresAndFilesThatSaySo) {
  StopInTheSecondFile();
  using Row = ResultStatistics::Row;
  EXPECT_EQ(statistics.Rows({}).front(),
            (Row{"Of a part of the text", "Stopped at file 2 of 4", false}));
  EXPECT_EQ(files.StoppedText({}), "Stopped at file 2 of 4");
  CountFile(folder / "texts/a.txt");
  EXPECT_EQ(statistics.Rows({}).front().name, "Instances of words");
  EXPECT_EQ(files.StoppedText({}), "");
}

TEST_F(StoppedCount, OfTheClipboardDoesNotKnowHowFarItCame) {
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  StopAtYield(2);
  CountClipboard("one two three four");
  EXPECT_EQ(Main().lblNotice.Caption(),
            "Stopped before the end of the text: this list is not complete.");
  EXPECT_THAT(Facts(), StartsWith("complete=false words=2 "));
}

TEST_F(StoppedCount, TellsItInTheLanguageOfTheProgram) {
  StopInTheSecondFile();
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Main().lblNotice.Caption(),
            "Bei Datei 2 von 4 angehalten: Diese Liste ist nicht vollst\u00E4ndig.");
}

TEST_F(StoppedCount, LessThanTheWholeIsAlsoWhatSkipsAFile) {
  static_cast<void>(folder.Write("texts/a.txt", "cat"));
  const std::string gone = folder.Write("texts/b.txt", "dog");
  Main().txbFile[1].SetText(folder / "list.txt");
  Main().lblNumOccurrences.Changed.Connect([&] {
    const auto& progress = Main().lblNumOccurrences.ShownProgress();
    if (progress && progress->file == 1) std::filesystem::remove(gone);
  });
  CountFolder(folder / "texts");
  EXPECT_THAT(Facts(), StartsWith("complete=false skipped=1 "));
  EXPECT_EQ(statistics.Rows({}).front().value, "One file was skipped.");
}

}  // namespace
}  // namespace quillomat
