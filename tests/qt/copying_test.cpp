// What is copied out of the list.
#include <QClipboard>
#include <gtest/gtest.h>

#include "qt/list_table.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

TEST(ListTable, ColumnsAreCells) {
  EXPECT_EQ(HtmlTableOf("   Rank    Freq  Word (longest has 3 characters)\n      1       2  cat\n",
                        DisplayFormat::kRankFrequencyWord),
            "<table>\n<tr><td>Rank</td><td>Freq</td><td>Word (longest has 3 characters)</td></tr>\n"
            "<tr><td>1</td><td>2</td><td>cat</td></tr>\n</table>\n");
}

TEST(ListTable, SignsOfMarkupAreEscaped) {
  EXPECT_TRUE(
      HtmlTableOf("1  a<b&c\n", DisplayFormat::kRankWord).contains("<td>a&lt;b&amp;c</td>"));
}

TEST(ListTable, OneColumnIsNoTable) {
  EXPECT_EQ(HtmlTableOf("cat\ndog\n", DisplayFormat::kWord), "");
  EXPECT_EQ(HtmlTableOf("", DisplayFormat::kWord), "");
  EXPECT_FALSE(ClipboardDataOf("cat\n", DisplayFormat::kWord)->hasHtml());
  EXPECT_FALSE(ClipboardDataOf("1  2\n", std::nullopt)->hasHtml()) << "it is no list";
}

using Copying = WindowFixture;

TEST_F(Copying, ListAndSelectionKeepTheirColumns) {
  ASSERT_TRUE(user->Start());
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog cat\n"));
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

TEST_F(Copying, ListsOfFilesKeepTheirColumnsToo) {
  ASSERT_TRUE(user->Start());
  MainForm& frmMain = user->program.frmMain;
  static_cast<void>(folder.Write("books/a  b.txt", "cat dog cat\n"));
  user->program.Sources().ChooseText(folder / "books");
  user->Type(user->program.frmParams.txbWordsToIgnoreOrCount[1], "cat");
  user->program.frmParams.LoseFocus();
  frmMain.txbFile[1].SetText(folder / "list.txt");
  user->Click(frmMain.cmdCountWords);
  const auto copied = [&](DisplayFormat format) {
    frmMain.cboDisplayFormat.SetListIndex(static_cast<int>(format));
    user->Click(frmMain.cmdCopyToClipboard);
    return FromQt(QApplication::clipboard()->mimeData()->html());
  };
  user->program.frmParams.chkWarnOnOverwrite.SetChecked(false);
  EXPECT_NE(copied(DisplayFormat::kWordFreqNoFiles).find("<td>cat</td><td>2</td><td>1</td>"),
            std::string::npos);
  EXPECT_NE(copied(DisplayFormat::kWordFileListFreq)
                .find("<td></td><td>2</td><td>{Folder}/a  b.txt</td>"),
            std::string::npos);
}

}  // namespace
}  // namespace quillomat
