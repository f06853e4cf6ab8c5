// The table of words, as a person uses it.
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTabBar>
#include <gmock/gmock.h>

#include "window_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

class TablePageTest : public WindowFixture {
 protected:
  TablePageTest() { EXPECT_TRUE(user->Start()); }

  MainWindowView& Window() { return user->windows.Main(); }
  WordTableView& View() { return Window().Table().View(); }
  QLineEdit& Box() { return *Window().Table().findChild<QLineEdit*>(); }

  void Count(const std::string& text) {
    user->program.Sources().ChooseText(folder.Write("a.txt", text));
    user->Click(user->program.frmMain.cmdCountWords);
  }
  /// From "aao" to "zzo": more than the table has room for.
  void CountManyWords() {
    std::string text;
    for (char first = 'a'; first <= 'z'; ++first) {
      for (char second = 'a'; second <= 'z'; ++second)
        text += std::string({first, second, 'o', ' '});
    }
    Count(text);
  }
  void OpenTable() {
    QTabBar& tabs = *Window().Views().tabBar();
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(1).center());
    user->Settle();
  }
  void TypeFilter(const char* words) {
    QTest::keyClicks(&Box(), words);
    user->Settle();
  }
  void ClickTitle(WordColumn column) {
    QHeaderView& titles = *View().horizontalHeader();
    const int section = static_cast<int>(column);
    const QPoint place(titles.sectionViewportPosition(section) + 8, titles.height() / 2);
    QTest::mouseClick(titles.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    user->Settle();
  }

  std::string Cell(int row, WordColumn column) {
    return FromQt(View().model()->index(row, static_cast<int>(column)).data().toString());
  }
  std::vector<std::string> Words() {
    std::vector<std::string> words;
    for (int row = 0; row < View().model()->rowCount(); ++row) {
      words.push_back(Cell(row, WordColumn::kWord));
    }
    return words;
  }
  bool Says(const QString& text) {
    const QList<QLabel*> labels = Window().Table().findChildren<QLabel*>();
    return std::ranges::any_of(
        labels, [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
  }
};

TEST_F(TablePageTest, SaysThatAFileOfWordsHasTakenThePlaceOfTheWords) {
  OpenTable();
  EXPECT_TRUE(Says("No words have been counted yet. Choose a text and count its words."));
  Count("cat dog");
  EXPECT_EQ(Words().size(), 2U);
  boxes.Answer(QMessageBox::Ok);
  user->program.frmParams.txbWordsFile[0].SetText(folder.Write("words.txt", "cat\r\n"));
  user->program.frmParams.txbWordsFile[0].LostFocus.Fire();
  user->Settle();
  EXPECT_TRUE(Says(
      "A file of words was read since the last count. Count again to see the words of the text "
      "here."));
  Count("cat dog");
  EXPECT_EQ(Words().size(), 1U);
}

TEST_F(TablePageTest, ListComesFirstAndTheChoiceIsRemembered) {
  EXPECT_EQ(Window().Views().Current(), "text");
  EXPECT_TRUE(Window().List().isVisible());
  OpenTable();
  EXPECT_TRUE(View().isVisible());
  EXPECT_FALSE(Window().List().isVisible());
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(Window().Views().Current(), "table");
}

TEST_F(TablePageTest, ShowsWhatWasCountedAndNothingOlder) {
  OpenTable();
  EXPECT_THAT(Words(), ElementsAre());
  Count("dog cat dog emu\n");
  EXPECT_THAT(Words(), ElementsAre("dog", "cat", "emu"));
  EXPECT_EQ(Cell(0, WordColumn::kPercent), "50.0000");
  EXPECT_TRUE(Says("3 words, 4 instances"));
  Count("ox\n");
  EXPECT_THAT(Words(), ElementsAre("ox"));
  EXPECT_TRUE(Says("1 word, 1 instance"));
  user->program.Initialize();
  user->Settle();
  EXPECT_THAT(Words(), ElementsAre());
}

TEST_F(TablePageTest, IsThereWhenItIsOpenedAfterTheCount) {
  Count("dog cat dog\n");
  EXPECT_EQ(View().model()->rowCount(), 0) << "nobody looks";
  OpenTable();
  EXPECT_THAT(Words(), ElementsAre("dog", "cat"));
}

TEST_F(TablePageTest, ClickOnATitleSortsBothWays) {
  Count("dog dog dog zebra cat cat\n");
  OpenTable();
  ClickTitle(WordColumn::kWord);
  EXPECT_THAT(Words(), ElementsAre("cat", "dog", "zebra"));
  ClickTitle(WordColumn::kWord);
  EXPECT_THAT(Words(), ElementsAre("zebra", "dog", "cat"));
  ClickTitle(WordColumn::kFrequency);
  EXPECT_THAT(Words(), ElementsAre("dog", "cat", "zebra")) << "the most frequent first";
}

TEST_F(TablePageTest, FilterThatHidesAllWordsIsToldOfAndTakenOffByAClick) {
  auto& showAll = *View().viewport()->findChild<QPushButton*>();
  Count("Cat scatter dog\n");
  OpenTable();
  EXPECT_FALSE(showAll.isVisible());
  TypeFilter("scat");
  Count("emu ox emu\n");
  EXPECT_THAT(Words(), ElementsAre());
  EXPECT_TRUE(Says("None of the 2 words passes the filter \"scat\"."));
  ASSERT_TRUE(showAll.isVisible());
  QTest::mouseClick(&showAll, Qt::LeftButton);
  user->Settle();
  EXPECT_THAT(Words(), ElementsAre("emu", "ox"));
  EXPECT_EQ(Box().text(), "");
  EXPECT_FALSE(showAll.isVisible());
}

TEST_F(TablePageTest, WordsAreFilteredAsTheyAreTyped) {
  Count("Cat scatter dog dog category\n");
  OpenTable();
  QTest::keySequence(&Window(), QKeySequence::Find);
  EXPECT_TRUE(Box().hasFocus());
  EXPECT_FALSE(Window().Finder().isVisible());
  TypeFilter("CAT");
  EXPECT_THAT(Words(), ElementsAre("cat", "category", "scatter"));
  EXPECT_TRUE(Says("3 words, 3 instances"));
  auto* kind = Window().Table().findChild<QComboBox*>();
  kind->setCurrentIndex(static_cast<int>(FilterKind::kStartsWith));
  EXPECT_THAT(Words(), ElementsAre("cat", "category"));
  QTest::keyClick(&Box(), Qt::Key_Escape);
  EXPECT_THAT(Words(), testing::SizeIs(4));
  EXPECT_TRUE(Says("4 words, 5 instances"));
}

TEST_F(TablePageTest, ScreenReaderIsToldHowManyWordsAreLeftWhenTheTypingPauses) {
  Count("cat dog category emu\n");
  OpenTable();
  QStringList heard;
  Window().Table().announce = [&heard](const QWidget& label) {
    heard.append(dynamic_cast<const QLabel&>(label).text());
  };
  TypeFilter("cat");
  ASSERT_TRUE(QTest::qWaitFor([&heard] { return !heard.isEmpty(); }, 20'000));
  EXPECT_EQ(heard, QStringList("2 words, 2 instances")) << "once";
}

TEST_F(TablePageTest, FaultOfAnExpressionIsToldBesideTheBox) {
  Count("cat dog m\u00FCller\n");
  OpenTable();
  auto* kind = Window().Table().findChild<QComboBox*>();
  kind->setCurrentIndex(static_cast<int>(FilterKind::kExpression));
  TypeFilter("(c|x)a");
  EXPECT_THAT(Words(), ElementsAre("cat"));
  Box().clear();
  TypeFilter("^m.lL");
  EXPECT_THAT(Words(), ElementsAre("m\u00FCller"));
  Box().clear();
  TypeFilter("(");
  EXPECT_TRUE(Says("Not understood: missing closing parenthesis"));
  EXPECT_THAT(Words(), testing::SizeIs(3));
  user->Click(user->program.frmMain.cmdLanguage);
  user->Click(user->program.frmMain.cmdLanguage);
  EXPECT_TRUE(Says("Not understood: missing closing parenthesis")) << "in the language of now";
}

TEST_F(TablePageTest, SelectedRowsAreCopiedWithTheShownColumns) {
  Count("dog cat dog emu\n");
  OpenTable();
  View().Columns().SetWanted({"rank", "frequency"});
  View().selectRow(0);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keySequence(&View(), QKeySequence::Copy);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(FromQt(copied->text()), "Rank\tWord\tFrequency\n1\tdog\t2\n2\tcat\t1\n");
  EXPECT_TRUE(copied->html().contains("<tr><th>Rank</th><th>Word</th><th>Frequency</th></tr>"));
  EXPECT_TRUE(copied->html().contains("<tr><td>1</td><td>dog</td><td>2</td></tr>"));
}

TEST_F(TablePageTest, CommandThatCopiesTakesWhatIsInFront) {
  Count("dog cat dog emu\n");
  const CommandButton& copy = user->program.frmMain.cmdCopyToClipboard;
  const auto copied = [] { return FromQt(QApplication::clipboard()->text()); };
  user->Click(copy);
  EXPECT_EQ(copied(), user->Shown());
  OpenTable();
  View().Columns().SetWanted({"frequency"});
  user->Click(copy);
  EXPECT_EQ(copied(), "Word\tFrequency\ndog\t2\ncat\t1\nemu\t1\n");
  TypeFilter("c");
  user->Click(copy);
  EXPECT_EQ(copied(), "Word\tFrequency\ncat\t1\n");
  Box().clear();
  View().selectRow(2);
  user->Click(copy);
  EXPECT_EQ(copied(), "Word\tFrequency\nemu\t1\n");
  TypeFilter("nothing");
  user->Click(copy);
  EXPECT_EQ(copied(), "Word\tFrequency\nemu\t1\n") << "there is nothing to copy";
}

TEST_F(TablePageTest, ColumnsAndTheirWidthsAreRemembered) {
  OpenTable();
  View().Columns().SetWanted({"frequency", "length"});
  View().setColumnWidth(static_cast<int>(WordColumn::kFrequency), 222);
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  EXPECT_EQ(View().Columns().Wanted(), QStringList({"word", "frequency", "length"}));
  EXPECT_EQ(View().columnWidth(static_cast<int>(WordColumn::kFrequency)), 222);
  EXPECT_TRUE(View().isColumnHidden(static_cast<int>(WordColumn::kRank)));
}

TEST_F(TablePageTest, NumberOfFilesIsShownWhereItIsKnown) {
  OpenTable();
  static_cast<void>(folder.Write("books/a.txt", "cat dog"));
  static_cast<void>(folder.Write("books/b.txt", "cat"));
  user->program.Sources().ChooseText(folder / "books");
  user->Type(user->program.frmParams.txbWordsToIgnoreOrCount[1], "cat");
  user->program.frmParams.LoseFocus();
  user->program.frmMain.txbFile[1].SetText(folder / "list.txt");
  user->Click(user->program.frmMain.cmdCountWords);
  EXPECT_FALSE(View().isColumnHidden(static_cast<int>(WordColumn::kFiles)));
  EXPECT_EQ(Cell(0, WordColumn::kFiles), "2");
  user->Type(user->program.frmParams.txbWordsToIgnoreOrCount[1], "");
  user->program.frmParams.LoseFocus();
  user->program.frmMain.txbFile[1].SetText("");
  Count("ox");
  EXPECT_TRUE(View().isColumnHidden(static_cast<int>(WordColumn::kFiles)));
}

TEST_F(TablePageTest, WordsTakeTheRoomThatIsLeft) {
  OpenTable();
  const auto width = [this](WordColumn column) {
    return View().columnWidth(static_cast<int>(column));
  };
  Window().resize(1000, 700);
  user->Settle();
  const int before = width(WordColumn::kWord);
  const int rank = width(WordColumn::kRank);
  Window().resize(1060, 700);
  user->Settle();
  EXPECT_GT(width(WordColumn::kWord), before);
  EXPECT_EQ(width(WordColumn::kRank), rank);
}

TEST_F(TablePageTest, NoRoomStaysEmptyBesideTheNumbers) {
  Count("the cat\n");
  OpenTable();
  Window().Fold().SetFolded(true);
  Window().resize(1400, 700);
  user->Settle();
  EXPECT_EQ(View().horizontalHeader()->length(), View().viewport()->width());
}

TEST_F(TablePageTest, WordsAreNotTheFirstToBeCut) {
  Count("the loving-kindness\n");
  OpenTable();
  Window().resize(760, 560);
  user->Settle();
  const int words = View().columnWidth(static_cast<int>(WordColumn::kWord));
  EXPECT_GT(words, View().fontMetrics().horizontalAdvance("loving-kindness"));
}

TEST_F(TablePageTest, ChosenWordStaysInViewWhenTheOrderChanges) {
  CountManyWords();
  OpenTable();
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_End);
  EXPECT_EQ(Cell(View().currentIndex().row(), WordColumn::kWord), "zzo");
  ClickTitle(WordColumn::kWord);
  ClickTitle(WordColumn::kWord);
  EXPECT_EQ(View().currentIndex().row(), 0);
  EXPECT_EQ(Cell(0, WordColumn::kWord), "zzo");
  QTest::keyClick(&View(), Qt::Key_Home);
  EXPECT_EQ(View().currentIndex().row(), 0);
}

TEST_F(TablePageTest, AnotherFilterGoesToItsFirstWord) {
  CountManyWords();
  OpenTable();
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_End);
  Box().setFocus();
  TypeFilter("o");
  EXPECT_EQ(View().currentIndex().row(), 0);
  EXPECT_EQ(View().rowAt(0), 0) << "and it is in view";
  EXPECT_FALSE(View().selectionModel()->hasSelection()) << "what is copied is all that is shown";
  QTest::keyClick(&Box(), Qt::Key_Down);
  EXPECT_TRUE(View().hasFocus());
  EXPECT_TRUE(View().selectionModel()->isRowSelected(0));
  View().selectRow(300);
  Box().setFocus();
  TypeFilter("m");
  EXPECT_EQ(View().currentIndex().row(), 0);
}

TEST_F(TablePageTest, WordChosenAmongSomeStaysInViewAmongAll) {
  CountManyWords();
  OpenTable();
  Box().setFocus();
  TypeFilter("zz");
  QTest::keyClick(&Box(), Qt::Key_Return);
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_Escape);
  EXPECT_EQ(Cell(View().currentIndex().row(), WordColumn::kWord), "zzo");
  EXPECT_TRUE(View().viewport()->rect().intersects(View().visualRect(View().currentIndex())));
}

TEST_F(TablePageTest, WordsAreNotCutWhileNumbersHaveRoom) {
  const std::string longest = "incomprehensibilities";
  Count("the the the " + longest + " cat\n");
  OpenTable();
  Window().resize(1100, 700);
  user->Settle();
  const int wanted = View().fontMetrics().horizontalAdvance(ToQt(longest));
  int numbers = 0;
  int wantedByNumbers = 0;
  for (const int section : View().Columns().Shown()) {
    if (section == static_cast<int>(WordColumn::kWord)) continue;
    numbers += View().columnWidth(section);
    wantedByNumbers += View().horizontalHeader()->sectionSizeHint(section);
  }
  const int words = View().columnWidth(static_cast<int>(WordColumn::kWord));
  EXPECT_GE(words, std::min(wanted, View().viewport()->width() - wantedByNumbers));
  EXPECT_LE(words + numbers, View().viewport()->width());
  EXPECT_LE(numbers, wantedByNumbers * 5 / 4) << "titles are wider than these numbers";
}

TEST_F(TablePageTest, MenuOffersFilesOnlyWhereTheyAreKnown) {
  Count("cat\n");
  OpenTable();
  QMenu menu;
  View().Columns().AddTo(menu);
  EXPECT_EQ(menu.actions().size(), 7);
  EXPECT_FALSE(std::ranges::any_of(
      menu.actions(), [](const QAction* action) { return action->text() == "Files"; }));
}

TEST_F(TablePageTest, PlaceInTheTableIsKeptWhileTheTextIsLookedAt) {
  Count("dog cat dog emu elk\n");
  OpenTable();
  View().selectRow(2);
  Window().Views().Show("text");
  user->Settle();
  OpenTable();
  EXPECT_TRUE(View().selectionModel()->isRowSelected(2));
  Window().Views().Show("text");
  Count("ox\n");
  EXPECT_EQ(View().model()->rowCount(), 0) << "nobody has looked at them yet";
  OpenTable();
  EXPECT_THAT(Words(), ElementsAre("ox"));
}

TEST_F(TablePageTest, LettersFollowTheSizeOfTheLists) {
  OpenTable();
  const qreal usual = View().font().pointSizeF();
  const int row = View().verticalHeader()->defaultSectionSize();
  QTest::keySequence(&Window(), QKeySequence(Qt::CTRL | Qt::Key_Plus));
  QTest::keySequence(&Window(), QKeySequence(Qt::CTRL | Qt::Key_Plus));
  EXPECT_DOUBLE_EQ(View().font().pointSizeF(), usual + 2);
  EXPECT_GT(View().verticalHeader()->defaultSectionSize(), row);
}

TEST_F(TablePageTest, ScreenReaderIsToldWhatEachPartIs) {
  OpenTable();
  EXPECT_EQ(FromQt(View().accessibleName()), "Table of words");
  EXPECT_EQ(FromQt(Box().accessibleName()), "Show words:");
  user->Click(user->program.frmMain.cmdLanguage);
  EXPECT_EQ(FromQt(View().accessibleName()), "Tabelle der Wörter");
  EXPECT_EQ(FromQt(View().model()->headerData(1, Qt::Horizontal).toString()), "Wort");
}

TEST_F(TablePageTest, TypingGoesToTheWord) {
  Count("dog cat dog emu elk\n");
  OpenTable();
  View().setFocus();
  QTest::keyClicks(&View(), "em");
  EXPECT_EQ(Cell(View().currentIndex().row(), WordColumn::kWord), "emu");
}

}  // namespace
}  // namespace quillomat
