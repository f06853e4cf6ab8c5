// A single file as the source of a count.
#include "app/count/file_source.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/input_file_row.h"
#include "app/count/sources_fixture.h"
#include "system/desktop_test.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FileSourceTest : public SourcesFixture {
 protected:
  std::string WordsCountedIn(const std::string& name, const std::string& contents) {
    CountFile(folder.Write(name, contents));
    return StoredWords();
  }

  /// A text file that is so many bytes long.
  [[nodiscard]] std::string FileOf(std::size_t bytes) const {
    std::string contents;
    contents.reserve(bytes);
    while (contents.size() < bytes) contents += "cat\r\n";
    return folder.Write("large.txt", contents.substr(0, bytes));
  }

  /// A counter leaves its range at the next file's second line.
  void FailAtTheSecondLine() {
    EveryYieldPumps();
    desktop.AtPump(desktop.Pumps() + 2, [] { throw RunTimeError(RunTimeErrorNumber::kOverflow); });
  }

  void ExpectFileSize(std::uintmax_t bytes, const std::string& caption) {
    const std::string path = folder.Write("sized.txt", "");
    fs::resize_file(path, bytes);
    Main().txbFile[0].SetText(path);
    Main().txbFile[0].LostFocus.Fire();
    EXPECT_EQ(Main().lblFilesize.Caption(), caption);
  }
};

// What is refused before the file is opened.

TEST_F(FileSourceTest, WithoutAnInputFileACountIsRefused) {
  CountFile("");
  ExpectMessage(OnlyMessage(), "Input file not specified.", "Error", MessageIcon::kExclamation);
  ExpectIdle();
}

TEST_F(FileSourceTest, AFileThatDoesNotExistIsRefused) {
  Main().lblFilesize.SetCaption("Filesize: 5 bytes");
  for (const std::string& path :
       {folder / "nowhere.txt", std::string("   "), folder / "no/where.txt"}) {
    desktop.ForgetQuestions();
    CountFile(path);
    ExpectMessage(OnlyMessage(), "Input file does not exist.", "File not found",
                  MessageIcon::kExclamation);
    EXPECT_EQ(Main().lblFilesize.Caption(), "");
    EXPECT_EQ(Main().txbFile[0].Text(), path);
    ExpectIdle();
  }
}

TEST_F(FileSourceTest, AFolderIsRefusedAsOne) {
  CountFile(folder.Path());
  ExpectMessage(OnlyMessage(),
                "Input file does not exist.\r\n\r\n" + folder.Path() +
                    "\r\nis a folder.  To count the files in it, specify it as the folder.",
                "File not found", MessageIcon::kExclamation);
  EXPECT_EQ(Main().txbFile[0].Text(), folder.Path());
  ExpectIdle();
}

TEST_F(FileSourceTest, APathThatEndsWithASeparatorIsRefusedAndTheBoxEmptied) {
  Main().lblFilesize.SetCaption("Filesize: 5 bytes");
  CountFile(folder.Path() + "/ ");
  ExpectMessage(OnlyMessage(), "Invalid input file specification.", "Invalid input",
                MessageIcon::kExclamation);
  EXPECT_EQ(Main().txbFile[0].Text(), "");
  EXPECT_EQ(Main().lblFilesize.Caption(), "");
  ExpectIdle();
}

TEST_F(FileSourceTest, WhileTheWindowLoadsTheBoxOfAFolderPathIsNotEmptied) {
  program.BeginControls();
  EXPECT_EQ(CheckInputPath(folder.Path() + "/").result, ScanFileResult::kFolderNotFile);
  Main().txbFile[0].SetText(folder.Path() + "/");
  Main().txbFile[0].LostFocus.Fire();
  EXPECT_EQ(Main().txbFile[0].Text(), folder.Path() + "/");
}

TEST_F(FileSourceTest, TheOutputFileCannotBeTheInputFile) {
  const std::string path = folder.Write("a.txt", "cat");
  // A second name of the file: not every user of Windows may make symbolic links.
  fs::create_hard_link(path, folder / "link.txt");
  for (const std::string& output : {path, folder / "./a.txt", folder / "link.txt"}) {
    desktop.ForgetQuestions();
    Main().txbFile[1].SetText(output);
    CountFile(path);
    ExpectMessage(OnlyMessage(), "The output file cannot be the same as the input file.", "Error",
                  MessageIcon::kExclamation);
    EXPECT_EQ(ContentsOf(path), "cat");
    ExpectIdle();
  }
}

