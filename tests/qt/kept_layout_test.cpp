// What a user has made of the layout: kept from start to start, and through a change of language.
#include <QSplitter>
#include <QTabBar>
#include <QWindow>
#include <gmock/gmock.h>
#include <memory>

#include "window_fixture.h"

namespace quillomat {
namespace {

using KeptLayout = WindowFixture;

TEST_F(KeptLayout, SplitterIsRemembered) {
  ASSERT_TRUE(user->Start());
  user->windows.Main().resize(780, 600);
  user->Settle();
  auto* splitter = user->windows.Main().findChild<QSplitter*>();
  QWidget* handle = splitter->handle(1);
  QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(4, 100));
  QTest::mouseMove(handle, QPoint(34, 100));
  QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(34, 100));
  user->Settle();
  const QList<int> sizes = splitter->sizes();
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->windows.Main().findChild<QSplitter*>()->sizes(), sizes);
  // Also by way of a fold.
  user->windows.Main().Fold().SetFolded(true);
  user->Settle();
  user->windows.Main().Fold().SetFolded(false);
  user->Settle();
  EXPECT_EQ(user->windows.Main().findChild<QSplitter*>()->sizes(), sizes);
  user->windows.Main().Fold().SetFolded(true);
  user->program.Quit();
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  user->windows.Main().Fold().SetFolded(false);
  user->Settle();
  EXPECT_EQ(user->windows.Main().findChild<QSplitter*>()->sizes(), sizes);
}

TEST_F(KeptLayout, SettingsAreFoldedByAKeyAndThatIsRemembered) {
  ASSERT_TRUE(user->Start());
  QWidget& main = user->windows.Main();
  main.resize(780, 580);
  user->Settle();
  user->WidgetOf<QWidget>(user->program.frmMain.cmdCountWords).setFocus();
  const int width = user->windows.Main().List().width();
  QTest::keyClick(&main, Qt::Key_F9);
  user->Settle();
  EXPECT_FALSE(main.findChild<QWidget*>("paneSettings")->isVisible());
  EXPECT_GT(user->windows.Main().List().width(), width);
  EXPECT_TRUE(user->windows.Main().List().hasFocus());
  EXPECT_EQ(user->windows.Main().Fold().accessibleName(), "Show the settings");
  user->program.Quit();
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  auto& again = user->windows.Main();
  EXPECT_FALSE(again.findChild<QWidget*>("paneSettings")->isVisible());
  QTest::mouseClick(&again.Fold(), Qt::LeftButton);
  user->Settle();
  EXPECT_TRUE(again.findChild<QWidget*>("paneSettings")->isVisible());
  EXPECT_NEAR(again.List().width(), width, 10);
}

/// Keys go where the keyboard is, as they do when a person types them.
void TypeKeys(QWidget& window, const QString& keys) {
  for (const QChar key : keys) QTest::keyClick(window.windowHandle(), key.toLatin1());
}

TEST_F(KeptLayout, FoldPutsTheKeyboardIntoTheViewInFront) {
  ASSERT_TRUE(user->Start());
  user->program.Sources().ChooseText(folder.Write("a.txt", "the cat the dog"));
  user->Click(user->program.frmMain.cmdCountWords);
  MainWindowView& main = user->windows.Main();
  const std::string list = user->Shown();
  for (const char* view : {"text", "table", "statistics", "files"}) {
    main.Fold().SetFolded(false);
    main.Views().Show(view);
    user->Settle();
    user->WidgetOf<QWidget>(user->program.frmMain.txbFile[0]).setFocus();
    user->Settle();
    QTest::keyClick(main.windowHandle(), Qt::Key_F9);
    user->Settle();
    const QWidget* focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr) << view;
    EXPECT_TRUE(focused->isVisible()) << view;
    EXPECT_TRUE(main.Views().currentWidget()->isAncestorOf(focused)) << view;
    if (QLatin1String(view) != QLatin1String("text")) TypeKeys(main, "dog");
    user->Settle();
    EXPECT_EQ(user->Shown(), list) << view;
  }
}

TEST_F(KeptLayout, ProgramPutsTheKeyboardIntoNothingThatIsFoldedAway) {
  ASSERT_TRUE(user->Start());
  MainWindowView& main = user->windows.Main();
  main.Fold().SetFolded(true);
  main.Views().Show("table");
  main.Views().currentWidget()->setFocus();
  user->Settle();
  user->program.frmMain.SetFocus(user->program.frmMain.txbFile[1]);
  user->Settle();
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

TEST_F(KeptLayout, SettingsGetTheirWidthBackWithTheLanguage) {
  ASSERT_TRUE(user->Start());
  user->windows.Main().resize(1024, 700);
  user->Settle();
  user->Click(user->program.frmMain.cmdLanguage);
  user->Click(user->program.frmMain.cmdLanguage);
  user->Settle();
  const QList<int> english = user->windows.Main().findChild<QSplitter*>()->sizes();
  user->Click(user->program.frmMain.cmdLanguage);
  user->Settle();
  EXPECT_GT(user->windows.Main().findChild<QSplitter*>()->sizes()[0], english[0]);
  user->Click(user->program.frmMain.cmdLanguage);
  user->Settle();
  EXPECT_EQ(user->windows.Main().findChild<QSplitter*>()->sizes(), english);
}

TEST_F(KeptLayout, SettingsLeaveHalfOfASmallerWindowToTheList) {
  ASSERT_TRUE(user->Start());
  user->Click(user->program.frmMain.cmdLanguage);
  MainWindowView& window = user->windows.Main();
  window.resize(1200, 700);
  user->Settle();
  window.resize(760, 560);
  user->Settle();
  const auto* settings = window.findChild<QWidget*>("paneSettings");
  const auto* result = window.findChild<QWidget*>("paneResult");
  EXPECT_LE(settings->width(), std::max(result->width(), settings->minimumSizeHint().width()));
  QTabBar& tabs = *window.Views().tabBar();
  for (int tab = 0; tab < tabs.count(); ++tab) {
    EXPECT_GE(tabs.tabRect(tab).width(), tabs.fontMetrics().horizontalAdvance("Statis")) << tab;
  }
  user->Click(user->program.frmMain.cmdLanguage);
}

TEST_F(KeptLayout, PlaceOfAWindowThatWasNeverOpenIsNotKept) {
  ASSERT_TRUE(user->Start());
  user->Click(user->program.frmMain.cmdHelp);
  user->windows.Help().move(11, 12);
  user->Click(user->program.frmHelp.cmdClose);
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_TRUE(user->windows.Help().testAttribute(Qt::WA_Moved));
  EXPECT_FALSE(user->windows.Panel().testAttribute(Qt::WA_Moved));
}

}  // namespace
}  // namespace quillomat
