// The program is ended by signals while it writes: in a process of its own, which is then looked at
// from outside.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <semaphore>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "support/environment.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/interruption_watch.h"
#include "system/output_file.h"
#include "system/scratch_folder.h"

namespace quillomat {
namespace {

class InterruptionTest : public TestInAFolder {
 protected:
  /// The exit status of a process that does that; minus the signal if one has killed it.
  static int StatusOf(const std::function<void()>& action) {
    const pid_t child = fork();
    if (child == 0) {
      action();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }

  /// A process that is in the middle of writing `path_` when the signal comes.
  int StatusAfter(int signal) {
    return StatusOf([this, signal] {
      const Interruption interruption;
      OutputFile file(path_);
      file.Write(std::string(200'000, 'x'));
      raise(signal);
      file.Close();
    });
  }

  void ExpectTheOldFileAlone() {
    EXPECT_EQ(ContentsOf(path_), "old");
    EXPECT_EQ(ListFolder(folder_.Path()).files, std::vector<std::string>{"out"});
  }

  const std::string path_ = folder_.Write("out", "old");
};

TEST_F(InterruptionTest, EndsTheProgramWithItsStatusAndLeavesTheOldFile) {
  EXPECT_EQ(StatusAfter(SIGINT), kInterruptedStatus);
  ExpectTheOldFileAlone();
  EXPECT_EQ(StatusAfter(SIGTERM), kAskedToEndStatus);
  ExpectTheOldFileAlone();
  EXPECT_EQ(StatusAfter(SIGHUP), kHungUpStatus);
  ExpectTheOldFileAlone();
}

TEST_F(InterruptionTest, RemovesEveryUnfinishedFileAndNoFinishedOne) {
  EXPECT_EQ(StatusOf([this] {
              const Interruption interruption;
              OutputFile whole(folder_ / "whole");
              whole.Close();
              const OutputFile second(folder_ / "second");
              const OutputFile third(folder_ / "third");
              raise(SIGINT);
            }),
            kInterruptedStatus);
  EXPECT_EQ(ListFolder(folder_.Path()).files, (std::vector<std::string>{"out", "whole"}));
}

TEST_F(InterruptionTest, RemovesAScratchFolderWithItsFiles) {
  const ScopedVariable place("TMPDIR", folder_.Path());
  EXPECT_EQ(StatusOf([] {
              const Interruption interruption;
              const ScratchFolder scratch;
              for (int i = 0; i < 300; ++i) {
                OutputFile file(scratch.Path() + "/a file with a long name " + std::to_string(i));
                file.Close();
              }
              raise(SIGINT);
            }),
            kInterruptedStatus);
  EXPECT_TRUE(ListFolder(folder_.Path()).subfolders.empty());
  ExpectTheOldFileAlone();
}

TEST_F(InterruptionTest, LibraryThatEndsTheProgramLeavesNoUnfinishedFileEither) {
  std::fflush(stdout);  // else the other process writes it, too
  EXPECT_EQ(StatusOf([this] {
              const Interruption interruption;
              OutputFile file(path_);
              file.Write(std::string(200'000, 'x'));
              std::exit(3);  // as that of the windows does when the screen has gone
            }),
            3);
  ExpectTheOldFileAlone();
}

TEST_F(InterruptionTest, WhoWaitsForItIsToldOnce) {
  const Interruption interruption(Interruption::First::kIsNoted);
  std::binary_semaphore told(0);
  {
    const InterruptionWatch watch([&told] { told.release(); });
    raise(SIGTERM);
    told.acquire();
  }
  const InterruptionWatch late([&told] { told.release(); });
  told.acquire();
  EXPECT_EQ(InterruptionStatus(), kAskedToEndStatus);
}

TEST_F(InterruptionTest, WhoWaitsInVainIsLetGo) {
  const Interruption interruption(Interruption::First::kIsNoted);
  bool told = false;
  {
    const InterruptionWatch watch([&told] { told = true; });
  }
  EXPECT_FALSE(told);
}

TEST_F(InterruptionTest, OnAnotherThreadEndsTheProgramJustSo) {
  EXPECT_EQ(StatusOf([this] {
              const Interruption interruption;
              std::thread([] { raise(SIGTERM); }).detach();
              for (;;) {
                OutputFile file(path_);
                file.Write("new");
              }
            }),
            kAskedToEndStatus);
  ExpectTheOldFileAlone();
}

TEST_F(InterruptionTest, WhoWantsMayNoteTheFirstButNotTheSecond) {
  EXPECT_EQ(StatusOf([this] {
              const Interruption interruption(Interruption::First::kIsNoted);
              if (InterruptionStatus() != 0) _exit(1);
              OutputFile file(path_);
              raise(SIGTERM);
              if (InterruptionStatus() != kAskedToEndStatus) _exit(2);
              raise(SIGINT);
            }),
            kInterruptedStatus);
  ExpectTheOldFileAlone();
}

TEST_F(InterruptionTest, WhatIsFinishedFirstHasAnEnd) {
  EXPECT_EQ(StatusOf([] {
              const Interruption interruption(Interruption::First::kIsNoted);
              EndAtFirstInterruption();
              raise(SIGINT);
            }),
            kInterruptedStatus);
}

TEST_F(InterruptionTest, LeavesALastWord) {
  const auto saidAfter = [this](const std::function<void()>& before) {
    const std::string said = folder_ / "said";
    EXPECT_EQ(StatusOf([&] {
                if (std::freopen(said.c_str(), "w", stderr) == nullptr) _exit(1);
                const Interruption interruption;
                before();
                raise(SIGINT);
              }),
              kInterruptedStatus);
    return ContentsOf(said);
  };
  EXPECT_EQ(saidAfter([] {}), "");
  EXPECT_EQ(saidAfter([] {
              SetLastWords("a.csv is written\n");
              SetLastWords("a.csv and b.csv are written\n");
            }),
            "a.csv and b.csv are written\n");
}

TEST_F(InterruptionTest, WhatWasIgnoredStaysIgnored) {
  EXPECT_EQ(StatusOf([this] {
              std::signal(SIGHUP, SIG_IGN);
              const Interruption interruption;
              OutputFile file(path_);
              file.Write("new");
              raise(SIGHUP);
              file.Close();
            }),
            0);
  EXPECT_EQ(ContentsOf(path_), "new");
}

TEST_F(InterruptionTest, WithoutOneSignalsDoWhatTheyDidBefore) {
  EXPECT_EQ(StatusOf([] {
              { const Interruption interruption; }
              raise(SIGTERM);
            }),
            -SIGTERM);
}

}  // namespace
}  // namespace quillomat
