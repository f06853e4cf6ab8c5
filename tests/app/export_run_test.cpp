// Exports while the program stays awake.
#include "app/exports/export_run.h"

#include <chrono>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>

#include "base/run_time_error.h"
#include "support/scripted_desktop.h"

namespace quillomat {
namespace {

class ExportRunTest : public testing::Test {
 protected:
  ExportOutcome Run(const ExportWork& work) {
    return RunExport(run, pump, work, [](std::size_t) {});
  }
  /// Work that has no end of its own.
  static bool WriteForEver(const ExportProgress& progress) {
    std::size_t words = 0;
    while (progress(++words)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return false;
  }

  ScriptedDesktop desktop;
  EventPump pump{desktop, std::chrono::steady_clock::now};
  RunState run{pump};
};

TEST_F(ExportRunTest, EndsWithWhatTheWorkSays) {
  EXPECT_EQ(Run([](const ExportProgress&) { return true; }).end, ExportOutcome::End::kWritten);
  EXPECT_EQ(Run([](const ExportProgress&) { return false; }).end, ExportOutcome::End::kStopped);
  const ExportOutcome failed =
      Run([](const ExportProgress&) -> bool { throw RunTimeError(RunTimeErrorNumber::kDiskFull); });
  EXPECT_EQ(failed.end, ExportOutcome::End::kFailed);
  EXPECT_EQ(failed.error, "Disk full");
}

TEST_F(ExportRunTest, ClicksAreTakenWhileItWritesAndStopEndsIt) {
  desktop.AtPump(4, [this] { run.RequestStop(); });
  EXPECT_EQ(Run(WriteForEver).end, ExportOutcome::End::kStopped);
  EXPECT_GE(desktop.Pumps(), 4);
}

TEST_F(ExportRunTest, ProgressIsTold) {
  const auto onProgress = [this](std::size_t words) {
    if (words == 5) run.RequestStop();
  };
  const ExportWork work = [](const ExportProgress& progress) {
    while (progress(5)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return false;
  };
  EXPECT_EQ(RunExport(run, pump, work, onProgress).end, ExportOutcome::End::kStopped);
}

TEST_F(ExportRunTest, WhatIsThrownMeanwhileEndsItSoon) {
  using std::chrono::steady_clock;
  bool wasEnded = false;
  const ExportWork work = [&wasEnded](const ExportProgress& progress) {
    const auto patience = steady_clock::now() + std::chrono::seconds(10);
    while (!wasEnded && steady_clock::now() < patience) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
      wasEnded = !progress(1);
    }
    return false;
  };
  const auto onProgress = [](std::size_t) { throw std::logic_error("a handler's"); };
  EXPECT_THROW((void)RunExport(run, pump, work, onProgress), std::logic_error);
  EXPECT_TRUE(wasEnded);
}

TEST_F(ExportRunTest, StopBeforeTheFirstWordWritesNothing) {
  bool begun = false;
  desktop.AtPump(1, [this] { run.RequestStop(); });
  const ExportOutcome outcome = Run([&begun](const ExportProgress&) {
    begun = true;
    return true;
  });
  EXPECT_EQ(outcome.end, ExportOutcome::End::kStopped);
  EXPECT_FALSE(begun);
}

}  // namespace
}  // namespace quillomat
