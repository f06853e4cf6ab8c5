// A folder as the source of a count, and the list of its files.
#include "app/count/folder_source.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;

class FolderSourceTest : public SourcesFixture {
 protected:
  void Put(const std::string& name, const std::string& contents = "cat") {
    static_cast<void>(folder.Write(name, contents));
  }
  void ExpectRefusal(const std::string& text, const std::string& title) {
    ExpectMessage(OnlyMessage(), text, title, MessageIcon::kExclamation);
    ExpectIdle();
    desktop.ForgetQuestions();
  }
};

TEST(FilesInFolders, KnowsTheSingular) {
  EXPECT_EQ(FilesInFolders(0, 1, ","), "0 files in 1 folder");
  EXPECT_EQ(FilesInFolders(1, 1, ","), "1 file in 1 folder");
  EXPECT_EQ(FilesInFolders(2, 3, ","), "2 files in 3 folders");
}

// Refusals.

TEST_F(FolderSourceTest, WithoutAFolderACountIsRefused) {
  CountFolder("");
  ExpectRefusal("Folder not specified.", "Error");
  ListFiles("");
  ExpectRefusal("Folder not specified.", "Error");
}

TEST_F(FolderSourceTest, AFolderThatDoesNotExistIsRefused) {
  Put("a.txt");
  for (const std::string& path : {folder / "nowhere", folder / "a.txt"}) {
    CountFolder(path);
    ExpectRefusal("Folder does not exist", "Invalid input");
    ListFiles(path);
    ExpectRefusal("Folder does not exist", "Invalid input");
  }
}

