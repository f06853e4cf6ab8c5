// Limits, permissions, pipes and redirected standard output, as POSIX systems have them.
#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/input_file.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

/// Keeps the process from writing files longer than that, as a full disk would.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{.rlim_cur = bytes, .rlim_max = before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  FileSizeLimit(FileSizeLimit&&) = delete;
  FileSizeLimit& operator=(FileSizeLimit&&) = delete;
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

/// Puts another file in the place of standard output for a while.
class RedirectedOutput {
 public:
  explicit RedirectedOutput(int descriptor) : before_(dup(STDOUT_FILENO)) {
    fflush(stdout);
    dup2(descriptor, STDOUT_FILENO);
    close(descriptor);
  }
  RedirectedOutput(const RedirectedOutput&) = delete;
  RedirectedOutput& operator=(const RedirectedOutput&) = delete;
  RedirectedOutput(RedirectedOutput&&) = delete;
  RedirectedOutput& operator=(RedirectedOutput&&) = delete;
  ~RedirectedOutput() {
    dup2(before_, STDOUT_FILENO);
    close(before_);
  }

 private:
  int before_;
};

std::vector<std::string> NamesIn(const std::string& folder) {
  return ListFolder(folder).files;
}

void WriteWhole(const std::string& path, const std::string& contents) {
  OutputFile file(path);
  file.Write(contents);
  file.Close();
}

using PosixInputFile = TestInAFolder;
using PosixOutputFile = TestInAFolder;

TEST_F(PosixInputFile, APipeThatNobodyWritesToIsAtItsEnd) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0666), 0);
  InputFile file(folder_ / "pipe");
  EXPECT_EQ(file.Length(), 0);
  EXPECT_EQ(ReadWhole(file, 16), "");
}

TEST_F(PosixInputFile, LeavesNoDescriptorOpen) {
  const std::string path = folder_.Write("in", "x");
  const int before = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(before);
  { const InputFile file(path); }
  EXPECT_EQ(ErrorNumberOf([&] { const InputFile file(folder_.Path()); }), 75);
  const int after = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(after);
  EXPECT_EQ(after, before);
}

TEST_F(PosixOutputFile, ALockedFolderOrFileIsPermissionDenied) {
  const std::string locked = folder_.Make("locked");
  const std::string file = folder_.Write("file", "x");
  fs::permissions(locked, fs::perms(0555));
  fs::permissions(file, fs::perms(0444));
  const auto opening = [](const std::string& path) {
    return AsOrdinaryUser([&] { return ErrorNumberOf([&] { const OutputFile opened(path); }); });
  };
  EXPECT_EQ(opening(locked + "/new"), 70);
  EXPECT_EQ(opening(file), 70);
  EXPECT_EQ(ContentsOf(file), "x");
}

TEST_F(PosixOutputFile, TheCheckKnowsWhatMayBeWritten) {
  const std::string locked = folder_.Make("locked");
  const std::string open = folder_.Write("locked/open", "x");
  const std::string file = folder_.Write("file", "x");
  const std::string pipe = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  fs::permissions(open, fs::perms(0666));
  fs::permissions(locked, fs::perms(0555));
  fs::permissions(file, fs::perms(0444));
  const auto checking = [](const std::string& path) {
    return AsOrdinaryUser([&] { return ErrorNumberOf([&] { CheckWritable(path); }); });
  };
  EXPECT_EQ(checking(locked + "/new"), 70);
  EXPECT_EQ(checking(file), 70);
  EXPECT_EQ(checking(open), 0) << "it is written in place";
  EXPECT_EQ(checking(pipe), 0) << "and nobody waits for a reader";
  EXPECT_EQ(ContentsOf(open), "x");
  EXPECT_EQ(ContentsOf(file), "x");
}

