// Paths are bytes to the system, and UTF-8 to the toolkit. Those that are none can be counted all
// the same, come back from the windows as they are, and are shown as on a terminal.
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QSettings>
#include <gmock/gmock.h>

#include "base/utf8.h"
#include "qt/list_table.h"
#include "qt/path_of_url.h"
#include "qt/path_suggestions.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

// "café" in an encoding of former times.
constexpr const char* kOldName = "caf\xE9.txt";

TEST(TextConversion, AnyBytesComeBackAsTheyWere) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  for (const std::string& text :
       {all, std::string("caf\xE9"), std::string("\xE2\x82"),
        std::string("\xED\xA0\x80\xED\xB0\x80"),
        std::string("\xF0\x9F\x98\x80\xE9\xF0\x9F\x98\x80"), std::string("\xF0\x9F\x93\x80\xC0"),
        std::string("\xEF\xBB\xBFmarked"), std::string("\xE9\xEF\xBB\xBF\xEF\xBB\xBF"),
        std::string()}) {
    EXPECT_EQ(FromQt(ToQt(text)), text);
    EXPECT_EQ(FromQtLines(ToQtLines(text)), FromQtLines(ToQt(text)));
  }
}

TEST(TextConversion, OneByteIsOneCharacter) {
  EXPECT_EQ(ToQt("a\xE2\x82z").size(), 4);
}

TEST(TextConversion, WhatIsOnlyShownIsShownAsOnATerminal) {
  EXPECT_EQ(ToShown("caf\xE9 \xC3\xA9"), QString::fromUtf8("caf\\xE9 \xC3\xA9"));
  EXPECT_EQ(ToShown("txt.\xE2\x80\xAE"
                    "exe"),
            "txt.\\u202Eexe");
  EXPECT_EQ(ToShownLines("a\r\nb\x01"), "a\nb\\x01");
}

TEST(PathOfUrl, IsTheSystemsOwn) {
  EXPECT_EQ(PathOfUrl(QUrl::fromEncoded("file:///a/caf%E9%20%23%25.txt")), "/a/caf\xE9 #%.txt");
  EXPECT_EQ(PathOfUrl(QUrl::fromEncoded("file://localhost/a%C3%A9")), "/a\xC3\xA9");
  EXPECT_EQ(PathOfUrl(QUrl::fromLocalFile("/a/b?c#d%20.txt")), "/a/b?c#d%20.txt");
  EXPECT_EQ(PathOfUrl(QUrl("https://quillomat.example/a")), "");
}

class PathBytesTest : public WindowFixture {
 protected:
  PathBytesTest() { EXPECT_TRUE(user->Start()); }

  /// As a file manager tells of it.
  static QMimeData* OfferOf(const std::string& path) {
    auto* data = new QMimeData;
    const QByteArray bytes = QByteArray::fromStdString(path);
    data->setData("text/uri-list", "file://" + bytes.toPercentEncoding("/") + "\r\n");
    return data;
  }
  void Drop(const std::string& path) {
    const std::unique_ptr<QMimeData> data(OfferOf(path));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, data.get(), Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&user->windows.Main(), &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&user->windows.Main(), &drop);
    ProgramOnDesktop::Settle();
  }
  void Count() { user->Click(frmMain.cmdCountWords); }
  QAbstractItemModel& Files() { return *user->windows.Main().FilesView().Table().model(); }
  std::string PathCell(int row) {
    return FromQt(Files().index(row, static_cast<int>(FileColumn::kPath)).data().toString());
  }

  MainForm& frmMain = user->program.frmMain;
};

TEST_F(PathBytesTest, FileThatIsDroppedIsCounted) {
  const std::string path = folder.Write(kOldName, "cat cat dog\n");
  Drop(path);
  EXPECT_EQ(frmMain.txbFile[0].Text(), path);
  Count();
  EXPECT_THAT(user->Shown(), HasSubstr("cat"));
  EXPECT_THAT(PathCell(0), ::testing::EndsWith("caf\\xE9.txt"));
}

