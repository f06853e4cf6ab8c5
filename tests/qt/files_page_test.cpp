// The files of a count, and the menu of common words, as a person uses them.
#include <QActionGroup>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <filesystem>
#include <gmock/gmock.h>

#include "app/count/common_words.h"
#include "qt/list_table.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

class FilesPageTest : public WindowFixture {
 protected:
  FilesPageTest() { EXPECT_TRUE(user->Start()); }

  MainWindowView& Window() { return user->windows.Main(); }
  QTableView& Table() { return Window().FilesView().Table(); }

  void CountThree() {
    static_cast<void>(folder.Write("texts/a.txt", "a line\n"));
    static_cast<void>(folder.Write("texts/b.txt", "one\r\ntwo\r\nthree"));
    static_cast<void>(folder.Write("texts/c.txt", std::string_view("\0\1", 2)));
    user->program.frmMain.txbFile[1].SetText(folder / "list.txt");
    user->program.frmMain.txbFolder.SetText(folder / "texts");
    user->program.frmMain.optFolder.SetValue(true);
    user->Click(user->program.frmMain.cmdCountWords);
  }
  std::string Cell(int row, FileColumn column) {
    const QModelIndex index = Table().model()->index(row, static_cast<int>(column));
    return FromQt(index.data().toString());
  }
  std::string Names() {
    std::string names;
    for (int row = 0; row < Table().model()->rowCount(); ++row) {
      names += FileNamePartOf(Cell(row, FileColumn::kPath)).substr(0, 1);
    }
    return names;
  }
};

TEST_F(FilesPageTest, ShowsTheFilesOfTheCountAndSortsThem) {
  Window().Views().Show("files");
  user->Settle();
  CountThree();
  EXPECT_EQ(Names(), "abc");
  EXPECT_EQ(Cell(1, FileColumn::kLineEnds), "DOS");
  EXPECT_EQ(Cell(2, FileColumn::kSkipped), "not text");
  Table().sortByColumn(static_cast<int>(FileColumn::kWords), Qt::DescendingOrder);
  EXPECT_EQ(Names(), "bac");
  user->Click(user->program.frmMain.cmdLanguage);
  EXPECT_EQ(Cell(2, FileColumn::kSkipped), "kein Text");
  EXPECT_EQ(Table().model()->headerData(1, Qt::Horizontal).toString(), "Bytes");
  user->Click(user->program.frmMain.cmdLanguage);
}

TEST_F(FilesPageTest, PathOfSeveralLinesHasOneInItsRow) {
  const std::string path = folder.Write("a\nb.txt", "cat");
  user->program.Sources().ChooseText(path);
  user->Click(user->program.frmMain.cmdCountWords);
  EXPECT_EQ(FileNamePartOf(Cell(0, FileColumn::kPath)), "a\\nb.txt");
}

TEST_F(FilesPageTest, OnesThatWereNotReadComeFirstWhenTheyAreAskedFor) {
  CountThree();
  user->Click(user->program.frmMain.cmdNotice[0]);
  EXPECT_EQ(Window().Views().Current(), "files");
  EXPECT_EQ(Names(), "cab");
  EXPECT_EQ(Table().currentIndex().row(), 0);
  EXPECT_EQ(Window().focusWidget(), &Table());
  EXPECT_EQ(Table().selectionModel()->selectedRows().size(), 1);
}

TEST_F(FilesPageTest, WhyAFileWasNotReadStandsInSightBesideIt) {
  CountThree();
  user->Click(user->program.frmMain.cmdNotice[0]);
  const int reason = static_cast<int>(FileColumn::kSkipped);
  EXPECT_EQ(Table().horizontalHeader()->visualIndex(reason), 1);
  const int end = Table().columnViewportPosition(reason) + Table().columnWidth(reason);
  EXPECT_LE(end, Table().viewport()->width());
  user->program.frmMain.txbFile[1].SetText("");
  user->program.Sources().ChooseText(folder.Write("one.txt", "one"));
  user->Click(user->program.frmMain.cmdCountWords);
  EXPECT_TRUE(Table().isColumnHidden(reason)) << "there is nothing to be told";
  std::filesystem::remove(folder / "list.txt");
  CountThree();
  EXPECT_GE(Table().columnWidth(reason), Table().fontMetrics().horizontalAdvance("not text"));
  EXPECT_FALSE(Table().isColumnHidden(reason));
}

TEST_F(FilesPageTest, HomeAndEndGoToTheFirstAndTheLastFile) {
  CountThree();
  Window().Views().Show("files");
  Table().setFocus();
  Table().selectRow(1);
  QTest::keyClick(&Table(), Qt::Key_End);
  EXPECT_EQ(Table().currentIndex().row(), 2);
  QTest::keyClick(&Table(), Qt::Key_Home);
  EXPECT_EQ(Table().currentIndex().row(), 0);
}

