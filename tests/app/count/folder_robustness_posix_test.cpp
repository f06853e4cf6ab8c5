// Names of any bytes, links, pipes and closed folders, which only POSIX systems have in this form.
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "app/count/folder_robustness_fixture.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using PosixFolderRobustness = FolderRobustness;

/// Folders in folders, also deeper than a path can say.
void MakeDeepFolder(const TemporaryFolder& folder, int depth, const std::string& name) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  for (int i = 0; i < depth; ++i) {
    fs::create_directory(name);
    fs::current_path(name);
  }
  fs::current_path(before);
}

/// From now on, whoever reads the file that is open as `path` meets a device that fails: the
/// memory of this process, which has none at its start.
void LetReadingFail(const std::string& path) {
  for (const fs::directory_entry& open : fs::directory_iterator("/proc/self/fd")) {
    std::error_code none;
    if (fs::read_symlink(open.path(), none) != path) continue;
    const int failing = ::open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    ASSERT_GE(dup2(failing, std::stoi(open.path().filename())), 0);
    close(failing);
    return;
  }
  FAIL() << path << " is not open";
}

TEST_F(PosixFolderRobustness, AFileWhoseDeviceFailsIsSkippedAndNamed) {
  Put("a.txt", "cat\n");
  Put("b.txt", "dog\n");
  bool fails = false;
  Main().lblNumWordsExcluded.Changed.Connect([&] {
    const bool opened = Main().lblNumWordsExcluded.Caption() == "This is a Unix-type file.";
    if (!opened || fails || Main().txbFile[0].Text() != folder / "a.txt") return;
    LetReadingFail(folder / "a.txt");
    fails = true;
  });
  WatchOutput();
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_TRUE(Has(StoredWords(), "dog"));
  EXPECT_THAT(SkippedPaths(), ElementsAre(folder / "a.txt"));
  EXPECT_TRUE(WasShown(" (skipped: Device I/O error)"));
  ExpectIdle();
}

TEST_F(PosixFolderRobustness, NamesMayHoldAnyBytes) {
  const std::vector<std::string> names = {
      " leading.txt",   "trailing.txt ", "two\nlines.txt",  "carriage\rreturn.txt",
      "\"quoted\".txt", "it's.txt",      "back\\slash.txt", "tab\there.txt",
      "caf\xE9.txt",    "\xFF\xFE.txt",  "日本.txt",        "-rf.txt",
      "$HOME.txt",      "{Folder}.txt",  "*?[a].txt",       ". .txt"};
  for (const std::string& name : names) Put(name);
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat*" + std::to_string(names.size()));
  EXPECT_EQ(Words().folder.filesScanned, static_cast<std::int32_t>(names.size()));
  EXPECT_THAT(SkippedPaths(), IsEmpty());
  ExpectIdle();
}

TEST_F(PosixFolderRobustness, FoldersMayHaveAnyNamesToo) {
  Put(" blank /a.txt");
  Put("new\nline/b.txt");
  Put("\xE9\xFF/c.txt");
  Put("ends with a dot./d.txt");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat*4");
  EXPECT_EQ(Words().folder.foldersScanned, 5);
}

TEST_F(PosixFolderRobustness, TheChosenFolderMayHaveSuchANameItself) {
  const std::string chosen = folder.Make(" \xE9\n ");
  Put(" \xE9\n /a.txt");
  ListFiles(chosen);
  EXPECT_TRUE(Has(Output(), "{Folder}/a.txt\r\n1 file in 1 folder will be scanned."));
  CountFolder(chosen);
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(PosixFolderRobustness, AFolderTooDeepToBeNamedIsSkippedAndTheRestRead) {
  Put("a.txt");
  MakeDeepFolder(folder, 25, std::string(200, 'd'));
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(SkippedPaths().size(), 1U);
  ExpectIdle();
}

TEST_F(PosixFolderRobustness, ADeepTreeIsWalkedToItsEnd) {
  MakeDeepFolder(folder, 800, "d");
  std::string path = "d";
  for (int depth = 1; depth < 800; ++depth) path += "/d";
  Put(path + "/a.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(Words().folder.foldersScanned, 801);
}

TEST_F(PosixFolderRobustness, LinksInACircleEndNowhere) {
  Put("texts/a.txt");
  fs::create_directory_symlink(folder.Path(), folder / "texts/up");
  fs::create_directory_symlink(folder / "texts", folder / "again");
  fs::create_symlink(folder / "second.txt", folder / "first.txt");
  fs::create_symlink(folder / "first.txt", folder / "second.txt");
  fs::create_symlink("self.txt", folder / "self.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_EQ(Words().folder.foldersScanned, 2);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(PosixFolderRobustness, ALinkToAFileIsReadAndALinkToNothingIsNot) {
  TemporaryFolder elsewhere;
  fs::create_symlink(elsewhere.Write("far.txt", "dog"), folder / "near.txt");
  fs::create_symlink(folder / "gone.txt", folder / "nothing.txt");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(PosixFolderRobustness, TheChosenFolderMayBeALink) {
  Put("texts/a.txt");
  fs::create_directory_symlink(folder / "texts", folder / "link");
  CountFolder(folder / "link");
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(PosixFolderRobustness, PipesAndSocketsAreNoFiles) {
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
  EXPECT_EQ(Words().folder.filesScanned, 1);
}

TEST_F(PosixFolderRobustness, AFolderThatMayNotBeReadIsSkippedAndNamed) {
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

TEST_F(PosixFolderRobustness, AFolderWhoseFilesMayOnlyBeNamedIsSkippedFileByFile) {
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

}  // namespace
}  // namespace quillomat
