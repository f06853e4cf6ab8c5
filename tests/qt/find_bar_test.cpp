// Find in the list, as people use it.
#include <QAccessible>
#include <QLabel>
#include <QTextBlock>
#include <gmock/gmock.h>

#include "window_fixture.h"

namespace quillomat {
namespace {

class FindBarTest : public WindowFixture {
 protected:
  FindBarTest() { EXPECT_TRUE(user->Start()); }

  void Press(const QKeySequence& keys) {
    QTest::keySequence(&user->windows.Main(), keys);
    user->Settle();
  }

  MainForm& frmMain = user->program.frmMain;
};

TEST_F(FindBarTest, PassesOverTheTitlesOfTheList) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "gentle characters\n"));
  user->Click(frmMain.cmdCountWords);
  ASSERT_THAT(user->Shown(), testing::HasSubstr("longest has 10 characters"));
  Press(QKeySequence::Find);
  auto* word = user->windows.Main().Finder().findChild<QLineEdit*>();
  const auto found = [&](const QString& wanted) {
    user->windows.Main().List().moveCursor(QTextCursor::Start);
    word->selectAll();
    QTest::keyClicks(word, wanted);
    return FromQt(user->windows.Main().List().textCursor().block().text());
  };
  EXPECT_THAT(found("ge"), testing::EndsWith("gentle"));
  EXPECT_THAT(found("chara"), testing::EndsWith("characters"));
  frmMain.txbOutput.SetText("longest\r\ngentle");
  user->Settle();
  EXPECT_EQ(found("ge"), "longest") << "it is no list any more";
}

TEST_F(FindBarTest, EscapeStopsTheCountInItToo) {
  std::string text;
  for (int i = 0; i < 3'000'000; ++i) text += "word" + std::to_string(i % 5000) + " ";
  user->program.Sources().ChooseText(folder.Write("long.txt", text));
  boxes.Answer(QMessageBox::No);
  FindBar& bar = user->windows.Main().Finder();
  CountAndMeanwhile(*user, [&] {
    bar.Open();
    QTest::keyClick(bar.findChild<QLineEdit*>(), Qt::Key_Escape);
  });
  EXPECT_THAT(boxes.TitlesSeen(), testing::ElementsAre("Counting interrupted"));
  EXPECT_FALSE(user->program.Words().completeRun);
}

TEST_F(FindBarTest, FindsRoundTheEndAndSaysWhenThereIsNothing) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog emu\n"));
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

TEST_F(FindBarTest, TakesWordsForTheSameAsTheListDoes) {
  user->program.Sources().ChooseText(
      folder.Write("a.txt", "Caf\u00E9 caf\u00E9 M\u00FCller emu\n"));
  user->Click(frmMain.cmdCountWords);
  Press(QKeySequence::Find);
  FindBar& bar = user->windows.Main().Finder();
  auto* word = bar.findChild<QLineEdit*>();
  const auto& list = user->windows.Main().List();
  QTest::keyClicks(word, "cafe");
  EXPECT_EQ(FromQt(list.textCursor().selectedText()), "caf\u00E9");
  word->selectAll();
  QTest::keyClicks(word, "mueller");
  EXPECT_EQ(FromQt(list.textCursor().selectedText()), "m\u00FCller");
  frmMain.txbOutput.SetText("\U0001F40B\r\nCaf\u00E9");
  user->Settle();
  word->selectAll();
  QTest::keyClicks(word, "CAFE");
  EXPECT_EQ(FromQt(list.textCursor().selectedText()), "Caf\u00E9");
}

TEST_F(FindBarTest, FoundPlacesAreCountedAndKeysGoThroughThem) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat cats dog bobcat\n"));
  user->Click(frmMain.cmdCountWords);
  Press(QKeySequence(Qt::Key_F3));
  FindBar& bar = user->windows.Main().Finder();
  ASSERT_TRUE(bar.isVisible()) << "nothing was looked for yet";
  auto* word = bar.findChild<QLineEdit*>();
  const auto says = [&bar](const QString& text) {
    const auto labels = bar.findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == text; });
  };
  QTest::keyClicks(word, "CAT");
  EXPECT_TRUE(says("1 of 3"));
  QTest::keyClick(word, Qt::Key_Return);
  EXPECT_TRUE(says("2 of 3"));
  QTest::keyClick(word, Qt::Key_Escape);
  Press(QKeySequence(Qt::Key_F3));
  EXPECT_TRUE(says("3 of 3"));
  Press(QKeySequence(Qt::Key_F3));
  EXPECT_TRUE(says("1 of 3")) << "round the end";
  Press(QKeySequence(Qt::SHIFT | Qt::Key_F3));
  EXPECT_TRUE(says("3 of 3"));
  QTest::keyClicks(word, "x");
  EXPECT_TRUE(says("Not found"));
  EXPECT_FALSE(says("3 of 3"));
}

