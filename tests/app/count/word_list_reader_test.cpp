// The lists of words to ignore and of count-only words: what they hold and what they do.
#include "app/count/word_list_reader.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using enum WordListKind;

class WordListReaderTest : public SourcesFixture {
 protected:
  [[nodiscard]] const std::vector<std::string>& Typed(WordListKind kind) {
    const WordLists& lists = program.Settings().lists;
    return (kind == kIgnore ? lists.ExtraIgnoreList : lists.ExtraCountOnlyList).Words();
  }
  [[nodiscard]] const std::vector<std::string>& Read(WordListKind kind) {
    const WordLists& lists = program.Settings().lists;
    return (kind == kIgnore ? lists.IgnoreList : lists.CountOnlyList).Words();
  }
  [[nodiscard]] const std::string& TypedBox(WordListKind kind) {
    return Panel().txbWordsToIgnoreOrCount[static_cast<std::size_t>(kind)].Text();
  }

  /// Chooses a words file of that contents on the panel.
  void ChooseWordsFile(WordListKind kind, const std::string& contents) {
    desktop.AnswerFile(folder.Write("words.txt", contents));
    Panel().cmdSelectWordsFile[static_cast<std::size_t>(kind)].PerformClick();
  }

  /// The list that comes of a words file of that contents.
  const std::vector<std::string>& ReadFrom(const std::string& contents,
                                           WordListKind kind = kIgnore) {
    ChooseWordsFile(kind, contents);
    return Read(kind);
  }
};

// Words typed by hand.