TEST_F(FolderSourceTest, AFolderWithoutFilesIsRefused) {
  CountFolder(folder.Path());
  ExpectRefusal("Folder contains no files.", "Nothing to do");
  Put("sub/a.txt");
  CountFolder(folder.Path());
  ExpectRefusal("Folder contains no files.", "Nothing to do");
  ListFiles(folder.Path());
  ExpectRefusal("Folder contains no files.", "Nothing to do");
  IncludeSubfolders();
  CountFolder(folder.Path());
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(FolderSourceTest, OnlyFilesWithADotInTheirNameMakeAFolderWorthCounting) {
  Put("README");
  CountFolder(folder.Path());
  ExpectRefusal("Folder contains no files.", "Nothing to do");
  Put("a.txt");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat*2");
}

TEST_F(FolderSourceTest, TheOutputFileCannotBeInTheFolder) {
  Put("a.txt");
  for (const std::string& output : {folder / "list.txt", folder / "a.txt", folder / "./list.txt"}) {
    Main().txbFile[1].SetText(output);
    CountFolder(folder.Path());
    ExpectRefusal("The output file cannot be in the folder or a subfolder.", "Invalid output file");
    CountFolder(folder.Path() + "/");
    ExpectRefusal("The output file cannot be in the folder or a subfolder.", "Invalid output file");
  }
  EXPECT_EQ(ContentsOf(folder / "a.txt"), "cat");
  EXPECT_FALSE(fs::exists(folder / "list.txt"));
  EXPECT_EQ(StoredWords(), "");
}

TEST_F(FolderSourceTest, TheOutputFileCannotBeInASubfolderThatIsIncluded) {
  Put("a.txt");
  const std::string output = folder.Make("sub/deeper") + "/list.txt";
  Main().txbFile[1].SetText(output);
  CountFolder(folder.Path());
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_TRUE(fs::exists(output));
  IncludeSubfolders();
  Main().chkDisableOutputToFile.SetChecked(true);
  CountFolder(folder.Path());
  ExpectRefusal("The output file cannot be in the folder or a subfolder.", "Invalid output file");
}

TEST_F(FolderSourceTest, AnOutputFileBesideTheFolderIsFineWhateverItsName) {
  Put("texts/a.txt");
  static_cast<void>(folder.Make("texts2"));
  IncludeSubfolders();
  for (const std::string& output :
       {folder / "texts.lst", folder / "texts2/list.txt", folder / "texts/../list.txt"}) {
    Main().txbFile[1].SetText(output);
    CountFolder(folder / "texts");
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_TRUE(Has(ContentsOf(output), "cat")) << output;
  }
}

TEST_F(FolderSourceTest, ARefusalLeavesTheWordsOfTheLastCount) {
  CountClipboard("dog");
  CountFolder(folder / "nowhere");
  CountFolder(folder.Path());
  Put("a.txt");
  Main().txbFile[1].SetText(folder / "list.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(desktop.Messages().size(), 3U);
  EXPECT_EQ(StoredWords(), "dog");
}

// The question about an output file.

TEST_F(FolderSourceTest, SeveralFilesWithoutAnOutputFileAreAskedAbout) {
  Put("a.txt");
  Put("b.txt", "dog");
  desktop.Answer(MessageAnswer::kCancel);
  CountClipboard("mouse");
  CountFolder(folder.Path());
  ExpectMessage(OnlyMessage(),
                "When scanning multiple files or folders\r\n"
                "you must specify an output file in case\r\n"
                "the text window will not hold the result.",
                "Multiple files/folders", MessageIcon::kQuestion, MessageButtons::kOkCancel);
  EXPECT_EQ(StoredWords(), "mouse");
  EXPECT_THAT(desktop.FileDialogs(), IsEmpty());
  ExpectIdle();
}

TEST_F(FolderSourceTest, OkAtThatQuestionLetsTheUserChooseTheOutputFile) {
  Put("texts/a.txt");
  Put("texts/b.txt", "dog");
  desktop.Answer(MessageAnswer::kOk);
  desktop.AnswerFile(folder / "list.txt");
  ListWordsOnly();
  CountFolder(folder / "texts");
  EXPECT_EQ(desktop.FileDialogs().size(), 1U);
  EXPECT_EQ(Main().txbFile[1].Text(), folder / "list.txt");
  EXPECT_TRUE(Has(TextOf(folder / "list.txt"), "cat\ndog\n"));
}

TEST_F(FolderSourceTest, AClickOnStopAtThatQuestionIsForgottenWhenTheScanStarts) {
  Put("a.txt");
  Put("b.txt", "dog");
  desktop.AtMessage("Multiple files/folders", [this] { Count(); });
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat dog");
  EXPECT_TRUE(Words().completeRun);
  ExpectIdle();
}

TEST_F(FolderSourceTest, OneFileOrAnOutputFileNeedsNoQuestion) {
  Put("texts/a.txt");
  CountFolder(folder / "texts");
  Put("texts/b.txt");
  Main().txbFile[1].SetText(folder / "list.txt");
  CountFolder(folder / "texts");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FolderSourceTest, AnOutputFileChosenAmongTheFilesIsRefused) {
  Put("a.txt");
  Put("list.txt", "dog");
  desktop.Answer(MessageAnswer::kOk);
  desktop.AnswerFile(folder / "list.txt");
  CountFolder(folder.Path());
  EXPECT_THAT(desktop.Titles(),
              ElementsAre("Multiple files/folders", "Specify output file", "Invalid output file"));
  EXPECT_EQ(StoredWords(), "");
  EXPECT_EQ(ContentsOf(folder / "list.txt"), "dog");
}

// The walk.

TEST_F(FolderSourceTest, OneFileInOneFolderWasScanned) {
  Put("a.txt");
  WatchOutput();
  CountFolder(folder.Path());
  EXPECT_TRUE(WasShown("1 file in 1 folder was scanned."));
  EXPECT_TRUE(Output().starts_with("1 file (in 1 folder) was scanned.\r\n"));
}

TEST_F(FolderSourceTest, TwoFilesInThreeFoldersWereScanned) {
  Put("one/a.txt");
  Put("two/b.txt");
  IncludeSubfolders();
  WatchOutput();
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_TRUE(WasShown("2 files in 3 folders were scanned."));
  EXPECT_TRUE(Output().starts_with("2 files (in 3 folders) were scanned.\r\n"));
}

/// A list of paths as the walk writes them, which makes no capitals small in the mark.
std::string InWalk(const std::string& list) {
  return ReplaceAll(PathForWalk(NativePaths(list)), PathForWalk("{Folder}"), "{Folder}");
}

TEST_F(FolderSourceTest, FilesComeBeforeSubfoldersInTheOrderOfTheirNames) {
  for (const char* name :
       {"b.txt", "A.txt", "c.txt", "Sub/z.txt", "Sub/deep/x.txt", "another/y.txt"}) {
    Put(name);
  }
  IncludeSubfolders();
  ListFiles(folder.Path());
  EXPECT_EQ(Output(),
            "{Folder} = " + folder.Path() +
                InWalk("\r\n\r\n{Folder}/A.txt\r\n{Folder}/b.txt\r\n{Folder}/c.txt"
                       "\r\n{Folder}/another/y.txt\r\n{Folder}/Sub/z.txt"
                       "\r\n{Folder}/Sub/deep/x.txt\r\n6 files in 4 folders will be scanned."));
}

TEST_F(FolderSourceTest, WithoutSubfoldersOnlyTheFolderItselfIsWalked) {
  Put("a.txt");
  Put("sub/b.txt", "dog");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(Words().folder.foldersScanned, 1);
  Main().chkIncludeSubfolders.SetValue(CheckState::kGrayed);
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(FolderSourceTest, EachFileIsNamedWhileItIsScanned) {
  Put("a.txt");
  Put("sub/b.txt", "dog");
  IncludeSubfolders();
  WatchOutput();
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_TRUE(WasShown(NativePaths("\r\n{Folder}/a.txt")));
  EXPECT_TRUE(WasShown(NativePaths("\r\n{Folder}/sub/b.txt")));
}

TEST_F(FolderSourceTest, WhileFilesAreCountedTheFirstNineAndEveryFifthAreShown) {
  for (int i = 10; i < 32; ++i) Put("f" + std::to_string(i) + ".txt");
  WatchOutput();
  CountFolderWithoutOutputFile(folder.Path());
  std::vector<std::string> counting;
  for (const std::string& text : Shown()) {
    if (text.starts_with("Counting files . . .")) counting.push_back(text.substr(20));
  }
  counting.resize(std::min<std::size_t>(counting.size(), 12));
  EXPECT_THAT(counting, ElementsAre(" 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", " 10",
                                    " 15", " 20"));
}

TEST_F(FolderSourceTest, AFolderNamedWithATrailingSeparatorMakesNoDoubledOnes) {
  Put("a.txt");
  Put("sub/b.txt");
  IncludeSubfolders();
  ListFiles(folder.Path() + PathSeparator());
  EXPECT_FALSE(Has(Output(), std::string(2, PathSeparator())));
  EXPECT_TRUE(Has(Output(), NativePaths("sub/b.txt")));
  std::vector<std::string> paths;
  Main().txbFile[0].Change.Connect([&] { paths.push_back(Main().txbFile[0].Text()); });
  CountFolderWithoutOutputFile(folder.Path() + PathSeparator());
  EXPECT_THAT(paths, IsSupersetOf({folder / "a.txt", folder / "sub/b.txt"}));
  EXPECT_EQ(StoredWords(), "cat*2");
}

TEST_F(FolderSourceTest, TheUsersInputFileIsThereAgainAfterAScan) {
  const std::string mine = folder.Write("mine.txt", "12345");
  Main().txbFile[0].SetText(mine);
  Main().txbFile[0].LostFocus.Fire();
  Put("texts/a.txt");
  CountFolder(folder / "texts");
  EXPECT_EQ(Main().txbFile[0].Text(), mine);
  EXPECT_EQ(Main().lblFilesize.Caption(), "Filesize: 5 bytes");
}

TEST_F(FolderSourceTest, ALargeFileInAFolderIsNotAskedAbout) {
  CountFile(folder.Write("empty.txt", ""));
  desktop.ForgetQuestions();
  Put("texts/a.txt", std::string(200'001, ' ') + "cat");
  CountFolder(folder / "texts");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(StoredWords(), "cat");
}

// The list of files.

TEST_F(FolderSourceTest, ListingFilesGoesOnWhereACountWouldBeRefusedForItsMarkers) {
  Put("a.txt", "cat");
  AllowComments("abc", "x");
  ListFiles(folder.Path());
  EXPECT_THAT(Output(), EndsWith("1 file in 1 folder will be scanned."));
}

TEST_F(FolderSourceTest, ListingFilesGoesOnWhereACountWouldBeRefusedForItsExtensions) {
  Put("a.txt", "cat");
  TypeOnly("txt");
  TypeNot("txt");
  ListFiles(folder.Path());
  EXPECT_THAT(Output(), EndsWith("1 file in 1 folder will be scanned."));
}

TEST_F(FolderSourceTest, ListingFilesReadsNone) {
  CountClipboard("mouse");
  Put("a.txt", "cat");
  Put("binary.txt", std::string("\0", 1));
  Put("empty.txt", "");
  Put("picture.gif", "cat");
  ListFiles(folder.Path());
  EXPECT_EQ(Output(),
            "{Folder} = " + folder.Path() +
                NativePaths("\r\n\r\n{Folder}/a.txt\r\n{Folder}/binary.txt\r\n{Folder}/empty.txt"
                            "\r\n3 files in 1 folder will be scanned."));
  EXPECT_EQ(StoredWords(), "mouse");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
  ExpectIdle();
}

TEST_F(FolderSourceTest, FolderIsNotSpelledOutInListsHoweverItIsWritten) {
  Put("Some Texts/A.txt");
  ListFiles(folder / "Some Texts");
  EXPECT_TRUE(Has(Output(), NativePaths("\r\n{Folder}/"))) << Output();
}

TEST_F(FolderSourceTest, MarkersOfARunAreThoseItBeganWith) {
  Put("a.txt", "one {two} three");
  Put("b.txt", "four {five} six [seven]");
  AllowComments("{", "}");
  bool changed = false;
  Main().txbFile[0].Change.Connect([&] {
    if (Main().txbFile[0].Text() != folder / "b.txt") return;
    AllowComments("[", "]");
    changed = true;
  });
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_TRUE(changed);
  EXPECT_EQ(StoredWords(), "four one seven six three");
}

TEST_F(FolderSourceTest, WhileFilesAreListedOnlyStopCanBeUsed) {
  Put("a.txt");
  Put("b.txt");
  EveryYieldPumps();
  bool looked = false;
  desktop.AtPump(desktop.Pumps() + 1, [&] {
    ExpectRunning();
    looked = true;
  });
  ListFiles(folder.Path());
  EXPECT_TRUE(looked);
  ExpectIdle();
}

TEST_F(FolderSourceTest, WhileAFolderIsScannedOnlyStopCanBeUsed) {
  Put("a.txt", "one two three");
  bool looked = false;
  Main().txbFile[0].Change.Connect([&] {
    if (Main().txbFile[0].Text() != folder / "a.txt") return;
    ExpectRunning();
    EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
    EXPECT_TRUE(program.State().Scanning());
    looked = true;
  });
  CountFolder(folder.Path());
  EXPECT_TRUE(looked);
  ExpectIdle();
}

// Files that are not suitable.

TEST_F(FolderSourceTest, UnsuitableFilesAreSkippedSilentlyAndNotScanned) {
  Put("a.txt", "cat");
  Put("binary.txt", std::string("dog\0dog", 7));
  Put("empty.txt", "");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_THAT(desktop.Titles(), ElementsAre("Multiple files/folders", "Specify output file"));
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_TRUE(Output().starts_with("1 file (in 1 folder) was scanned."));
  EXPECT_THAT(program.Count().Skipped(), IsEmpty());
}

TEST_F(FolderSourceTest, AFolderOfPicturesAndArchivesHasNoFilesToScan) {
  Put("a.gif");
  Put("b.zip");
  WatchOutput();
  CountFolder(folder.Path());
  ExpectMessage(OnlyMessage(), "No scanable files were found in this folder.", "No files found",
                MessageIcon::kInformation);
  EXPECT_TRUE(WasShown("No files were scanned."));
  ExpectIdle();
  ListFiles(folder.Path());
  EXPECT_EQ(Output(), "{Folder} = " + folder.Path() + "\r\nNo files will be scanned.");
}

TEST_F(FolderSourceTest, WhatWasNotFoundIsToldWithTypeAndSubfolders) {
  Put("a.gif");
  IncludeSubfolders();
  CountFolder(folder.Path());
  EXPECT_EQ(OnlyMessage().text,
            "No scanable files were found in this folder or in its subfolders.");
  desktop.ForgetQuestions();
  TypeNot("c");
  CountFolder(folder.Path());
  EXPECT_EQ(OnlyMessage().text,
            "No scanable files of the specified type were found in this folder or in its "
            "subfolders.");
  desktop.ForgetQuestions();
  TypeNot("");
  TypeOnly("txt");
  Main().chkIncludeSubfolders.SetChecked(false);
  CountFolder(folder.Path());
  EXPECT_EQ(OnlyMessage().text,
            "No scanable files of the specified type were found in this folder.");
}

TEST_F(FolderSourceTest, WhenEveryFileIsRefusedNoneWasScanned) {
  Put("empty.txt", "");
  WatchOutput();
  CountFolder(folder.Path());
  EXPECT_EQ(OnlyMessage().title, "No files found");
  EXPECT_TRUE(WasShown("No files were scanned."));
  ExpectIdle();
}

// Comments.

TEST_F(FolderSourceTest, ACommentLeftOpenInOneFileHidesTheStartOfTheNext) {
  Put("a.c", "one /* never closed");
  Put("b.c", "hidden\nhidden */ two");
  Put("c.c", "three");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "one three two");
}

TEST_F(FolderSourceTest, AFileWithoutMarkersIsNotHiddenByACommentLeftOpen) {
  Put("a.c", "one /* never closed");
  Put("b.txt", "two");
  Put("c.c", "hidden */ three");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "one three two");
}

TEST_F(FolderSourceTest, EachFileHasTheMarkersOfItsKind) {
  Put("a.c", "one /* hidden */ <two>");
  Put("b.htm", "/* three */ <hidden>");
  Put("c.txt", "/* four */ <five>");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "five four one three two");
}

// The controls around it.

TEST_F(FolderSourceTest, BrowsingForAFolderClearsTheOutputAndNamesTheFolder) {
  CountClipboard("cat");
  desktop.AnswerFolder(folder.Path());
  Main().cmdFolder.PerformClick();
  EXPECT_THAT(desktop.FolderBrowses(), ElementsAre("Select Folder"));
  EXPECT_EQ(Output(), "");
  EXPECT_EQ(Main().txbFolder.Text(), folder.Path());
  desktop.AnswerFolder(std::nullopt);
  Main().cmdFolder.PerformClick();
  EXPECT_EQ(Main().txbFolder.Text(), folder.Path());
  Main().cmdClearFolder.PerformClick();
  EXPECT_EQ(Main().txbFolder.Text(), "");
}

TEST_F(FolderSourceTest, LeavingTheBoxWithAFolderThatDoesNotExistIsToldWithAFullStop) {
  Main().txbFolder.SetText(folder / "nowhere");
  Main().txbFolder.LostFocus.Fire();
  ExpectMessage(OnlyMessage(), "Folder does not exist.", "Error", MessageIcon::kExclamation);
  desktop.ForgetQuestions();
  for (const std::string& path : {folder.Path(), std::string()}) {
    Main().txbFolder.SetText(path);
    Main().txbFolder.LostFocus.Fire();
  }
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

}  // namespace
}  // namespace quillomat
