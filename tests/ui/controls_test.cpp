#include "ui/controls.h"

#include <gmock/gmock.h>
#include <memory>

#include "base/run_time_error.h"
#include "ui/form.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;

/// Counts how often an event fires.
class Counter {
 public:
  explicit Counter(Event<>& event) {
    event.Connect([count = count_] { ++*count; });
  }
  [[nodiscard]] int Count() const { return *count_; }

 private:
  std::shared_ptr<int> count_ = std::make_shared<int>(0);
};

class Window final : public Form {
 public:
  Window() : Form("frmTest", "Test") {}

  TextBox txbText{*this, "txbText"};
  CheckBox chkBox{*this, "chkBox", "Box"};
  OptionButton optOne{*this, "optOne", "One"};
  OptionButton optTwo{*this, "optTwo", "Two"};
  OptionButton optOther{*this, "optOther", "Other", 1};
  ComboBox cboList{*this, "cboList"};
  Label lblText{*this, "lblText", "caption"};
  CommandButton cmdGo{*this, "cmdGo", "Go"};
};

class Controls : public ::testing::Test {
 protected:
  Window window_;
};

TEST_F(Controls, ChangedFiresForNewValuesOnly) {
  const Counter changed(window_.cmdGo.Changed);
  window_.cmdGo.SetEnabled(true);
  window_.cmdGo.SetVisible(true);
  window_.cmdGo.SetToolTip("");
  window_.cmdGo.SetCaption("Go");
  EXPECT_EQ(changed.Count(), 0);
  window_.cmdGo.SetEnabled(false);
  window_.cmdGo.SetVisible(false);
  window_.cmdGo.SetToolTip("tip");
  window_.cmdGo.SetCaption("Stop");
  EXPECT_EQ(changed.Count(), 4);
  EXPECT_FALSE(window_.cmdGo.Enabled());
  EXPECT_FALSE(window_.cmdGo.Visible());
  EXPECT_EQ(window_.cmdGo.ToolTip(), "tip");
  EXPECT_EQ(window_.cmdGo.Caption(), "Stop");
}

TEST_F(Controls, TextLengthCountsCharacters) {
  window_.txbText.SetText("na\u00EFve \u201Cword\u201D");
  EXPECT_EQ(window_.txbText.Length(), 12U);
  window_.txbText.AppendText(" \U0001F600!");
  EXPECT_EQ(window_.txbText.Length(), 15U);
  EXPECT_EQ(window_.txbText.Text(), "na\u00EFve \u201Cword\u201D \U0001F600!");
  window_.txbText.SetText("");
  EXPECT_EQ(window_.txbText.Length(), 0U);
}

TEST_F(Controls, SelectionStaysInsideTheTextAndIsGoneWithIt) {
  window_.txbText.SetText("na\u00EFve");
  const Counter selected(window_.txbText.Selected);
  window_.txbText.Select(2, 2);
  EXPECT_EQ(window_.txbText.SelStart(), 2U);
  EXPECT_EQ(window_.txbText.SelLength(), 2U);
  window_.txbText.Select(3, 9);
  EXPECT_EQ(window_.txbText.SelLength(), 2U);
  EXPECT_EQ(selected.Count(), 2);
  window_.txbText.SetText("other");
  EXPECT_EQ(window_.txbText.SelLength(), 0U);
}

TEST_F(Controls, TextChangeFiresForNewTextsOnly) {
  const Counter change(window_.txbText.Change);
  window_.txbText.SetText("");
  window_.txbText.AppendText("");
  EXPECT_EQ(change.Count(), 0);
  window_.txbText.SetText("a");
  window_.txbText.SetText("a");
  window_.txbText.AppendText("b");
  EXPECT_EQ(change.Count(), 2);
}

TEST_F(Controls, TextIsThereWhenChangeFires) {
  std::string seen;
  window_.txbText.Change.Connect(
      [&] { seen = window_.txbText.Text() + std::to_string(window_.txbText.Length()); });
  window_.txbText.SetText("ab");
  EXPECT_EQ(seen, "ab2");
  window_.txbText.AppendText("c");
  EXPECT_EQ(seen, "abc3");
}

