// What the boxes say is what counts: lists that are edited by hand, emptied, lost or refused, and
// what is left of a count when they change.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <thread>

#include "app/count/count_fixture.h"
#include "base/text_helpers.h"
#include "support/permissions.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BoxesInForce : public CountFixture {
 protected:
  BoxesInForce() { ListWordsOnly(); }

  [[nodiscard]] TextBox& WordsFileBox(WordListKind kind) {
    return Panel().txbWordsFile[static_cast<std::size_t>(kind)];
  }
  void TypeWordsFile(WordListKind kind, const std::string& path) {
    WordsFileBox(kind).SetText(path);
  }
  void LeaveWordsFile(WordListKind kind) { WordsFileBox(kind).LostFocus.Fire(); }
  [[nodiscard]] const std::vector<std::string>& IgnoredOfFile() {
    return program.Settings().lists.IgnoreList.Words();
  }
};

TEST_F(BoxesInForce, LeavingTheBoxTakesTheWordsFileThatWasTyped) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "dog\r\ncat\r\n"));
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_THAT(desktop.Titles(), ElementsAre("Words loaded"));
  EXPECT_THAT(IgnoredOfFile(), ElementsAre("cat", "dog"));
}

TEST_F(BoxesInForce, LeavingTheBoxWithTheFileInForceReadsNothing) {
  CountClipboard("dog");
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "cat\r\n"));
  LeaveWordsFile(WordListKind::kIgnore);
  CountClipboard("dog");
  desktop.ForgetQuestions();
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(BoxesInForce, CountReadsAWordsFileAgainThatWasEditedSince) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "cat\r\n"));
  CountClipboard("bird cat dog");
  EXPECT_EQ(StoredWords(), "bird dog");
  static_cast<void>(folder.Write("a.txt", "dog\r\n"));
  CountClipboard("bird cat dog");
  EXPECT_EQ(StoredWords(), "bird cat");
  EXPECT_EQ(Main().lblNotice.Caption(), "The list of words has changed and was read again: a.txt.");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  static_cast<void>(folder.Write("a.txt", ""));
  CountClipboard("bird cat dog");
  EXPECT_EQ(StoredWords(), "bird cat dog");
  EXPECT_THAT(desktop.Titles(), ElementsAre("Warning")) << "a file of zero length";
}

TEST_F(BoxesInForce, NothingIsSaidOfAWordsFileOfTheSameWords) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "cat\r\n"));
  CountClipboard("cat dog");
  static_cast<void>(folder.Write("a.txt", "cat // not the dog\r\n"));
  CountClipboard("cat dog");
  EXPECT_EQ(StoredWords(), "dog");
  EXPECT_EQ(Main().lblNotice.Caption(), "A list of one word to ignore is in use.");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(BoxesInForce, CountTellsOfAWordsFileThatHasGoneSince) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "cat\r\n"));
  CountClipboard("cat dog");
  std::filesystem::remove(folder / "a.txt");
  CountClipboard("cat dog");
  EXPECT_THAT(desktop.Titles(), ElementsAre("File not found"));
  EXPECT_EQ(WordsFileBox(WordListKind::kIgnore).Text(), folder / "a.txt");
}

TEST_F(BoxesInForce, ClickThatMendsALostWordsFileIsCarriedOutWithoutAWord) {
  for (const WordListKind kind : {WordListKind::kIgnore, WordListKind::kCountOnly}) {
    Panel().SetFocus(WordsFileBox(kind));
    TypeWordsFile(kind, folder / "lost.txt");
    Panel().cmdClearWordsFile[static_cast<std::size_t>(kind)].PerformClick();
    EXPECT_EQ(WordsFileBox(kind).Text(), "");
    EXPECT_THAT(desktop.Titles(), IsEmpty());
  }
}

TEST_F(BoxesInForce, ClickElsewhereIsCarriedOutBeforeALostWordsFileIsTold) {
  Panel().SetFocus(WordsFileBox(WordListKind::kIgnore));
  TypeWordsFile(WordListKind::kIgnore, folder / "lost.txt");
  desktop.AtMessage("File not found",
                    [this] { EXPECT_TRUE(Panel().chkOutputWithCommas.IsChecked()); });
  Panel().chkOutputWithCommas.PerformClick();
  EXPECT_THAT(desktop.Titles(), ElementsAre("File not found"));
}

