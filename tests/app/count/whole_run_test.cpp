// Whole runs, as a user starts, stops and lists them.
#include <gmock/gmock.h>

#include "support/program_fixture.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class WholeRun : public ProgramFixture {
 protected:
  void ExpectIdle() {
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Count word frequencies");
    EXPECT_TRUE(Main().optFolder.Enabled());
    EXPECT_TRUE(Main().cboDisplayFormat.Enabled());
    EXPECT_TRUE(Main().txbFile[0].Enabled());
    EXPECT_EQ(program.State().Phase(), RunPhase::kIdle);
    EXPECT_FALSE(program.State().Busy());
  }

  /// A click on the count command, which reads "Stop" then, at a pump.
  void StopAtPump(int pump) {
    EveryYieldPumps();
    desktop.AtPump(pump, [this] {
      EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
      Main().cmdCountWords.PerformClick();
    });
  }
};

TEST_F(WholeRun, CountsAndListsAClipboardText) {
  ListWordsOnly();
  CountClipboard("The cat and the dog");
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\nthe\r\nand\r\ncat\r\ndog\r\n");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_TRUE(Words().blnWordsGot);
  ExpectIdle();
}

TEST_F(WholeRun, InputThatIsMissingIsRefusedInTheWordsOfItsCase) {
  CountFile("");
  ExpectMessage(OnlyMessage(), "Input file not specified.", "Error", MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  CountFile(folder / "nothing.txt");
  ExpectMessage(OnlyMessage(), "Input file does not exist.", "File not found",
                MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  CountFile(folder.Path() + "/");
  ExpectMessage(OnlyMessage(), "Invalid input file specification.", "Invalid input",
                MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  const std::string path = folder.Write("a.txt", "cat\n");
  Main().txbFile[1].SetText(path);
  CountFile(path);
  ExpectMessage(OnlyMessage(), "The output file cannot be the same as the input file.", "Error",
                MessageIcon::kExclamation);
  ExpectIdle();
}

TEST_F(WholeRun, StopWithOneWordSaysSoAndListsItOnDemand) {
  ListWordsOnly();
  StopAtPump(1);
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  CountClipboard("cat dog emu");
  ExpectMessage(OnlyMessage(),
                "The operation was stopped before all words were counted.\r\n"
                "Do you wish to list the words which were found?",
                "Counting interrupted", MessageIcon::kQuestion, MessageButtons::kYesNo);
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\ncat\r\n");
  EXPECT_TRUE(Words().listAfterStop);
  EXPECT_FALSE(Words().completeRun);
  ExpectIdle();
}

TEST_F(WholeRun, StopAnsweredWithNoListsNothing) {
  StopAtPump(1);
  desktop.Answer("Counting interrupted", MessageAnswer::kNo);
  CountClipboard("cat dog emu");
  EXPECT_EQ(Output(), "cat \r\n\r\nStopped with 1 word found.");
  ExpectIdle();
}

TEST_F(WholeRun, RelistingAnInterruptedCountTellsThatItIsIncomplete) {
  StopAtPump(2);
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  CountClipboard("cat dog emu");
  desktop.ForgetQuestions();
  ListWordsOnly();
  const MessageBox box = OnlyMessage();
  EXPECT_EQ(box.title, program.Text().GetText(23));
  EXPECT_EQ(box.text, program.Text().GetText(22));
  EXPECT_EQ(box.icon, MessageIcon::kInformation);
  EXPECT_THAT(Output(), HasSubstr("cat\r\ndog\r\n"));
}

TEST_F(WholeRun, ClickWhileStopIsShownStartsNoSecondRun) {
  EveryYieldPumps();
  int clicks = 0;
  for (int pump : {1, 2}) {
    desktop.AtPump(pump, [&] {
      Main().cmdCountWords.PerformClick();
      ++clicks;
    });
  }
  desktop.Answer("Counting interrupted", MessageAnswer::kNo);
  CountClipboard("cat dog emu fox");
  EXPECT_GE(clicks, 1);
  EXPECT_EQ(StoredWords(), "cat");
  ExpectIdle();
}

TEST_F(WholeRun, NothingElseCanStartWhileARunIsAtWork) {
  EveryYieldPumps();
  const std::string other = folder.Write("words.txt", "zebra\n");
  desktop.AtPump(1, [&] {
    EXPECT_FALSE(Main().cmdListFiles.Enabled());
    EXPECT_FALSE(Main().cboDisplayFormat.Enabled());
    EXPECT_FALSE(Panel().cmdSelectWordsFile[0].Enabled());
    EXPECT_FALSE(Panel().cmdInitialize.Enabled());
    Main().cboDisplayFormat.SetListIndex(8);  // from code, as disabling stops hands only
    program.Count().OnListFilesClick();
  });
  CountClipboard("cat dog");
  EXPECT_EQ(StoredWords(), "cat dog");
  EXPECT_TRUE(Panel().cmdInitialize.Enabled());
  ExpectIdle();
}

TEST_F(WholeRun, StopWhileTheListIsMadeSaysSo) {
  EveryYieldPumps();
  ListWordsOnly();
  // Two pumps while three words are scanned are followed by those of the listing.
  desktop.AtPump(5, [this] { Main().cmdCountWords.PerformClick(); });
  CountClipboard("cat dog emu fox");
  EXPECT_TRUE(Output().ends_with("\r\nListing stopped.\r\n")) << Output();
  ExpectIdle();
}

TEST_F(WholeRun, StopWhileTheOutputFileIsWrittenSaysSo) {
  EveryYieldPumps();
  Main().txbFile[1].SetText(folder / "list.txt");
  desktop.AtPump(5, [this] { Main().cmdCountWords.PerformClick(); });
  CountClipboard("cat dog emu fox");
  EXPECT_EQ(Output(), "\r\nOutput to file was terminated.");
  EXPECT_FALSE(FileExists(folder / "list.txt"));
  ExpectIdle();
}

TEST_F(WholeRun, StopWhileTheOutputFileIsWrittenLeavesTheOldList) {
  EveryYieldPumps();
  Main().txbFile[1].SetText(folder.Write("list.txt", "the old list"));
  Panel().chkWarnOnOverwrite.SetChecked(false);
  desktop.AtPump(5, [this] { Main().cmdCountWords.PerformClick(); });
  CountClipboard("cat dog emu fox");
  EXPECT_EQ(Output(), "\r\nOutput to file was terminated.");
  EXPECT_EQ(ContentsOf(folder / "list.txt"), "the old list");
  EXPECT_FALSE(program.Lister().FileWritten());
}

TEST_F(WholeRun, MarkersThatAreMissingOpenThePanel) {
  Panel().chkAllowCommentMarkers.SetChecked(true);
  for (TextBox& box : Panel().txbStartComment) box.SetText("");
  CountClipboard("cat");
  ExpectMessage(OnlyMessage(),
                "If comment markers are allowed then at least one\r\n"
                "start-comment marker must be non-empty.\r\n\r\n"
                "Check the comment markers in the 'Set parameters' panel\r\n"
                "and perhaps disallow comment markers.",
                "Error", MessageIcon::kExclamation);
  EXPECT_TRUE(Panel().Visible());
  ExpectIdle();
}

TEST_F(WholeRun, OtherFaultsOfMarkersHaveTheirMessages) {
  Panel().chkAllowCommentMarkers.SetChecked(true);
  Panel().txbStartComment[1].SetText("");
  Panel().txbEndComment[1].SetText("x");
  CountClipboard("cat");
  EXPECT_EQ(OnlyMessage().text,
            "Cannot have an empty start-comment marker\r\n"
            "with a non-empty end-comment marker.\r\n\r\n"
            "Check the comment markers in the 'Set parameters' panel\r\n"
            "and perhaps disallow comment markers.");
  desktop.ForgetQuestions();
  Panel().txbStartComment[1].SetText("x");
  CountClipboard("cat");
  EXPECT_EQ(OnlyMessage().text,
            "Start-comment and end-comment markers must be different.\r\n\r\n"
            "Check the comment markers in the 'Set parameters' panel.");
  desktop.ForgetQuestions();
  Panel().txbStartComment[1].SetText("rem");
  CountClipboard("cat");
  EXPECT_EQ(OnlyMessage().text,
            "The way the parameters are set the start-comment marker\r\n"
            "\"rem\" could be part of a word.\r\n\r\n"
            "Check the start-comment markers in the 'Set parameters' panel and\r\n"
            "perhaps disallow comment markers or restrict allowable words.");
  desktop.ForgetQuestions();
  Panel().txbStartComment[1].SetText("");
  Panel().txbEndComment[1].SetText("");
  CountClipboard("cat");
  EXPECT_THAT(desktop.Messages(), IsEmpty()) << "an empty second pair is no fault";
}

TEST_F(WholeRun, ShortOutputStaysAboveTheProcessingNotice) {
  desktop.AtMessage("Problem", [this] {
    EXPECT_TRUE(Output().starts_with("cat \r\n\r\nProcessing . . . . . . ")) << Output();
  });
  const std::string path = folder / "missing/list.txt";
  Main().txbFile[1].SetText(path);
  CountClipboard("cat");
  ExpectMessage(OnlyMessage(), "Error 76: Path not found\r\n" + path, "Problem",
                MessageIcon::kExclamation);
}

TEST_F(WholeRun, ErrorWhileTheFileIsWrittenIsReportedAndLeavesNoListing) {
  Panel().chkWarnOnOverwrite.SetChecked(false);
  Main().txbFile[1].SetText("/dev/full");
  CountClipboard("cat");
  ExpectMessage(OnlyMessage(), "Error 61: Disk full", "Problem", MessageIcon::kExclamation);
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(program.Lister().FileWritten());
  ExpectIdle();
}

TEST_F(WholeRun, OverwriteQuestionKeepsOrReplacesTheFile) {
  const std::string path = folder.Write("list.txt", "old");
  ListWordsOnly();
  Main().txbFile[1].SetText(path);
  desktop.AnswerText("");
  CountClipboard("cat");
  ASSERT_EQ(desktop.InputBoxes().size(), 1U);
  EXPECT_EQ(desktop.InputBoxes()[0].title, "The output file exists.");
  EXPECT_EQ(desktop.InputBoxes()[0].prompt,
            "To overwrite the current output file click on 'OK'.\r\n"
            "To write to a different file edit the filepath below.\r\n"
            "To disable file output click on 'Cancel'.");
  EXPECT_EQ(desktop.InputBoxes()[0].defaultAnswer, path);
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_TRUE(Main().chkDisableOutputToFile.IsChecked());
  Main().chkDisableOutputToFile.SetValue(CheckState::kGrayed);  // not ticked, and asks nothing
  desktop.AnswerText(" " + path + " ");
  CountClipboard("cat");
  EXPECT_EQ(TextOf(path), "Word (longest has 3 characters)\ncat\n");
}

TEST_F(WholeRun, OtherFileInAMissingFolderIsRefused) {
  Main().txbFile[1].SetText(folder.Write("list.txt", "old"));
  desktop.AnswerText(folder / "missing/list.txt");
  CountClipboard("cat");
  ExpectMessage(OnlyMessage(), "Folder does not exist.", "Error", MessageIcon::kExclamation);
  EXPECT_TRUE(Main().chkDisableOutputToFile.IsChecked());
  EXPECT_THAT(Output(), HasSubstr("cat"));
}

TEST_F(WholeRun, TurningFileOutputOnAsksToRelist) {
  Main().txbFile[1].SetText(folder / "list.txt");
  Main().chkDisableOutputToFile.SetChecked(true);
  CountClipboard("cat");
  desktop.Answer("Relist?", MessageAnswer::kYes);
  Main().chkDisableOutputToFile.SetChecked(false);
  ExpectMessage(OnlyMessage(), "Relist words (so as to write to file)?", "Relist?",
                MessageIcon::kQuestion, MessageButtons::kYesNo);
  EXPECT_THAT(ContentsOf(folder / "list.txt"), HasSubstr("cat"));
}

TEST_F(WholeRun, ListTooLongForTheBoxIsCutAndSaidSo) {
  std::string text;
  for (char a = 'a'; a <= 'z'; ++a) {
    for (char b = 'a'; b <= 'z'; ++b) {
      for (const char* end : {"eaux", "ious"}) text += std::string("ex") + a + b + end + " ";
    }
  }
  Main().chkSuppressWords.SetChecked(true);
  CountClipboard(text);
  EXPECT_THAT(desktop.Messages(), IsEmpty()) << "1,352 lines of 30 characters fit";
  Main().cboDisplayFormat.SetListIndex(10);
  ExpectMessage(OnlyMessage(), "Textbox is full.  Try writing output to a file.", "Problem",
                MessageIcon::kExclamation);
  EXPECT_GT(Main().txbOutput.Length(), 44'000U);
  EXPECT_LT(Main().txbOutput.Length(), 44'100U);
}

TEST_F(WholeRun, IsOverWhenItTellsThatTheBoxIsFull) {
  std::string text;
  for (int i = 0; i < 26 * 26 * 26; ++i) {
    text += std::string("word") + static_cast<char>('a' + i / 676) +
            static_cast<char>('a' + i / 26 % 26) + static_cast<char>('a' + i % 26) + "\n";
  }
  Main().chkSuppressWords.SetChecked(true);
  int told = 0;
  desktop.AtMessage("Problem", [&] {
    ++told;
    EXPECT_FALSE(program.State().Busy());
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Count word frequencies");
    EXPECT_TRUE(Main().cmdExport.Enabled());
  });
  CountFile(folder.Write("many.txt", text));
  EXPECT_EQ(told, 1);
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_EQ(told, 2);
}

TEST_F(WholeRun, FormatsOfFilesNeedAFolderAndCountOnlyWords) {
  CountClipboard("cat");
  const std::pair<int, const char*> formats[] = {
      {11, "word freq no.files"}, {12, "word file-list"}, {13, "word file-list (+ freq)"}};
  for (const auto& [index, name] : formats) {
    desktop.ForgetQuestions();
    Main().cboDisplayFormat.SetListIndex(index);
    ExpectMessage(OnlyMessage(),
                  std::string("The display format '") + name +
                      "' is available\r\nonly when the source of the text is a folder\r\n"
                      "and there are count-only words specified.",
                  "Invalid display format", MessageIcon::kInformation);
    EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), 0);
  }
}

TEST_F(WholeRun, ClipboardTextHasALimitInCharacters) {
  std::string text;
  for (int i = 0; i < 50'000; ++i) text += "\xC3\xA9 ";
  CountClipboard(text);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(Words().WordsRead, 50'000);
  CountClipboard(text + "x");
  ExpectMessage(OnlyMessage(),
                "There are 100,001 characters in the text on the clipboard.\r\n"
                "The maximum permitted is 100,000.  If possible,\r\n"
                "count word frequencies for this text using an input file.",
                "Too much clipboard text", MessageIcon::kExclamation);
  EXPECT_TRUE(Main().optInFile.Value());
}

TEST_F(WholeRun, ClipboardWithoutTextOrWithControlCharactersIsRefused) {
  CountClipboard("");
  ExpectMessage(OnlyMessage(), "Clipboard is empty.", "Clipboard empty", MessageIcon::kExclamation);
  EXPECT_TRUE(Main().optInFile.Value());
  desktop.ForgetQuestions();
  CountClipboard("cat\x01");
  ExpectMessage(OnlyMessage(),
                "The text on the clipboard does not consist\r\n"
                "solely of natural language words.",
                "Invalid input", MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  CountClipboard("a\tb\r\n" + std::string(2995, 'c') + "\x01");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(WholeRun, ClipboardThatHoldsTooMuchSaysThatCountingMayBePossible) {
  desktop.FailClipboardRead(true);
  CountClipboard("cat");
  EXPECT_EQ(OnlyMessage().text,
            "There is too much text on the clipboard to paste into the textbox.\r\n"
            "It may, however, still be possible to count word frequencies.");
  EXPECT_EQ(OnlyMessage().icon, MessageIcon::kExclamation);
}

TEST_F(WholeRun, CopyPutsTheOutputOnTheClipboard) {
  CountClipboard("cat");
  Main().cmdCopyToClipboard.PerformClick();
  EXPECT_EQ(desktop.Clipboard(), Output());
}

TEST_F(WholeRun, FolderWithoutScannableFilesSaysWhich) {
  const std::string pictures = folder.Make("pictures");
  static_cast<void>(folder.Write("pictures/a.png", "x"));
  CountFolder(pictures);
  ExpectMessage(OnlyMessage(), "No scanable files were found in this folder.", "No files found",
                MessageIcon::kInformation);
  desktop.ForgetQuestions();
  Main().chkIncludeSubfolders.SetChecked(true);
  Main().txbFileExtensions[0].SetText("txt");
  EXPECT_TRUE(program.Count().Extensions().GetFileExtensions(ExtensionList::kIncluded));
  CountFolder(pictures);
  EXPECT_EQ(OnlyMessage().text,
            "No scanable files of the specified type were found in this folder or in its "
            "subfolders.");
}

TEST_F(WholeRun, CountOnlyWordsThatWereAllFoundAreSaidSo) {
  TypeWords(WordListKind::kCountOnly, "cat");
  CountClipboard("cat dog cat");
  EXPECT_EQ(Main().lblNumberOfWords.Caption(), "The word to be counted was found.");
  TypeWords(WordListKind::kCountOnly, "cat dog");
  CountClipboard("cat dog cat");
  EXPECT_EQ(Main().lblNumberOfWords.Caption(), "Both words to be counted were found.");
  TypeWords(WordListKind::kCountOnly, "cat dog emu");
  CountClipboard("cat dog cat");
  EXPECT_EQ(Main().lblNumberOfWords.Caption(), "Number of words in this list: 2");
}

TEST_F(WholeRun, NewWordsAreShownUntilTheBoxHasEnough) {
  std::string text;
  for (int i = 0; i < 6000; ++i) {
    std::string word = "e";
    for (int rest = i; rest > 0; rest /= 26) word += static_cast<char>('a' + rest % 26);
    text += word + "xyzxyz ";
  }
  EveryYieldPumps();
  bool noticed = false;
  for (int pump = 4000; pump < 6000; pump += 100) {
    desktop.AtPump(pump, [&] {
      noticed |=
          Output().find("\r\n\r\n[Suppressing display of words to avoid buffer overflow.]") !=
          std::string::npos;
    });
  }
  CountClipboard(text);
  EXPECT_TRUE(noticed);
  EXPECT_FALSE(Main().chkSuppressWords.IsChecked()) << "put back after a clipboard text";
}

}  // namespace
}  // namespace quillomat
