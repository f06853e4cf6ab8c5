// What a folder may hold besides well-named, readable text files: nothing of it ends a run.
#include <filesystem>
#include <gmock/gmock.h>

#include "app/count/folder_robustness_fixture.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Names.

TEST_F(FolderRobustness, PathsMayBeLongerThan255Characters) {
  std::string name;
  for (int i = 0; i < 8; ++i) name += std::string(200, static_cast<char>('a' + i)) + "/";
  Put(name + "a.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(Words().folder.foldersScanned, 9);
}

// What may not be read.

TEST_F(FolderRobustness, AFileThatMayNotBeReadIsSkippedAndNamed) {
  Put("a.txt");
  Put("secret.txt", "dog");
  Put("z.txt", "mouse");
  const ClosedFile closed(folder / "secret.txt");
  ExpectAsOrdinaryUser([this] {
    WatchOutput();
    CountFolderWithoutOutputFile(folder.Path());
    EXPECT_EQ(StoredWords(), "cat mouse");
    EXPECT_EQ(Words().folder.filesScanned, 2);
    EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "secret.txt"));
    EXPECT_TRUE(WasShown(NativePaths("{Folder}/secret.txt (skipped: ")));
    EXPECT_TRUE(WasShown("2 files in 1 folder were scanned."));
    EXPECT_THAT(desktop.Titles(), ElementsAre("Multiple files/folders", "Specify output file"));
    ExpectIdle();
  });
}

TEST_F(FolderRobustness, WhatIsSkippedIsStillNamedWhenTheRunIsOver) {
  Put("a.txt");
  Put("secret.txt", "dog");
  const ClosedFile closed(folder / "secret.txt");
  ExpectAsOrdinaryUser([this] {
    CountFolderWithoutOutputFile(folder.Path());
    EXPECT_TRUE(Has(Output(), "secret.txt"));
  });
}

TEST_F(FolderRobustness, IfNothingMayBeReadTheRunEndsWithoutACount) {
  Put("secret.txt", "dog");
  const ClosedFile closed(folder / "secret.txt");
  ExpectAsOrdinaryUser([this] {
    CountFolder(folder.Path());
    EXPECT_THAT(desktop.Titles(), ElementsAre("No files found"));
    EXPECT_TRUE(Has(Output(), NativePaths("{Folder}/secret.txt (skipped: ")));
    ExpectIdle();
  });
}

// What changes while it is read.

TEST_F(FolderRobustness, AFileThatVanishesBetweenThePassesIsNotMissed) {
  Put("a.txt");
  Put("b.txt", "dog");
  Put("c.txt", "mouse");
  desktop.AtMessage("Multiple files/folders", [this] { fs::remove(folder / "b.txt"); });
  WatchOutput();
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat mouse");
  EXPECT_TRUE(WasShown("2 files in 1 folder were scanned."));
  EXPECT_TRUE(Output().starts_with("2 files (in 1 folder) were scanned."));
  ExpectIdle();
}

TEST_F(FolderRobustness, AFileThatVanishesWhileItsFolderIsReadIsSkippedAndNamed) {
  Put("a.txt");
  Put("b.txt", "dog");
  Put("c.txt", "mouse");
  Main().txbFile[0].Change.Connect([this] {
    if (Main().txbFile[0].Text() == folder / "a.txt") fs::remove(folder / "b.txt");
  });
  WatchOutput();
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat mouse");
  EXPECT_TRUE(WasShown(NativePaths("{Folder}/b.txt (skipped: ")));
  EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "b.txt"));
  EXPECT_TRUE(WasShown("2 files in 1 folder were scanned."));
  ExpectIdle();
}

TEST_F(FolderRobustness, AFileThatVanishesBeforeItIsOpenedIsSkippedAndNamed) {
  Put("a.txt", "cat\n");
  Put("b.txt", "dog\n");
  Main().txbFile[0].Change.Connect([this] {
    if (Main().txbFile[0].Text() == folder / "a.txt") fs::remove(folder / "a.txt");
  });
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "dog");
  EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "a.txt"));
  ExpectIdle();
}

TEST_F(FolderRobustness, AFolderThatVanishesBetweenThePassesEndsWithoutFiles) {
  Put("texts/a.txt");
  Put("texts/b.txt");
  desktop.AtMessage("Multiple files/folders", [this] { fs::remove_all(folder / "texts"); });
  CountFolderWithoutOutputFile(folder / "texts");
  EXPECT_EQ(desktop.Messages().back().title, "No files found");
  EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "texts"));
  ExpectIdle();
}

TEST_F(FolderRobustness, FilesThatComeUpBetweenThePassesAreReadToo) {
  Put("a.txt");
  Put("b.txt");
  desktop.AtMessage("Multiple files/folders", [this] { Put("new.txt", "dog"); });
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat*2 dog");
  EXPECT_EQ(Words().folder.filesScanned, 3);
  ExpectIdle();
}

// Stop.

TEST_F(FolderRobustness, StopWhileCountingFilesEndsTheRun) {
  for (int i = 10; i < 20; ++i) Put("f" + std::to_string(i) + ".txt");
  CountClipboard("dog");
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 3, [this] {
    ExpectRunning();
    Count();
  });
  CountFolder(folder.Path());
  EXPECT_TRUE(Output().ends_with("Stopped while counting files (so far: 3 files in 1 folder)."));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(StoredWords(), "dog");
  ExpectIdle();
}

TEST_F(FolderRobustness, StopWhileListingFilesEndsTheList) {
  for (int i = 10; i < 20; ++i) Put("f" + std::to_string(i) + ".txt");
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 2, [this] {
    ExpectRunning();
    Count();
  });
  ListFiles(folder.Path());
  EXPECT_TRUE(Output().ends_with(
      NativePaths("{Folder}/f10.txt\r\n{Folder}/f11.txt\r\n"
                  "Stopped while counting files (so far: 2 files in 1 folder).")));
  ExpectIdle();
}

TEST_F(FolderRobustness, StopWhileScanningLeavesTheWordsFoundSoFar) {
  Put("a.txt", "one two");
  Put("b.txt", "three four");
  Put("sub/c.txt", "five six");
  Put("sub2/d.txt", "seven");
  EveryYieldPumps();
  Main().txbFile[0].Change.Connect([this] {
    if (Main().txbFile[0].Text() == folder / "b.txt") {
      ExpectRunning();
      Count();
    }
  });
  desktop.Answer("Counting interrupted", MessageAnswer::kNo);
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "one three two");
  EXPECT_TRUE(Has(Output(), "2 files in 1 folder were scanned."));
  EXPECT_TRUE(Output().ends_with("Stopped with 3 words found."));
  EXPECT_FALSE(program.State().Scanning());
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
