// The line above the list: what it says when, and what its commands do.
#include <algorithm>
#include <gmock/gmock.h>

#include "app/notices/notice.h"
#include "support/permissions.h"
#include "support/program_fixture.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<int> TextsOf(const NoticeFacts& facts) {
  std::vector<int> texts;
  for (const Notice& notice : NoticesOf(facts)) texts.push_back(notice.text);
  return texts;
}

TEST(Notices, NothingIsSaidOfNoList) {
  EXPECT_THAT(NoticesOf({.skipped = 3, .settingsChanged = true}), testing::IsEmpty());
  EXPECT_THAT(NoticesOf({.listStands = true, .wordsShown = 5, .words = 5}), testing::IsEmpty());
}

TEST(Notices, MostImportantComesFirst) {
  const NoticeFacts all{.listStands = true,
                        .skipped = 3,
                        .file = "kjv.txt",
                        .settingsChanged = true,
                        .foreignLetters = 1204,
                        .runsLeftWhole = true,
                        .bytesNotDecoded = 7,
                        .linesNotUtf8 = 12,
                        .filesLeftOut = 4,
                        .listsReadAgain = "a.txt",
                        .countOnlyWords = 5,
                        .noCountOnlyWord = true,
                        .wordsToIgnore = 353,
                        .wordsShown = 1770,
                        .words = 12586};
  EXPECT_THAT(
      TextsOf(all),
      ElementsAre(kNoCountOnlyWordText, kFilesSkippedText, kListOfFileText, kSettingsChangedText,
                  kBytesNotDecodedText, kLinesNotUtf8Text, kLettersNotCountedText,
                  kRunsLeftWholeText, kListsReadAgainText, kOnlyWordsCountedText, kPartShownText,
                  kFilesLeftOutText, kWordsToIgnoreText));
}

TEST(Notices, LinesThatWereNotUtf8MatterLessWhereAllLettersWereCounted) {
  EXPECT_THAT(TextsOf({.listStands = true, .guessed = "KOI8-U", .wordsToIgnore = 1}),
              ElementsAre(kGuessedText, kWordToIgnoreText));
  EXPECT_THAT(TextsOf({.listStands = true, .linesNotUtf8 = 2, .wordsShown = 1, .words = 2}),
              ElementsAre(kPartShownText, kLinesNotUtf8Text));
}

TEST(Notices, OneIsNotMany) {
  EXPECT_THAT(
      TextsOf({.listStands = true,
               .skipped = 1,
               .foreignLetters = 1,
               .bytesNotDecoded = 1,
               .linesNotUtf8 = 1,
               .filesLeftOut = 1,
               .countOnlyWords = 1,
               .wordsToIgnore = 1}),
      ElementsAre(kFileSkippedText, kByteNotDecodedText, kLineNotUtf8Text, kLetterNotCountedText,
                  kOnlyWordCountedText, kFileLeftOutText, kWordToIgnoreText));
  // A part of one word is still a part.
  EXPECT_THAT(TextsOf({.listStands = true, .wordsShown = 1, .words = 2}),
              ElementsAre(kPartShownText));
}

TEST(Notices, NewCountIsNotOfferedWhereItWouldBeOfAnotherText) {
  NoticeFacts facts{.listStands = true,
                    .stopped = "Stopped",
                    .settingsChanged = true,
                    .orderFiguresMissing = true};
  const auto offers = [&facts] {
    std::int64_t offered = 0;
    for (const Notice& notice : NoticesOf(facts)) {
      offered += std::ranges::count(notice.actions, NoticeAction::kCountAgain);
    }
    return offered;
  };
  EXPECT_EQ(offers(), 3);
  facts.file = "a.txt";
  EXPECT_EQ(offers(), 0);
}

TEST(Notices, EveryCommandHasACaption) {
  for (const auto action :
       {NoticeAction::kShowSkipped, NoticeAction::kShowLeftOut, NoticeAction::kCountAgain,
        NoticeAction::kCountAllLetters, NoticeAction::kChangeEncoding,
        NoticeAction::kChangeCountOnlyWords, NoticeAction::kChangeWordsToIgnore,
        NoticeAction::kShowTable, NoticeAction::kExport}) {
    EXPECT_GT(CaptionOf(action), 0);
  }
  EXPECT_EQ(CaptionOf(NoticeAction::kNone), 0);
}