TEST_F(PosixOutputFile, AFullDiskIsNoticedWhileWriting) {
  OutputFile file("/dev/full");
  const std::string block(200'000, 'x');
  EXPECT_EQ(ErrorNumberOf([&] { file.Write(block); }), 61);
  EXPECT_EQ(ErrorNumberOf([&] { file.Write("more"); }), 57);
}

TEST_F(PosixOutputFile, AFullDiskIsNoticedWhenClosing) {
  OutputFile file("/dev/full");
  file.Write("a few bytes");
  EXPECT_EQ(ErrorNumberOf([&] { file.Close(); }), 61);
}

TEST_F(PosixOutputFile, AFailedWriteLeavesTheOldFileAndNoOther) {
  const std::string path = folder_.Write("out", "old");
  const FileSizeLimit limit(100'000);
  OutputFile file(path);
  file.Write(std::string(70'000, 'x'));
  EXPECT_EQ(ErrorNumberOf([&] { file.Write(std::string(70'000, 'x')); }), 61);
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_EQ(NamesIn(folder_.Path()), std::vector<std::string>{"out"});
}

TEST_F(PosixOutputFile, WhereNoFileCanBeMadeAFailedWriteLeavesAnEmptyOne) {
  const std::string shelf = folder_.Make("shelf");
  const std::string path = folder_.Write("shelf/out", "old");
  fs::permissions(path, fs::perms(0666));
  fs::permissions(shelf, fs::perms(0555));
  EXPECT_EQ(AsOrdinaryUser([&] {
              const FileSizeLimit limit(100'000);
              OutputFile file(path);
              file.Write(std::string(70'000, 'x'));
              return ErrorNumberOf([&] { file.Write(std::string(70'000, 'x')); });
            }),
            61);
  EXPECT_EQ(ContentsOf(path), "");
}

TEST_F(PosixOutputFile, WhereNoFileCanBeMadeTheTargetIsWrittenInPlace) {
  const std::string shelf = folder_.Make("shelf");
  const std::string path = folder_.Write("shelf/out", "something long");
  fs::permissions(path, fs::perms(0666));
  fs::permissions(shelf, fs::perms(0555));
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { WriteWhole(path, "new"); }); }), 0);
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(PosixOutputFile, ALinkStaysALinkAndWhatItLeadsToIsReplaced) {
  const std::string shelf = folder_.Make("shelf");
  const std::string path = folder_.Write("shelf/out", "old");
  fs::create_symlink("shelf/out", folder_ / "second");
  fs::create_symlink("second", folder_ / "first");
  const fs::path hardLink = folder_ / "kept";
  fs::create_hard_link(path, hardLink);
  WriteWhole(folder_ / "first", "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "first"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "second"));
  EXPECT_EQ(ContentsOf(path), "new");
  EXPECT_EQ(ContentsOf(hardLink.string()), "old");
  EXPECT_EQ(NamesIn(shelf), std::vector<std::string>{"out"});
}

TEST_F(PosixOutputFile, ALinkThatLeadsNowhereGetsItsFile) {
  fs::create_symlink("file", folder_ / "link");
  WriteWhole(folder_ / "link", "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(ContentsOf(folder_ / "file"), "new");
}

TEST_F(PosixOutputFile, ALinkToItselfIsAnError) {
  fs::create_symlink("link", folder_ / "link");
  EXPECT_EQ(ErrorNumberOf([&] { WriteWhole(folder_ / "link", "new"); }), 75);
}

TEST_F(PosixOutputFile, OwnerAndPermissionsAreKept) {
  const std::string path = folder_.Write("out", "old");
  fs::permissions(path, fs::perms(0642));
  const bool given = chown(path.c_str(), 12345, 23456) == 0;  // only root may give a file away
  WriteWhole(path, "new");
  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0642U);
  if (given) {
    EXPECT_EQ(status.st_uid, 12345U);
    EXPECT_EQ(status.st_gid, 23456U);
  }
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(PosixOutputFile, ANewFileHasThePermissionsThatTheUserGivesNewFiles) {
  const mode_t before = umask(027);
  WriteWhole(folder_ / "out", "new");
  umask(before);
  EXPECT_EQ(fs::status(folder_ / "out").permissions(), fs::perms(0640));
}

TEST_F(PosixOutputFile, NobodyElseMayLookIntoTheTemporaryFileOfAPrivateOne) {
  const std::string path = folder_.Write("out", "old");
  fs::permissions(path, fs::perms(0600));
  OutputFile file(path);
  for (const std::string& name : NamesIn(folder_.Path())) {
    EXPECT_EQ(fs::status(folder_ / name).permissions(), fs::perms(0600)) << name;
  }
  EXPECT_EQ(NamesIn(folder_.Path()).size(), 2U);
}

TEST_F(PosixOutputFile, WhatTheSystemKeepsWithAFileIsKept) {
  const std::string path = folder_.Write("out", "old");
  if (setxattr(path.c_str(), "user.origin", "archive", 7, 0) != 0) GTEST_SKIP() << "no attributes";
  WriteWhole(path, "new");
  std::string value(7, ' ');
  EXPECT_EQ(getxattr(path.c_str(), "user.origin", value.data(), value.size()), 7);
  EXPECT_EQ(value, "archive");
}

TEST_F(PosixOutputFile, AFileOfOthersInAFolderWhereOnlyOwnersMoveFilesIsWrittenInPlace) {
  const std::string shelf = folder_.Make("shelf");
  const std::string path = folder_.Write("shelf/out", "old");
  fs::permissions(path, fs::perms(0666));
  fs::permissions(shelf, fs::perms(01777));
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { WriteWhole(path, "new"); }); }), 0);
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(PosixOutputFile, APipesReaderGetsAllAndThenTheEnd) {
  const std::string path = folder_ / "pipe";
  ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
  const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  WriteWhole(path, "through the pipe");
  std::string text(100, ' ');
  text.resize(static_cast<std::size_t>(read(reader, text.data(), text.size())));
  close(reader);
  EXPECT_EQ(text, "through the pipe");
  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(PosixOutputFile, TheSystemsNameForStandardOutputIsWrittenInPlace) {
  const std::string path = folder_.Write("out", "");
  {
    const RedirectedOutput redirected(open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    WriteWhole("/dev/stdout", "the list ");
    ASSERT_EQ(write(STDOUT_FILENO, "and after", 9), 9);
  }
  EXPECT_EQ(ContentsOf(path), "the list and after");
}

TEST_F(PosixOutputFile, AClosedPipeIsAnErrorAndNotTheEnd) {
  std::array<int, 2> pipeEnds{};
  ASSERT_EQ(pipe2(pipeEnds.data(), O_CLOEXEC), 0);
  close(pipeEnds[0]);
  {
    const RedirectedOutput redirected(pipeEnds[1]);
    OutputFile output = OutputFile::StandardOutput();
    output.Write("nobody reads this");
    EXPECT_THROW(output.Close(), ReaderGone);
  }
  sigset_t pending{};
  sigpending(&pending);
  EXPECT_EQ(sigismember(&pending, SIGPIPE), 0);
}

TEST_F(PosixOutputFile, WaitsForAPipeThatIsFull) {
  std::array<int, 2> pipeEnds{};
  ASSERT_EQ(pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK), 0);
  const std::string text(1'000'000, 'x');
  const pid_t writer = fork();
  if (writer == 0) {
    dup2(pipeEnds[1], STDOUT_FILENO);
    OutputFile output = OutputFile::StandardOutput();
    _exit(ErrorNumberOf([&] {
      output.Write(text);
      output.Close();
    }));
  }
  close(pipeEnds[1]);
  fcntl(pipeEnds[0], F_SETFL, 0);
  std::size_t bytesRead = 0;
  std::array<char, 4096> block{};
  for (ssize_t bytes = 1; bytes > 0; bytesRead += static_cast<std::size_t>(bytes)) {
    bytes = read(pipeEnds[0], block.data(), block.size());
    ASSERT_GE(bytes, 0);
  }
  close(pipeEnds[0]);
  int status = 0;
  waitpid(writer, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(bytesRead, text.size());
}

TEST_F(PosixOutputFile, StandardOutputGoesWhereItPoints) {
  const std::string path = folder_.Write("out", "before ");
  {
    const RedirectedOutput redirected(open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    OutputFile output = OutputFile::StandardOutput();
    output.Write("through the file ");
    output.Close();
    ASSERT_EQ(write(STDOUT_FILENO, "and after", 9), 9);
  }
  EXPECT_EQ(ContentsOf(path), "before through the file and after");
}

TEST_F(PosixOutputFile, StandardOutputIsNeverEmptied) {
  const std::string path = folder_.Write("out", "before");
  {
    const RedirectedOutput redirected(open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    OutputFile output = OutputFile::StandardOutput();
    output.Write("never closed");
  }
  EXPECT_EQ(ContentsOf(path), "before");
}

}  // namespace
}  // namespace quillomat
