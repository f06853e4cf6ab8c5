// Paths by hand: which source they select, where dialogs open, what becomes of a bare name.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "support/permissions.h"
#include "support/program_fixture.h"
#include "support/user_home.h"
#include "system/paths.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A folder in it belongs to no user.
std::string RootOfTheDisk() {
  return std::filesystem::temp_directory_path().root_path().string();
}

class MainWindowTest : public ProgramFixture {
 protected:
  UserHome home;
  TemporaryFolder documents;
};

TEST_F(MainWindowTest, TypedPathSelectsItsSource) {
  Main().txbFile[0].EnterText("/texts/a");
  EXPECT_TRUE(Main().optInFile.Value());
  Main().txbFolder.EnterText("/texts");
  EXPECT_TRUE(Main().optFolder.Value());
}

TEST_F(MainWindowTest, TypingKeepsTheFocusWhereItIs) {
  Main().Show();
  Main().SetFocus(Main().txbFile[0]);
  Main().txbFile[0].EnterText("/");
  EXPECT_EQ(Main().Focused(), &Main().txbFile[0]);
}

TEST_F(MainWindowTest, ChosenPathSelectsItsSource) {
  desktop.AnswerFile(folder.Write("a.txt", "cat\n"));
  Main().cmdFile[0].PerformClick();
  EXPECT_TRUE(Main().optInFile.Value());
  Count();
  EXPECT_THAT(Output(), HasSubstr("cat"));
  desktop.AnswerFolder(folder.Path());
  Main().cmdFolder.PerformClick();
  EXPECT_TRUE(Main().optFolder.Value());
}

TEST_F(MainWindowTest, EmptiedRowAndRestoredPathSelectNothing) {
  Main().txbFile[0].EnterText("/texts/a");
  Main().optOnClipboard.SetValue(true);
  Main().txbFile[0].EnterText("");
  EXPECT_TRUE(Main().optOnClipboard.Value());
  Main().txbFolder.SetText("/restored");
  EXPECT_TRUE(Main().optOnClipboard.Value());
}

TEST_F(MainWindowTest, DialogOpensAtItsBoxThenWhereTheLastOneEndedThenAtTheDocuments) {
  desktop.SetDocumentsFolder(documents.Path());
  const std::string used = folder.Make("used");
  const std::string other = folder.Make("other");
  desktop.AnswerFile(used + "/list.txt");
  Main().cmdFile[1].PerformClick();
  desktop.AnswerFile(std::nullopt);
  Main().cmdFile[0].PerformClick();
  desktop.AnswerFolder(std::nullopt);
  Main().cmdFolder.PerformClick();
  Main().txbFile[1].SetText(other + "/list.txt");
  desktop.AnswerFile(std::nullopt);
  Main().cmdFile[1].PerformClick();
  ASSERT_EQ(desktop.FileDialogs().size(), 3U);
  EXPECT_EQ(desktop.FileDialogs()[0].folder, documents.Path());
  EXPECT_EQ(desktop.FileDialogs()[1].folder, used);
  EXPECT_THAT(desktop.BrowsesAt(), ElementsAre(used));
  EXPECT_EQ(desktop.FileDialogs()[2].folder, other);
}

TEST_F(MainWindowTest, OutputFileIsLookedForBesideTheCountedFolder) {
  desktop.SetDocumentsFolder(documents.Path());
  const std::string books = folder.Make("books");
  desktop.AnswerFolder(books);
  Main().cmdFolder.PerformClick();
  desktop.AnswerFile(std::nullopt);
  Main().cmdFile[1].PerformClick();
  EXPECT_EQ(desktop.FileDialogs().back().folder, folder.Path());
  Main().SetFocus(Main().txbFile[1]);
  Main().txbFile[1].EnterText("list.txt");
  Main().SetFocus(Main().txbFolder);
  EXPECT_EQ(Main().txbFile[1].Text(), folder / "list.txt");
  Main().txbFolder.EnterText(folder.Make("books/sub") + "/");
  Main().SetFocus(Main().txbFile[0]);
  EXPECT_EQ(program.Paths().LastFolder(), books) << "with a separator at its end, too";
  Main().SetFocus(Main().txbFolder);
  Main().txbFolder.EnterText(RootOfTheDisk());
  Main().SetFocus(Main().txbFile[0]);
  EXPECT_EQ(program.Paths().LastFolder(), books) << "nothing is kept in the root";
}

TEST_F(MainWindowTest, StateIsLoadedFromWhereItWasSaved) {
  desktop.SetDocumentsFolder(documents.Path());
  desktop.AnswerFile(folder / "my.qlm");
  Panel().cmdSaveLoadState[0].PerformClick();
  Panel().txbStateFile.SetText("");
  desktop.AnswerFile(std::nullopt);
  Panel().cmdSaveLoadState[1].PerformClick();
  ASSERT_EQ(desktop.FileDialogs().size(), 2U);
  EXPECT_EQ(desktop.FileDialogs()[1].folder, folder.Path());
}

