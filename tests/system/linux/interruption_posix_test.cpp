// The program is ended by signals while it writes: in a process of its own, which is then looked at
// from outside.
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <semaphore>
#include <span>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "base/run_time_error.h"
#include "support/environment.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/interruption_watch.h"
#include "system/output_file.h"
#include "system/scratch_folder.h"

namespace quillomat {
namespace {

std::string Joined(std::span<const std::string> paths) {
  std::string joined;
  for (const std::string& path : paths) joined.append(joined.empty() ? "" : "+").append(path);
  return joined;
}

/// Signals within less are one.
constexpr std::chrono::milliseconds kBehindOneRequest{250};

class InterruptionTest : public TestInAFolder {
 protected:
  /// Who runs the tests in the background, or under nohup, has some signals ignored.
  InterruptionTest() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
      before_[i] = std::signal(kSignals[i], SIG_DFL);
    }
  }
  ~InterruptionTest() override {
    for (std::size_t i = 0; i < kSignals.size(); ++i) std::signal(kSignals[i], before_[i]);
  }

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

 private:
  static constexpr std::array<int, 3> kSignals = {SIGHUP, SIGINT, SIGTERM};
  std::array<void (*)(int), kSignals.size()> before_{};
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
              std::this_thread::sleep_for(kBehindOneRequest);
              raise(SIGINT);
            }),
            kInterruptedStatus);
  ExpectTheOldFileAlone();
}

TEST_F(InterruptionTest, SignalsThatComeTogetherAreOne) {
  EXPECT_EQ(StatusOf([this] {
              const Interruption interruption(Interruption::First::kIsNoted);
              sigset_t all{};
              sigfillset(&all);
              sigprocmask(SIG_BLOCK, &all, nullptr);
              for (const int signal : {SIGTERM, SIGHUP, SIGINT}) raise(signal);
              sigprocmask(SIG_UNBLOCK, &all, nullptr);  // now they come, one behind the other
              if (InterruptionStatus() == 0) _exit(2);
              EndAtFirstInterruption();
              OutputFile file(path_);
              file.Write("new");
              file.Close();
              std::this_thread::sleep_for(kBehindOneRequest);
              raise(SIGHUP);
            }),
            kHungUpStatus);
  EXPECT_EQ(ContentsOf(path_), "new");
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
  const std::string made = folder_ / "made";
  EXPECT_EQ(saidAfter([&] {
              OutputFile(made).Close();
              raise(SIGINT);
            }),
            "")
      << "nobody has asked for it";
  EXPECT_EQ(saidAfter([&] {
              TellOfWrittenFiles(Joined);
              EXPECT_THROW(OutputFile(folder_ / "none/file").Close(), RunTimeError);
              OutputFile(made).Close();
              OutputFile late(folder_ / "late");
              static_cast<void>(folder_.Make("late/folder"));
              EXPECT_THROW(late.Close(), RunTimeError) << "there is a folder in its place";
              if (HasFailure()) _exit(1);
              OutputFile(path_).Close();
              const OutputFile unfinished(folder_ / "unfinished");
              raise(SIGINT);
            }),
            made + "+" + path_);
}

TEST_F(InterruptionTest, NamesAFileAsWrittenIfAndOnlyIfItIs) {
  constexpr int kRounds = 40;
  for (int round = 0; round < kRounds; ++round) {
    const std::string said = folder_ / "said";
    const std::string made = folder_ / ("made" + std::to_string(round));
    std::array<int, 2> ready{};
    ASSERT_EQ(pipe(ready.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
      if (std::freopen(said.c_str(), "w", stderr) == nullptr) _exit(1);
      const Interruption interruption;
      TellOfWrittenFiles(Joined);
      if (write(ready[1], "!", 1) != 1) _exit(1);
      OutputFile file(made);
      file.Close();
      for (;;) pause();
    }
    char byte = 0;
    EXPECT_EQ(read(ready[0], &byte, 1), 1);
    std::this_thread::sleep_for(std::chrono::microseconds(40 * round));
    kill(child, SIGINT);
    int status = 0;
    waitpid(child, &status, 0);
    close(ready[0]);
    close(ready[1]);
    EXPECT_EQ(WEXITSTATUS(status), kInterruptedStatus);
    EXPECT_EQ(ContentsOf(said), FileExists(made) ? made : "");
  }
}

TEST_F(InterruptionTest, EndsTheProgramThoughNobodyReadsStandardError) {
  EXPECT_EQ(StatusOf([&] {
              std::array<int, 2> ends{};
              if (pipe2(ends.data(), O_NONBLOCK) != 0) _exit(1);
              while (write(ends[1], "full", 4) > 0) {
              }
              fcntl(ends[1], F_SETFL, 0);  // whoever writes waits
              dup2(ends[1], STDERR_FILENO);
              const Interruption interruption;
              TellOfWrittenFiles(Joined);
              OutputFile(path_).Close();
              alarm(10);
              raise(SIGINT);
            }),
            kInterruptedStatus);
}

TEST_F(InterruptionTest, EndsTheProgramThoughWhoReadStandardErrorHasGone) {
  EXPECT_EQ(StatusOf([&] {
              std::array<int, 2> ends{};
              if (pipe(ends.data()) != 0) _exit(1);
              close(ends[0]);
              dup2(ends[1], STDERR_FILENO);
              std::signal(SIGPIPE, SIG_DFL);
              const Interruption interruption;
              TellOfWrittenFiles(Joined);
              OutputFile(path_).Close();
              raise(SIGINT);
            }),
            kInterruptedStatus);
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
