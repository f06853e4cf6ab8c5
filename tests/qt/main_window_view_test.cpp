// What people expect of a window on top of its controls.
#include <QAccessible>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextLayout>
#include <QUrl>
#include <QWheelEvent>
#include <gmock/gmock.h>

#include "qt/figure_label.h"
#include "qt/mixed_color.h"
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

TEST_F(MainWindowViewTest, LinksAreReadableWithoutAColourOfTheDesktopForThem) {
  QPalette dark;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::Link, Qt::blue);
  const QColor link = ReadableColor(Qt::blue, dark);
  EXPECT_GE(ContrastOf(link, Qt::black), 4.5);
  EXPECT_GT(link.blue(), link.red()) << "still a link's";
  dark.setColor(QPalette::Base, Qt::white);
  EXPECT_EQ(ReadableColor(Qt::blue, dark), QColor(Qt::blue));
}

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

TEST_F(MainWindowViewTest, SizeOfTheFileStandsInTheRowOfTheFile) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat\n"));
  user->Settle();
  const auto top = [this](const Control& control) {
    auto& widget = user->WidgetOf<QWidget>(control);
    return widget.mapTo(&user->windows.Main(), widget.rect().center()).y();
  };
  const int file = std::abs(top(frmMain.lblFilesize) - top(frmMain.optInFile));
  const int clipboard = std::abs(top(frmMain.lblFilesize) - top(frmMain.optOnClipboard));
  EXPECT_LT(file, clipboard);
}

TEST_F(MainWindowViewTest, EnterInAViewOfTheResultStartsNoCount) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat\n"));
  user->Click(frmMain.cmdCountWords);
  int counts = 0;
  frmMain.cmdCountWords.Click.Connect([&counts] { ++counts; });
  for (const char* view : {"table", "statistics", "files"}) {
    user->windows.Main().Views().Show(QLatin1String(view));
    user->windows.Main().Views().currentWidget()->setFocus();
    QTest::keyClick(user->windows.Main().focusWidget(), Qt::Key_Return);
    user->Settle();
    EXPECT_EQ(counts, 0) << view;
  }
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
  user->program.Sources().ChooseText(folder.Write("long.txt", text));
  boxes.Answer(QMessageBox::No);
  CountAndMeanwhile(*user, [&] { QTest::keyClick(&user->windows.Main(), Qt::Key_Escape); });
  EXPECT_THAT(boxes.TitlesSeen(), testing::ElementsAre("Counting interrupted"));
  EXPECT_FALSE(user->program.Words().completeRun);
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

TEST_F(MainWindowViewTest, EveryViewIsZoomed) {
  MainWindowView& main = user->windows.Main();
  const QList<QWidget*> tables = {&main.Table().View(), &main.StatisticsView().Table(),
                                  &main.FilesView().Table()};
  QList<qreal> usual;
  for (const QWidget* table : tables) usual.append(table->font().pointSizeF());
  Press(QKeySequence(Qt::CTRL | Qt::Key_Plus));
  Press(QKeySequence(Qt::CTRL | Qt::Key_Plus));
  for (qsizetype i = 0; i < tables.size(); ++i) {
    EXPECT_DOUBLE_EQ(tables[i]->font().pointSizeF(), usual[i] + 2) << i;
  }
}

TEST_F(MainWindowViewTest, FolderUsedLastIsRemembered) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat\n"));
  user->Click(frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->program.Paths().LastFolder(), folder.Path());
}

TEST_F(MainWindowViewTest, SizeOfTheWindowIsRemembered) {
  user->windows.Main().resize(770, 590);
  user->Click(frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->windows.Main().size(), QSize(770, 590));
}