TEST_F(FilesPageTest, ChosenFileStaysChosenInAnotherOrderAndLanguage) {
  CountThree();
  Window().Views().Show("files");
  Table().selectRow(0);
  const auto chosen = [this] {
    const QModelIndexList rows = Table().selectionModel()->selectedRows();
    return rows.size() == 1 ? Cell(rows.front().row(), FileColumn::kPath) : std::string();
  };
  const std::string path = chosen();
  Table().sortByColumn(static_cast<int>(FileColumn::kPath), Qt::DescendingOrder);
  EXPECT_EQ(chosen(), path);
  EXPECT_EQ(Table().currentIndex().row(), 2);
  user->Click(user->program.frmMain.cmdLanguage);
  EXPECT_EQ(chosen(), path);
  user->Click(user->program.frmMain.cmdLanguage);
  user->program.frmMain.txbFile[1].SetText("");
  user->program.Sources().ChooseText(folder.Write("one.txt", "one"));
  user->Click(user->program.frmMain.cmdCountWords);
  EXPECT_FALSE(Table().selectionModel()->hasSelection()) << "of another count";
}

TEST_F(FilesPageTest, TypingGoesToTheFileOfThatName) {
  CountThree();
  Window().Views().Show("files");
  Table().setFocus();
  QTest::keyClicks(&Table(), "c.t");
  EXPECT_EQ(FileNamePartOf(Cell(Table().currentIndex().row(), FileColumn::kPath)), "c.txt");
}

TEST_F(FilesPageTest, MenuOfTheKeyboardSortsByTheColumnThatItIsIn) {
  CountThree();
  Window().Views().Show("files");
  user->Settle();
  Table().setCurrentIndex(Table().model()->index(0, static_cast<int>(FileColumn::kPath)));
  QTimer::singleShot(0, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    menu->actions().last()->trigger();
    menu->close();
  });
  const QPoint place = Table().visualRect(Table().currentIndex()).center();
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, place,
                          Table().viewport()->mapToGlobal(place));
  QApplication::sendEvent(Table().viewport(), &asked);
  EXPECT_EQ(Table().horizontalHeader()->sortIndicatorSection(),
            static_cast<int>(FileColumn::kPath));
  EXPECT_EQ(Names(), "abc");
}

TEST_F(FilesPageTest, EmptyOneSaysWhy) {
  const auto hint = [this] {
    const auto* label = Table().viewport()->findChild<QLabel*>();
    return label->isVisible() ? FromQt(label->text()) : "";
  };
  Window().Views().Show("files");
  user->Settle();
  EXPECT_EQ(hint(), "No files have been counted yet. Each file of a count has a row here.");
  CountThree();
  EXPECT_EQ(hint(), "");
  QApplication::clipboard()->setText("cat dog");
  user->program.frmMain.txbFile[1].SetText("");
  user->Click(user->program.frmMain.optOnClipboard);
  user->Click(user->program.frmMain.cmdCountWords);
  EXPECT_EQ(hint(), "This list is of the clipboard, which has no files.");
}

TEST_F(FilesPageTest, RowsAreCopiedWithTheColumnsInTheOrderOfTheView) {
  CountThree();
  Window().Views().Show("files");
  user->Settle();
  Table().selectRow(1);
  Window().FilesView().Copy();
  EXPECT_EQ(
      FromQt(QApplication::clipboard()->text()),
      "File\tNot read\tBytes\tEncoding\tLine ends\tLines\tWords\tLetters not counted\tLines not "
      "UTF-8\tBytes not decoded\n" +
          folder / "texts/b.txt" + "\t\t15\tASCII\tDOS\t3\t3\t0\t0\t0\n");
}

TEST_F(FilesPageTest, PathsWithTabsAndLineBreaksPartNoRow) {
  CopiedRows copied(1);
  copied.Add({"/a\tb\nc\rd.txt", "7"});
  copied.PutOnClipboard();
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()), "/a\\tb\\nc\\rd.txt\t7\n");
}

TEST_F(FilesPageTest, MenuNamesTheCommonWordsOfLanguages) {
  user->Click(user->program.frmMain.cmdSetParameters);
  auto& button = user->WidgetOf<QPushButton>(user->program.frmParams.cmdCommonWords);
  ASSERT_NE(button.menu(), nullptr);
  emit button.menu()->aboutToShow();
  const QList<QAction*> languages = button.menu()->actions();
  ASSERT_EQ(languages.size(), 14);
  EXPECT_EQ(FromQt(languages[0]->text()), "&Czech");
  EXPECT_EQ(FromQt(languages[9]->text()), "&Russian") << "R leads there";
  EXPECT_FALSE(languages[4]->isChecked());
  boxes.Answer(QMessageBox::Ok);
  languages[4]->trigger();
  user->Settle();
  EXPECT_EQ(user->program.frmParams.txbWordsFile[0].Text(), FindCommonWords()[4].path);
  EXPECT_TRUE(user->program.frmParams.txbWordsFile[0].Text().ends_with("cwds_de.txt"));
  EXPECT_THAT(user->program.Settings().lists.IgnoreList.Words(), testing::Contains("und"));
  emit button.menu()->aboutToShow();
  EXPECT_TRUE(button.menu()->actions()[4]->isChecked());
  EXPECT_TRUE(button.menu()->actions()[4]->actionGroup()->isExclusive()) << "one of them";
  button.menu()->actions()[4]->trigger();  // a second box would have no answer
  user->Click(user->program.frmMain.cmdLanguage);
  emit button.menu()->aboutToShow();
  EXPECT_EQ(FromQt(button.menu()->actions()[0]->text()), "&Deutsch") << "in the user's order";
  EXPECT_TRUE(button.menu()->actions()[0]->isChecked());
}

}  // namespace
}  // namespace quillomat
