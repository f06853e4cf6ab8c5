// The statistics, as a person uses them.
#include <QClipboard>
#include <QLabel>
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

TEST_F(StatisticsPageTest, SaysThatNothingWasCountedYet) {
  OpenPage();
  const auto* hint = Table().viewport()->findChild<QLabel*>();
  ASSERT_NE(hint, nullptr);
  EXPECT_TRUE(hint->isVisible());
  EXPECT_EQ(FromQt(hint->text()),
            "No words have been counted yet. Choose a text and count its words.");
  Count("cat\n");
  EXPECT_FALSE(hint->isVisible());
}

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

TEST_F(StatisticsPageTest, FiguresOfTheOrderComeWithANewCountAndTheChoiceIsRemembered) {
  Count("to be or not to be\n");
  OpenPage();
  const int rows = Table().rowCount();
  Window().StatisticsView().OrderBox().click();
  user->Settle();
  EXPECT_EQ(Table().rowCount(), rows) << "nobody has asked for a count";
  EXPECT_EQ(user->program.frmMain.lblNotice.Caption(),
            "Figures of the order of words need a new count.");
  Window().StatisticsView().OrderBox().click();
  user->Settle();
  EXPECT_FALSE(user->program.frmMain.lblNotice.Visible());
  Window().StatisticsView().OrderBox().click();
  user->Settle();
  user->Click(user->program.frmMain.cmdNotice[0]);
  EXPECT_FALSE(user->program.frmMain.lblNotice.Visible());
  EXPECT_EQ(Table().rowCount(), rows + 6);
  EXPECT_EQ(Cell(rows + 5, 0), "Different words after 6 instances");
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_TRUE(Window().StatisticsView().OrderBox().isChecked());
  EXPECT_TRUE(user->program.Settings().wantsOrderFigures);
}

TEST_F(StatisticsPageTest, NumbersStandOnTheRightAndLongWordsAreNotCut) {
  std::string text;
  for (char letter = 'a'; letter <= 'j'; ++letter) text += std::string(40, letter) + "e ";
  Count(text + "\n");
  OpenPage();
  Window().resize(700, 600);
  user->Settle();
  EXPECT_EQ(Table().item(0, 1)->textAlignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
  const auto longest = Table().findItems("aaaaaae", Qt::MatchContains);
  ASSERT_EQ(longest.size(), 1);
  EXPECT_EQ(longest[0]->textAlignment() & Qt::AlignHorizontal_Mask, 0);
  EXPECT_EQ(longest[0]->toolTip(), longest[0]->text());
  const QModelIndex cell = Table().model()->index(longest[0]->row(), 1);
  const QRect place = Table().visualRect(cell);
  const QRect needed = Table().fontMetrics().boundingRect(QRect(0, 0, place.width(), 10'000),
                                                          Qt::TextWordWrap, longest[0]->text());
  EXPECT_GE(place.height(), needed.height());
}

TEST_F(StatisticsPageTest, RowsAreCopiedWithTheirColumns) {
  Count("to be or not to be\n");
  OpenPage();
  Table().setFocus();
  Table().selectRow(1);
  QTest::keyClick(&Table(), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(FromQt(copied->text()), "Figure\tValue\nDifferent words\t4\n");
  EXPECT_TRUE(copied->html().contains("<td>Different words</td><td>4</td>"));
}

TEST_F(StatisticsPageTest, NumbersAreCopiedWithoutGroups) {
  std::string text;
  for (int i = 0; i < 3000; ++i) text += "cat ";
  Count(text);
  OpenPage();
  const std::string group = user->program.DigitGroupSeparator();
  EXPECT_EQ(Cell(0, 1), "3" + group + "000");
  user->Click(user->program.frmMain.cmdCopyToClipboard);
  EXPECT_NE(FromQt(QApplication::clipboard()->text()).find("Instances of words\t3000\n"),
            std::string::npos);
}

TEST_F(StatisticsPageTest, AllRowsAreCopiedByTheCommandIfNoneIsSelected) {
  Count("to be or not to be\n");
  OpenPage();
  user->Click(user->program.frmMain.cmdCopyToClipboard);
  const std::string copied = FromQt(QApplication::clipboard()->text());
  EXPECT_EQ(std::ranges::count(copied, '\n'), Table().rowCount() + 1) << "with the titles";
  EXPECT_NE(copied.find("Different words\t4\n"), std::string::npos);
}

}  // namespace
}  // namespace quillomat