TEST_F(BoxesInForce, ClickThatLeavesTooManyTypedWordsIsCarriedOutBeforeTheMessage) {
  TextBox& typed = Panel().txbWordsToIgnoreOrCount[0];
  std::string words;
  for (int i = 0; i < 1001; ++i) words += "w" + std::to_string(i) + " ";
  Panel().SetFocus(typed);
  typed.EnterText(words);
  Panel().cmdClearWordsToIgnoreOrCount[0].PerformClick();
  EXPECT_EQ(typed.Text(), "");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  Panel().SetFocus(typed);
  typed.EnterText(words);
  desktop.AtMessage("Invalid input",
                    [this] { EXPECT_TRUE(Panel().chkOutputWithCommas.IsChecked()); });
  Panel().chkOutputWithCommas.PerformClick();
  EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid input"));
}

TEST_F(BoxesInForce, StateKeepsTheNameOfAWordsFileThatIsAwayOnceThatIsTold) {
  Panel().SetFocus(WordsFileBox(WordListKind::kIgnore));
  TypeWordsFile(WordListKind::kIgnore, folder / "lost.txt");
  desktop.AnswerFile(folder / "state.txt");
  Panel().cmdSaveLoadState[0].PerformClick();
  EXPECT_EQ(desktop.Titles().front(), "File not found");
  const std::string state = ContentsOf(folder / "state.txt");
  EXPECT_TRUE(Has(state, "lost.txt"));
}

TEST_F(BoxesInForce, AWordsFileThatIsAwayIsToldOnceToWhoLeavesItsBox) {
  const std::string path = folder / "away.txt";
  for (const WordListKind kind : {WordListKind::kIgnore, WordListKind::kCountOnly}) {
    desktop.ForgetQuestions();
    TypeWordsFile(kind, path);
    LeaveWordsFile(kind);
    EXPECT_THAT(desktop.Titles(), ElementsAre("File not found"));
    LeaveWordsFile(kind);
    EXPECT_THAT(desktop.Titles(), ElementsAre("File not found"));
    TypeWordsFile(kind, folder / "other.txt");
    LeaveWordsFile(kind);
    TypeWordsFile(kind, path);
    LeaveWordsFile(kind);
    EXPECT_THAT(desktop.Titles(),
                ElementsAre("File not found", "File not found", "File not found"));
    TypeWordsFile(kind, "");
    LeaveWordsFile(kind);
    TypeWordsFile(kind, path);
    LeaveWordsFile(kind);
    EXPECT_EQ(desktop.Titles().size(), 4U) << "the box was emptied";
    static_cast<void>(folder.Write("away.txt", "dog\r\n"));
    LeaveWordsFile(kind);
    EXPECT_EQ(desktop.Titles().back(), "Words loaded") << "it is back";
    std::filesystem::remove(path);
    TypeWordsFile(kind, "");
    LeaveWordsFile(kind);
  }
}

TEST_F(BoxesInForce, AnEmptiedBoxEmptiesItsList) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "dog\r\n"));
  LeaveWordsFile(WordListKind::kIgnore);
  TypeWordsFile(WordListKind::kIgnore, "");
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_THAT(IgnoredOfFile(), IsEmpty());
}

TEST_F(BoxesInForce, ACountReadsAWordsFileThatIsNotInForceWithoutAWord) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "dog\r\n"));
  CountClipboard("dog cat");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(Has(Output(), "cat"));
  EXPECT_FALSE(Has(Output(), "dog"));
}