TEST_F(Controls, CaretStaysInsideTheText) {
  window_.txbText.SetText("\u00E4\u00F6\u00FC");
  window_.txbText.SetSelStart(99);
  EXPECT_EQ(window_.txbText.SelStart(), 3U);
  window_.txbText.AppendText("x");
  EXPECT_EQ(window_.txbText.SelStart(), 3U);
  window_.txbText.SetText("new");
  EXPECT_EQ(window_.txbText.SelStart(), 0U);
}

TEST_F(Controls, CheckBoxClicksWhenItsValueChangesFromCodeOrByHand) {
  const Counter click(window_.chkBox.Click);
  window_.chkBox.SetValue(CheckState::kUnchecked);
  EXPECT_EQ(click.Count(), 0);
  window_.chkBox.SetValue(CheckState::kGrayed);
  EXPECT_EQ(click.Count(), 1);
  EXPECT_FALSE(window_.chkBox.IsChecked());
  window_.chkBox.PerformClick();
  EXPECT_EQ(window_.chkBox.Value(), CheckState::kUnchecked);
  window_.chkBox.PerformClick();
  EXPECT_TRUE(window_.chkBox.IsChecked());
  EXPECT_EQ(click.Count(), 3);
}

TEST_F(Controls, DisabledOrHiddenControlsIgnoreTheHandButNotTheCode) {
  window_.chkBox.SetEnabled(false);
  window_.chkBox.PerformClick();
  EXPECT_FALSE(window_.chkBox.IsChecked());
  window_.chkBox.SetChecked(true);
  EXPECT_TRUE(window_.chkBox.IsChecked());
  window_.optOne.SetVisible(false);
  window_.optOne.PerformClick();
  EXPECT_FALSE(window_.optOne.Value());
}

TEST_F(Controls, OptionButtonsOfAGroupExcludeEachOther) {
  window_.optOther.SetValue(true);
  window_.optOne.SetValue(true);
  window_.optTwo.PerformClick();
  EXPECT_FALSE(window_.optOne.Value());
  EXPECT_TRUE(window_.optTwo.Value());
  EXPECT_TRUE(window_.optOther.Value());
}

TEST_F(Controls, OptionButtonClicksWhenItBecomesTrue) {
  const Counter one(window_.optOne.Click);
  const Counter two(window_.optTwo.Click);
  bool otherWasOff = false;
  window_.optTwo.Click.Connect([&] { otherWasOff = !window_.optOne.Value(); });
  window_.optOne.SetValue(true);
  window_.optOne.SetValue(true);
  window_.optOne.PerformClick();
  EXPECT_EQ(one.Count(), 1);
  window_.optTwo.SetValue(true);
  EXPECT_TRUE(otherWasOff);
  window_.optTwo.SetValue(false);
  EXPECT_EQ(one.Count(), 1);
  EXPECT_EQ(two.Count(), 1);
}

TEST_F(Controls, ComboBoxSelectsItsItems) {
  const Counter click(window_.cboList.Click);
  EXPECT_EQ(window_.cboList.ListIndex(), -1);
  EXPECT_EQ(window_.cboList.Text(), "");
  window_.cboList.AddItem("first");
  window_.cboList.AddItem("second");
  EXPECT_THAT(window_.cboList.Items(), ElementsAre("first", "second"));
  EXPECT_EQ(window_.cboList.ListIndex(), -1);
  window_.cboList.SetListIndex(1);
  window_.cboList.SetListIndex(1);
  EXPECT_EQ(window_.cboList.Text(), "second");
  EXPECT_EQ(click.Count(), 1);
  window_.cboList.SetListIndex(-1);
  EXPECT_EQ(window_.cboList.Text(), "");
  EXPECT_EQ(click.Count(), 2);
}

TEST_F(Controls, ComboBoxRefusesAnIndexOutsideItsList) {
  window_.cboList.AddItem("first");
  window_.cboList.SetListIndex(0);
  for (const int index : {-2, 1, 1000}) {
    try {
      window_.cboList.SetListIndex(index);
      ADD_FAILURE() << index;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), 380);
    }
    EXPECT_EQ(window_.cboList.ListIndex(), 0);
  }
}

TEST_F(Controls, ClearedComboBoxSelectsNothing) {
  window_.cboList.AddItem("first");
  window_.cboList.SetListIndex(0);
  const Counter click(window_.cboList.Click);
  window_.cboList.Clear();
  EXPECT_EQ(window_.cboList.ListIndex(), -1);
  EXPECT_EQ(window_.cboList.Text(), "");
  EXPECT_EQ(click.Count(), 0);
}

