// Exports on a system that has no thread to give.
#include <cstddef>
#include <gtest/gtest.h>
#include <pthread.h>
#include <thread>

#include "app/exports/export_run.h"
#include "support/scripted_desktop.h"

namespace quillomat {
namespace {

/// While it lives, no thread can be made: their stacks would be larger than all memory.
class NoThreads {
 public:
  NoThreads() {
    pthread_getattr_default_np(&before_);
    pthread_attr_t huge;
    pthread_attr_init(&huge);
    pthread_attr_setstacksize(&huge, std::size_t{1} << 50U);
    pthread_setattr_default_np(&huge);
    pthread_attr_destroy(&huge);
  }
  NoThreads(const NoThreads&) = delete;
  NoThreads& operator=(const NoThreads&) = delete;
  NoThreads(NoThreads&&) = delete;
  NoThreads& operator=(NoThreads&&) = delete;
  ~NoThreads() {
    pthread_setattr_default_np(&before_);
    pthread_attr_destroy(&before_);
  }

 private:
  pthread_attr_t before_{};
};

class ExportWithoutThread : public testing::Test {
 protected:
  ScriptedDesktop desktop;
  EventPump pump{desktop, std::chrono::steady_clock::now};
  RunState run{pump};
  std::size_t told = 0;

  ExportOutcome Run(const ExportWork& work) {
    const NoThreads noThreads;
    return RunExport(run, pump, work, [this](std::size_t words) { told = words; });
  }
};

TEST_F(ExportWithoutThread, IsMadeAllTheSame) {
  const auto caller = std::this_thread::get_id();
  const ExportOutcome outcome = Run([&](const ExportProgress& progress) {
    return std::this_thread::get_id() == caller && progress(3);
  });
  EXPECT_EQ(outcome.end, ExportOutcome::End::kWritten);
  EXPECT_EQ(told, 3U);
}

TEST_F(ExportWithoutThread, TakesClicksAndCanBeStopped) {
  desktop.AtPump(3, [this] { run.RequestStop(); });
  const ExportOutcome outcome = Run([](const ExportProgress& progress) {
    for (std::size_t words = 1; words < 100; ++words) {
      if (!progress(words)) return false;
    }
    return true;
  });
  EXPECT_EQ(outcome.end, ExportOutcome::End::kStopped);
}

}  // namespace
}  // namespace quillomat
