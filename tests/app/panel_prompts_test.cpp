// The question of the parameters panel whether the text may be read anew.
#include <gmock/gmock.h>

#include "app/setting_values.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::IsEmpty;

class PanelPrompts : public ProgramFixture {};

TEST_F(PanelPrompts, NothingIsAskedBeforeACount) {
  Panel().chkAllowWordsWithPeriods.PerformClick();
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(PanelPrompts, NoUnchecksTheBoxWhicheverWayItWasClicked) {
  CountClipboard("cat");
  Main().optFolder.SetValue(true);
  desktop.Answer(MessageAnswer::kNo);
  Panel().chkAllowWordsWithPeriods.PerformClick();
  EXPECT_EQ(OnlyMessage().text, "Changing this entails reading the files anew.  Is this OK?");
  EXPECT_EQ(OnlyMessage().buttons, MessageButtons::kYesNo);
  EXPECT_EQ(Panel().chkAllowWordsWithPeriods.Value(), CheckState::kUnchecked);
  desktop.Answer(MessageAnswer::kNo);
  Panel().chkAllowWordsWithHyphens.PerformClick();
  EXPECT_EQ(Panel().chkAllowWordsWithHyphens.Value(), CheckState::kUnchecked);
  EXPECT_TRUE(Words().blnWordsGot);
}

TEST_F(PanelPrompts, YesMakesTheCountsOutdatedAndAsksNoMore) {
  CountClipboard("cat");
  desktop.Answer(MessageAnswer::kYes);
  Panel().cmdClearCheckboxes[1].PerformClick();
  EXPECT_EQ(OnlyMessage().text, "Changing this entails reading the clipboard anew.  Is this OK?");
  EXPECT_FALSE(Words().blnWordsGot);
  for (CheckBox* box : BoxesInClearingOrder(Panel())) EXPECT_TRUE(box->IsChecked()) << box->Name();
}

TEST_F(PanelPrompts, SetCheckboxesAsksForEveryScanningBoxUntilYes) {
  CountClipboard("cat");
  for (int i = 0; i < 13; ++i) desktop.Answer(MessageAnswer::kNo);
  Panel().cmdClearCheckboxes[1].PerformClick();
  EXPECT_EQ(desktop.Messages().size(), 13U) << "hyphens are checked already";
  EXPECT_EQ(desktop.UnusedAnswers(), 0U);
}

TEST_F(PanelPrompts, MarkersAreTrimmedAndMakeTheCountsOutdated) {
  CountClipboard("cat");
  Panel().txbStartComment[0].SetText("  # ");
  Panel().txbStartComment[0].LostFocus.Fire();
  EXPECT_EQ(Panel().txbStartComment[0].Text(), "#");
  EXPECT_FALSE(Words().blnWordsGot);
}

TEST_F(PanelPrompts, ReinitializeSaysSo) {
  Panel().chkDropFinalS.SetChecked(true);
  Panel().cmdInitialize.PerformClick();
  EXPECT_EQ(Panel().lblState.Caption(), "Program reinitialized.");
  EXPECT_FALSE(Panel().chkDropFinalS.IsChecked());
}

}  // namespace
}  // namespace quillomat
