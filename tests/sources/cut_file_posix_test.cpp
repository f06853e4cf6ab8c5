// Files that become shorter or longer while they are counted.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "sources/counter_fixture.h"
#include "sources/file_columns.h"
#include "sources/text_reader.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

using testing::StartsWith;

class CutFile : public CounterFixture, public testing::WithParamInterface<std::size_t> {
 protected:
  static constexpr std::int64_t kLines = TextReader::kBytesWorthThreads;
  static constexpr std::int64_t kLineBytes = 4;
  static constexpr std::uintmax_t kBytes = kLines * kLineBytes;
  static constexpr std::uintmax_t kLinesLeft = kLines / 2;
  static constexpr std::uintmax_t kBytesLeft = kLinesLeft * kLineBytes;

  CutFile() {
    request.threads = GetParam();
    request.keepReports = true;
    path = folder.Write("long.txt", Cats());
    other = folder.Write("other.txt", "dog\n");
    observer.onFileBegins = [this](const FileBegins& file) {
      if (file.path == path) std::filesystem::resize_file(path, kBytesLeft);
    };
  }
  [[nodiscard]] static std::string Cats() {
    std::string text;
    for (std::int64_t i = 0; i < kLines; ++i) text += "cat\n";
    return text;
  }
  [[nodiscard]] static std::string CatsLeft() { return "cat*" + std::to_string(kLinesLeft); }
  static void ExpectEndedEarly(const std::optional<RunTimeError>& error) {
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->Number(), 62);
    EXPECT_EQ(error->Description(), "Ended early, behind byte " + std::to_string(kBytesLeft) +
                                        " of " + std::to_string(kBytes));
  }

  std::string path;
  std::string other;
};

TEST_P(CutFile, AloneIsNoListOfTheWhole) {
  const CountResult result = Run(TextOfFile{path});
  EXPECT_EQ(result.end, CountEnd::kFailed);
  ExpectEndedEarly(result.error);
}

TEST_P(CutFile, ThatIsEmptiedIsNoListOfTheWhole) {
  observer.onFileBegins = [this](const FileBegins&) { std::filesystem::resize_file(path, 0); };
  const CountResult result = Run(TextOfFile{path});
  EXPECT_EQ(result.end, CountEnd::kFailed);
  ASSERT_TRUE(result.error.has_value());
  EXPECT_EQ(result.error->Number(), 62);
}

TEST_P(CutFile, AmongOthersIsNamedAndCountsAsFarAsItGoes) {
  const std::vector<CountSource> sources = {TextOfFolder{folder.Path(), false, {}},
                                            TextOfPaths{{path, other}, false, {}, nullptr}};
  for (const CountSource& source : sources) {
    static_cast<void>(folder.Write("long.txt", Cats()));
    const CountResult result = Run(source);
    EXPECT_EQ(result.end, CountEnd::kComplete);
    EXPECT_EQ(WordsOf(result), CatsLeft() + " dog");
    EXPECT_EQ(result.files, 1);
    ASSERT_EQ(result.skipped.size(), 1U);
    EXPECT_EQ(result.skippedInAll, 1);
    EXPECT_EQ(result.skipped[0].path, path);
    ExpectEndedEarly(result.skipped[0].error);
    const FileCell told = CellOf(result.reports.at(0), FileColumn::kSkipped);
    EXPECT_THAT(std::get<std::string>(told), StartsWith("reading failed: Ended early, behind"));
  }
}

TEST(FileOfTheKernel, HasTheBytesThatItGives) {
  // It says that it has a page of memory.
  const std::string path = "/sys/kernel/mm/transparent_hugepage/enabled";
  if (!FileExists(path)) GTEST_SKIP() << "this system has no such file";
  CountRequest request;
  request.source = TextOfFile{path};
  const CountResult result = Counter(request).Run();
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_GT(result.store.NumDifferentWords(), 0);
}

TEST_P(CutFile, BehindAStopIsStopped) {
  observer.onFileBegins = [this](const FileBegins&) {
    std::filesystem::resize_file(path, kBytesLeft);
    observer.stopped = true;
  };
  const CountResult result = Run(TextOfFile{path});
  EXPECT_EQ(result.end, CountEnd::kStopped);
  EXPECT_FALSE(result.error.has_value());
}

TEST_P(CutFile, ThatGrowsInsteadIsCountedToItsEnd) {
  observer.onFileBegins = [this](const FileBegins&) {
    std::ofstream(path, std::ios::app | std::ios::binary) << "owl\n";
  };
  const CountResult result = Run(TextOfFile{path});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat*" + std::to_string(kLines) + " owl");
}

INSTANTIATE_TEST_SUITE_P(OnThreads, CutFile, testing::Values(1, 2, 3));

}  // namespace
}  // namespace quillomat