TEST_F(FindBarTest, ScreenReaderIsToldWhichPlaceWasFound) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog category\n"));
  user->Click(frmMain.cmdCountWords);
  Press(QKeySequence::Find);
  FindBar& bar = user->windows.Main().Finder();
  QStringList heard;
  bar.announce = [&heard](const QWidget& label) {
    heard.append(dynamic_cast<const QLabel&>(label).text());
  };
  auto* word = bar.findChild<QLineEdit*>();
  QTest::keyClicks(word, "cat");
  EXPECT_TRUE(heard.isEmpty()) << "while it is typed";
  QTest::keyClick(word, Qt::Key_Return);
  EXPECT_EQ(heard, QStringList("2 of 2"));
}

TEST_F(FindBarTest, EveryViewHasSomethingToFindIn) {
  for (const char* view : {"statistics", "files"}) {
    user->windows.Main().Views().Show(view);
    Press(QKeySequence::Find);
    EXPECT_EQ(user->windows.Main().Views().Current(), "text") << view;
    EXPECT_TRUE(user->windows.Main().Finder().isVisible()) << view;
  }
}

TEST_F(FindBarTest, OldHitLeavesNeitherMarkNorMessage) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "dog dog cat cats\n"));
  user->Click(frmMain.cmdCountWords);
  Press(QKeySequence::Find);
  FindBar& bar = user->windows.Main().Finder();
  auto* word = bar.findChild<QLineEdit*>();
  const auto& list = user->windows.Main().List();
  const auto said = [&bar] {
    QString all;
    for (const QLabel* label : bar.findChildren<QLabel*>()) {
      if (label != bar.findChild<QLabel*>()) all += label->text();
    }
    return FromQt(all);
  };
  QTest::keyClicks(word, "cat");
  EXPECT_EQ(said(), "1 of 2");
  EXPECT_EQ(list.textCursor().selectedText(), "cat");
  QTest::keyClicks(word, "x");
  EXPECT_EQ(said(), "Not found");
  EXPECT_EQ(list.textCursor().selectedText(), "");
  word->selectAll();
  QTest::keyClicks(word, "cat");
  QTest::keyClick(word, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(word, Qt::Key_Delete);
  EXPECT_EQ(said(), "");
  EXPECT_EQ(list.textCursor().selectedText(), "");
  QTest::keyClicks(word, "cat");
  frmMain.cboWordOrder.SetListIndex(1);
  user->Settle();
  EXPECT_EQ(said(), "") << "it is another text";
}

TEST_F(FindBarTest, WordBelowTheTextIsToldOfBesideHitsInTheText) {
  std::string text;
  for (int i = 0; i < 12'000; ++i) {
    text += "wo";
    for (int rest = i, k = 0; k < 4; ++k, rest /= 26) text += static_cast<char>('a' + rest % 26);
    text += "\n";
  }
  user->program.Sources().ChooseText(folder.Write("a.txt", text + "azoo zoo\n"));
  boxes.Answer(QMessageBox::Ok);  // the box is full
  user->Click(frmMain.cmdCountWords);
  ASSERT_TRUE(user->program.Output().Part().IsCut());
  FindBar& bar = user->windows.Main().Finder();
  bar.Open();
  const auto says = [&bar](const QString& wanted) {
    const auto labels = bar.findChildren<QLabel*>();
    return std::ranges::any_of(
        labels, [&](const QLabel* label) { return label->isVisible() && label->text() == wanted; });
  };
  auto* word = bar.findChild<QLineEdit*>();
  QTest::keyClicks(word, "zoo");
  EXPECT_EQ(user->windows.Main().List().textCursor().selectedText(), "zoo") << "of azoo";
  EXPECT_TRUE(says("rank 12,002, frequency 1, below the end of this text"));
  word->selectAll();
  QTest::keyClicks(word, "azoo");
  EXPECT_FALSE(says("rank 12,002, frequency 1, below the end of this text"));
}

}  // namespace
}  // namespace quillomat