class NoticeBarTest : public ProgramFixture {
 protected:
  std::string Said() { return Main().lblNotice.Visible() ? Main().lblNotice.Caption() : ""; }
  std::vector<std::string> Commands() {
    std::vector<std::string> captions;
    for (const CommandButton& command : Main().cmdNotice) {
      if (command.Visible()) captions.push_back(command.Caption());
    }
    return captions;
  }
  void CountManyWords() {
    std::string text;
    for (int i = 0; i < 17'576; ++i) {
      text += std::string("word") + static_cast<char>('a' + i % 26) +
              static_cast<char>('a' + i / 26 % 26) + static_cast<char>('a' + i / 676) + " ";
    }
    CountFile(folder.Write("many.txt", text));
  }
};

TEST_F(NoticeBarTest, SaysNothingWhereNothingIsSilent) {
  EXPECT_EQ(Said(), "");
  CountFile(folder.Write("a.txt", "cat dog"));
  EXPECT_EQ(Said(), "");
  EXPECT_THAT(Commands(), ElementsAre());
  EXPECT_FALSE(Main().cmdDismissNotice.Visible());
}

TEST_F(NoticeBarTest, TellsHowMuchTheTextShows) {
  int exports = 0;
  int tables = 0;
  program.Notices().SetExporter([&] { ++exports; });
  CountManyWords();
  EXPECT_THAT(Said(), testing::AllOf(testing::StartsWith("The text shows 1,"),
                                     testing::EndsWith(" of 17,576 words.")));
  EXPECT_THAT(Commands(), ElementsAre("Export..."));
  program.Notices().SetTableShower([&] { ++tables; });
  program.Notices().Update();
  EXPECT_THAT(Commands(), ElementsAre("Table", "Export..."));
  Main().cmdNotice[0].PerformClick();
  Main().cmdNotice[1].PerformClick();
  EXPECT_EQ(tables, 1);
  EXPECT_EQ(exports, 1);
  program.Notices().SetTextShown(false);
  EXPECT_EQ(Said(), "") << "what is looked at shows all";
}

