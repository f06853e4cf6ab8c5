// Labels that are links, as hands and screen readers use them.
#include "qt/link_label.h"

#include <QAccessible>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "qt/form_window.h"
#include "ui/controls.h"

namespace quillomat {
namespace {

class LinkForm final : public Form {
 public:
  LinkForm() : Form("frmLink", "Link") {}
  Label lblLink{*this, "lblLink", "Online documentation"};
};

class LinkLabelTest : public ::testing::Test {
 protected:
  LinkLabelTest() {
    link_->setObjectName("lblLink");
    (new QVBoxLayout(&window_))->addWidget(link_);
    window_.BindControls();
    form_.lblLink.Click.Connect([this] { ++followed_; });
    form_.Show();
    window_.ShowChanges();
    static_cast<void>(QTest::qWaitForWindowActive(&window_));
    QTest::keyClick(&window_, Qt::Key_Tab);
  }

  LinkForm form_;
  FormWindow window_{form_};
  LinkLabel* link_ = new LinkLabel(&window_);
  int followed_ = 0;
};

TEST_F(LinkLabelTest, IsFollowedByEnterAndSpaceAndAClick) {
  ASSERT_TRUE(link_->hasFocus());
  QTest::keyClick(link_, Qt::Key_Return);
  QTest::keyClick(link_, Qt::Key_Space);
  QTest::mouseClick(link_, Qt::LeftButton);
  EXPECT_EQ(followed_, 3);
}

TEST_F(LinkLabelTest, KeyThatIsHeldFollowsItOnce) {
  QTest::simulateEvent(link_, true, Qt::Key_Return, {}, QString(), false);
  for (int times = 0; times < 4; ++times) {
    QTest::simulateEvent(link_, true, Qt::Key_Return, {}, QString(), true);
  }
  QTest::simulateEvent(link_, false, Qt::Key_Return, {}, QString(), false);
  EXPECT_EQ(followed_, 1);
}

TEST_F(LinkLabelTest, KeyboardIsSeenOnIt) {
  ASSERT_TRUE(link_->hasFocus());
  const QImage focused = link_->grab().toImage();
  link_->clearFocus();
  EXPECT_NE(link_->grab().toImage(), focused);
}

TEST_F(LinkLabelTest, ScreenReaderCallsItALinkAndFollowsIt) {
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(link_);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), QAccessible::Link);
  EXPECT_EQ(access->text(QAccessible::Name), "Online documentation");
  QAccessibleActionInterface* actions = access->actionInterface();
  ASSERT_NE(actions, nullptr);
  ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(followed_, 1);
}

}  // namespace
}  // namespace quillomat
