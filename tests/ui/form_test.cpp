#include "ui/form.h"

#include <array>
#include <gmock/gmock.h>
#include <stdexcept>

#include "ui/controls.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;

class FocusWindow final : public Form {
 public:
  FocusWindow() : Form("frmTest", "Test") {}

  std::array<TextBox, 2> txbFile{TextBox{*this, {"txbFile", 0}}, TextBox{*this, {"txbFile", 1}}};
  CommandButton cmdGo{*this, "cmdGo", "Go"};
  Label lblText{*this, "lblText"};
  CommandButton cmdOther{*this, "cmdOther", "Other"};
};

class FormTest : public ::testing::Test {
 protected:
  /// Writes down every change of focus from here on.
  void WatchFocus() {
    for (Control* control : window_.Controls()) {
      control->GotFocus.Connect([this, control] { log_.push_back("+" + control->Name()); });
      control->LostFocus.Connect([this, control] { log_.push_back("-" + control->Name()); });
    }
  }

  FocusWindow window_;
  std::vector<std::string> log_;
};

TEST_F(FormTest, ControlThatIsDisabledWhenAnotherIsLeftDoesNotGetTheFocus) {
  window_.SetFocus(window_.txbFile[0]);
  window_.txbFile[0].LostFocus.Connect([this] { window_.cmdGo.SetEnabled(false); });
  WatchFocus();
  window_.SetFocus(window_.cmdGo);
  EXPECT_EQ(window_.Focused(), nullptr);
  EXPECT_THAT(log_, ElementsAre("-txbFile(0)"));
}

TEST_F(FormTest, WhatAClickThatFailsHasPutOffIsDropped) {
  int done = 0;
  window_.cmdGo.Click.Connect([&] {
    window_.AfterClick([&] { ++done; });
    if (done == 0) throw std::runtime_error("no memory");
  });
  EXPECT_THROW(window_.cmdGo.PerformClick(), std::runtime_error);
  CommandButton& other = window_.cmdOther;
  other.PerformClick();
  EXPECT_EQ(done, 0);
}

TEST_F(FormTest, FindsControlsByName) {
  EXPECT_EQ(window_.Find("cmdGo"), &window_.cmdGo);
  EXPECT_EQ(window_.Find("txbFile(0)"), window_.txbFile.data());
  EXPECT_EQ(window_.Find("txbFile(1)"), &window_.txbFile[1]);
  EXPECT_EQ(window_.Find("txbFile[1]"), &window_.txbFile[1]);
}

TEST_F(FormTest, FindsNothingByAnyOtherName) {
  for (const char* name : {"", "]", "()", "txbFile", "txbFile(2)", "txbFile(01)", "txbFile[1)",
                           "txbFile(1]x", "cmdgo", "cmdGo(0)"}) {
    EXPECT_EQ(window_.Find(name), nullptr) << name;
  }
}

TEST_F(FormTest, ListsItsControlsInOrder) {
  std::vector<std::string> names;
  for (const Control* control : window_.Controls()) names.push_back(control->Name());
  EXPECT_THAT(names, ElementsAre("txbFile(0)", "txbFile(1)", "cmdGo", "lblText", "cmdOther"));
  EXPECT_EQ(window_.txbFile[1].BaseName(), "txbFile");
  EXPECT_EQ(window_.txbFile[1].Index(), 1);
  EXPECT_EQ(window_.cmdGo.Index(), std::nullopt);
  EXPECT_EQ(&window_.cmdGo.Owner(), &window_);
}

TEST_F(FormTest, FocusMovesFromControlToControl) {
  WatchFocus();
  EXPECT_EQ(window_.Focused(), nullptr);
  window_.SetFocus(window_.txbFile[0]);
  window_.SetFocus(window_.txbFile[0]);
  window_.SetFocus(window_.cmdGo);
  EXPECT_EQ(window_.Focused(), &window_.cmdGo);
  EXPECT_THAT(log_, ElementsAre("+txbFile(0)", "-txbFile(0)", "+cmdGo"));
}

