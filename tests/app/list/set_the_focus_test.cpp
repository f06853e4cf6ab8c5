// Where the focus goes when a command is done.
#include "app/list/set_the_focus.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

class TheFocus : public testing::Test {
 protected:
  TheFocus() { frmMain.Show(); }

  [[nodiscard]] const Control* AfterACommand() {
    SetTheFocus(frmMain);
    return frmMain.Focused();
  }

  MainForm frmMain;
};

TEST_F(TheFocus, GoesToTheCountCommandForTheClipboard) {
  frmMain.optOnClipboard.SetValue(true);
  EXPECT_EQ(AfterACommand(), &frmMain.cmdCountWords);
}

TEST_F(TheFocus, GoesToTheChoiceOfAFileWhileNoneIsChosen) {
  frmMain.optInFile.SetValue(true);
  EXPECT_EQ(AfterACommand(), &frmMain.cmdFile[0]);
}

TEST_F(TheFocus, GoesToTheCountCommandOnceAFileIsChosen) {
  frmMain.optInFile.SetValue(true);
  frmMain.txbFile[0].SetText("/t/a.txt");
  EXPECT_EQ(AfterACommand(), &frmMain.cmdCountWords);
}

TEST_F(TheFocus, GoesToTheChoiceOfAFolderWhileNoneIsChosen) {
  frmMain.optFolder.SetValue(true);
  EXPECT_EQ(AfterACommand(), &frmMain.cmdFolder);
}

TEST_F(TheFocus, GoesToTheCountCommandOnceAFolderIsChosen) {
  frmMain.optFolder.SetValue(true);
  frmMain.txbFolder.SetText("/t");
  EXPECT_EQ(AfterACommand(), &frmMain.cmdCountWords);
}

TEST_F(TheFocus, GoesToTheCountCommandWhileNothingCanBeChosen) {
  frmMain.cmdFile[0].SetEnabled(false);
  frmMain.cmdFolder.SetEnabled(false);
  frmMain.optInFile.SetValue(true);
  EXPECT_EQ(AfterACommand(), &frmMain.cmdCountWords);
  frmMain.SetFocus(frmMain.cmdQuit);
  frmMain.optFolder.SetValue(true);
  EXPECT_EQ(AfterACommand(), &frmMain.cmdCountWords);
}

TEST_F(TheFocus, StaysWhereItIsWhileTheCommandIsDisabled) {
  frmMain.optOnClipboard.SetValue(true);
  frmMain.SetFocus(frmMain.cmdQuit);
  frmMain.cmdCountWords.SetEnabled(false);
  EXPECT_EQ(AfterACommand(), &frmMain.cmdQuit);
}

TEST_F(TheFocus, StaysWhereItIsWhileTheWindowIsHidden) {
  frmMain.optOnClipboard.SetValue(true);
  frmMain.SetFocus(frmMain.cmdQuit);
  frmMain.Hide();
  EXPECT_EQ(AfterACommand(), &frmMain.cmdQuit);
}

}  // namespace
}  // namespace quillomat
