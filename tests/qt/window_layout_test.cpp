// How the main window gives its room to its parts, and its place on the screen.
#include <QFontInfo>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <gtest/gtest.h>

#include "layout_checks.h"
#include "qt/fixed_font.h"
#include "qt/window_memory.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

using WindowLayout = WindowFixture;

TEST_F(WindowLayout, ListShowsThirtyLinesInAWindowOfUsualSize) {
  ASSERT_TRUE(user->Start());
  for (const bool finding : {false, true}) {
    if (finding) user->windows.Main().Finder().Open();
    user->windows.Main().resize(1024, 700);
    user->Settle();
    const ListView& list = user->windows.Main().List();
    EXPECT_GE(list.viewport()->height() / list.fontMetrics().lineSpacing(), 30);
  }
}

TEST_F(WindowLayout, ListShowsThirtyLinesBelowANoticeToo) {
  ASSERT_TRUE(user->Start());
  MainForm& frmMain = user->program.frmMain;
  frmMain.lblNotice.SetCaption("The text shows 1,770 of 12,586 words.");
  frmMain.lblNotice.SetVisible(true);
  for (CommandButton& command : frmMain.cmdNotice) {
    command.SetCaption("Export...");
    command.SetVisible(true);
  }
  for (const bool finding : {false, true}) {
    if (finding) user->windows.Main().Finder().Open();
    user->windows.Main().resize(1024, 700);
    user->Settle();
    const ListView& list = user->windows.Main().List();
    EXPECT_GE(list.viewport()->height() / list.fontMetrics().lineSpacing(), 30) << finding;
  }
}

TEST_F(WindowLayout, SettingsScrollOnlyWhereTheyMust) {
  const Letters letters(9);
  ASSERT_TRUE(user->Start());
  QWidget& window = user->windows.Main();
  const auto* area = window.findChild<QScrollArea*>("areaSettings");
  for (int language = 0; language < 2; ++language) {
    for (const int width : {800, 1024, 1600}) {
      window.resize(width, 760);
      user->Settle();
      EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << width;
    }
    user->Click(user->program.frmMain.cmdLanguage);
  }
}

TEST_F(WindowLayout, CountIsRunAndSeenWhileTheSettingsAreFolded) {
  ASSERT_TRUE(user->Start());
  QWidget& main = user->windows.Main();
  MainForm& frmMain = user->program.frmMain;
  auto& count = user->WidgetOf<QPushButton>(frmMain.cmdCountWords);
  auto& bar = *main.findChild<QProgressBar*>("barProgress");
  const QPoint place = count.mapTo(&main, QPoint(0, 0));
  for (const QSize size : {QSize(760, 560), QSize(1600, 1000)}) {
    main.resize(size);
    user->windows.Main().Fold().SetFolded(true);
    user->Settle();
    EXPECT_TRUE(count.isVisible());
    EXPECT_FALSE(bar.isVisible());
    frmMain.lblTotalNumOccurrences.SetProgress(Progress{1, 2});
    user->Settle();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_GE(bar.width(), 120);
    ExpectWellLaidOut(main);
    frmMain.lblTotalNumOccurrences.SetProgress(std::nullopt);
    count.setFocus();
    user->windows.Main().Fold().SetFolded(false);
    user->Settle();
    EXPECT_TRUE(count.isVisible());
    EXPECT_TRUE(count.hasFocus());
    EXPECT_FALSE(bar.isVisible());
    ExpectWellLaidOut(main);
  }
  main.resize(1024, 700);
  user->Settle();
  EXPECT_EQ(count.mapTo(&main, QPoint(0, 0)).x(), place.x());
}

TEST_F(WindowLayout, NothingJumpsWhenANoticeComesOrGoes) {
  ASSERT_TRUE(user->Start());
  MainForm& frmMain = user->program.frmMain;
  for (const QSize size : {QSize(760, 560), QSize(1600, 1000)}) {
    user->windows.Main().resize(size);
    frmMain.lblNotice.SetVisible(false);
    user->Settle();
    const QRect without = user->windows.Main().Views().geometry();
    frmMain.lblNotice.SetCaption("The text shows 1,770 of 12,586 words.");
    frmMain.lblNotice.SetVisible(true);
    frmMain.cmdNotice[0].SetCaption("Export...");
    frmMain.cmdNotice[0].SetVisible(true);
    user->Settle();
    EXPECT_EQ(user->windows.Main().Views().geometry(), without);
  }
}

TEST_F(WindowLayout, NothingMovesWhileAFilterIsTyped) {
  ASSERT_TRUE(user->Start());
  MainWindowView& window = user->windows.Main();
  std::string text;
  for (int i = 0; i < 4'000'000; ++i) text += "word ";
  user->program.Sources().ChooseText(folder.Write("long.txt", text));
  boxes.Answer(QMessageBox::Yes);
  ClickWhenItCounts(*user);
  window.Views().Show("table");
  window.Table().findChild<QComboBox*>()->setCurrentIndex(
      static_cast<int>(FilterKind::kExpression));
  auto& filter = *window.Table().findChild<QLineEdit*>();
  const int least = window.minimumSizeHint().width();
  for (const int width : {least, 760, 900, 1024, 1366}) {
    filter.clear();
    window.resize(width, 700);
    user->Settle();
    const QRect table = window.Table().View().geometry();
    const QRect box = filter.geometry();
    for (const char* const typed : {"w", "(", "nothing that there is"}) {
      filter.setText(typed);
      user->Settle();
      EXPECT_EQ(window.Table().View().geometry(), table) << width << typed;
      EXPECT_EQ(filter.geometry(), box) << width << typed;
      EXPECT_EQ(window.minimumSizeHint().width(), least) << width << typed;
    }
  }
}