TEST_F(Controls, CommandClicksOnlyWhenItCanBeClicked) {
  const Counter click(window_.cmdGo.Click);
  window_.cmdGo.PerformClick();
  EXPECT_EQ(click.Count(), 1);
  window_.cmdGo.SetEnabled(false);
  window_.cmdGo.PerformClick();
  window_.cmdGo.SetEnabled(true);
  window_.cmdGo.SetVisible(false);
  window_.cmdGo.PerformClick();
  EXPECT_EQ(click.Count(), 1);
}

TEST_F(Controls, ClickTakesTheFocusBeforeItIsHandled) {
  window_.SetFocus(window_.txbText);
  std::vector<std::string> order;
  window_.txbText.LostFocus.Connect([&] { order.emplace_back("lost focus"); });
  window_.cmdGo.Click.Connect([&] { order.emplace_back("click"); });
  window_.cmdGo.PerformClick();
  EXPECT_THAT(order, ElementsAre("lost focus", "click"));
  EXPECT_EQ(window_.Focused(), &window_.cmdGo);
}

TEST_F(Controls, CommandDisabledByTheLossOfFocusIsNotClicked) {
  window_.SetFocus(window_.txbText);
  window_.txbText.LostFocus.Connect([&] { window_.cmdGo.SetEnabled(false); });
  const Counter click(window_.cmdGo.Click);
  window_.cmdGo.PerformClick();
  EXPECT_EQ(click.Count(), 0);
}

TEST_F(Controls, LabelClicksAndDoubleClicksWhileItIsShown) {
  const Counter click(window_.lblText.Click);
  const Counter doubleClick(window_.lblText.DoubleClick);
  window_.lblText.PerformClick();
  window_.lblText.PerformDoubleClick();
  window_.lblText.SetVisible(false);
  window_.lblText.PerformClick();
  window_.lblText.PerformDoubleClick();
  EXPECT_EQ(click.Count(), 1);
  EXPECT_EQ(doubleClick.Count(), 1);
}

TEST_F(Controls, ControlIsSeenAsItsOwnKindOnly) {
  Control& control = window_.chkBox;
  EXPECT_EQ(control.Kind(), ControlKind::kCheckBox);
  EXPECT_EQ(control.As<CheckBox>(), &window_.chkBox);
  EXPECT_EQ(control.As<OptionButton>(), nullptr);
  const Control& constant = control;
  EXPECT_EQ(constant.As<CheckBox>(), &window_.chkBox);
}

TEST_F(Controls, OnlyAHandEntersText) {
  const Counter changes(window_.txbText.Change);
  const Counter entered(window_.txbText.Entered);
  window_.txbText.SetText("from code");
  EXPECT_EQ(entered.Count(), 0);
  window_.txbText.EnterText("by hand");
  window_.txbText.EnterText("by hand");
  EXPECT_EQ(window_.txbText.Text(), "by hand");
  EXPECT_EQ(entered.Count(), 1);
  EXPECT_EQ(changes.Count(), 2);
}

TEST_F(Controls, ChoiceByHandTakesTheFocusFirst) {
  window_.cboList.AddItem("one");
  window_.SetFocus(window_.txbText);
  window_.txbText.LostFocus.Connect([this] { EXPECT_EQ(window_.cboList.ListIndex(), -1); });
  const Counter lost(window_.txbText.LostFocus);
  window_.cboList.PerformChoice(0);
  EXPECT_EQ(window_.cboList.ListIndex(), 0);
  EXPECT_EQ(lost.Count(), 1);
  window_.cboList.SetEnabled(false);
  window_.cboList.PerformChoice(-1);
  EXPECT_EQ(window_.cboList.ListIndex(), 0);
}

TEST_F(Controls, ItemOfNoUseHasAReasonAndCanBeSelected) {
  window_.cboList.AddItem("one");
  window_.cboList.AddItem("two");
  EXPECT_EQ(window_.cboList.ReasonAgainst(1), "");
  window_.cboList.SetReasonAgainst([](int index) { return index == 1 ? "no" : ""; });
  EXPECT_EQ(window_.cboList.ReasonAgainst(0), "");
  EXPECT_EQ(window_.cboList.ReasonAgainst(1), "no");
  window_.cboList.SetListIndex(1);
  EXPECT_EQ(window_.cboList.ListIndex(), 1);
}

}  // namespace
}  // namespace quillomat
