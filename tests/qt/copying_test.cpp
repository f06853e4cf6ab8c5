// What is copied out of the list.
#include <QClipboard>
#include <gtest/gtest.h>

#include "qt/list_table.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

TEST(ListTable, ColumnsAreCells) {
  EXPECT_EQ(HtmlTableOf("   Rank    Freq  Word (longest has 3 characters)\n      1       2  cat\n"),
            "<table>\n<tr><td>Rank</td><td>Freq</td><td>Word (longest has 3 characters)</td></tr>\n"
            "<tr><td>1</td><td>2</td><td>cat</td></tr>\n</table>\n");
}

TEST(ListTable, SignsOfMarkupAreEscaped) {
  EXPECT_TRUE(HtmlTableOf("1  a<b&c\n").contains("<td>a&lt;b&amp;c</td>"));
}

TEST(ListTable, OneColumnIsNoTable) {
  EXPECT_EQ(HtmlTableOf("cat\ndog\n"), "");
  EXPECT_EQ(HtmlTableOf(""), "");
  EXPECT_FALSE(ClipboardDataOf("cat\n")->hasHtml());
}

using Copying = WindowFixture;

TEST_F(Copying, ListAndSelectionKeepTheirColumns) {
  ASSERT_TRUE(user->Start());
  user->program.ChooseText(folder.Write("a.txt", "cat dog cat\n"));
  user->Click(user->program.frmMain.cmdCountWords);
  user->Click(user->program.frmMain.cmdCopyToClipboard);
  const QMimeData* data = QApplication::clipboard()->mimeData();
  EXPECT_EQ(data->text(), ToQt(user->Shown()));
  EXPECT_TRUE(data->html().contains("<td>1</td><td>2</td><td>cat</td>"));
  QApplication::clipboard()->clear();
  auto& list = user->windows.Main().List();
  list.selectAll();
  QTest::keySequence(&list, QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), ToQt(user->Shown()));
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains("<td>2</td><td>cat</td>"));
}

}  // namespace
}  // namespace quillomat
