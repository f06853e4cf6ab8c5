// The counter on what only this family of systems has: pipes with names, and files that may not be
// opened.
#include <chrono>
#include <fstream>
#include <sys/stat.h>
#include <thread>

#include "sources/counter_fixture.h"
#include "support/permissions.h"

namespace quillomat {
namespace {

class NamedPipe : public CounterFixture {
 protected:
  NamedPipe() { EXPECT_EQ(mkfifo(pipe_.c_str(), 0666), 0); }

  std::string pipe_ = folder / "pipe.txt";
};

TEST_F(NamedPipe, IsReadAsItComes) {
  std::jthread writer([this] {
    // The reader comes first, and must wait.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    std::ofstream out(pipe_);
    out << "cat dog\n" << std::flush;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    for (int i = 0; i < 20'000; ++i) out << "cat\n";
  });
  const CountResult result = Run(TextOfFile{pipe_});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat*20001 dog");
  EXPECT_GT(observer.yields, 4) << "it yields while it waits";
}

TEST_F(NamedPipe, IsGivenUpWhenTheCountIsStopped) {
  observer.stopped = true;
  const CountResult result = Run(TextOfFile{pipe_});
  EXPECT_EQ(result.end, CountEnd::kStopped);
}

TEST_F(NamedPipe, IsReadInItsTurnBetweenFilesThatAreReadAhead) {
  request.threads = 3;
  std::vector<std::string> paths(40, folder.Write("a.txt", "cat"));
  paths[20] = pipe_;
  std::jthread writer([this] {
    std::ofstream out(pipe_);
    for (int i = 0; i < 20'000; ++i) out << "dog\n";
  });
  const CountResult result = Run(TextOfPaths{paths, false, {}, nullptr});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(result.files, 40);
  EXPECT_EQ(WordsOf(result), "cat*39 dog*20000");
}

using ClosedFiles = CounterFixture;

TEST_F(ClosedFiles, AreSkippedAndNamed) {
  static_cast<void>(folder.Write("a.txt", "cat"));
  const ClosedFile closed(folder.Write("b.txt", "dog"));
  const int status = AsOrdinaryUser([this] {
    const CountResult many = Run(TextOfFolder{folder.Path(), false, {}});
    EXPECT_EQ(WordsOf(many), "cat");
    EXPECT_EQ(many.skipped.at(0).reason, Refusal::kCannotBeOpened);
    EXPECT_EQ(many.skipped.at(0).error.value().Description(), "Permission denied");
    ExpectRefused(Run(TextOfFile{folder / "b.txt"}), Refusal::kCannotBeOpened);
    return HasFailure() ? 1 : 0;
  });
  EXPECT_EQ(status, 0);
}

TEST_F(ClosedFiles, MayBeFolders) {
  static_cast<void>(folder.Write("a.txt", "cat"));
  const std::string closed = folder.Make("closed");
  std::filesystem::permissions(closed, std::filesystem::perms::none);
  const int status = AsOrdinaryUser([this] {
    const CountResult result = Run(TextOfFolder{folder.Path(), true, {}});
    EXPECT_EQ(WordsOf(result), "cat");
    EXPECT_EQ(result.skipped.at(0).reason, Refusal::kFolderUnreadable);
    return HasFailure() ? 1 : 0;
  });
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace quillomat
