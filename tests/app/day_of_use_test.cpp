// A day with the program, from the first start in an empty home to the next morning. Nothing of it
// touches a screen.
#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/program.h"
#include "app/state_file.h"
#include "support/scripted_desktop.h"
#include "support/user_home.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Every value that a state holds, in words.
std::string Settings(Program& program) {
  const TemporaryFolder folder;
  WriteStateFile(folder / "state.qlm", program.frmMain, program.frmParams);
  return ContentsOf(folder / "state.qlm");
}

TEST(DayOfUse, EverythingIsAsItWasTheNextMorning) {
  const auto start = std::chrono::steady_clock::now();
  const UserHome home;
  const TemporaryFolder texts;
  static_cast<void>(texts.Write("a.txt", "the cat sat\n"));
  static_cast<void>(texts.Write("sub/b.txt", "the dogs' dog\n"));
  std::string settings;
  {
    ScriptedDesktop desktop;
    Program program(desktop);
    ASSERT_TRUE(program.Start());
    EXPECT_THAT(desktop.Messages(), IsEmpty()) << "a first start says nothing";
    EXPECT_TRUE(program.frmMain.Visible());
    EXPECT_TRUE(program.frmMain.optFolder.Value());

    program.frmMain.cmdSetParameters.PerformClick();
    program.frmParams.chkDropFinalS.PerformClick();
    program.frmParams.cboLongWordSize.SetListIndex(5);
    program.frmParams.SetFocus(program.frmParams.txbWordsToIgnoreOrCount[0]);
    program.frmParams.txbWordsToIgnoreOrCount[0].SetText("Sat,");
    program.frmParams.cmdClose.PerformClick();
    EXPECT_EQ(program.frmParams.txbWordsToIgnoreOrCount[0].Text(), "sat");

    desktop.AnswerFolder(texts.Path());
    program.frmMain.cmdFolder.PerformClick();
    program.frmMain.chkIncludeSubfolders.PerformClick();
    desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
    desktop.AnswerFile(std::nullopt);
    program.frmMain.cmdCountWords.PerformClick();
    EXPECT_THAT(program.frmMain.txbOutput.Text(),
                HasSubstr("2 files (in 2 folders) were scanned."));
    EXPECT_THAT(program.frmMain.txbOutput.Text(), HasSubstr("the\r\n"));

    program.frmMain.cboDisplayFormat.SetListIndex(8);
    EXPECT_THAT(program.frmMain.txbOutput.Text(),
                HasSubstr("characters)\r\ndog\r\nthe\r\ncat\r\n"));
    program.frmMain.cmdSaveState.PerformClick();
    EXPECT_EQ(desktop.Messages().back().text, "State saved.");
    program.frmMain.cmdQuit.PerformClick();
    EXPECT_TRUE(program.HasEnded());
    settings = Settings(program);
  }
  {
    ScriptedDesktop desktop;
    Program program(desktop);
    ASSERT_TRUE(program.Start());
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_EQ(Settings(program), settings);
    EXPECT_EQ(program.frmMain.txbFolder.Text(), texts.Path());
    EXPECT_EQ(program.frmMain.cboDisplayFormat.ListIndex(), 8);
    EXPECT_TRUE(program.frmParams.chkDropFinalS.IsChecked());
    EXPECT_THAT(program.Settings().lists.ExtraIgnoreList.Words(), ElementsAre("sat"));
  }
  // A hundredth of it on a machine that does nothing else.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace quillomat
