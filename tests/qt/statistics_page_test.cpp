// The statistics, as a person uses them.
#include <QClipboard>
#include <QMimeData>
#include <QTabBar>
#include <algorithm>
#include <gmock/gmock.h>

#include "window_fixture.h"

namespace quillomat {
namespace {

class StatisticsPageTest : public WindowFixture {
 protected:
  StatisticsPageTest() { EXPECT_TRUE(user->Start()); }

  MainWindowView& Window() { return user->windows.Main(); }
  QTableWidget& Table() { return Window().StatisticsView().Table(); }

  void Count(const std::string& text) {
    user->program.Sources().ChooseText(folder.Write("a.txt", text));
    user->Click(user->program.frmMain.cmdCountWords);
  }
  void OpenPage() {
    Window().Views().Show("statistics");
    user->Settle();
  }
  std::string Cell(int row, int column) { return FromQt(Table().item(row, column)->text()); }
};

TEST_F(StatisticsPageTest, ShowsTheStatisticsOfTheCount) {
  OpenPage();
  EXPECT_TRUE(Table().isVisible());
  EXPECT_EQ(Table().rowCount(), 0);
  Count("to be or not to be\n");
  EXPECT_EQ(Cell(0, 0), "Instances of words");
  EXPECT_EQ(Cell(0, 1), "6");
  EXPECT_EQ(Cell(1, 1), "4");
  user->program.Initialize();
  user->Settle();
  EXPECT_EQ(Table().rowCount(), 0);
}

TEST_F(StatisticsPageTest, IsThereWhenItIsOpenedAfterTheCountInTheLanguageOfThen) {
  Count("to be or not to be\n");
  user->Click(user->program.frmMain.cmdLanguage);
  OpenPage();
  EXPECT_EQ(Cell(1, 0), "Verschiedene Wörter");
  user->Click(user->program.frmMain.cmdLanguage);
  EXPECT_EQ(Cell(1, 0), "Different words");
}

TEST_F(StatisticsPageTest, CountsAgainForFiguresOfTheOrderAndRemembersThat) {
  Count("to be or not to be\n");
  OpenPage();
  const int rows = Table().rowCount();
  Window().StatisticsView().OrderBox().click();
  user->Settle();
  EXPECT_EQ(Table().rowCount(), rows + 6);
  EXPECT_EQ(Cell(rows + 5, 0), "Different words after 6 instances");
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_TRUE(Window().StatisticsView().OrderBox().isChecked());
  EXPECT_TRUE(user->program.Settings().wantsOrderFigures);
}

TEST_F(StatisticsPageTest, RowsAreCopiedWithTheirColumns) {
  Count("to be or not to be\n");
  OpenPage();
  Table().setFocus();
  Table().selectRow(1);
  QTest::keyClick(&Table(), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(FromQt(copied->text()), "Different words\t4\n");
  EXPECT_TRUE(copied->html().contains("<td>Different words</td><td>4</td>"));
}

TEST_F(StatisticsPageTest, AllRowsAreCopiedByTheCommandIfNoneIsSelected) {
  Count("to be or not to be\n");
  OpenPage();
  user->Click(user->program.frmMain.cmdCopyToClipboard);
  const std::string copied = FromQt(QApplication::clipboard()->text());
  EXPECT_EQ(std::ranges::count(copied, '\n'), Table().rowCount());
  EXPECT_NE(copied.find("Different words\t4\n"), std::string::npos);
}

}  // namespace
}  // namespace quillomat