TEST_F(FileSourceTest, BlanksAroundAPathAreNotMeant) {
  CountFile("  " + folder.Write("a.txt", "cat") + "  ");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(FileSourceTest, ARefusalLeavesTheWordsOfTheLastCount) {
  CountFile(folder.Write("a.txt", "cat dog"));
  CountFile("");
  CountFile(folder / "nowhere.txt");
  CountFile(folder.Write("binary.txt", std::string("a\0b", 3)));
  CountFile(folder.Write("empty.txt", ""));
  EXPECT_EQ(StoredWords(), "cat dog");
}

// What is refused once it has been looked at.

TEST_F(FileSourceTest, AFileThatIsNotTextIsRefused) {
  CountFile(folder.Write("picture.txt", std::string("GIF\0", 4)));
  ExpectMessage(OnlyMessage(),
                "The input file contains bytes indicating that it does not consist\r\n"
                "solely of text.\r\n\r\n"
                "You could try reading the file using its associated application,\r\n"
                "copying the text to the clipboard, and specifying the clipboard\r\n"
                "as the source of the text to be scanned.",
                "Invalid input file", MessageIcon::kInformation);
  ExpectIdle();
}

TEST_F(FileSourceTest, AZeroLengthFileIsRefused) {
  CountFile(folder.Write("empty.txt", ""));
  ExpectMessage(OnlyMessage(), "This is a zero-length file.", "Invalid input file",
                MessageIcon::kExclamation);
  ExpectIdle();
}

TEST_F(FileSourceTest, AFileThatMayNotBeReadIsRefused) {
  const std::string path = folder.Write("secret.txt", "cat");
  const ClosedFile closed(path);
  EXPECT_EQ(AsOrdinaryUser([&] {
              CountFile(path);
              ExpectMessage(OnlyMessage(), "This file cannot be opened.", "Invalid input file",
                            MessageIcon::kExclamation);
              ExpectIdle();
              return HasFailure() ? 1 : 0;
            }),
            0);
}

TEST_F(FileSourceTest, AControlCharacterBehindTheFirst10240IsAccepted) {
  const std::string clean = FileOf(10'240);
  CountFile(folder.Write("late.txt", ContentsOf(clean) + " \x01 dog"));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(StoredWords(), "cat*2048 dog");
  CountFile(folder.Write("early.txt", ContentsOf(clean).substr(1) + "\x01"));
  EXPECT_EQ(OnlyMessage().title, "Invalid input file");
}

// The question about a large file.

TEST_F(FileSourceTest, AFirstScanAfterStartUpNeverAsksAboutALargeFile) {
  CountFile(FileOf(200'001));
  EXPECT_TRUE(Output().find("cat") != std::string::npos);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileSourceTest, AfterAScanThatEndedEarlyALargeFileIsAskedAbout) {
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  desktop.Answer(MessageAnswer::kNo);
  CountFile(FileOf(200'001));
  ExpectMessage(
      OnlyMessage(),
      "The input file is quite large.  It is advisable to specify an output file before "
      "continuing,\r\nin case the text window will not hold the result. Do you wish to specify "
      "an output file?",
      "Large input file", MessageIcon::kQuestion, MessageButtons::kYesNoCancel);
  EXPECT_THAT(desktop.FileDialogs(), IsEmpty());
  EXPECT_TRUE(Words().completeRun);
  desktop.ForgetQuestions();
  CountFile(FileOf(200'001));  // the last scan was completed
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileSourceTest, AFileOfExactly200000BytesIsNotLarge) {
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  CountFile(FileOf(200'000));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileSourceTest, WithAnOutputFileALargeFileIsNotAskedAbout) {
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  Main().txbFile[1].SetText(folder / "list.txt");
  CountFile(FileOf(200'001));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileSourceTest, ARefusalBeforeTheFileIsOpenedDoesNotBringTheQuestion) {
  CountFile("");
  CountFile(folder / "nowhere.txt");
  desktop.ForgetQuestions();
  CountFile(FileOf(200'001));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileSourceTest, CancelAtTheLargeFileQuestionEndsTheRunWithoutAWord) {
  CountFile(folder.Write("a.txt", "dog"));
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  desktop.Answer(MessageAnswer::kCancel);
  CountFile(FileOf(200'001));
  EXPECT_THAT(desktop.Titles(), ElementsAre("Large input file"));
  EXPECT_EQ(StoredWords(), "dog");
  EXPECT_EQ(Output(), "");
  ExpectIdle();
}

TEST_F(FileSourceTest, YesAtTheLargeFileQuestionLetsTheUserChooseTheOutputFile) {
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  desktop.Answer(MessageAnswer::kYes);
  desktop.AnswerFile(folder / "list.txt");
  ListWordsOnly();
  CountFile(FileOf(200'001));
  EXPECT_EQ(desktop.FileDialogs().size(), 1U);
  EXPECT_EQ(Main().txbFile[1].Text(), folder / "list.txt");
  EXPECT_TRUE(Has(TextOf(folder / "list.txt"), "cat\n"));
}

// Comment markers from the extension.

TEST_F(FileSourceTest, FilesOfWebPagesGetTheMarkersOfHtml) {
  for (const std::string name : {"page.shtml", "index.HTM", "x.xml", "form.php", "a.xhtml"}) {
    EXPECT_EQ(WordsCountedIn(name, "<b class=bold>one</b> two&nbsp;three"), "one three two")
        << name;
  }
}

TEST_F(FileSourceTest, FilesOfProgramsGetTheMarkersOfC) {
  for (const std::string name : {"a.c", "a.cpp", "A.CPP", "b.C"}) {
    EXPECT_EQ(WordsCountedIn(name, "one /* hidden */ two // hidden"), "one two") << name;
  }
}

TEST_F(FileSourceTest, OtherFilesGetNoMarkers) {
  for (const std::string name : {"a.h", "a.cc", "a.cpp.txt", "php", "a.xmlx"}) {
    EXPECT_EQ(WordsCountedIn(name, "/* one */ <two>"), "one two") << name;
  }
}

TEST_F(FileSourceTest, WhereCommentsAreAllowedOtherFilesGetTheUsersMarkers) {
  AllowComments("{", "}");
  EXPECT_EQ(WordsCountedIn("a.txt", "one {hidden} two"), "one two");
  EXPECT_EQ(WordsCountedIn("a.htm", "one {shown} <hidden>"), "one shown");
}

TEST_F(FileSourceTest, AGreyBoxAllowsNoComments) {
  AllowComments("{", "}");
  Panel().chkAllowCommentMarkers.SetValue(CheckState::kGrayed);
  EXPECT_EQ(WordsCountedIn("a.txt", "one {shown} two"), "one shown two");
}

TEST_F(FileSourceTest, TheMarkersOfOneFileAreGoneWithTheNext) {
  EXPECT_EQ(WordsCountedIn("a.c", "one /* hidden */"), "one");
  EXPECT_EQ(WordsCountedIn("a.txt", "one /* shown */"), "one shown");
}

TEST_F(FileSourceTest, ACommentLeftOpenHidesTheStartOfTheNextFile) {
  EXPECT_EQ(WordsCountedIn("a.c", "one /* never closed"), "one");
  EXPECT_EQ(WordsCountedIn("b.c", "hidden\nhidden */ two"), "two");
  EXPECT_EQ(WordsCountedIn("c.c", "three"), "three");
}

// Lines.

TEST_F(FileSourceTest, LinesAreLowerCased) {
  EXPECT_EQ(WordsCountedIn("a.txt", "The CAT\nthe Cat"), "cat*2 the*2");
  EXPECT_TRUE(Has(Output(), "cat"));
}

TEST_F(FileSourceTest, LinesKeepTheirCaseWhereItIsSignificant) {
  Panel().chkCaseSignificant.SetChecked(true);
  EXPECT_EQ(WordsCountedIn("a.txt", "The CAT\nthe Cat"), "CAT*2 The*2");
}

TEST_F(FileSourceTest, AGreyBoxDoesNotMakeLetterCaseSignificant) {
  Panel().chkCaseSignificant.SetValue(CheckState::kGrayed);
  EXPECT_EQ(WordsCountedIn("a.txt", "The CAT\nthe Cat"), "cat*2 the*2");
}

TEST_F(FileSourceTest, EmptyLinesAndLinesOfBlanksAreSkipped) {
  EXPECT_EQ(WordsCountedIn("a.txt", "\n\n   \n  cat  \n \n\t\ndog\n\n"), "cat dog");
  EXPECT_EQ(Words().WordsRead, 2);
}

TEST_F(FileSourceTest, AWordAtTheEndOfAFileWithoutABreakIsCounted) {
  EXPECT_EQ(WordsCountedIn("a.txt", "a"), "a");
  EXPECT_EQ(WordsCountedIn("b.txt", "one\ntwo"), "one two");
}

TEST_F(FileSourceTest, AFileWithoutWordsIsReadAllTheSame) {
  EXPECT_EQ(WordsCountedIn("a.txt", "1 + 1 = 2\n"), "");
  EXPECT_EQ(Output(), "No words satisfying the conditions were found.");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

// The window during a scan.

TEST(FileSizeText, IsWrittenAsTheUserWritesNumbers) {
  const NumberSigns signs{.group = ".", .decimal = ","};
  EXPECT_EQ(FileSizeText(9'999, signs), "Filesize: 9.999 bytes");
  EXPECT_EQ(FileSizeText(12'345, signs), "Filesize: 12,06 KB");
  EXPECT_EQ(FileSizeText(12'345'678, signs), "Filesize: 11,77 MB");
}

TEST_F(FileSourceTest, WhileAFileIsReadOnlyStopCanBeUsed) {
  EveryYieldPumps();
  bool looked = false;
  desktop.AtPump(desktop.Pumps() + 2, [&] {
    ExpectRunning();
    EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
    EXPECT_EQ(Main().lblNumWordsExcluded.Caption(), "This is a Unix-type file.");
    looked = true;
  });
  CountFile(folder.Write("a.txt", "one\ntwo\nthree\n"));
  EXPECT_TRUE(looked);
  ExpectIdle();
}

TEST_F(FileSourceTest, AStoppedScanKeepsTheWordsFoundSoFar) {
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 2, [&] { Count(); });
  desktop.Answer("Counting interrupted", MessageAnswer::kNo);
  CountFile(folder.Write("a.txt", "one two\nthree four\nfive six\n"));
  EXPECT_THAT(desktop.Titles(), ElementsAre("Counting interrupted"));
  EXPECT_EQ(StoredWords(), "one two");
  EXPECT_FALSE(program.State().Scanning());
  ExpectIdle();
}

TEST_F(FileSourceTest, AnErrorWhileReadingIsReportedWithNumberAndDescription) {
  FailAtTheSecondLine();
  CountFile(folder.Write("a.txt", "one\ntwo\n"));
  ExpectMessage(OnlyMessage(), "Error 6: Overflow", "Problem", MessageIcon::kExclamation);
  EXPECT_TRUE(program.State().Scanning());
  ExpectIdle();
}

TEST_F(FileSourceTest, AfterAnErrorTheNextFileIsCountedAsEver) {
  FailAtTheSecondLine();
  CountFile(folder.Write("a.txt", "one\ntwo\n"));
  EXPECT_EQ(WordsCountedIn("b.txt", "three"), "three");
  EXPECT_EQ(desktop.Messages().size(), 1U);
}

TEST_F(FileSourceTest, AFileThatVanishesAtTheLargeFileQuestionCannotBeOpened) {
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  const std::string path = FileOf(200'001);
  desktop.AtMessage("Large input file", [&] { fs::remove(path); });
  desktop.Answer("Large input file", MessageAnswer::kNo);
  CountFile(path);
  EXPECT_THAT(desktop.Titles(), ElementsAre("Large input file", "Invalid input file"));
  EXPECT_EQ(desktop.Messages().back().text, "This file cannot be opened.");
  ExpectIdle();
}

// The size of the file.

TEST_F(FileSourceTest, TheSizeIsShownInBytesKilobytesOrMegabytes) {
  ExpectFileSize(0, "Filesize: 0 bytes");
  ExpectFileSize(999, "Filesize: 999 bytes");
  ExpectFileSize(9'999, "Filesize: 9,999 bytes");
  ExpectFileSize(10'000, "Filesize: 9.77 KB");
  ExpectFileSize(1'048'575, "Filesize: 1024.00 KB");
  ExpectFileSize(1'048'576, "Filesize: 1.00 MB");
  ExpectFileSize(5'000'000'000, "Filesize: 4768.37 MB");
}

TEST_F(FileSourceTest, BytesAreGroupedAsTheUserWritesNumbers) {
  desktop.SetDigitGroupSeparator("\u202F");
  ExpectFileSize(9'999, "Filesize: 9\u202F999 bytes");
}

TEST_F(FileSourceTest, LeavingTheBoxWithABadPathEmptiesTheSizeWithoutAMessage) {
  ExpectFileSize(7, "Filesize: 7 bytes");
  Main().txbFile[0].SetText(folder / "nowhere.txt");
  Main().txbFile[0].LostFocus.Fire();
  EXPECT_EQ(Main().lblFilesize.Caption(), "");
  EXPECT_EQ(Main().txbFile[0].Text(), folder / "nowhere.txt");
  ExpectFileSize(7, "Filesize: 7 bytes");
  Main().txbFile[0].SetText(folder.Path() + "/");
  Main().txbFile[0].LostFocus.Fire();
  EXPECT_EQ(Main().lblFilesize.Caption(), "");
  EXPECT_EQ(Main().txbFile[0].Text(), "");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileSourceTest, ChoosingAFileShowsItsPathAndSize) {
  const std::string path = folder.Write("a.txt", "12345");
  desktop.AnswerFile(path);
  Main().cmdFile[0].PerformClick();
  EXPECT_EQ(Main().txbFile[0].Text(), path);
  EXPECT_EQ(Main().lblFilesize.Caption(), "Filesize: 5 bytes");
  desktop.AnswerFile(std::nullopt);
  Main().cmdFile[0].PerformClick();
  EXPECT_EQ(Main().txbFile[0].Text(), path);
}

TEST_F(FileSourceTest, ACountShowsTheSizeOfItsFile) {
  CountFile(folder.Write("a.txt", "12345"));
  EXPECT_EQ(Main().lblFilesize.Caption(), "Filesize: 5 bytes");
}

}  // namespace
}  // namespace quillomat
