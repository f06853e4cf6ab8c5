// What people expect of a window on top of its controls.
#include <QDropEvent>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>
#include <gmock/gmock.h>

#include "window_fixture.h"

namespace quillomat {
namespace {

class MainWindowViewTest : public WindowFixture {
 protected:
  MainWindowViewTest() { EXPECT_TRUE(user->Start()); }

  /// What a file manager offers to be moved.
  static void DropOn(QWidget& widget, const QMimeData& data) {
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(10, 10), possible, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&widget, &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(QPointF(10, 10), possible, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&widget, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    ProgramOnDesktop::Settle();
  }
  static void DropFilesOn(QWidget& widget, const std::vector<std::string>& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const std::string& path : paths) urls.append(QUrl::fromLocalFile(ToQt(path)));
    data.setUrls(urls);
    DropOn(widget, data);
  }
  void Drop(const std::string& path) { DropFilesOn(user->windows.Main(), {path}); }

  void Press(const QKeySequence& keys) {
    QTest::keySequence(&user->windows.Main(), keys);
    user->Settle();
  }

  MainForm& frmMain = user->program.frmMain;
};

TEST_F(MainWindowViewTest, DroppedFileAndFolderAreChosen) {
  const std::string path = folder.Write("a.txt", "cat\n");
  Drop(path);
  EXPECT_TRUE(frmMain.optInFile.Value());
  EXPECT_EQ(frmMain.txbFile[0].Text(), path);
  EXPECT_NE(frmMain.lblFilesize.Caption(), "");
  Drop(folder.Path());
  EXPECT_TRUE(frmMain.optFolder.Value());
  EXPECT_EQ(frmMain.txbFolder.Text(), folder.Path());
}

TEST_F(MainWindowViewTest, SeveralFilesAndTextAreAnswered) {
  boxes.Answer(QMessageBox::Ok);
  DropFilesOn(user->windows.Main(), {folder.Write("a.txt", "cat"), folder.Write("b.txt", "dog")});
  boxes.Answer(QMessageBox::Ok);
  QMimeData text;
  text.setText("a piece of text");
  DropOn(user->windows.Main(), text);
  EXPECT_THAT(boxes.Texts(), testing::ElementsAre(testing::HasSubstr("one file or one folder"),
                                                  testing::HasSubstr("Only a file or a folder")));
  EXPECT_EQ(frmMain.txbFile[0].Text(), "");
}

TEST_F(MainWindowViewTest, FileDroppedOnTheBoxOfTheOutputFileIsThat) {
  const std::string path = folder.Write("list.txt", "");
  DropFilesOn(user->WidgetOf<QWidget>(frmMain.txbFile[1]), {path});
  EXPECT_EQ(frmMain.txbFile[1].Text(), path);
  EXPECT_EQ(frmMain.txbFile[0].Text(), "");
}

TEST_F(MainWindowViewTest, EnterStartsTheCount) {
  user->Type(frmMain.txbFolder, folder.Path());
  static_cast<void>(folder.Write("a.txt", "cat\n"));
  QTest::keyClick(&user->WidgetOf<QWidget>(frmMain.txbFolder), Qt::Key_Return);
  user->Settle();
  EXPECT_THAT(user->Shown(), testing::HasSubstr("cat"));
}

TEST_F(MainWindowViewTest, EnterOnACommandIsThatCommand) {
  auto& quit = user->WidgetOf<QWidget>(frmMain.cmdHelp);
  quit.setFocus();
  QTest::keyClick(&quit, Qt::Key_Return);
  user->Settle();
  EXPECT_TRUE(user->windows.Help().isVisible());
  EXPECT_EQ(user->Shown(), "");
}

TEST_F(MainWindowViewTest, EscapeStopsTheCount) {
  std::string text;
  for (int i = 0; i < 3'000'000; ++i) text += "word" + std::to_string(i % 5000) + " ";
  user->program.ChooseText(folder.Write("long.txt", text));
  boxes.Answer(QMessageBox::No);
  QTimer::singleShot(40, [&] { QTest::keyClick(&user->windows.Main(), Qt::Key_Escape); });
  user->Click(frmMain.cmdCountWords);
  EXPECT_THAT(boxes.TitlesSeen(), testing::ElementsAre("Counting interrupted"));
  EXPECT_FALSE(user->program.state.completeRun);
}

TEST_F(MainWindowViewTest, FindBarFindsRoundTheEndAndSaysWhenThereIsNothing) {
  user->program.ChooseText(folder.Write("a.txt", "cat dog emu\n"));
  user->Click(frmMain.cmdCountWords);
  Press(QKeySequence::Find);
  FindBar& bar = user->windows.Main().Finder();
  ASSERT_TRUE(bar.isVisible());
  auto* word = bar.findChild<QLineEdit*>();
  QTest::keyClicks(word, "dog");
  const auto& list = user->windows.Main().List();
  EXPECT_EQ(list.textCursor().selectedText(), "dog");
  QTest::keyClick(word, Qt::Key_Return);
  EXPECT_EQ(list.textCursor().selectedText(), "dog") << "the only one is found again";
  QTest::keyClicks(word, "x");
  const auto labels = bar.findChildren<QLabel*>();
  EXPECT_TRUE(std::ranges::any_of(
      labels, [](const QLabel* label) { return label->text() == "Not found"; }));
  QTest::keyClick(word, Qt::Key_Escape);
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(MainWindowViewTest, ListCanBeZoomedAndTheSizeIsRemembered) {
  ListView& list = user->windows.Main().List();
  const qreal usual = list.font().pointSizeF();
  Press(QKeySequence(Qt::CTRL | Qt::Key_Plus));
  Press(QKeySequence(Qt::CTRL | Qt::Key_Plus));
  EXPECT_DOUBLE_EQ(list.font().pointSizeF(), usual + 2);
  list.SetZoom(1000);
  EXPECT_EQ(list.Zoom(), ListView::kLargestZoom);
  Press(QKeySequence(Qt::CTRL | Qt::Key_0));
  EXPECT_DOUBLE_EQ(list.font().pointSizeF(), usual);
  Press(QKeySequence(Qt::CTRL | Qt::Key_Minus));
  user->Click(frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->windows.Main().List().Zoom(), -1);
}

TEST_F(MainWindowViewTest, FolderUsedLastIsRemembered) {
  user->program.ChooseText(folder.Write("a.txt", "cat\n"));
  user->Click(frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->program.state.lastFolder, folder.Path());
}

TEST_F(MainWindowViewTest, SizeOfTheWindowIsRemembered) {
  user->windows.Main().resize(900, 640);
  user->Click(frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->windows.Main().size(), QSize(900, 640));
}

TEST_F(MainWindowViewTest, NothingIsCutOffAtTheSmallestSize) {
  for (int language = 0; language < 2; ++language) {
    FormWindow& window = user->windows.Main();
    window.resize(1024, 700);
    user->Settle();
    EXPECT_LE(window.minimumSizeHint().width(), 1024);
    EXPECT_LE(window.minimumSizeHint().height(), 700);
    for (const Control* control : frmMain.Controls()) {
      const auto& widget = user->WidgetOf<QWidget>(*control);
      if (control->Kind() != ControlKind::kTextBox && widget.isVisible()) {
        EXPECT_GE(widget.width(), widget.minimumSizeHint().width()) << control->Name();
        EXPECT_TRUE(
            window.rect().contains(QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size())))
            << control->Name();
      }
    }
    user->Click(frmMain.cmdLanguage);
  }
}

}  // namespace
}  // namespace quillomat
