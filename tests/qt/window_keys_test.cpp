// What the keyboard reaches in the main window, whatever its layout and language.
#include <QKeySequence>
#include <gmock/gmock.h>

#include "window_fixture.h"

namespace quillomat {
namespace {

using WindowKeys = WindowFixture;

TEST_F(WindowKeys, EveryViewHasALetterInEveryLanguage) {
  ASSERT_TRUE(user->Start());
  ResultTabs& views = user->windows.Main().Views();
  for (int language = 0; language < 2; ++language) {
    for (int i = 0; i < views.count(); ++i) {
      views.setCurrentIndex((i + 1) % views.count());
      const QKeySequence letter = QKeySequence::mnemonic(views.tabText(i));
      ASSERT_FALSE(letter.isEmpty()) << FromQt(views.tabText(i));
      QTest::keySequence(&user->windows.Main(), letter);
      EXPECT_EQ(views.currentIndex(), i);
    }
    auto& other = user->WidgetOf<QPushButton>(user->program.frmMain.cmdLanguage);
    EXPECT_TRUE(other.text().contains(QLatin1Char('&')));
    user->Click(user->program.frmMain.cmdLanguage);
  }
}

TEST_F(WindowKeys, ControlTabGoesRoundTheViews) {
  ASSERT_TRUE(user->Start());
  ResultTabs& views = user->windows.Main().Views();
  user->windows.Main().List().setFocus();
  for (int i = 1; i <= views.count(); ++i) {
    QTest::keyClick(&user->windows.Main(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(views.currentIndex(), i % views.count());
  }
  QTest::keySequence(&user->windows.Main(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab));
  EXPECT_EQ(views.currentIndex(), views.count() - 1);
}

TEST_F(WindowKeys, QuitKeysWorkInEveryLayout) {
  for (const bool folded : {false, true}) {
    for (const bool control : {false, true}) {
      user = std::make_unique<ProgramOnDesktop>();
      ASSERT_TRUE(user->Start());
      user->windows.Main().Fold().SetFolded(folded);
      user->Settle();
      QTest::keyClick(&user->windows.Main(), Qt::Key_Q,
                      control ? Qt::ControlModifier : Qt::AltModifier);
      // A letter shows its command pressed for a moment.
      EXPECT_TRUE(QTest::qWaitFor([this] { return user->program.HasEnded(); }, 20'000))
          << folded << control;
    }
  }
}

}  // namespace
}  // namespace quillomat
