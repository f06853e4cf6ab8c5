// What a folder may hold besides well-named, readable text files: nothing of it ends a run.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "desktop/desktop_test.h"
#include "sources/folder_source.h"
#include "sources/sources_fixture.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FolderRobustness : public SourcesFixture {
 protected:
  FolderRobustness() { IncludeSubfolders(); }

  void Put(const std::string& name, const std::string& contents = "cat") {
    static_cast<void>(folder.Write(name, contents));
  }

  /// Folders in folders, also deeper than a path can say.
  void MakeDeepFolder(int depth, const std::string& name) const {
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    for (int i = 0; i < depth; ++i) {
      fs::create_directory(name);
      fs::current_path(name);
    }
    fs::current_path(before);
  }

  [[nodiscard]] std::vector<std::string> SkippedPaths() {
    std::vector<std::string> paths;
    for (const SkippedItem& item : program.countRun.Folder().Skipped()) paths.push_back(item.path);
    return paths;
  }

  /// Counts and tells whether all went well, as an ordinary user: root may read everything.
  template <class Checks>
  void ExpectAsOrdinaryUser(Checks checks) {
    EXPECT_EQ(AsOrdinaryUser([&] {
                checks();
                return HasFailure() ? 1 : 0;
              }),
              0);
  }
};

// Names.

TEST_F(FolderRobustness, NamesMayHoldAnyBytes) {
  const std::vector<std::string> names = {
      " leading.txt",   "trailing.txt ", "two\nlines.txt",  "carriage\rreturn.txt",
      "\"quoted\".txt", "it's.txt",      "back\\slash.txt", "tab\there.txt",
      "caf\xE9.txt",    "\xFF\xFE.txt",  "日本.txt",        "-rf.txt",
      "$HOME.txt",      "{Folder}.txt",  "*?[a].txt",       ". .txt"};
  for (const std::string& name : names) Put(name);
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat*" + std::to_string(names.size()));
  EXPECT_EQ(State().filesScanned, static_cast<std::int32_t>(names.size()));
  EXPECT_THAT(SkippedPaths(), IsEmpty());
  ExpectIdle();
}

TEST_F(FolderRobustness, FoldersMayHaveAnyNamesToo) {
  Put(" blank /a.txt");
  Put("new\nline/b.txt");
  Put("\xE9\xFF/c.txt");
  Put("ends with a dot./d.txt");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat*4");
  EXPECT_EQ(State().foldersScanned, 5);
}