TEST_F(FormTest, FocusDoesNotGoWhereItCannotBe) {
  window_.SetFocus(window_.txbFile[0]);
  WatchFocus();
  window_.SetFocus(window_.lblText);
  window_.cmdGo.SetEnabled(false);
  window_.SetFocus(window_.cmdGo);
  window_.cmdGo.SetEnabled(true);
  window_.cmdGo.SetVisible(false);
  window_.SetFocus(window_.cmdGo);
  EXPECT_EQ(window_.Focused(), window_.txbFile.data());
  EXPECT_THAT(log_, ElementsAre());
}

TEST_F(FormTest, HandlerOfLostFocusHasTheLastWord) {
  window_.SetFocus(window_.txbFile[0]);
  WatchFocus();
  window_.txbFile[0].LostFocus.Connect([&] { window_.SetFocus(window_.txbFile[1]); });
  window_.SetFocus(window_.cmdGo);
  EXPECT_EQ(window_.Focused(), &window_.txbFile[1]);
  EXPECT_THAT(log_, ElementsAre("-txbFile(0)", "-cmdGo", "+txbFile(1)"));
}

TEST_F(FormTest, ShowingAndHiding) {
  int changes = 0;
  int raises = 0;
  window_.Changed.Connect([&] { ++changes; });
  window_.Raised.Connect([&] { ++raises; });
  EXPECT_FALSE(window_.Visible());
  window_.Show();
  window_.Show();
  EXPECT_TRUE(window_.Visible());
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(raises, 2);
  window_.Hide();
  window_.Hide();
  EXPECT_FALSE(window_.Visible());
  EXPECT_EQ(changes, 2);
}

TEST_F(FormTest, CaptionAndStateChange) {
  int changes = 0;
  window_.Changed.Connect([&] { ++changes; });
  window_.SetCaption("Test");
  window_.SetState(WindowState::kNormal);
  EXPECT_EQ(changes, 0);
  window_.SetCaption("New");
  window_.SetState(WindowState::kMinimized);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(window_.Caption(), "New");
  window_.Show();
  EXPECT_EQ(window_.State(), WindowState::kMinimized);
}

TEST_F(FormTest, FocusIsMovedAnewWhereTheFormHasItAlready) {
  window_.SetFocus(window_.cmdGo);
  int moved = 0;
  window_.FocusMoved.Connect([&moved] { ++moved; });
  WatchFocus();
  window_.SetFocus(window_.cmdGo);
  EXPECT_EQ(moved, 1) << "the real focus may be elsewhere";
  EXPECT_THAT(log_, testing::IsEmpty());
}

TEST_F(FormTest, WhatIsPutOffComesAfterTheClick) {
  window_.SetFocus(window_.txbFile[0]);
  window_.txbFile[0].LostFocus.Connect([this] {
    EXPECT_TRUE(window_.IsInClick());
    window_.AfterClick([this] { log_.emplace_back("question"); });
  });
  window_.cmdGo.Click.Connect([this] { log_.emplace_back("click"); });
  window_.cmdGo.PerformClick();
  EXPECT_THAT(log_, ElementsAre("click", "question"));
  EXPECT_FALSE(window_.IsInClick());
}

TEST_F(FormTest, WithoutAClickNothingIsPutOff) {
  window_.AfterClick([this] { log_.emplace_back("question"); });
  EXPECT_THAT(log_, ElementsAre("question"));
}

TEST_F(FormTest, ClickThatFailsIsOver) {
  window_.cmdGo.Click.Connect([] { throw std::runtime_error("fails"); });
  EXPECT_THROW(window_.cmdGo.PerformClick(), std::runtime_error);
  EXPECT_FALSE(window_.IsInClick());
}

}  // namespace
}  // namespace quillomat
