// What the user is told, and asked, about words to ignore and count-only words.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/sources_fixture.h"
#include "app/count/word_list_reader.h"
#include "base/character_set.h"
#include "system/desktop_test.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using enum WordListKind;

class WordListMessages : public SourcesFixture {
 protected:
  void Choose(WordListKind kind, const std::string& path) {
    desktop.AnswerFile(path);
    Panel().cmdSelectWordsFile[static_cast<std::size_t>(kind)].PerformClick();
  }
  /// Types a path and leaves the box. Whether the file's words are in force then.
  bool Attempt(WordListKind kind, const std::string& path) {
    PathBox(kind).SetText(path);
    PathBox(kind).LostFocus.Fire();
    return NumberRead(kind) > 0;
  }
  [[nodiscard]] TextBox& PathBox(WordListKind kind) {
    return Panel().txbWordsFile[static_cast<std::size_t>(kind)];
  }
  [[nodiscard]] std::int32_t NumberRead(WordListKind kind) {
    const WordLists& lists = program.Settings().lists;
    return (kind == kIgnore ? lists.IgnoreList : lists.CountOnlyList).Count();
  }

  /// So many different words with blanks between them: "w1000 w1001 ...".
  static std::string ManyWords(int number) {
    std::string text;
    for (int i = 0; i < number; ++i) text += (i > 0 ? " w" : "w") + std::to_string(1'000 + i);
    return text;
  }
};

// Typed words.

TEST_F(WordListMessages, AListOfTypedWordsTakesAThousand) {
  TypeWords(kIgnore, ManyWords(1'000));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(program.Settings().lists.ExtraIgnoreList.Count(), 1'000);
}

TEST_F(WordListMessages, TooManyTypedWordsAreRefusedAndTheListStands) {
  TypeWords(kIgnore, "dog");
  TypeWords(kIgnore, ManyWords(1'001));
  ExpectMessage(OnlyMessage(), "Too many words to ignore.", "Invalid input",
                MessageIcon::kExclamation);
  EXPECT_THAT(program.Settings().lists.ExtraIgnoreList.Words(), ElementsAre("dog"));
  EXPECT_EQ(Panel().txbWordsToIgnoreOrCount[0].Text(), ManyWords(1'001));
  desktop.ForgetQuestions();
  TypeWords(kCountOnly, "cat");
  TypeWords(kCountOnly, ManyWords(1'001));
  ExpectMessage(OnlyMessage(), "Too many count-only words.", "Invalid input",
                MessageIcon::kExclamation);
  EXPECT_THAT(program.Settings().lists.ExtraCountOnlyList.Words(), ElementsAre("cat"));
}

TEST_F(WordListMessages, TypedBytesThatAreNoUtf8AreToldOfWhenACountBegins) {
  Panel().txbWordsToIgnoreOrCount[0].SetText("caf\xE9 dog");
  CountClipboard("caf\u00E9 dog cat");
  ExpectMessage(OnlyMessage(),
                "The typed words-to-ignore were not UTF-8 and were read as Windows-1252.",
                "Invalid input", MessageIcon::kExclamation);
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(Panel().txbWordsToIgnoreOrCount[0].Text(), "caf\u00E9 dog");
}

TEST_F(WordListMessages, TypedLettersThatACountCannotUseAreToldOfOnce) {
  TypeWords(kIgnore, "dog \u03B1\u03B2");
  ExpectMessage(OnlyMessage(),
                "2 letters of the typed words-to-ignore belong to other alphabets: no word of a "
                "text has them. To use these words, choose letters \"of all languages\".",
                "Extra words", MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  CountClipboard("dog cat");
  CountClipboard("dog cat");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  TypeWords(kIgnore, "dog");
  TypeWords(kIgnore, "dog \u03B1\u03B2");
  EXPECT_EQ(OnlyMessage().title, "Extra words") << "they were taken anew";
}

TEST_F(WordListMessages, TypedLettersAreToldOfWhenACountTakesThem) {
  Panel().txbWordsToIgnoreOrCount[1].SetText("dog \u03B1");
  CountClipboard("dog cat");
  ExpectMessage(
      OnlyMessage(),
      "One letter of the typed count-only words belongs to another alphabet: no word of a "
      "text has it. To use its word, choose letters \"of all languages\".",
      "Extra words", MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  desktop.Answer(MessageAnswer::kYes);
  Panel().cboLetters.PerformChoice(1);
  desktop.ForgetQuestions();
  CountClipboard("dog cat");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  desktop.Answer(MessageAnswer::kYes);
  Panel().cboLetters.PerformChoice(0);
  desktop.ForgetQuestions();
  CountClipboard("dog cat");
  EXPECT_EQ(OnlyMessage().title, "Extra words");
}

TEST_F(WordListMessages, BytesOfAWordsFileThatCannotBeDecodedAreToldOf) {
  Panel().cboEncoding.PerformChoice(static_cast<int>(CharacterSet::kShiftJis));
  const std::string path = folder.Write("words.txt", "dog \xFF\xFF cat\r\n");
  Choose(kIgnore, path);
  ExpectMessage(OnlyMessage(),
                "2 words-to-ignore loaded from " + path + "\r\n2 bytes of " + path +
                    " could not be decoded. Another encoding may read them.",
                "Words loaded", MessageIcon::kExclamation);
}

TEST_F(WordListMessages, BytesOfAWordsFileThatACountReadsAreToldOfAsWell) {
  Panel().cboEncoding.PerformChoice(static_cast<int>(CharacterSet::kShiftJis));
  const std::string path = folder.Write("words.txt", "dog \xFF cat\r\n");
  PathBox(kIgnore).SetText(path);
  CountClipboard("dog bird");
  ExpectMessage(OnlyMessage(),
                "One byte of " + path + " could not be decoded. Another encoding may read it.",
                "Words loaded", MessageIcon::kExclamation);
  EXPECT_EQ(StoredWords(), "bird");
}

TEST_F(WordListMessages, WhatWasGuessedOfAWordsFileIsToldOf) {
  Panel().cboEncoding.PerformChoice(static_cast<int>(CharacterSet::kGuess));
  Panel().cboLetters.PerformChoice(1);
  desktop.ForgetQuestions();
  const std::string path = folder.Write("words.txt",
                                        "\xEF\xF0\xE8\xE2\xE5\xF2 "
                                        "\xEC\xE8\xF0 "
                                        "\xE4\xEE\xEC "
                                        "\xEF\xEE\xE3\xEE\xE4\xE0 "
                                        "\xF1\xEB\xEE\xE2\xEE\r\n");
  Choose(kIgnore, path);
  ExpectMessage(OnlyMessage(),
                "5 words-to-ignore loaded from " + path + "\r\nRead as guessed: Windows-1251.",
                "Words loaded", MessageIcon::kInformation);
  desktop.ForgetQuestions();
  const std::string plain = folder.Write("plain.txt", "\u043C\u0438\u0440\r\n");
  Choose(kIgnore, plain);
  ExpectMessage(OnlyMessage(), "1 words-to-ignore loaded from " + plain, "Words loaded",
                MessageIcon::kInformation);
}

TEST_F(WordListMessages, LinesOfAWordsFileThatAreNoUtf8AreToldOf) {
  const std::string path = folder.Write("words.txt", "dog\r\ncaf\xE9\r\n\xFCs\r\n");
  Choose(kIgnore, path);
  ExpectMessage(OnlyMessage(),
                "3 words-to-ignore loaded from " + path + "\r\n2 lines of " + path +
                    " were not UTF-8 and were read as Windows-1252. If their words look wrong, "
                    "choose the encoding of the file.",
                "Words loaded", MessageIcon::kExclamation);
}

TEST_F(WordListMessages, LinesOfAWordsFileThatACountReadsAreToldOfOnce) {
  const std::string path = folder.Write("words.txt", "caf\xE9");
  PathBox(kCountOnly).SetText(path);
  CountClipboard("caf\u00E9 dog");
  ExpectMessage(OnlyMessage(),
                "One line of " + path +
                    " was not UTF-8 and was read as Windows-1252. If its words look wrong, choose "
                    "the encoding of the file.",
                "Words loaded", MessageIcon::kExclamation);
  EXPECT_EQ(StoredWords(), "caf\u00E9");
  desktop.ForgetQuestions();
  CountClipboard("caf\u00E9 dog");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(WordListMessages, NothingIsToldOfAWordsFileInTheEncodingThatIsChosen) {
  Panel().cboEncoding.PerformChoice(static_cast<int>(CharacterSet::kWindows1252));
  const std::string path = folder.Write("words.txt", "caf\xE9\r\n");
  Choose(kIgnore, path);
  EXPECT_EQ(OnlyMessage().text, "1 words-to-ignore loaded from " + path);
}

TEST_F(WordListMessages, LettersOfAWordsFileThatACountCannotUseAreToldOf) {
  const std::string path = folder.Write("words.txt", "dog \u03B1\u03B2\r\n");
  PathBox(kIgnore).SetText(path);
  CountClipboard("dog cat");
  ExpectMessage(OnlyMessage(),
                "2 letters of " + path +
                    " belong to other alphabets and were not read. To use its words, choose "
                    "letters \"of all languages\".",
                "Words loaded", MessageIcon::kExclamation);
}

TEST_F(WordListMessages, TypedWordsAreCleanedOrRefused) {
  Panel().txbWordsToIgnoreOrCount[0].SetText(" End. Stop... ");
  ProgramParts parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  const WordListReader::TypedWords taken = parts.wordLists.GetExtraWords(kIgnore);
  EXPECT_TRUE(taken.taken);
  EXPECT_EQ(taken.text, "end stop");
  Panel().txbWordsToIgnoreOrCount[0].SetText(ManyWords(1'001));
  const WordListReader::TypedWords refused = parts.wordLists.GetExtraWords(kIgnore);
  EXPECT_FALSE(refused.taken);
  EXPECT_EQ(refused.text, "Too many words to ignore.");
}

TEST_F(WordListMessages, AccentsOfListsMatterThoughTheyMakeNoDifferenceInATextsWords) {
  ASSERT_TRUE(Panel().chkFoldAccents.IsChecked());
  TypeWords(kIgnore, "cafe");
  CountClipboard("caf\u00E9 cafe th\u00E9 the");
  EXPECT_EQ(StoredWords(), "caf\u00E9 th\u00E9*2");
}

TEST_F(WordListMessages, AWordsFileOfAllLettersHasEachOfTheWordsThatAccentsTellApart) {
  constexpr int kAllLetters = 1;
  const std::string path = folder.Write("words.txt", "la l\u00E0 Stra\u00DFe strasse\r\n");
  ASSERT_TRUE(Panel().chkFoldAccents.IsChecked());
  Choose(kIgnore, path);
  EXPECT_EQ(OnlyMessage().text, "2 words-to-ignore loaded from " + path) << "of western letters";
  Panel().cboLetters.PerformChoice(kAllLetters);
  desktop.ForgetQuestions();
  Choose(kIgnore, path);
  EXPECT_EQ(OnlyMessage().text, "4 words-to-ignore loaded from " + path);
  CountClipboard("l\u00E0 la L\u00C0 strasse stra\u00DFe l\u00E1 l\u00E4");
  EXPECT_EQ(StoredWords(), "l\u00E1 l\u00E4");
  Choose(kCountOnly, path);
  CountClipboard("l\u00E0 la l\u00E1 strasse");
  EXPECT_EQ(StoredWords(), "l\u00E0*2 strasse");
}

// Choosing a words file.

TEST_F(WordListMessages, LoadedWordsAreConfirmed) {
  const std::string path = folder.Write("common.txt", "the\r\nand\r\nthe\r\n");
  Choose(kIgnore, path);
  ExpectMessage(OnlyMessage(), "2 words-to-ignore loaded from " + path, "Words loaded",
                MessageIcon::kInformation);
  EXPECT_EQ(PathBox(kIgnore).Text(), path);
  desktop.ForgetQuestions();
  Choose(kCountOnly, path);
  ExpectMessage(OnlyMessage(), "2 count-only words loaded from " + path, "Words loaded",
                MessageIcon::kInformation);
}

TEST_F(WordListMessages, TheNumberOfLoadedWordsIsGroupedAsTheUserWritesNumbers) {
  desktop.SetDigitGroupSeparator(".");
  const std::string path = folder.Write("many.txt", ManyWords(1'234));
  Choose(kIgnore, path);
  EXPECT_EQ(OnlyMessage().text, "1.234 words-to-ignore loaded from " + path);
}

TEST_F(WordListMessages, TheDialogAsksForTheFileOfItsKind) {
  for (const WordListKind kind : {kIgnore, kCountOnly}) {
    desktop.AnswerFile(std::nullopt);
    Panel().cmdSelectWordsFile[static_cast<std::size_t>(kind)].PerformClick();
    EXPECT_EQ(PathBox(kind).Text(), "");
  }
  ASSERT_EQ(desktop.FileDialogs().size(), 2U);
  EXPECT_EQ(desktop.FileDialogs()[0].title, "Specify file containing words to ignore");
  EXPECT_EQ(desktop.FileDialogs()[1].title, "Specify file containing count-only words");
  for (const FileDialog& dialog : desktop.FileDialogs()) {
    EXPECT_EQ(dialog.mode, FileDialog::Mode::kOpen);
    EXPECT_EQ(dialog.filter, "Any text file (*.*) | *.*");
  }
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(WordListMessages, CancelInTheDialogKeepsTheFileAndItsWords) {
  const std::string path = folder.Write("words.txt", "cat\r\n");
  Choose(kIgnore, path);
  desktop.ForgetQuestions();
  desktop.AnswerFile(std::nullopt);
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_EQ(PathBox(kIgnore).Text(), path);
  EXPECT_EQ(NumberRead(kIgnore), 1);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(WordListMessages, WithCountOnlyWordsTheUserIsAskedBeforeWordsToIgnore) {
  TypeWords(kCountOnly, "cat");
  desktop.Answer(MessageAnswer::kNo);
  Panel().cmdSelectWordsFile[0].PerformClick();
  ExpectMessage(OnlyMessage(),
                "Since there are count-only words (that is,\r\n"
                "only specified words are to be counted),\r\n"
                "specifying words to be ignored will have no effect.\r\n"
                "Do you still wish to specify words to be ignored?",
                "Proceed?", MessageIcon::kQuestion, MessageButtons::kYesNo);
  EXPECT_THAT(desktop.FileDialogs(), IsEmpty());
  desktop.Answer("Proceed?", MessageAnswer::kYes);
  Choose(kIgnore, folder.Write("words.txt", "dog\r\n"));
  EXPECT_EQ(NumberRead(kIgnore), 1);
}

TEST_F(WordListMessages, ACountOnlyFileBringsTheQuestionTooAndCountOnlyWordsNever) {
  Choose(kCountOnly, folder.Write("words.txt", "dog\r\n"));
  Choose(kCountOnly, folder.Write("words.txt", "cat\r\n"));
  EXPECT_THAT(desktop.Titles(),
              ElementsAre("Specify file containing count-only words", "Words loaded",
                          "Specify file containing count-only words", "Words loaded"));
  desktop.Answer("Proceed?", MessageAnswer::kNo);
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_EQ(desktop.Messages().back().title, "Proceed?");
}

// What goes wrong with a words file.

TEST_F(WordListMessages, AMissingFileIsTold) {
  const std::string path = folder / "nowhere.txt";
  EXPECT_FALSE(Attempt(kIgnore, path));
  ExpectMessage(OnlyMessage(), "File for words-to-ignore not found.", "File not found",
                MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  EXPECT_FALSE(Attempt(kCountOnly, path));
  ExpectMessage(OnlyMessage(), "File for count-only words not found.", "File not found",
                MessageIcon::kExclamation);
}

TEST_F(WordListMessages, WhileTheProgramStartsAMissingFileIsReplacedByTheDefault) {
  program.BeginControls();
  EXPECT_FALSE(Attempt(kIgnore, folder / "nowhere.txt"));
  EXPECT_TRUE(PathBox(kIgnore).Text().ends_with("cwds_en.txt"));
  EXPECT_FALSE(Attempt(kCountOnly, folder / "nowhere.txt"));
  EXPECT_EQ(PathBox(kCountOnly).Text(), folder / "nowhere.txt");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(WordListMessages, AFileThatIsNotTextIsRefusedAndItsNameCleared) {
  Choose(kIgnore, folder.Write("words.txt", "cat\r\n"));
  CountClipboard("mouse");
  const std::string output = Output();
  const std::string path = folder.Write("picture.bin", std::string("GIF\0", 4));
  desktop.ForgetQuestions();
  Choose(kIgnore, path);
  ASSERT_EQ(desktop.Messages().size(), 2U);
  ExpectMessage(desktop.Messages()[0], "This is not a text file.", "Invalid input",
                MessageIcon::kExclamation);
  ExpectMessage(desktop.Messages()[1], "Error when attempting to load words-to-ignore from " + path,
                "Error", MessageIcon::kExclamation);
  EXPECT_EQ(PathBox(kIgnore).Text(), "");
  EXPECT_EQ(NumberRead(kIgnore), 0);
  EXPECT_EQ(StoredWords(), "mouse");
  EXPECT_EQ(Output(), output);
}

TEST_F(WordListMessages, AFileThatMayNotBeReadIsTold) {
  const std::string path = folder.Write("secret.txt", "cat\r\n");
  const ClosedFile closed(path);
  EXPECT_EQ(AsOrdinaryUser([&] {
              EXPECT_FALSE(Attempt(kCountOnly, path));
              if (desktop.Messages().empty()) return 1;
              ExpectMessage(desktop.Messages().back(),
                            "Error when attempting to load count-only words from " + path, "Error",
                            MessageIcon::kExclamation);
              EXPECT_EQ(PathBox(kCountOnly).Text(), "");
              EXPECT_EQ(NumberRead(kCountOnly), 0);
              return HasFailure() ? 1 : 0;
            }),
            0);
}

TEST_F(WordListMessages, AnErrorWhileReadingIsToldAndTheBoxesStandAsBefore) {
  const std::string path = folder.Write("words.txt", "cat\r\n");
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 1, [] { throw RunTimeError(RunTimeErrorNumber::kDeviceIo); });
  EXPECT_FALSE(Attempt(kIgnore, path));
  ExpectMessage(OnlyMessage(), "Error when attempting to load words-to-ignore from " + path,
                "Error", MessageIcon::kExclamation);
  EXPECT_EQ(PathBox(kIgnore).Text(), "");
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Main().chkSuppressWords.IsChecked());
  EXPECT_FALSE(Panel().chkAllowCommentMarkers.IsChecked());
  CountClipboard("dog");
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(WordListMessages, AnEmptyFileIsWarnedOfAndLoadsNoWords) {
  const std::string path = folder.Write("empty.txt", "");
  EXPECT_FALSE(Attempt(kIgnore, path));
  EXPECT_EQ(PathBox(kIgnore).Text(), path);
  ASSERT_EQ(desktop.Messages().size(), 2U);
  ExpectMessage(desktop.Messages()[0], "This is a zero-length file.", "Warning",
                MessageIcon::kExclamation);
  ExpectMessage(desktop.Messages()[1], "0 words-to-ignore loaded from " + path, "Words loaded",
                MessageIcon::kInformation);
}

TEST_F(WordListMessages, MacintoshLineEndsAreWarnedOf) {
  EXPECT_TRUE(Attempt(kIgnore, folder.Write("words.txt", "cat\rdog\r")));
  ASSERT_EQ(desktop.Messages().size(), 2U);
  ExpectMessage(desktop.Messages()[0], "This file has Macintosh line endings.", "Warning",
                MessageIcon::kExclamation);
  EXPECT_EQ(NumberRead(kIgnore), 2);
}

TEST_F(WordListMessages, TheLineEndsOfTheSystemItselfAreNotWarnedOf) {
  const std::string lineBreak(kPlatformLineBreak);
  EXPECT_TRUE(Attempt(kIgnore, folder.Write("words.txt", "cat" + lineBreak + "dog" + lineBreak)));
  EXPECT_EQ(OnlyMessage().title, "Words loaded");
}

// While a words file is read.

TEST_F(WordListMessages, AClickOnCountWhileWordsAreReadStartsAndStopsNothing) {
  const std::string path = folder.Write("words.txt", "cat dog mouse bird fish\r\n");
  desktop.SetClipboard("horse");
  Main().optOnClipboard.SetValue(true);
  EveryYieldPumps();
  bool looked = false;
  desktop.AtPump(desktop.Pumps() + 2, [&] {
    Count();
    Panel().cmdClearWordsFile[1].PerformClick();
    Main().cmdListFiles.PerformClick();
    looked = true;
  });
  EXPECT_TRUE(Attempt(kCountOnly, path));
  EXPECT_TRUE(looked);
  EXPECT_EQ(OnlyMessage().text, "5 count-only words loaded from " + path);
  EXPECT_EQ(PathBox(kCountOnly).Text(), path);
  EXPECT_EQ(program.State().Phase(), RunPhase::kIdle);
  EXPECT_TRUE(Panel().cmdClearWordsFile[1].Enabled());
}

}  // namespace
}  // namespace quillomat