TEST_F(FolderRobustness, TheChosenFolderMayHaveSuchANameItself) {
  const std::string chosen = folder.Make(" \xE9\n ");
  Put(" \xE9\n /a.txt");
  ListFiles(chosen);
  EXPECT_TRUE(Has(Output(), "{Folder}/a.txt\r\n1 file in 1 folder will be scanned."));
  CountFolder(chosen);
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(FolderRobustness, PathsMayBeLongerThan255Characters) {
  std::string name;
  for (int i = 0; i < 8; ++i) name += std::string(200, static_cast<char>('a' + i)) + "/";
  Put(name + "a.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(State().foldersScanned, 9);
}

TEST_F(FolderRobustness, AFolderTooDeepToBeNamedIsSkippedAndTheRestRead) {
  Put("a.txt");
  MakeDeepFolder(25, std::string(200, 'd'));
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(SkippedPaths().size(), 1U);
  ExpectIdle();
}

TEST_F(FolderRobustness, ADeepTreeIsWalkedToItsEnd) {
  MakeDeepFolder(800, "d");
  std::string path = "d";
  for (int depth = 1; depth < 800; ++depth) path += "/d";
  Put(path + "/a.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(State().foldersScanned, 801);
}

// Links and what is no file.

TEST_F(FolderRobustness, LinksInACircleEndNowhere) {
  Put("texts/a.txt");
  fs::create_directory_symlink(folder.Path(), folder / "texts/up");
  fs::create_directory_symlink(folder / "texts", folder / "again");
  fs::create_symlink(folder / "second.txt", folder / "first.txt");
  fs::create_symlink(folder / "first.txt", folder / "second.txt");
  fs::create_symlink("self.txt", folder / "self.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(State().foldersScanned, 2);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FolderRobustness, ALinkToAFileIsReadAndALinkToNothingIsNot) {
  TemporaryFolder elsewhere;
  fs::create_symlink(elsewhere.Write("far.txt", "dog"), folder / "near.txt");
  fs::create_symlink(folder / "gone.txt", folder / "nothing.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(FolderRobustness, TheChosenFolderMayBeALink) {
  Put("texts/a.txt");
  fs::create_directory_symlink(folder / "texts", folder / "link");
  CountFolder(folder / "link");
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(FolderRobustness, PipesAndSocketsAreNoFiles) {
  Put("a.txt");
  ASSERT_EQ(mkfifo((folder / "pipe.txt").c_str(), 0666), 0);
  const int unixSocket = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  (folder / "socket.txt").copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(unixSocket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  close(unixSocket);
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(State().filesScanned, 1);
}

// What may not be read.

TEST_F(FolderRobustness, AFileThatMayNotBeReadIsSkippedAndNamed) {
  Put("a.txt");
  Put("secret.txt", "dog");
  Put("z.txt", "mouse");
  chmod((folder / "secret.txt").c_str(), 0);
  ExpectAsOrdinaryUser([this] {
    WatchOutput();
    CountFolderWithoutOutputFile(folder.Path());
    EXPECT_EQ(StoredWords(), "cat mouse");
    EXPECT_EQ(State().filesScanned, 2);
    EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "secret.txt"));
    EXPECT_TRUE(WasShown("{Folder}/secret.txt (skipped: "));
    EXPECT_TRUE(WasShown("2 files in 1 folder were scanned."));
    EXPECT_THAT(desktop.Titles(), ElementsAre("Multiple files/folders", "Specify output file"));
    ExpectIdle();
  });
}

TEST_F(FolderRobustness, AFolderThatMayNotBeReadIsSkippedAndNamed) {
  Put("a.txt");
  Put("closed/b.txt", "dog");
  Put("open/c.txt", "mouse");
  chmod((folder / "closed").c_str(), 0);
  ExpectAsOrdinaryUser([this] {
    WatchOutput();
    CountFolderWithoutOutputFile(folder.Path());
    EXPECT_EQ(StoredWords(), "cat mouse");
    EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "closed"));
    EXPECT_TRUE(WasShown("{Folder}/closed (skipped: "));
    ListFiles(folder.Path());
    EXPECT_TRUE(Has(Output(), "{Folder}/closed (skipped: "));
    EXPECT_TRUE(Output().ends_with("\r\n2 files in 3 folders will be scanned."));
    ExpectIdle();
  });
  chmod((folder / "closed").c_str(), 0777);
}

TEST_F(FolderRobustness, AFolderWhoseFilesMayOnlyBeNamedIsSkippedFileByFile) {
  Put("a.txt");
  Put("names/b.txt", "dog");
  chmod((folder / "names").c_str(), 0444);
  ExpectAsOrdinaryUser([this] {
    CountFolderWithoutOutputFile(folder.Path());
    EXPECT_EQ(StoredWords(), "cat");
    EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "names/b.txt"));
    ExpectIdle();
  });
  chmod((folder / "names").c_str(), 0777);
}

TEST_F(FolderRobustness, WhatIsSkippedIsStillNamedWhenTheRunIsOver) {
  Put("a.txt");
  Put("secret.txt", "dog");
  chmod((folder / "secret.txt").c_str(), 0);
  ExpectAsOrdinaryUser([this] {
    CountFolderWithoutOutputFile(folder.Path());
    EXPECT_TRUE(Has(Output(), "secret.txt"));
  });
}

TEST_F(FolderRobustness, IfNothingMayBeReadTheRunEndsWithoutACount) {
  Put("secret.txt", "dog");
  chmod((folder / "secret.txt").c_str(), 0);
  ExpectAsOrdinaryUser([this] {
    CountFolder(folder.Path());
    EXPECT_THAT(desktop.Titles(), ElementsAre("No files found"));
    EXPECT_TRUE(Has(Output(), "{Folder}/secret.txt (skipped: "));
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
  EXPECT_TRUE(WasShown("{Folder}/b.txt (skipped: "));
  EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "b.txt"));
  EXPECT_TRUE(WasShown("2 files in 1 folder were scanned."));
  ExpectIdle();
}

TEST_F(FolderRobustness, AFileThatVanishesBeforeItIsOpenedIsSkippedAndNamed) {
  Put("a.txt", "cat\n");
  Put("b.txt", "dog\n");
  Main().lblNumWordsExcluded.Changed.Connect([this] {
    const bool found = Main().lblNumWordsExcluded.Caption() == "This is a Unix-type file.";
    if (found && Main().txbFile[0].Text() == folder / "a.txt") fs::remove(folder / "a.txt");
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
  EXPECT_EQ(State().filesScanned, 3);
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
  EXPECT_TRUE(
      Output().ends_with("{Folder}/f10.txt\r\n{Folder}/f11.txt\r\n"
                         "Stopped while counting files (so far: 2 files in 1 folder)."));
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
  EXPECT_FALSE(program.countRun.File().Scanning());
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
