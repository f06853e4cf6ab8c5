// The line above the list and the window of exports, on the screen.
#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>
#include <gmock/gmock.h>

#include "window_fixture.h"

namespace quillomat {
namespace {

class NoticeStripTest : public WindowFixture {
 protected:
  NoticeStripTest() {
    EXPECT_TRUE(user->Start());
    user->windows.Main().resize(1024, 700);
    user->program.frmParams.txbWordsToIgnoreOrCount[0].SetText("the and");
  }
  void Count(const std::string& text) {
    user->program.Sources().ChooseText(folder.Write("a.txt", text));
    user->Click(frmMain.cmdCountWords);
  }

  MainForm& frmMain = user->program.frmMain;
  QWidget& strip = *user->windows.Main().findChild<QWidget*>("stripNotice");
};

TEST_F(NoticeStripTest, IsThereOnlyWhileThereIsSomethingToSay) {
  EXPECT_FALSE(strip.isVisible());
  Count("the cat");
  EXPECT_TRUE(strip.isVisible());
  auto& label = user->WidgetOf<QLabel>(frmMain.lblNotice);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name),
            "A list of 2 words to ignore is in use.");
  user->Click(frmMain.cmdDismissNotice);
  EXPECT_FALSE(strip.isVisible());
}

TEST_F(NoticeStripTest, ChangeLeadsToWhatIsToBeChanged) {
  Count("caf\xE9");
  user->windows.Panel().resize(860, 300);
  user->Click(frmMain.cmdNotice[0]);
  auto& encoding = user->WidgetOf<QComboBox>(user->program.frmParams.cboEncoding);
  EXPECT_EQ(user->windows.Panel().focusWidget(), &encoding);
  EXPECT_TRUE(user->windows.Panel().testAttribute(Qt::WA_KeyboardFocusChange)) << "it is seen";
  EXPECT_EQ(encoding.visibleRegion().boundingRect(), encoding.rect()) << "it is scrolled to";
}

TEST_F(NoticeStripTest, LettersOfThePanelLeadToLettersAndEncoding) {
  for (int language = 0; language < 2; ++language) {
    user->Settle();
    for (const Label* label :
         {&user->program.frmParams.lblLetters, &user->program.frmParams.lblEncoding}) {
      EXPECT_TRUE(user->WidgetOf<QLabel>(*label).text().contains('&')) << label->Name();
    }
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_F(NoticeStripTest, IsNeverHigherThanALineOfCommands) {
  Count("the cat");
  const int height = strip.height();
  EXPECT_LE(height, user->WidgetOf<QWidget>(frmMain.cmdNotice[0]).height() + 8);
  frmMain.lblNotice.SetCaption(std::string(2000, 'x'));
  user->Settle();
  EXPECT_EQ(strip.height(), height);
  EXPECT_EQ(user->windows.Main().size(), QSize(1024, 700));
}

TEST_F(NoticeStripTest, CommandsMakeRoomForTheNotice) {
  Count("the cat");
  auto& label = user->WidgetOf<QLabel>(frmMain.lblNotice);
  auto& change = user->WidgetOf<QPushButton>(frmMain.cmdNotice[0]);
  auto* more = strip.findChild<QToolButton*>();
  EXPECT_TRUE(change.isVisible());
  EXPECT_FALSE(more->isVisible());
  // As wide as the line without its commands.
  std::string text;
  while (label.fontMetrics().horizontalAdvance(ToQt(text)) < strip.width() - 60) text += "word ";
  frmMain.lblNotice.SetCaption(text);
  user->Settle();
  EXPECT_FALSE(change.isVisible());
  ASSERT_TRUE(more->isVisible());
  EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text()) * 3 / 4);
  EXPECT_FALSE(more->accessibleName().isEmpty());
  emit more->menu()->aboutToShow();
  ASSERT_EQ(more->menu()->actions().size(), 1);
  more->menu()->actions().constFirst()->trigger();
  user->Settle();
  EXPECT_TRUE(user->windows.Panel().isVisible());
  frmMain.lblNotice.SetCaption("Short.");
  user->Settle();
  EXPECT_TRUE(change.isVisible());
}