TEST_F(WindowLayout, NoWindowOpensLargerThanItsScreen) {
  ASSERT_TRUE(user->Start());
  user->windows.Main().resize(5000, 5000);
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  const QSize room = user->windows.Main().screen()->availableSize();
  for (const QWidget* window :
       {static_cast<QWidget*>(&user->windows.Main()), static_cast<QWidget*>(&user->windows.Panel()),
        static_cast<QWidget*>(&user->windows.Help())}) {
    EXPECT_LE(window->width(), room.width());
    EXPECT_LE(window->height(), room.height());
  }
  EXPECT_EQ(SizeOnScreen(QSize(1024, 700), QSize(1600, 1000)), QSize(1024, 700));
  EXPECT_EQ(SizeOnScreen(QSize(1024, 700), QSize(683, 384)), QSize(667, 336));
}

TEST_F(WindowLayout, WindowFitsOnASmallScreenOfDoubleSize) {
  ASSERT_TRUE(user->Start());
  const QSize screen = SizeOnScreen(QSize(1024, 700), QSize(683, 384));
  user->windows.Main().resize(screen);
  user->Settle();
  EXPECT_EQ(user->windows.Main().size(), screen);
  ExpectWellLaidOut(user->windows.Main());
}

TEST_F(WindowLayout, PanelAndHelpOpenOverTheMainWindowAndWholeOnTheScreen) {
  const QRect screen(0, 0, 1280, 900);
  EXPECT_EQ(PlaceOver(QRect(100, 100, 1024, 700), QSize(800, 552), screen), QPoint(204, 150));
  EXPECT_EQ(PlaceOver(QRect(900, 700, 400, 300), QSize(584, 352), screen), QPoint(680, 500));
  EXPECT_EQ(PlaceOver(QRect(0, 0, 100, 100), QSize(584, 352), screen), QPoint(0, 0));
  EXPECT_EQ(PlaceOver(QRect(0, 0, 1280, 900), QSize(2000, 1000), screen), QPoint(0, 0));
  ASSERT_TRUE(user->Start());
  QWidget& main = user->windows.Main();
  main.move(30, 40);
  user->Settle();
  user->Click(user->program.frmMain.cmdHelp);
  const QWidget& help = user->windows.Help();
  EXPECT_EQ(help.pos(),
            PlaceOver(main.frameGeometry(), help.size(), help.screen()->availableGeometry()));
}

TEST_F(WindowLayout, BoxesOfTheListStandOneBelowTheOther) {
  const Letters letters(9);
  ASSERT_TRUE(user->Start());
  const MainForm& frmMain = user->program.frmMain;
  user->windows.Main().resize(1024, 700);
  for (int language = 0; language < 2; ++language) {
    user->Settle();
    EXPECT_EQ(user->WidgetOf<QComboBox>(frmMain.cboWordOrder).x(),
              user->WidgetOf<QComboBox>(frmMain.cboDisplayFormat).x());
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_F(WindowLayout, WhatFindSaysIsALineAndNotAColumn) {
  const Letters letters(9);
  ASSERT_TRUE(user->Start());
  std::string text;
  for (char a = 'a'; a <= 'z'; ++a) {
    for (char b = 'a'; b <= 'z'; ++b) {
      for (char c = 'a'; c <= 'z'; ++c) text += std::string("word") + a + b + c + " ";
    }
  }
  user->program.Sources().ChooseText(folder.Write("many.txt", text));
  boxes.Answer(QMessageBox::Ok);
  user->windows.Main().resize(1024, 700);
  user->Click(user->program.frmMain.cmdCountWords);
  FindBar& bar = user->windows.Main().Finder();
  bar.Open();
  QTest::keyClicks(bar.findChild<QLineEdit*>(), "wordzzz");
  user->Settle();
  const auto labels = bar.findChildren<QLabel*>();
  const auto outcome = std::ranges::find_if(labels, [](const QLabel* label) {
    return label->text().contains("below the end of this text");
  });
  ASSERT_NE(outcome, labels.end());
  EXPECT_LE((*outcome)->height(), 2 * (*outcome)->fontMetrics().lineSpacing());
}

TEST_F(WindowLayout, NoticesBearTheWindowsFontWhateverTheListsSize) {
  ASSERT_TRUE(user->Start());
  user->windows.Main().List().SetZoom(20);
  user->Settle();
  const MainForm& frmMain = user->program.frmMain;
  for (const Label* notice : {&frmMain.lblCopyrightNotice, &frmMain.lblOnlineDocumentation,
                              &frmMain.lblOrvandelSystems}) {
    const QFont font = user->WidgetOf<QLabel>(*notice).font();
    EXPECT_EQ(font.families(), user->windows.Main().font().families()) << notice->Name();
    EXPECT_EQ(font.pointSizeF(), user->windows.Main().font().pointSizeF()) << notice->Name();
  }
}

TEST(FixedFont, LettersOfAProportionalWishAreReplaced) {
  QFont wish("DejaVu Sans", 13);
  ASSERT_FALSE(QFontInfo(wish).fixedPitch());
  const QFont font = FixedPitchFont(wish);
  EXPECT_TRUE(QFontInfo(font).fixedPitch());
  EXPECT_EQ(font.pointSize(), 13);
  EXPECT_TRUE(QFontInfo(ListFont()).fixedPitch());
}

}  // namespace
}  // namespace quillomat