TEST_F(WordListReaderTest, TypedWordsAreLowerCasedAndFreedOfSignsAtTheirEnds) {
  TypeWords(kIgnore, "Dog, cat.");
  EXPECT_THAT(Typed(kIgnore), ElementsAre("dog", "cat"));
  EXPECT_EQ(TypedBox(kIgnore), "dog cat");
  TypeWords(kCountOnly, "  rock_  e-mail- it's' a.b:., Café  ");
  EXPECT_THAT(Typed(kCountOnly), ElementsAre("rock", "e-mail", "it's", "a.b", "café"));
  EXPECT_EQ(TypedBox(kCountOnly), "rock e-mail it's a.b café");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(WordListReaderTest, TypedWordsStandInTheOrderOfTypingWithRepetitions) {
  TypeWords(kIgnore, "dog cat dog");
  EXPECT_THAT(Typed(kIgnore), ElementsAre("dog", "cat", "dog"));
}

TEST_F(WordListReaderTest, TypedWordsAreLowerCasedEvenWhereLetterCaseIsSignificant) {
  Panel().chkCaseSignificant.SetChecked(true);
  TypeWords(kIgnore, "DOG");
  EXPECT_THAT(Typed(kIgnore), ElementsAre("dog"));
  CountClipboard("Dog dog DOG Cat");
  EXPECT_EQ(StoredWords(), "Cat");
}

TEST_F(WordListReaderTest, AnEmptiedBoxEmptiesItsList) {
  for (const WordListKind kind : {kIgnore, kCountOnly}) {
    TypeWords(kind, "dog");
    TypeWords(kind, "   ");
    EXPECT_THAT(Typed(kind), IsEmpty());
    EXPECT_EQ(TypedBox(kind), "");
  }
}

TEST_F(WordListReaderTest, ClearingTheTypedWordsEmptiesTheListAndClosesThePanel) {
  TypeWords(kCountOnly, "dog");
  Panel().Show();
  Panel().cmdClearWordsToIgnoreOrCount[1].PerformClick();
  EXPECT_THAT(Typed(kCountOnly), IsEmpty());
  EXPECT_EQ(TypedBox(kCountOnly), "");
  EXPECT_FALSE(Panel().Visible());
  CountClipboard("cat");
  EXPECT_EQ(StoredWords(), "cat");
}

// What a words file contributes.

TEST_F(WordListReaderTest, AWordsFileGivesItsDifferentWordsInAlphabeticalOrder) {
  EXPECT_THAT(ReadFrom("the and\n  CAT the\n\nÄpfel And\n"),
              ElementsAre("äpfel", "and", "cat", "the"));
}

TEST_F(WordListReaderTest, WordsOfAFileMayHoldAllSignsThatCanBeAllowed) {
  EXPECT_THAT(ReadFrom("e-mail o'clock rock_ a:b c\\d f(x)y 3.14 1,000 me@home x2\n"),
              ElementsAre("1,000", "3.14", "a:b", "c\\d", "e-mail", "f(x)y", "me@home", "o'clock",
                          "rock_", "x2"));
}

TEST_F(WordListReaderTest, AForwardSlashStandsInAWordUnlessItOpensAComment) {
  EXPECT_THAT(ReadFrom("and/or // no\n"), ElementsAre("and/or"));
}

TEST_F(WordListReaderTest, CommentsInAWordsFileAreSkipped) {
  EXPECT_THAT(ReadFrom("Aren't // comment\n"), ElementsAre("aren't"));
  EXPECT_THAT(ReadFrom("/* a b */\n"), IsEmpty());
  EXPECT_THAT(ReadFrom("one /* two\nthree\nfour */ five\n"), ElementsAre("five", "one"));
}

TEST_F(WordListReaderTest, AWordsFileIsReadAsItStandsWhateverThePanelSays) {
  Panel().chkDropFinalS.SetChecked(true);
  Panel().chkCaseSignificant.SetChecked(true);
  AllowComments("{", "}");
  EXPECT_THAT(ReadFrom("Cats {dogs} well--known &eacute; s t\n"),
              ElementsAre("cats", "dogs", "eacute", "s", "t", "well--known"));
}

TEST_F(WordListReaderTest, LongWordsAreKept) {
  const std::string word(300, 'a');
  EXPECT_THAT(ReadFrom(word), ElementsAre(word));
}

TEST_F(WordListReaderTest, AnEmptyFileGivesAnEmptyList) {
  ReadFrom("cat");
  EXPECT_THAT(ReadFrom(""), IsEmpty());
  EXPECT_THAT(ReadFrom("\n  \n"), IsEmpty());
}

TEST_F(WordListReaderTest, WordsFilesOfAllLineEndsAreRead) {
  EXPECT_THAT(ReadFrom("a\r\nb\r\n"), ElementsAre("a", "b"));
  EXPECT_THAT(ReadFrom("a\rb\rc // d\re"), ElementsAre("a", "b", "c", "e"));
}

TEST_F(WordListReaderTest, OnlyTheFirst16384BytesOfAWordsFileAreTested) {
  EXPECT_THAT(ReadFrom(std::string(16'384, 'a') + " \x01 b"),
              ElementsAre(std::string(16'384, 'a'), "b"));
  EXPECT_THAT(ReadFrom(std::string(16'383, 'b') + '\x01'), IsEmpty());
}

// What reading leaves behind.

TEST_F(WordListReaderTest, ReadingDiscardsTheWordsOfTheLastCount) {
  CountClipboard("mouse");
  ReadFrom("dog cat");
  EXPECT_EQ(StoredWords(), "cat dog");
  EXPECT_FALSE(Words().completeRun);
  EXPECT_TRUE(program.Settings().settings.ReadingWordList);
  EXPECT_EQ(program.Settings().settings.CommentStart[0], "/*");
  CountClipboard("cat mouse");
  EXPECT_FALSE(program.Settings().settings.ReadingWordList);
  EXPECT_EQ(StoredWords(), "mouse");
}

TEST_F(WordListReaderTest, TheOutputTextIsThereAgainAfterwards) {
  CountClipboard("mouse");
  const std::string before = Output();
  WatchOutput();
  ReadFrom("dog");
  ReadFrom("cat", kCountOnly);
  EXPECT_EQ(Output(), before);
  EXPECT_THAT(Shown(), ElementsAre("Now reading words to ignore . . . ", before,
                                   "Now reading count-only words . . . ", before));
}

TEST_F(WordListReaderTest, TheSummaryOfTheLastCountIsHidden) {
  CountClipboard("mouse");
  ReadFrom("dog");
  for (const Label* label : {&Main().lblNumberOfWords, &Main().lblNumWordsExcluded,
                             &Main().lblNumOccurrences, &Main().lblTotalNumOccurrences}) {
    EXPECT_FALSE(label->Visible()) << label->Name();
  }
}

TEST_F(WordListReaderTest, EveryTenthWordReadIsShown) {
  std::string words;
  for (int i = 10; i < 35; ++i) words += "w" + std::to_string(i) + "\n";
  std::vector<std::string> captions;
  Main().lblNumberOfWords.Changed.Connect([&] {
    const std::string& caption = Main().lblNumberOfWords.Caption();
    if (captions.empty() || captions.back() != caption) captions.push_back(caption);
  });
  ReadFrom(words);
  EXPECT_THAT(captions, ElementsAre("", "Number of words read so far: 10",
                                    "Number of words read so far: 20"));
}

TEST_F(WordListReaderTest, HowManyWordsWereReadIsNoResultThatStays) {
  std::string words;
  for (int i = 10; i < 35; ++i) words += "w" + std::to_string(i) + "\r\n";
  ReadFrom(words);
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
}

TEST_F(WordListReaderTest, TheBoxesThatReadingNeedsStandAsBefore) {
  using enum CheckState;
  for (const CheckState state : {kUnchecked, kChecked, kGrayed}) {
    Main().chkSuppressWords.SetValue(state);
    Panel().chkAllowCommentMarkers.SetValue(state);
    ReadFrom("dog");
    EXPECT_EQ(Main().chkSuppressWords.Value(), state);
    EXPECT_EQ(Panel().chkAllowCommentMarkers.Value(), state);
  }
}

// The signs of count-only words.

TEST_F(WordListReaderTest, CountOnlyWordsOfAFileTickTheBoxesOfTheirSigns) {
  Panel().chkAllowWordsWithHyphens.SetChecked(false);
  ReadFrom("e-mail", kCountOnly);
  for (const CheckBox* box : Panel().AllowCheckBoxes()) {
    EXPECT_EQ(box->IsChecked(), box == &Panel().chkAllowWordsWithHyphens) << box->Name();
  }
}

TEST_F(WordListReaderTest, EachSignTicksItsOwnBox) {
  const std::vector<std::string> words = {"a-b", "a'b", "a_b", "a:b", "a\\b", "a/b",
                                          "a(b", "a.b", "a,b", "a@b", "a2b"};
  const auto boxes = Panel().AllowCheckBoxes();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (CheckBox* box : boxes) box->SetChecked(false);
    ReadFrom(words[i], kCountOnly);
    for (std::size_t k = 0; k < boxes.size(); ++k) {
      EXPECT_EQ(boxes[k]->IsChecked(), k == i) << words[i] << " and " << boxes[k]->Name();
    }
  }
}

TEST_F(WordListReaderTest, ABoxIsNeverClearedForAListWithoutItsSign) {
  Panel().chkAllowWordsWithColons.SetChecked(true);
  ReadFrom("o'clock", kCountOnly);
  EXPECT_TRUE(Panel().chkAllowWordsWithColons.IsChecked());
  EXPECT_TRUE(Panel().chkAllowWordsWithHyphens.IsChecked());
  EXPECT_TRUE(Panel().chkAllowWordsWithApostrophes.IsChecked());
}

TEST_F(WordListReaderTest, WordsToIgnoreTickNothing) {
  Panel().chkAllowWordsWithHyphens.SetChecked(false);
  ReadFrom("co-op o'clock 3rd");
  for (const CheckBox* box : Panel().AllowCheckBoxes()) {
    EXPECT_FALSE(box->IsChecked()) << box->Name();
  }
}

TEST_F(WordListReaderTest, SignsInCommentsTickNothing) {
  ReadFrom("cat // o'clock\n/* me@home */ dog", kCountOnly);
  EXPECT_FALSE(Panel().chkAllowWordsWithApostrophes.IsChecked());
  EXPECT_FALSE(Panel().chkAllowWordsWithAtSigns.IsChecked());
}

TEST_F(WordListReaderTest, CountOnlyWordsWithSignsAreThenFoundInTheText) {
  ReadFrom("o'clock e-mail", kCountOnly);
  CountClipboard("An e-mail at five O'Clock, an email at six o'clock.");
  EXPECT_EQ(StoredWords(), "e-mail o'clock*2");
}

// What the lists do.

TEST_F(WordListReaderTest, WordsToIgnoreAreNotCounted) {
  TypeWords(kIgnore, "the");
  ReadFrom("a and");
  CountClipboard("The cat and a dog and the mouse");
  EXPECT_EQ(StoredWords(), "cat dog mouse");
  EXPECT_EQ(Words().WordsRead, 8);
}

TEST_F(WordListReaderTest, OnlyCountOnlyWordsAreCounted) {
  TypeWords(kCountOnly, "the");
  ReadFrom("dog", kCountOnly);
  CountClipboard("The cat and a dog and the mouse");
  EXPECT_EQ(StoredWords(), "dog the*2");
}

TEST_F(WordListReaderTest, CountOnlyWordsTakePrecedenceOverWordsToIgnore) {
  TypeWords(kCountOnly, "the");
  TypeWords(kIgnore, "the cat");
  CountClipboard("the cat the dog");
  EXPECT_EQ(StoredWords(), "the*2");
}

TEST_F(WordListReaderTest, AccentsOfListedWordsMatter) {
  ReadFrom("cafe müller");
  CountClipboard("Café CAFE Müller Mueller");
  EXPECT_EQ(StoredWords(), "café mueller");
}

TEST_F(WordListReaderTest, AClearedWordsFileHasNoEffect) {
  ReadFrom("cat", kCountOnly);
  Panel().cmdClearWordsFile[1].PerformClick();
  EXPECT_EQ(Panel().txbWordsFile[1].Text(), "");
  CountClipboard("cat dog");
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(WordListReaderTest, TheDefaultCommonWordsFileIsTextAndCanBeRead) {
  program.BeginControls();  // as at the start, when it stands in for a file that is lost
  Panel().txbWordsFile[0].SetText(folder / "gone.txt");
  Panel().txbWordsFile[0].LostFocus.Fire();
  program.TakeControls();
  EXPECT_TRUE(Panel().txbWordsFile[0].Text().ends_with("cwds_en.txt"));
  EXPECT_THAT(Read(kIgnore), ::testing::Contains("the"));
  CountClipboard("the lighthouse of the harbour");
  EXPECT_EQ(StoredWords(), "harbour lighthouse");
}

}  // namespace
}  // namespace quillomat
