// A count that is refused before anything is read: the text is emptied, as by every count, and the
// words that stand, and what is known of them, stay as they were.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"
#include "app/exports/result_export.h"
#include "export/cell_text.h"

namespace quillomat {
namespace {

using ::testing::HasSubstr;

class RefusedRun : public CountFixture {
 protected:
  void CountAndBeRefused() {
    desktop.ForgetQuestions();
    CountFile(folder / "missing.txt");
    EXPECT_EQ(OnlyMessage().text, "Input file does not exist.");
  }

  [[nodiscard]] std::string TotalsOfExport() {
    const ExportWish wish{.columns = {WordColumn::kWord}};
    const ResultExport result(Words(), wish);
    std::string totals;
    for (const ExportFact& fact : result.Table().totals) {
      totals += fact.name + "=" + quillomat::TextOf(fact) + " ";
    }
    return totals;
  }
};

TEST_F(RefusedRun, LeavesTheSharesOfTheWordsThatStand) {
  CountClipboard("cat dog cat");
  CountAndBeRefused();
  EXPECT_EQ(StoredWords(), "cat*2 dog");
  EXPECT_EQ(Words().WordsRead, 3);
  EXPECT_THAT(TotalsOfExport(), HasSubstr("instances-of-all-words=3 "));
}

TEST_F(RefusedRun, LeavesWhatTheListWentBy) {
  CountClipboard("cat dog cat");
  desktop.Answer("Quillomat", MessageAnswer::kYes);
  Panel().chkDropFinalS.SetChecked(!Panel().chkDropFinalS.IsChecked());
  TypeWords(WordListKind::kCountOnly, "cat");
  CountAndBeRefused();
  EXPECT_FALSE(program.Settings().settings.CountOnlyMode);
  const CountBasis now = CountBasisOf(Main(), Panel(), program.Settings());
  EXPECT_FALSE(CountAlike(program.Count().Basis(), now, Words().counted.source));
  EXPECT_EQ(program.Count().Basis().countOnlyWords, 0);
}

TEST_F(RefusedRun, LeavesTheRowsOfAnInterruptedListToBeExported) {
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  StopAtYield(2);
  CountClipboard("one two three four five");
  ASSERT_TRUE(Words().CanBeListed());
  CountAndBeRefused();
  EXPECT_FALSE(Words().CanBeListed()) << "the text box has lost it";
  EXPECT_FALSE(StoredWords().empty());
  Main().cmdExport.PerformClick();
  EXPECT_TRUE(program.frmExport.Visible());
}

TEST_F(RefusedRun, LeavesWhatIsToldOfAnInterruptedListWhereItIsShown) {
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  StopAtYield(2);
  CountClipboard("one two three four five");
  program.Notices().SetTextShown(false);  // but the table
  const std::string notice = Main().lblNotice.Caption();
  ASSERT_TRUE(Main().lblNotice.Visible());
  Main().optInFile.SetValue(true);
  CountAndBeRefused();
  Main().txbFile[0].SetText("");  // which names no other text
  EXPECT_TRUE(Main().lblNotice.Visible());
  EXPECT_EQ(Main().lblNotice.Caption(), notice);
  EXPECT_EQ(Output(), "");
}

TEST_F(RefusedRun, LeavesAnEmptyTextWhenTheUserCancels) {
  for (int i = 0; i < 12; ++i) {
    (void)folder.Write("texts/" + std::to_string(i) + ".txt", "cat");
  }
  WatchOutput();
  desktop.Answer("Multiple files/folders", MessageAnswer::kCancel);
  CountFolder(folder / "texts");
  EXPECT_TRUE(WasShown("Counting files . . . 10"));
  EXPECT_EQ(Output(), "");
  EXPECT_TRUE(Main().lblCopyrightNotice.Visible());
}

TEST_F(RefusedRun, FiguresOfFilesAreThoseOfTheListThatStands) {
  (void)folder.Write("texts/a.txt", "cat");
  (void)folder.Write("texts/b.txt", "dog");
  CountFolderWithoutOutputFile(folder / "texts");
  EXPECT_THAT(TotalsOfExport(), HasSubstr(" files=2 folders=1 "));
  CountFile(folder / "texts/a.txt");
  EXPECT_THAT(TotalsOfExport(), HasSubstr(" files=1 folders=0 "));
  CountClipboard("cat");
  EXPECT_THAT(TotalsOfExport(), testing::Not(HasSubstr("files=")));
}

}  // namespace
}  // namespace quillomat