TEST_F(PathBytesTest, FolderAndWhatIsInItAreCounted) {
  const std::string path = folder.Write("fol\xE4/caf\xE9.txt", "cat cat dog\n");
  Drop(folder / "fol\xE4");
  EXPECT_EQ(frmMain.txbFolder.Text(), folder / "fol\xE4");
  frmMain.txbFile[1].SetText(folder / "list.txt");
  Count();
  EXPECT_THAT(user->Shown(), HasSubstr("cat"));
  ASSERT_EQ(Files().rowCount(), 1);
  EXPECT_THAT(PathCell(0), ::testing::EndsWith("fol\\xE4/caf\\xE9.txt"));
}

TEST_F(PathBytesTest, BoxThatIsEditedKeepsTheBytes) {
  const std::string path = folder.Write("fol\xE4/caf\xE9.txt", "cat\n");
  frmMain.txbFile[0].SetText(folder / "fol\xE4/caf\xE9.tx");
  user->Settle();
  auto& line = user->WidgetOf<QLineEdit>(frmMain.txbFile[0]);
  line.setFocus();
  line.end(false);
  QTest::keyClicks(&line, "t");
  user->Settle();
  EXPECT_EQ(frmMain.txbFile[0].Text(), path);
}

TEST_F(PathBytesTest, EditedListKeepsTheBytesOfItsPaths) {
  frmMain.txbOutput.SetText("Words in caf\xE9.txt\r\ncat");
  user->Settle();
  ListView& list = user->windows.Main().List();
  list.setFocus();
  list.moveCursor(QTextCursor::End);
  QTest::keyClicks(&list, "s");
  user->Settle();
  EXPECT_EQ(frmMain.txbOutput.Text(), "Words in caf\xE9.txt\r\ncats");
}

TEST_F(PathBytesTest, ReadableTextGoesOnTheClipboard) {
  user->desktop.PutClipboardText("Words in caf\xE9.txt\r\ncat");
  EXPECT_EQ(QApplication::clipboard()->text(), "Words in caf\\xE9.txt\ncat");
  EXPECT_EQ(user->desktop.ClipboardText(), "Words in caf\\xE9.txt\ncat");
}

TEST_F(PathBytesTest, HalfACharacterOnTheClipboardIsNoByte) {
  QApplication::clipboard()->setText(QString("caf\u00E9 ") + QChar(0xDCE9));
  EXPECT_THAT(user->desktop.ClipboardText(), StartsWith("caf\xC3\xA9 "));
  EXPECT_TRUE(IsWellFormedUtf8(user->desktop.ClipboardText()));
}

TEST_F(PathBytesTest, MessageNamesTheFileAsATerminalDoes) {
  boxes.Answer(QMessageBox::Ok);
  user->desktop.ShowMessage({"mis\xDFing.txt\r\nis not there.", "caf\xE9"});
  ASSERT_EQ(boxes.Texts().size(), 1U);
  EXPECT_THAT(boxes.Texts().front(), HasSubstr("mis\\xDFing.txt"));
  EXPECT_EQ(boxes.TitlesSeen().front(), "caf\\xE9");
}

TEST_F(PathBytesTest, NameIsOfferedWhileItIsTyped) {
  const std::string path = folder.Write(kOldName, "cat\n");
  QLineEdit box;
  PathSuggestions suggestions(box, PathKind::kFile);
  box.show();
  static_cast<void>(QTest::qWaitForWindowActive(&box));
  box.setFocus();
  QTest::keyClicks(&box, ToQt(folder / "ca"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return suggestions.IsOffering(); }, 20'000));
  EXPECT_EQ(suggestions.List().item(0)->text(), ToShown(path));
  QTest::keyClick(&box, Qt::Key_Down);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(FromQt(box.text()), path);
}

TEST_F(PathBytesTest, FolderUsedLastIsKept) {
  Drop(folder.Write("fol\xE4/cat.txt", "cat\n"));
  user->program.Quit();
  user = nullptr;
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(user->program.Paths().LastFolder(), folder / "fol\xE4");
}

}  // namespace
}  // namespace quillomat