TEST_F(BoxesInForce, ACountForgetsAWordsFileWhoseBoxWasEmptied) {
  TypeWordsFile(WordListKind::kCountOnly, folder.Write("a.txt", "dog\r\n"));
  CountClipboard("dog cat");
  EXPECT_EQ(StoredWords(), "dog");
  TypeWordsFile(WordListKind::kCountOnly, "");
  CountClipboard("dog cat");
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(BoxesInForce, ACountThatLacksItsWordsFileIsRefusedUntilItIsBack) {
  const std::string path = folder / "away.txt";
  TypeWordsFile(WordListKind::kCountOnly, path);
  for (int time = 0; time < 2; ++time) {
    desktop.ForgetQuestions();
    CountClipboard("dog cat");
    ExpectMessage(OnlyMessage(), "File for count-only words not found.", "File not found",
                  MessageIcon::kExclamation);
    EXPECT_EQ(StoredWords(), "") << "all words were counted";
    EXPECT_EQ(WordsFileBox(WordListKind::kCountOnly).Text(), path);
    ExpectIdle();
  }
  static_cast<void>(folder.Write("away.txt", "dog\r\n"));
  CountClipboard("dog cat");
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(BoxesInForce, ACountThatLacksItsWordsFileGoesOnWhenItsBoxIsCleared) {
  TypeWordsFile(WordListKind::kCountOnly, folder / "away.txt");
  CountClipboard("dog cat");
  TypeWordsFile(WordListKind::kCountOnly, "");
  CountClipboard("dog cat");
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(BoxesInForce, ARefusedWordsFileLeavesBoxAndListEmptyAndALostOneTheList) {
  TypeWordsFile(WordListKind::kIgnore, folder.Write("a.txt", "dog\r\n"));
  LeaveWordsFile(WordListKind::kIgnore);
  TypeWordsFile(WordListKind::kIgnore, folder.Write("b.bin", std::string("a\0b", 3)));
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_EQ(WordsFileBox(WordListKind::kIgnore).Text(), "");
  EXPECT_THAT(IgnoredOfFile(), IsEmpty());
  TypeWordsFile(WordListKind::kIgnore, folder / "gone.txt");
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_EQ(WordsFileBox(WordListKind::kIgnore).Text(), folder / "gone.txt");
  EXPECT_THAT(IgnoredOfFile(), IsEmpty());
}

TEST_F(BoxesInForce, TheDefaultWordsThatStandInForALostFileAreReadByTheNextCount) {
  TypeWordsFile(WordListKind::kIgnore, folder / "gone.txt");
  ASSERT_EQ(program.States().SaveState(folder / "state.qlm"), "");
  desktop.AnswerFile(folder / "state.qlm");
  Panel().cmdSaveLoadState[1].PerformClick();
  desktop.ForgetQuestions();
  ASSERT_TRUE(Has(WordsFileBox(WordListKind::kIgnore).Text(), "cwds_en.txt"));
  CountClipboard("the zebra");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_FALSE(Has(Output(), "the"));
}

TEST_F(BoxesInForce, TypedWordsCountEvenIfTheirBoxWasNeverLeft) {
  Panel().txbWordsToIgnoreOrCount[0].SetText("Dog,");
  CountClipboard("dog cat");
  EXPECT_FALSE(Has(Output(), "dog"));
  Panel().txbWordsToIgnoreOrCount[0].SetText("");
  CountClipboard("dog cat");
  EXPECT_TRUE(Has(Output(), "dog"));
}

TEST_F(BoxesInForce, TooManyTypedWordsRefuseTheCount) {
  Panel().txbWordsToIgnoreOrCount[1].SetText(ManyWords(1001));
  CountClipboard("dog cat");
  ExpectMessage(OnlyMessage(), "Too many count-only words.", "Invalid input",
                MessageIcon::kExclamation);
  EXPECT_EQ(StoredWords(), "");
}

TEST_F(BoxesInForce, AStraySignIsNoCountOnlyWord) {
  TypeWords(WordListKind::kCountOnly, " - ");
  EXPECT_EQ(Panel().txbWordsToIgnoreOrCount[1].Text(), "");
  CountClipboard("dog cat");
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(BoxesInForce, ExtensionsCountEvenIfTheirBoxWasNeverLeft) {
  static_cast<void>(folder.Write("t/a.txt", "dog"));
  static_cast<void>(folder.Write("t/b.htm", "cat"));
  Main().txbFileExtensions[0].SetText("*.txt");
  CountFolder(folder / "t");
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(BoxesInForce, TheFileSizeGoesWithItsPath) {
  Main().txbFile[0].SetText(folder.Write("a.txt", "dog"));
  Main().txbFile[0].LostFocus.Fire();
  EXPECT_EQ(Main().lblFilesize.Caption(), "Filesize: 3 bytes");
  Main().txbFile[0].SetText("");
  EXPECT_EQ(Main().lblFilesize.Caption(), "");
}

TEST_F(BoxesInForce, ACancelledChoiceOfAFolderLeavesNoSummaryOfAListThatIsGone) {
  CountClipboard("dog cat");
  ASSERT_TRUE(Main().lblNumberOfWords.Visible());
  desktop.AnswerFolder(std::nullopt);
  Main().cmdFolder.PerformClick();
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
  EXPECT_TRUE(Main().lblCopyrightNotice.Visible());
}

TEST_F(BoxesInForce, OneEnterTellsOneFaultOnce) {
  TextBox& box = Main().txbFileExtensions[0];
  desktop.AtMessage("Invalid input", [&box] { box.LostFocus.Fire(); });  // the message takes focus
  box.SetText("t?t");
  box.KeyDown.Fire(kEnterKey);
  box.LostFocus.Fire();
  EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid input"));
}

TEST_F(BoxesInForce, TooManyExtensionsAreCutToThoseThatCount) {
  std::string many;
  for (int i = 100; i <= 200; ++i) many += "e" + std::to_string(i) + " ";
  TypeOnly(many);
  EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid input"));
  EXPECT_TRUE(Main().txbFileExtensions[0].Text().ends_with(" e199"));
}

#ifndef _WIN32
TEST_F(BoxesInForce, AFolderThatMayNotBeReadSaysSo) {
  static_cast<void>(folder.Write("closed/a.txt", "dog"));
  std::filesystem::permissions(TestPath(folder / "closed"), std::filesystem::perms::none);
  EXPECT_EQ(AsOrdinaryUser([this] {
              CountFolder(folder / "closed");
              ExpectMessage(OnlyMessage(), "Folder cannot be read: Permission denied.", "Error",
                            MessageIcon::kExclamation);
              return HasFailure() ? 1 : 0;
            }),
            0);
  std::filesystem::permissions(TestPath(folder / "closed"), std::filesystem::perms::all);
}

TEST_F(BoxesInForce, AWordsFileThatIsAPipeWithoutAWriterIsRefused) {
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  TypeWordsFile(WordListKind::kIgnore, pipe);
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_EQ(desktop.Messages().front().text, "Nothing is written into this pipe.");
  EXPECT_EQ(WordsFileBox(WordListKind::kIgnore).Text(), "");
}

TEST_F(BoxesInForce, AWordsFileThatIsAPipeIsReadInWhole) {
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  // As the shell hands one over: open for writing already, and with more in it than it holds.
  std::fstream writing(pipe, std::ios::in | std::ios::out);
  std::thread writer([&writing] {
    for (int i = 0; i < 20'000; ++i) writing << "dog\ncat\n";
    writing << "zebra\n";
    writing.close();
  });
  TypeWordsFile(WordListKind::kIgnore, pipe);
  LeaveWordsFile(WordListKind::kIgnore);
  writer.join();
  EXPECT_THAT(IgnoredOfFile(), ElementsAre("cat", "dog", "zebra"));
}

TEST_F(BoxesInForce, AWordsFileThatIsAnIdlePipeIsGivenUpWhenTheProgramEnds) {
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  std::fstream writing(pipe, std::ios::in | std::ios::out);
  writing << "dog\n" << std::flush;
  bool busy = false;
  AtYield(3, [this, &busy] {
    busy = State().Busy();
    Main().CloseRequested.Fire();
  });
  TypeWordsFile(WordListKind::kIgnore, pipe);
  LeaveWordsFile(WordListKind::kIgnore);
  EXPECT_TRUE(busy) << "nothing else begins meanwhile";
  EXPECT_TRUE(program.HasEnded());
  for (const MessageBox& box : desktop.Messages()) {
    // This program has no settings file.
    EXPECT_THAT(box.text, testing::StartsWith("Error when attempting to save state: "));
  }
}
#endif

}  // namespace
}  // namespace quillomat
