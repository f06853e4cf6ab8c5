// What becomes of the list on display when a state is loaded or the program reinitialized.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "support/colliding_words.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class RestoredList : public ProgramFixture {
 protected:
  void ListAsWordsInOrder(int order) {
    Main().cboDisplayFormat.SetListIndex(8);
    Main().cboWordOrder.SetListIndex(order);
  }
  void Save() { ASSERT_EQ(program.States().SaveState(state_), ""); }
  void Load() {
    desktop.AnswerFile(state_);
    Panel().cmdSaveLoadState[1].PerformClick();
  }

  std::string state_ = folder / "mine.qlm";
};

TEST_F(RestoredList, FollowsTheRestoredOrderAndFormat) {
  ListAsWordsInOrder(1);
  Save();
  ListAsWordsInOrder(0);
  CountClipboard("dog dog cat");
  const std::string byFrequency = Output();
  Load();
  EXPECT_NE(Output(), byFrequency);
  EXPECT_LT(Output().find("cat"), Output().find("dog"));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(RestoredList, IsWrittenIntoNoFile) {
  ListAsWordsInOrder(1);
  Main().txbFile[1].SetText(folder.Write("out.txt", "old"));
  Panel().chkWarnOnOverwrite.SetChecked(false);
  Save();
  program.Initialize();
  CountClipboard("dog dog cat");
  Load();
  EXPECT_EQ(ContentsOf(folder / "out.txt"), "old");
  EXPECT_LT(Output().find("cat"), Output().find("dog"));
}

TEST_F(RestoredList, IsNotSaidToBeInAFileThatOnlyTheCountBeforeWrote) {
  Panel().chkWarnOnOverwrite.SetChecked(false);
  Main().cboDisplayFormat.SetListIndex(8);
  std::string text;
  for (std::size_t i = 0; i < 9'000; ++i) text.append("wo").append(InLetters(i, 3)).append("rd ");
  Main().txbFile[1].SetText(folder / "b.txt");
  Save();
  Main().txbFile[1].SetText(folder / "a.txt");
  CountClipboard(text);
  desktop.ForgetQuestions();
  Load();
  EXPECT_THAT(OnlyMessage().text, Not(HasSubstr("Results have been written")));
}

TEST_F(RestoredList, GoesWhereReadingTheWordsFileTookItsWords) {
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "dog\n"));
  Save();
  program.Initialize();
  CountClipboard("dog dog cat");
  Load();
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
}

TEST_F(RestoredList, GoesWhereItsWordsCannotServeTheFormat) {
  Main().optFolder.SetValue(true);
  TypeWords(WordListKind::kCountOnly, "dog");
  Main().cboDisplayFormat.SetListIndex(12);
  Save();
  program.Initialize();
  CountClipboard("dog dog cat");
  Load();
  EXPECT_EQ(Output(), "");
}

TEST_F(RestoredList, OtherTextInTheBoxStays) {
  Save();
  Main().txbOutput.SetText("typed");
  Load();
  EXPECT_EQ(Output(), "typed");
}

TEST_F(RestoredList, OtherTextStaysAfterACountToo) {
  Save();
  CountClipboard("dog dog cat");
  Main().cmdClearOutput.PerformClick();
  Main().txbOutput.EnterText("composed");
  Load();
  EXPECT_EQ(Output(), "composed");
  CountClipboard("dog dog cat");
  Main().txbOutput.EnterText(Output() + "with a remark");
  const std::string remarked = Output();
  Load();
  EXPECT_EQ(Output(), remarked);
}

TEST_F(RestoredList, EmptyBoxStaysEmptyAfterACount) {
  Save();
  CountClipboard("dog dog cat");
  Main().cmdClearOutput.PerformClick();
  Load();
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
}

TEST_F(RestoredList, ListOfFilesStaysWhenTheWordsGo) {
  const std::string texts = folder.Make("t");
  static_cast<void>(folder.Write("t/a.txt", "dog"));
  Save();
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "dog\n"));
  const std::string withWordsFile = folder / "other.qlm";
  ASSERT_EQ(program.States().SaveState(withWordsFile), "");
  program.Initialize();
  CountFolder(texts);
  Main().cmdListFiles.PerformClick();
  const std::string files = Output();
  EXPECT_THAT(files, HasSubstr("a.txt"));
  Load();
  EXPECT_EQ(Output(), files);
  desktop.AnswerFile(withWordsFile);
  Panel().cmdSaveLoadState[1].PerformClick();
  EXPECT_EQ(Output(), files);
}

TEST_F(RestoredList, EmptiesTheFileSizeWithTheInputFile) {
  Save();
  Main().txbFile[0].SetText(folder.Write("a.txt", "dog"));
  Main().txbFile[0].LostFocus.Fire();
  Load();
  EXPECT_EQ(Main().lblFilesize.Caption(), "");
}

TEST_F(RestoredList, ReinitializingLeavesNothingToListAgain) {
  const std::string texts = folder.Make("t");
  static_cast<void>(folder.Write("t/a.txt", "dog"));
  CountFolder(texts);
  Panel().cmdInitialize.PerformClick();
  EXPECT_EQ(Output(), "");
  EXPECT_EQ(StoredWords(), "");
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
  EXPECT_TRUE(Main().lblCopyrightNotice.Visible());
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_EQ(Output(), "");
}

TEST_F(RestoredList, HeaderCountsNoFolderWhereNoneWasScanned) {
  CountClipboard("dog");
  Main().optFolder.SetValue(true);
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_TRUE(Output().starts_with("0 file (in 0 folder) were scanned.")) << Output();
}

}  // namespace
}  // namespace quillomat
