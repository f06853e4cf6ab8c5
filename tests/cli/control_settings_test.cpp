#include "cli/control_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace quillomat {
namespace {

using testing::HasSubstr;

class ControlSettings : public testing::Test {
 protected:
  ControlSettings() { frmParams.FillCombos(); }

  std::optional<std::string> Set(const std::string& name, const std::string& value) {
    Control* const control = FindControl(frmMain, frmParams, name);
    return control == nullptr ? "no control" : SetValue(*control, value);
  }

  MainForm frmMain;
  ParamsForm frmParams;
};

TEST_F(ControlSettings, ReachEveryPanelControlThatHasAValue) {
  for (Control* control : frmParams.Controls()) {
    SCOPED_TRACE(control->Name());
    switch (control->Kind()) {
      case ControlKind::kCheckBox:
        EXPECT_EQ(Set(control->Name(), "1"), std::nullopt);
        EXPECT_TRUE(control->As<CheckBox>()->IsChecked());
        break;
      case ControlKind::kTextBox:
        EXPECT_EQ(Set(control->Name(), "some text"), std::nullopt);
        EXPECT_EQ(control->As<TextBox>()->Text(), "some text");
        break;
      case ControlKind::kComboBox:
        EXPECT_EQ(Set(control->Name(), "#1"), std::nullopt);
        EXPECT_EQ(control->As<ComboBox>()->ListIndex(), 1);
        break;
      default:
        EXPECT_THAT(Set(control->Name(), "1").value_or(""), HasSubstr("no value"));
    }
  }
}

TEST_F(ControlSettings, ListTakesAnItemByItsText) {
  EXPECT_EQ(Set("cboLongWordSize", "20"), std::nullopt);
  EXPECT_EQ(frmParams.cboLongWordSize.ListIndex(), 0);
}

TEST_F(ControlSettings, ListRefusesWhatItDoesNotHold) {
  for (const char* value : {"25", "", "#9", "#-1", "#x", "#"}) {
    EXPECT_THAT(Set("cboLongWordSize", value).value_or(""), HasSubstr("20, 30")) << value;
  }
}

TEST_F(ControlSettings, CheckBoxTakesItsThreeValuesAndNoOther) {
  EXPECT_EQ(Set("chkDropFinalS", "2"), std::nullopt);
  EXPECT_EQ(frmParams.chkDropFinalS.Value(), CheckState::kGrayed);
  for (const char* value : {"3", "-1", "yes", "", "1 "}) {
    EXPECT_NE(Set("chkDropFinalS", value), std::nullopt) << value;
  }
}

TEST_F(ControlSettings, UnknownControlIsNone) {
  EXPECT_EQ(FindControl(frmMain, frmParams, "chkNothing"), nullptr);
}

TEST_F(ControlSettings, MainWindowsControlsAreReachedToo) {
  EXPECT_EQ(Set("txbFileExtensions(0)", "txt htm"), std::nullopt);
  EXPECT_EQ(frmMain.txbFileExtensions[0].Text(), "txt htm");
  EXPECT_EQ(Set("optInFile", "1"), std::nullopt);
  EXPECT_TRUE(frmMain.optInFile.Value());
  EXPECT_NE(Set("optInFile", "0"), std::nullopt);
}

}  // namespace
}  // namespace quillomat