TEST_F(MainWindowViewTest, OneBarShowsTheWholeRun) {
  auto* bar = user->windows.Main().findChild<QProgressBar*>();
  EXPECT_FALSE(bar->isVisible());
  frmMain.lblTotalNumOccurrences.SetVisible(true);
  frmMain.lblTotalNumOccurrences.SetCaption("[->     ]");
  frmMain.lblTotalNumOccurrences.SetProgress(Progress{500, 1000});
  user->Settle();
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(bar->text(), "50 %");
  EXPECT_FALSE(user->WidgetOf<QLabel>(frmMain.lblTotalNumOccurrences).isVisible());
  frmMain.lblNumOccurrences.SetProgress(Progress{100, 1000, 3, 12});
  user->Settle();
  EXPECT_EQ(FromQt(bar->text()), "File 3 of 12 \u2013 10 %") << "a folder's, not its file's";
  EXPECT_EQ(bar->accessibleName(), "Progress of the count");
  frmMain.lblNumOccurrences.SetProgress(std::nullopt);
  frmMain.lblTotalNumOccurrences.SetProgress(std::nullopt);
  user->Settle();
  EXPECT_FALSE(bar->isVisible());
  EXPECT_TRUE(user->WidgetOf<QLabel>(frmMain.lblTotalNumOccurrences).isVisible());
}

