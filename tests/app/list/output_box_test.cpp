// The output text box.
#include "app/list/output_box.h"

#include <gtest/gtest.h>
#include <string>

#include "support/scripted_desktop.h"

namespace quillomat {
namespace {

class OutputBoxTest : public testing::Test {
 protected:
  [[nodiscard]] const std::string& Text() const { return frmMain.txbOutput.Text(); }

  MainForm frmMain;
  ScriptedDesktop desktop;
  OutputBox output{frmMain, desktop};
};

TEST_F(OutputBoxTest, AppendsAndPutsTheCaretBehind) {
  output.OutputToTxb("one ");
  output.OutputToTxb("né");
  EXPECT_EQ(Text(), "one né");
  EXPECT_EQ(frmMain.txbOutput.SelStart(), 6U);
}

TEST_F(OutputBoxTest, TakesNothingWhileItIsFull) {
  output.OutputToTxb("one");
  output.SetFull(true);
  output.OutputToTxb("two");
  EXPECT_EQ(Text(), "one");
}

TEST_F(OutputBoxTest, ClearedBoxIsEmptyAndNotFull) {
  output.OutputToTxb("one");
  output.SetFull(true);
  output.ClearOutput();
  EXPECT_TRUE(output.IsEmpty());
  EXPECT_FALSE(output.IsFull());
  output.OutputToTxb("two");
  EXPECT_EQ(Text(), "two");
}

TEST_F(OutputBoxTest, ShownTextIsPaintedAtOnce) {
  output.OutputToTxb("one");
  const int repaints = desktop.Repaints();
  output.ShowText("two");
  EXPECT_EQ(Text(), "two");
  EXPECT_EQ(desktop.Repaints(), repaints + 1);
}

TEST_F(OutputBoxTest, RestoresTheTextThatWasSaved) {
  output.OutputToTxb("the list");
  output.SaveOutputText();
  output.ShowText("Now reading");
  output.RestoreOutputText();
  EXPECT_EQ(Text(), "the list");
}

TEST_F(OutputBoxTest, RestoringPutsTheFocusWhereTheUserNeedsIt) {
  frmMain.Show();
  frmMain.optOnClipboard.SetValue(true);
  output.RestoreOutputText();
  EXPECT_EQ(frmMain.Focused(), &frmMain.cmdCountWords);
}

}  // namespace
}  // namespace quillomat
