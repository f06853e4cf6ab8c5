// What is copied out of the list.
#include <QClipboard>
#include <QTextCursor>
#include <array>
#include <gtest/gtest.h>
#include <span>
#include <string_view>
#include <vector>

#include "qt/list_table.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

std::vector<CopiedLine> WholeLine(const QString& line) {
  return {{line, 0, line.size()}};
}

/// Of a list of a rank and a word, six and three letters wide.
const CellSource kRankAndWord = [](std::string_view line) {
  static const std::array<CellSpan, 2> cells = {CellSpan{5, 6}, CellSpan{8, 11}};
  return line.size() == 11 ? std::span<const CellSpan>(cells) : std::span<const CellSpan>();
};

TEST(ListTable, ColumnsAreCells) {
  EXPECT_EQ(HtmlTableOf(LinesOf("2 files\n     1  cat\n     2  dog\n"), kRankAndWord),
            "<table>\n<tr><td>2 files</td></tr>\n<tr><td>1</td><td>cat</td></tr>\n"
            "<tr><td>2</td><td>dog</td></tr>\n</table>\n");
}

TEST(ListTable, SignsOfMarkupAreEscaped) {
  EXPECT_TRUE(HtmlTableOf(WholeLine("     1  <&b"), kRankAndWord).contains("<td>&lt;&amp;b</td>"));
}

TEST(ListTable, PartsOfLinesKeepTheirColumns) {
  const QString line = "     1  cat";
  const auto copied = [&](qsizetype begin, qsizetype end) {
    return HtmlTableOf({{line, begin, end}}, kRankAndWord);
  };
  EXPECT_TRUE(copied(5, 11).contains("<tr><td>1</td><td>cat</td></tr>"));
  EXPECT_TRUE(copied(9, 11).contains("<tr><td></td><td>at</td></tr>"));
  EXPECT_TRUE(copied(0, 10).contains("<tr><td>1</td><td>ca</td></tr>"));
  EXPECT_EQ(copied(0, 7), "") << "one cell is no table";
}

TEST(ListTable, OneColumnIsNoTable) {
  EXPECT_EQ(HtmlTableOf(LinesOf("cat\ndog\n"), kRankAndWord), "");
  EXPECT_EQ(HtmlTableOf(LinesOf(""), kRankAndWord), "");
  EXPECT_EQ(HtmlTableOf(LinesOf("     1  cat"), nullptr), "") << "it is no list";
  EXPECT_FALSE(ClipboardDataOf("cat\n", "")->hasHtml());
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

TEST_F(Copying, WhatIsLeftOfAnEditedListKeepsItsColumns) {
  ASSERT_TRUE(user->Start());
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog cat\n"));
  user->Click(user->program.frmMain.cmdCountWords);
  auto& list = user->windows.Main().List();
  QTextCursor cursor(list.document());
  cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
  list.setTextCursor(cursor);
  QTest::keyClick(&list, Qt::Key_Delete);  // the header
  const qsizetype second = list.toPlainText().indexOf("dog");
  cursor.setPosition(static_cast<int>(list.toPlainText().indexOf("1 ")));
  cursor.setPosition(static_cast<int>(second) + 3, QTextCursor::KeepAnchor);
  list.setTextCursor(cursor);
  QTest::keySequence(&list, QKeySequence::Copy);
  const QString table = QApplication::clipboard()->mimeData()->html();
  EXPECT_TRUE(table.contains("<tr><td>1</td><td>2</td><td>cat</td></tr>")) << FromQt(table);
  EXPECT_TRUE(table.contains("<tr><td>2</td><td>1</td><td>dog</td></tr>")) << FromQt(table);
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