TEST_F(MainWindowViewTest, BarTellsThePaceWhereThereIsRoom) {
  auto* bar = user->windows.Main().findChild<QProgressBar*>();
  const std::chrono::seconds elapsed(2);
  frmMain.lblNumOccurrences.SetVisible(true);
  frmMain.lblNumOccurrences.SetProgress(Progress{200'000'000, 1'000'000'000, 3, 12, elapsed});
  user->windows.Main().resize(1600, 900);
  user->Settle();
  frmMain.lblNumOccurrences.SetProgress(Progress{400'000'000, 1'000'000'000, 3, 12, elapsed});
  user->Settle();
  EXPECT_EQ(FromQt(bar->text()), "File 3 of 12 \u2013 40 % \u2013 191 MB/s, 0:03 left");
  bar->setFixedWidth(160);
  frmMain.lblNumOccurrences.SetProgress(Progress{500'000'000, 1'000'000'000, 3, 12, elapsed});
  EXPECT_THAT(FromQt(bar->text()), testing::HasSubstr("40 %")) << "nobody sees every step";
  user->Settle();
  EXPECT_EQ(FromQt(bar->text()), "File 3 of 12 \u2013 50 %");
}

TEST_F(MainWindowViewTest, CaretStandsWhereTheTextBoxHasIt) {
  TextBox& text = frmMain.txbOutput;
  const ListView& list = user->windows.Main().List();
  text.SetText("\u00E4\r\nb");
  for (const char* more : {"\r\nc", " \u00E4", "\r\n"}) {
    text.AppendText(more);
    text.SetSelStart(text.Length());
    user->Settle();
    EXPECT_TRUE(list.textCursor().atEnd()) << more;
  }
  text.SetSelStart(4);  // a line break is two characters there
  user->Settle();
  EXPECT_EQ(list.textCursor().position(), 3);
}

TEST_F(MainWindowViewTest, SignThatTurnsWhileACountRunsIsNotReadOut) {
  frmMain.lblTwirler.SetCaption("\u2588 ");
  user->Settle();
  auto& sign = user->WidgetOf<QLabel>(frmMain.lblTwirler);
  ASSERT_EQ(sign.text(), "\u2588 ");
  const QString read = QAccessible::queryAccessibleInterface(&sign)->text(QAccessible::Name);
  EXPECT_EQ(read.trimmed(), "");
}

TEST_F(MainWindowViewTest, WheelZoomsOverEveryView) {
  MainWindowView& main = user->windows.Main();
  int zoom = main.List().Zoom();
  for (QAbstractScrollArea* view :
       {static_cast<QAbstractScrollArea*>(&main.List()),
        static_cast<QAbstractScrollArea*>(&main.Table().View()),
        static_cast<QAbstractScrollArea*>(&main.StatisticsView().Table()),
        static_cast<QAbstractScrollArea*>(&main.FilesView().Table())}) {
    QWheelEvent turn(QPointF(5, 5), view->viewport()->mapToGlobal(QPointF(5, 5)), {}, {0, 120},
                     Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &turn);
    EXPECT_EQ(main.List().Zoom(), ++zoom);
  }
}

TEST_F(MainWindowViewTest, ColumnsOfAListStandInTheirOrderBesideWordsWrittenFromTheRight) {
  user->program.frmParams.cboLetters.PerformChoice(1);
  user->program.Sources().ChooseText(folder.Write("a.txt", "\u05E9\u05DC\u05D5\u05DD"));
  user->Click(frmMain.cmdCountWords);
  const ListView& list = user->windows.Main().List();
  const QTextBlock row = list.document()->lastBlock().previous();
  const QString text = row.text();
  const auto placeOf = [&row, &text](QChar first) {
    const qsizetype at = text.indexOf(first);
    EXPECT_GE(at, 0) << FromQt(text);
    return row.layout()->lineAt(0).cursorToX(static_cast<int>(at));
  };
  EXPECT_LT(placeOf(QLatin1Char('1')), placeOf(QChar(0x05DD))) << FromQt(text);
}

TEST_F(MainWindowViewTest, ListOfFilesComesToTheFront) {
  EXPECT_NE(folder.Write("a.txt", "cat"), "");
  user->program.Sources().ChooseText(folder.Path());
  ResultTabs& views = user->windows.Main().Views();
  views.setCurrentIndex(1);
  user->Click(frmMain.cmdListFiles);
  EXPECT_EQ(views.currentIndex(), 0);
}

TEST_F(MainWindowViewTest, NumbersOfTheSummaryStandApart) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog emu cat\n"));
  user->Click(frmMain.cmdCountWords);
  const auto& label = user->WidgetOf<FigureLabel>(frmMain.lblNumOccurrences);
  EXPECT_EQ(label.text(), "Number of instances of words in this list:");
  EXPECT_EQ(label.Figure(), "4");
  EXPECT_EQ(frmMain.lblNumOccurrences.Caption(), "Number of instances of words in this list: 4");
}

TEST_F(MainWindowViewTest, LettersStayWhereTheyAreWhileACountRuns) {
  const auto shown = [this] {
    QStringList captions;
    for (const Control* control : frmMain.Controls()) {
      const auto* button = qobject_cast<QAbstractButton*>(&user->WidgetOf<QWidget>(*control));
      if (button != nullptr && control != &frmMain.cmdCountWords) captions.append(button->text());
    }
    return captions;
  };
  const QStringList before = shown();
  const QString count = user->WidgetOf<QPushButton>(frmMain.cmdCountWords).text();
  frmMain.cmdCountWords.SetCaption("Stop");
  user->Settle();
  EXPECT_TRUE(user->WidgetOf<QPushButton>(frmMain.cmdCountWords).text().contains('&'));
  EXPECT_EQ(shown(), before);
  frmMain.cmdCountWords.SetCaption("Count word frequencies");
  user->Settle();
  EXPECT_EQ(user->WidgetOf<QPushButton>(frmMain.cmdCountWords).text(), count);
}

TEST_F(MainWindowViewTest, ListsOfOrderAndFormatAreReachedByALetter) {
  for (int language = 0; language < 2; ++language) {
    for (const Label* label : {&frmMain.Label1, &frmMain.Label2}) {
      const auto& widget = user->WidgetOf<QLabel>(*label);
      EXPECT_TRUE(widget.isVisible());
      EXPECT_TRUE(widget.text().contains('&')) << label->Name();
      EXPECT_TRUE(qobject_cast<QComboBox*>(widget.buddy())) << label->Name();
    }
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_F(MainWindowViewTest, ScreenReaderSaysWhatCameOfACountWhenItHasEnded) {
  std::vector<std::string> heard;
  user->windows.Main().announce = [&heard](const QWidget& label) {
    heard.push_back(FromQt(label.accessibleName()));
  };
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog emu cat\n"));
  user->Click(frmMain.cmdCountWords);
  EXPECT_THAT(heard, testing::ElementsAre("Number of words in this list: 3"));
  user->Choose(frmMain.cboWordOrder, 1);
  EXPECT_EQ(heard.size(), 1U) << "the same words in another order are no news";
  user->Click(frmMain.cmdCountWords);
  EXPECT_EQ(heard.size(), 2U);
}

}  // namespace
}  // namespace quillomat