TEST_F(NoticeBarTest, TellsThatSettingsHaveChangedUntilTheyAreBack) {
  CountFile(folder.Write("a.txt", "cat co-op"));
  desktop.Answer(MessageAnswer::kYes);  // it entails reading the file anew
  Panel().chkCaseSignificant.SetChecked(true);
  EXPECT_EQ(Said(), "Settings have changed since this list.");
  Panel().chkCaseSignificant.SetChecked(false);
  EXPECT_EQ(Said(), "");
  Panel().chkAllowWordsWithHyphens.SetChecked(false);
  ASSERT_THAT(Commands(), ElementsAre("Count again"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(Said(), "");
  EXPECT_THAT(StoredWords(), HasSubstr("op"));
}

TEST_F(NoticeBarTest, SettingsWithoutEffectChangeNothing) {
  CountFile(folder.Write("a.txt", "cat dog"));
  Panel().cboThresholdFrequency.SetListIndex(3);
  Panel().txbStartComment[0].SetText("#");
  Panel().chkWarnOnOverwrite.SetChecked(false);
  Main().txbFileExtensions[0].SetText("txt");
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_EQ(Said(), "");
  Panel().chkIgnoreInfrequentWords.SetChecked(true);
  EXPECT_EQ(Said(), "Settings have changed since this list.");
}

TEST_F(NoticeBarTest, FilesOfAFolderAreOfItsList) {
  static_cast<void>(folder.Write("a.txt", "cat dog"));
  CountFolder(folder.Path());
  Main().txbFileExtensions[0].SetText("txt");
  EXPECT_EQ(Said(), "Settings have changed since this list.");
}

TEST_F(NoticeBarTest, NamesTheTextOfTheListWhenAnotherIsChosen) {
  const std::string path = folder.Write("kjv.txt", "cat dog");
  CountFile(path);
  Main().txbFile[0].SetText("");
  EXPECT_EQ(Said(), "") << "nothing else is chosen";
  Main().txbFile[0].SetText(folder.Write("other.txt", "emu"));
  EXPECT_EQ(Said(), "This list is of kjv.txt.");
  EXPECT_THAT(Commands(), ElementsAre());
  Main().txbFile[0].SetText(path);
  EXPECT_EQ(Said(), "");
  Main().txbFolder.SetText(folder.Path());
  Main().optFolder.SetValue(true);
  EXPECT_EQ(Said(), "This list is of kjv.txt.");
  CountClipboard("emu emu");
  EXPECT_EQ(Said(), "");
  Main().optInFile.SetValue(true);
  EXPECT_EQ(Said(), "This list is of the clipboard.");
}

TEST_F(NoticeBarTest, TellsOfListsOfWordsThatTheCountWentBy) {
  TypeWords(WordListKind::kIgnore, "the and of");
  CountFile(folder.Write("a.txt", "the cat"));
  EXPECT_EQ(Said(), "A list of 3 words to ignore is in use.");
  ASSERT_THAT(Commands(), ElementsAre("Change"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_TRUE(Panel().Visible());
  EXPECT_EQ(Panel().Focused(), &Panel().txbWordsToIgnoreOrCount[0]);
  TypeWords(WordListKind::kCountOnly, "cat");
  EXPECT_EQ(Said(), "Settings have changed since this list.");
  Count();
  EXPECT_EQ(Said(), "Only one word is counted.");
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(Panel().Focused(), &Panel().txbWordsToIgnoreOrCount[1]);
  TypeWords(WordListKind::kCountOnly, "");
  Panel().txbWordsFile[1].SetText(folder.Write("words.txt", "cat\r\n"));
  Count();
  EXPECT_EQ(Said(), "Only one word is counted.");
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(Panel().Focused(), &Panel().txbWordsFile[1]);
}

TEST_F(NoticeBarTest, CountOnlyWordsThatGiveNoneAreTold) {
  Panel().txbWordsFile[1].SetText(folder.Write("words.txt", "// none\r\n"));
  CountFile(folder.Write("a.txt", "the cat"));
  EXPECT_EQ(Said(),
            "The count-only words that are named are none that can be counted: all words were "
            "counted.");
  ASSERT_THAT(Commands(), ElementsAre("Change"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(Panel().Focused(), &Panel().txbWordsFile[1]);
  Panel().txbWordsFile[1].SetText("");
  Count();
  EXPECT_EQ(Said(), "");
}

TEST_F(NoticeBarTest, ListOfWordsToIgnoreIsNotWhatWasLeftOut) {
  TypeWords(WordListKind::kIgnore, "of and");
  CountClipboard("cat dog");
  EXPECT_EQ(Said(), "A list of 2 words to ignore is in use.") << "nothing was left out";
}

TEST_F(NoticeBarTest, TellsOfSkippedFilesAndWhichTheyAre) {
  static_cast<void>(folder.Write("a.txt", "cat dog"));
  const std::string path = folder.Write("secret.txt", "emu");
  const ClosedFile closed(path);
  EXPECT_EQ(AsOrdinaryUser([&] {
              desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
              desktop.AnswerFile(std::nullopt);
              CountFolder(folder.Path());
              EXPECT_EQ(Said(), "One file was skipped.");
              EXPECT_THAT(Commands(), ElementsAre("Which"));
              desktop.ForgetQuestions();
              Main().cmdNotice[0].PerformClick();
              EXPECT_THAT(OnlyMessage().text, testing::StartsWith(path + " ("));
              EXPECT_EQ(OnlyMessage().title, "Skipped files");
              CountFile(folder / "a.txt");
              EXPECT_EQ(Said(), "") << "of another text";
              return HasFailure() ? 1 : 0;
            }),
            0);
}

TEST_F(NoticeBarTest, TellsOfFilesThatWereLeftOut) {
  static_cast<void>(folder.Write("many/a.txt", "cat"));
  static_cast<void>(folder.Write("many/b.txt", "a\1b"));
  static_cast<void>(folder.Write("many/c.txt", ""));
  desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  CountFolder(folder / "many");
  EXPECT_EQ(Said(), "2 files were left out: no text or empty.");
  EXPECT_THAT(Commands(), testing::IsEmpty()) << "nothing here shows files";
  int shown = 0;
  program.Notices().SetSkippedShower([&](bool byDesign) { shown += byDesign ? 1 : 100; });
  program.Notices().Update();
  ASSERT_THAT(Commands(), ElementsAre("Which"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(shown, 1);
  CountFile(folder / "many/a.txt");
  EXPECT_EQ(Said(), "") << "of another text";
}

TEST_F(NoticeBarTest, TellsOfFilesWhoseExtensionsAreNeverText) {
  for (const char* name : {"a.txt", "b.pdf", "c.JPG", "d.jpg"}) {
    static_cast<void>(folder.Write(std::string("many/") + name, "cat"));
  }
  CountFolder(folder / "many");
  EXPECT_EQ(Said(), "3 files were left out: .jpg, .pdf.");
  static_cast<void>(folder.Write("many/e.txt", ""));
  desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  Count();
  EXPECT_EQ(Said(), "4 files were left out: no text or empty, .jpg, .pdf.");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Said(), "4 Dateien wurden ausgelassen: kein Text oder leer, .jpg, .pdf.");
  Main().cmdLanguage.PerformClick();
  Main().txbFileExtensions[1].SetText("jpg pdf");
  desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  Count();
  EXPECT_EQ(Said(), "One file was left out: no text or empty.") << "the user's own wish";
}

TEST_F(NoticeBarTest, MarksOfLettersAreLettersThatAreNotCounted) {
  CountFile(folder.Write("a.txt", "Mu\u0308ller, cafe\u0301 and maison n\u00BA"));
  EXPECT_EQ(Said(), "3 letters of other alphabets were not counted.");
}

TEST_F(NoticeBarTest, LettersOfOtherAlphabetsAreCountedOnDemand) {
  CountFile(folder.Write("a.txt", "мир and миры"));
  EXPECT_EQ(Said(), "7 letters of other alphabets were not counted.");
  ASSERT_THAT(Commands(), ElementsAre("Count them"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_THAT(desktop.Messages(), testing::IsEmpty()) << "there is nothing left to ask";
  EXPECT_EQ(Panel().cboLetters.Text(), "of all languages");
  EXPECT_EQ(StoredWords(), "and мир миры");
  EXPECT_EQ(Said(), "");
}

TEST_F(NoticeBarTest, LettersThatWereNotCountedAreToldInTheUsersWay) {
  std::string text = "cat";
  for (int i = 0; i < 1204; ++i) text += " ж";
  CountClipboard(text);
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Said(), "1" + program.DigitGroupSeparator() +
                        "204 Buchstaben anderer Alphabete wurden nicht gezählt.");
  EXPECT_THAT(Commands(), ElementsAre("Mitzählen"));
  CountClipboard("ж cat");
  EXPECT_EQ(Said(), "Ein Buchstabe eines anderen Alphabets wurde nicht gezählt.");
  desktop.Answer(MessageAnswer::kYes);  // it entails reading the clipboard anew
  Panel().cboLetters.SetListIndex(1);
  CountClipboard("ж cat");
  EXPECT_EQ(Said(), "");
}

TEST_F(NoticeBarTest, ListIsSaidToBeGoneWhenAFileOfWordsIsRead) {
  CountClipboard("cat dog cat");
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "dog\r\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_THAT(Output(), HasSubstr("cat"));
  EXPECT_EQ(Said(), "A file of words was read since: of this list only the text is left.");
  EXPECT_THAT(Commands(), ElementsAre("Count again"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_EQ(StoredWords(), "cat*2");
  EXPECT_EQ(Said(), "A list of one word to ignore is in use.");
}

TEST_F(NoticeBarTest, LinesThatWereNotUtf8AreTold) {
  CountFile(folder.Write("a.txt", "caf\xE9\nth\xE9\ncat\n"));
  EXPECT_EQ(Said(), "2 lines were not UTF-8 and were read as Windows-1252.");
  EXPECT_THAT(Commands(), ElementsAre("Change"));
  Main().cmdNotice[0].PerformClick();
  EXPECT_TRUE(Panel().Visible());
  EXPECT_EQ(Panel().Focused(), &Panel().cboEncoding);
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Said(), "2 Zeilen waren kein UTF-8 und wurden als Windows-1252 gelesen.");
  CountFile(folder.Write("a.txt", "th\xE9\n"));
  EXPECT_EQ(Said(), "Eine Zeile war kein UTF-8 und wurde als Windows-1252 gelesen.");
  CountFile(folder.Write("a.txt", "th\xC3\xA9\n"));
  EXPECT_EQ(Said(), "");
}

TEST_F(NoticeBarTest, BytesThatCouldNotBeDecodedAreTold) {
  Panel().cboEncoding.SetListIndex(2);
  CountFile(folder.Write("a.txt", "caf\xE9 th\xE9\n"));
  EXPECT_EQ(Said(), "2 bytes could not be decoded.");
  EXPECT_THAT(Commands(), ElementsAre("Change"));
  CountFile(folder.Write("a.txt", "cat\xFF\n"));
  EXPECT_EQ(Said(), "One byte could not be decoded.");
}

TEST_F(NoticeBarTest, FirstFileOfAFolderWithBytesThatCouldNotBeDecodedIsNamed) {
  Panel().cboEncoding.SetListIndex(2);
  static_cast<void>(folder.Write("g/a.txt", "caf\u00E9"));
  static_cast<void>(folder.Write("g/b.txt", "caf\xE9 th\xE9"));
  static_cast<void>(folder.Write("g/c.txt", "caf\xE9"));
  desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  CountFolder(folder / "g");
  EXPECT_EQ(Said(), "3 bytes could not be decoded, the first of them in b.txt.");
  EXPECT_THAT(Commands(), ElementsAre("Change"));
  static_cast<void>(folder.Write("g/b.txt", "tea"));
  desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  CountFolder(folder / "g");
  EXPECT_EQ(Said(), "One byte could not be decoded: in c.txt.");
}

TEST_F(NoticeBarTest, EncodingIsOfferedBeforeLettersThatItMayHaveMade) {
  CountFile(folder.Write("a.txt", "\x8C\x9F\ncat\n"));
  EXPECT_THAT(Said(), HasSubstr("was not UTF-8"));
  EXPECT_THAT(Commands(), ElementsAre("Change"));
  Main().cmdDismissNotice.PerformClick();
  EXPECT_THAT(Said(), HasSubstr("of another alphabet"));
}

TEST_F(NoticeBarTest, ClosedNoticeMakesPlaceForTheNextUntilTheNextCount) {
  TypeWords(WordListKind::kIgnore, "the");
  CountManyWords();
  EXPECT_THAT(Said(), HasSubstr("The text shows"));
  Main().cmdDismissNotice.PerformClick();
  EXPECT_EQ(Said(), "A list of one word to ignore is in use.");
  Main().cmdDismissNotice.PerformClick();
  EXPECT_EQ(Said(), "");
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_EQ(Said(), "") << "the same list in another order";
  Count();
  EXPECT_THAT(Said(), HasSubstr("The text shows"));
}

TEST_F(NoticeBarTest, NothingIsSaidOfAListThatIsGone) {
  TypeWords(WordListKind::kIgnore, "the");
  CountFile(folder.Write("a.txt", "the cat"));
  ASSERT_NE(Said(), "");
  Main().cmdClearOutput.PerformClick();
  EXPECT_EQ(Said(), "");
  Count();
  ASSERT_NE(Said(), "");
  std::string saidMeanwhile = "never asked";
  Main().txbOutput.Change.Connect([&] {
    if (State().Busy()) saidMeanwhile = Said();
  });
  Count();
  EXPECT_EQ(saidMeanwhile, "");
}

TEST_F(NoticeBarTest, TableKeepsItsNoticeWhenNoFolderIsChosen) {
  TypeWords(WordListKind::kIgnore, "the");
  CountFile(folder.Write("a.txt", "the cat"));
  program.Notices().SetTextShown(false);
  ASSERT_EQ(Said(), "A list of one word to ignore is in use.");
  desktop.AnswerFolder(std::nullopt);
  Main().cmdFolder.PerformClick();
  EXPECT_EQ(Said(), "A list of one word to ignore is in use.");
  Main().optOnClipboard.PerformClick();
  EXPECT_EQ(Said(), "This list is of a.txt.");
  program.Notices().SetTextShown(true);
  program.Notices().SetTextShown(false);
  EXPECT_EQ(Said(), "This list is of a.txt.");
}

TEST_F(NoticeBarTest, SpeaksTheLanguageOfTheProgram) {
  TypeWords(WordListKind::kIgnore, "the and");
  CountFile(folder.Write("a.txt", "the cat"));
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Said(), "Eine Liste von 2 auszulassenden Wörtern gilt.");
  EXPECT_THAT(Commands(), ElementsAre("Ändern"));
}

}  // namespace
}  // namespace quillomat