TEST_F(MainWindowTest, BareNameBecomesAPathInTheFolderUsedLast) {
  desktop.SetDocumentsFolder(documents.Path());
  Main().SetFocus(Main().txbFile[1]);
  Main().txbFile[1].EnterText(" list.txt ");
  Main().SetFocus(Main().txbFile[0]);
  EXPECT_EQ(Main().txbFile[1].Text(), documents / "list.txt");
  static_cast<void>(folder.Write("a.txt", "cat\n"));
  program.Sources().ChooseText(folder / "a.txt");
  Main().SetFocus(Main().txbFile[1]);
  Main().txbFile[1].EnterText("other.txt");
  Main().cmdCountWords.PerformClick();
  EXPECT_EQ(Main().txbFile[1].Text(), folder / "other.txt");
  EXPECT_TRUE(std::ifstream(folder / "other.txt").good());
}

TEST_F(MainWindowTest, BlanksRoundAWholePathAreDroppedToo) {
  desktop.SetDocumentsFolder(documents.Path());
  const std::string words = folder.Write("w.txt", "cat\r\n");
  TextBox& txbWordsFile = Panel().txbWordsFile[0];
  Panel().SetFocus(txbWordsFile);
  txbWordsFile.EnterText(" " + words + " ");
  Panel().SetFocus(Panel().cmdClose);
  EXPECT_EQ(txbWordsFile.Text(), words);
  EXPECT_THAT(desktop.Titles(), ElementsAre("Words loaded"));
  Main().SetFocus(Main().txbFolder);
  Main().txbFolder.EnterText(" " + folder.Path());
  Main().SetFocus(Main().txbFile[0]);
  EXPECT_EQ(Main().txbFolder.Text(), folder.Path());
  EXPECT_THAT(desktop.Titles(), ElementsAre("Words loaded"));
}

TEST_F(MainWindowTest, WhereNobodyIsAskedForPathsABareNameStays) {
  Main().SetFocus(Main().txbFile[1]);
  Main().txbFile[1].EnterText("list.txt");
  Main().SetFocus(Main().txbFile[0]);
  EXPECT_EQ(Main().txbFile[1].Text(), "list.txt");
}

TEST_F(MainWindowTest, BareNameForAnotherFileStandsBesideTheFirst) {
  desktop.SetDocumentsFolder(documents.Path());
  Main().txbFile[1].SetText(folder.Write("list.txt", "old"));
  desktop.AnswerText("new.txt");
  CountClipboard("cat");
  EXPECT_EQ(Main().txbFile[1].Text(), PathForWalk(folder / "new.txt"));
}

