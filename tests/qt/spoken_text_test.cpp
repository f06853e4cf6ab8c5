// What screen readers are told without being asked.
#include "qt/spoken_text.h"

#include <QAccessible>
#include <QLabel>
#include <gmock/gmock.h>

#include "qt/accessible_names.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

class SpokenTextTest : public WindowFixture {
 protected:
  SpokenTextTest() {
    EXPECT_TRUE(user->Start());
    user->program.frmParams.txbWordsToIgnoreOrCount[0].SetText("the and");
    user->program.Sources().ChooseText(folder.Write("a.txt", "the cat"));
    user->Click(frmMain.cmdCountWords);
    user->Settle();
  }

  SpokenText& SpokenOf(const Control& control) {
    return SpokenText::Of(user->WidgetOf<QWidget>(control));
  }
  std::string Said(const Control& control) {
    return FromQt(
        QAccessible::queryAccessibleInterface(&SpokenOf(control))->text(QAccessible::Name));
  }

  MainForm& frmMain = user->program.frmMain;
};

TEST_F(SpokenTextTest, OutcomeOfACountAndItsNoticeAreSaid) {
  EXPECT_EQ(Said(frmMain.lblNumberOfWords), "Number of words in this list: 1");
  EXPECT_EQ(Said(frmMain.lblNotice), "A list of 2 words to ignore is in use.");
}

TEST_F(SpokenTextTest, IsANotificationOfTheWindow) {
  SpokenOf(frmMain.lblNotice).Say(QStringLiteral("a notice"));
  const QAccessibleInterface* spoken =
      QAccessible::queryAccessibleInterface(&SpokenOf(frmMain.lblNotice));
  EXPECT_EQ(spoken->role(), QAccessible::Notification);
  EXPECT_FALSE(spoken->state().invisible) << "what is hidden is not read out";
  ASSERT_NE(spoken->parent(), nullptr);
  EXPECT_EQ(spoken->parent()->object(), &user->windows.Main());
  EXPECT_GE(spoken->parent()->indexOfChild(spoken), 0) << "a screen reader comes from there to it";
}

TEST_F(SpokenTextTest, LabelsDoNotTakeEachOthersPlace) {
  EXPECT_EQ(&SpokenOf(frmMain.lblNotice), &SpokenOf(frmMain.lblNotice));
  EXPECT_NE(&SpokenOf(frmMain.lblNotice), &SpokenOf(frmMain.lblNumberOfWords));
}

TEST_F(SpokenTextTest, NothingIsSaidOfALabelWithoutText) {
  QLabel label(&user->windows.Main());
  Announce(label);
  EXPECT_TRUE(SpokenText::Of(label).isHidden());
}

TEST_F(SpokenTextTest, IsNowhereOnTheScreenAndHasNoKeyboard) {
  SpokenOf(frmMain.lblNotice).Say(QStringLiteral("a notice"));
  EXPECT_TRUE(SpokenOf(frmMain.lblNotice).visibleRegion().isEmpty());
  EXPECT_EQ(SpokenOf(frmMain.lblNotice).focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace quillomat