TEST_F(NoticeStripTest, NoticeCanBeReadInASmallWindow) {
  auto& label = dynamic_cast<ElidedLabel&>(user->WidgetOf<QLabel>(frmMain.lblNotice));
  user->windows.Main().resize(760, 560);
  for (int language = 0; language < 2; ++language) {
    Count("the cat");
    for (const char* text :
         {"The text shows 1,770 of 12,586 words.", "Der Text zeigt 1.770 von 12.586 Wörtern."}) {
      frmMain.lblNotice.SetCaption(text);
      user->Settle();
      EXPECT_FALSE(label.IsCut()) << text << label.width();
    }
    frmMain.lblNotice.SetCaption(std::string(2000, 'x'));
    user->Settle();
    EXPECT_TRUE(label.IsCut());
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_F(NoticeStripTest, CommandsAreReachedByTheKeyboardAndHaveNames) {
  Count("the cat");
  auto& change = user->WidgetOf<QPushButton>(frmMain.cmdNotice[0]);
  auto& dismiss = user->WidgetOf<QPushButton>(frmMain.cmdDismissNotice);
  EXPECT_EQ(dismiss.accessibleName(), "Close this notice.");
  user->WidgetOf<QWidget>(frmMain.cmdQuit).setFocus();
  QTest::keyClick(&user->windows.Main(), Qt::Key_Tab);
  EXPECT_TRUE(change.hasFocus());
  QTest::keyClick(&change, Qt::Key_Return);
  user->Settle();
  EXPECT_TRUE(user->windows.Panel().isVisible());
}

TEST_F(NoticeStripTest, ManyLinesAreShownToBeScrolledThrough) {
  std::string lines;
  for (int i = 0; i < 500; ++i) lines += "/a/path/" + std::to_string(i) + "\r\n";
  QString shown;
  QTimer::singleShot(20, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), "Skipped files");
    shown = dialog->findChild<QPlainTextEdit*>()->toPlainText();
    EXPECT_LE(dialog->height(), 600);
    QTest::qWait(static_cast<int>((2 * BoxGuard::kPause).count()));
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  user->desktop.ShowText(lines, "Skipped files");
  EXPECT_EQ(shown.count('\n'), 500);
}

TEST_F(NoticeStripTest, NameOfTheExportIsSelectedWhenItsWindowOpens) {
  Count("the cat the dog cat");
  for (int times = 0; times < 2; ++times) {
    user->Click(frmMain.cmdExport);
    auto& box = user->WidgetOf<QLineEdit>(user->program.frmExport.txbFile);
    EXPECT_EQ(box.selectedText(), "a");
    EXPECT_TRUE(box.text().left(box.cursorPosition()).endsWith("/a")) << "it is in view";
    box.deselect();
    user->Click(user->program.frmExport.cmdClose);
  }
}

TEST_F(NoticeStripTest, ListIsExportedByTheKeyboardAlone) {
  Count("the cat the dog cat");
  user->Click(frmMain.cmdExport);
  ASSERT_TRUE(user->windows.Export().isVisible());
  const std::string path = folder / "list.csv";
  user->Type(user->program.frmExport.txbFile, path);
  QTest::keyClick(&user->WidgetOf<QWidget>(user->program.frmExport.txbFile), Qt::Key_Return);
  user->Settle();
  EXPECT_TRUE(ContentsOf(path).starts_with("rank,word,frequency,"));
  EXPECT_TRUE(
      user->WidgetOf<QLabel>(user->program.frmExport.lblState).text().contains("is written"));
  QTest::keyClick(&user->windows.Export(), Qt::Key_Escape);
  user->Settle();
  EXPECT_FALSE(user->windows.Export().isVisible());
}

}  // namespace
}  // namespace quillomat