TEST_F(MainWindowTest, ClickThatMendsABadFolderIsCarriedOutWithoutAQuestion) {
  Main().SetFocus(Main().txbFolder);
  Main().txbFolder.EnterText(folder / "none");
  Main().cmdClearFolder.PerformClick();
  EXPECT_EQ(Main().txbFolder.Text(), "");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(MainWindowTest, ClickElsewhereIsCarriedOutBeforeTheQuestion) {
  Main().SetFocus(Main().txbFolder);
  Main().txbFolder.EnterText(folder / "none");
  desktop.AtMessage("Error", [this] { EXPECT_TRUE(Main().chkIncludeSubfolders.IsChecked()); });
  Main().chkIncludeSubfolders.PerformClick();
  EXPECT_EQ(OnlyMessage().text, "Folder does not exist.");
}

TEST_F(MainWindowTest, ClickThatLeavesABadExtensionIsCarriedOutBeforeTheMessage) {
  Main().SetFocus(Main().txbFileExtensions[0]);
  Main().txbFileExtensions[0].EnterText("t*xt");
  desktop.AtMessage("Invalid input",
                    [this] { EXPECT_TRUE(Main().chkIncludeSubfolders.IsChecked()); });
  Main().chkIncludeSubfolders.PerformClick();
  EXPECT_THAT(OnlyMessage().text, HasSubstr("'t*xt'"));
}

TEST_F(MainWindowTest, CountWithABadExtensionSaysSoOnceAndCountsNothing) {
  static_cast<void>(folder.Write("a.txt", "cat\n"));
  program.Sources().ChooseText(folder.Path());
  Main().SetFocus(Main().txbFileExtensions[0]);
  Main().txbFileExtensions[0].EnterText("doc");
  desktop.AtMessage("No doc files", [this] { EXPECT_FALSE(program.Words().completeRun); });
  Count();
  EXPECT_THAT(desktop.Titles(), ElementsAre("No doc files", "No files found"));
}

TEST_F(MainWindowTest, WhoQuitsFromABadBoxIsToldNothingMore) {
  Main().SetFocus(Main().txbFolder);
  Main().txbFolder.EnterText(folder / "none");
  Panel().chkSaveStateOnQuit.SetChecked(false);
  Main().cmdQuit.PerformClick();
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(MainWindowTest, CountOfABadFolderSaysSoOnce) {
  Main().SetFocus(Main().txbFolder);
  Main().txbFolder.EnterText(folder / "none");
  Count();
  EXPECT_EQ(OnlyMessage().text, "Folder does not exist");
}

TEST_F(MainWindowTest, DroppedFileIsChosenAndAnythingElseIsAnswered) {
  const std::string path = folder.Write("a.txt", "cat\n");
  program.Sources().TakeDrop({path});
  EXPECT_EQ(Main().txbFile[0].Text(), path);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  program.Sources().TakeDrop({path, folder.Path()});
  EXPECT_THAT(OnlyMessage().text, HasSubstr("one file or one folder"));
  desktop.ForgetQuestions();
  program.Sources().TakeDrop({});
  EXPECT_THAT(OnlyMessage().text, HasSubstr("Only a file or a folder"));
  EXPECT_EQ(Main().txbFile[0].Text(), path);
}

TEST_F(MainWindowTest, FormatsThatTheSourceCannotServeHaveAReasonAgainstThem) {
  const ComboBox& formats = Main().cboDisplayFormat;
  for (int i = 0; i < 14; ++i) EXPECT_EQ(formats.ReasonAgainst(i) != "", i >= 11) << i;
  TypeWords(WordListKind::kCountOnly, "cat");
  EXPECT_EQ(formats.ReasonAgainst(12), "");
  Main().optInFile.SetValue(true);
  EXPECT_THAT(formats.ReasonAgainst(12), HasSubstr("folder"));
  Main().cboDisplayFormat.SetListIndex(12);
  EXPECT_EQ(OnlyMessage().title, "Invalid display format") << "from code it is refused in words";
  EXPECT_EQ(formats.ListIndex(), 0);
}

TEST_F(MainWindowTest, WhatStandsBelowTheTextIsFoundInTheList) {
  EXPECT_EQ(program.FoundBelowText("cat"), "");
  std::string words;
  for (int i = 0; i < 12'000; ++i) {
    std::string word = "wo";
    for (int rest = i, k = 0; k < 4; ++k, rest /= 26) word += static_cast<char>('a' + rest % 26);
    words += word + "\n";
  }
  words += "zebra zebracrossing z\u00FCge";  // the last ones, as all occur once
  CountFile(folder.Write("many.txt", words));
  ASSERT_TRUE(program.Output().Part().IsCut());
  const std::string below = ", frequency 1, below the end of this text";
  EXPECT_EQ(program.FoundBelowText("Zebra"), "rank 12,001" + below);
  EXPECT_EQ(program.FoundBelowText("bracro"), "zebracrossing: rank 12,002" + below);
  EXPECT_EQ(program.FoundBelowText("Z\u00DCGE"), "rank 12,003" + below);
  EXPECT_EQ(program.FoundBelowText("zebras"), "");
  EXPECT_EQ(program.FoundBelowText("woaaaa"), "") << "it stands in the text";
  Main().cmdClearOutput.PerformClick();
  EXPECT_EQ(program.FoundBelowText("zebra"), "");
  CountClipboard("cat dog");
  EXPECT_EQ(program.FoundBelowText("zebra"), "");
}

TEST_F(MainWindowTest, DeniedFileIsNamedAndNoNoticeOfWorkStays) {
  const std::string path = folder.Write("list.txt", "precious");
  std::filesystem::permissions(path, std::filesystem::perms(0444));
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
  Panel().chkWarnOnOverwrite.SetChecked(false);
  Main().txbFile[1].SetText(path);
  EXPECT_EQ(AsOrdinaryUser([&] {
              CountClipboard("cat dog");
              EXPECT_EQ(OnlyMessage().text, "Error 70: Permission denied\r\n" + path);
              EXPECT_THAT(Output(), Not(HasSubstr("Processing")));
              return HasFailure() ? 1 : 0;
            }),
            0);
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0755));
}

TEST_F(MainWindowTest, NoNoticeOfWorkStaysWhenTheListIsMadeAgain) {
  CountClipboard("cat dog");
  Main().txbOutput.SetText("");
  const std::string path = folder / "none/list.txt";
  Main().txbFile[1].SetText(path);
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_EQ(OnlyMessage().text, "Error 76: Path not found\r\n" + path);
  EXPECT_EQ(Output(), "");
}

}  // namespace
}  // namespace quillomat
