// Files of any bytes, in any encoding and under any setting: a folder of them has the same words,
// reports and events on any number of threads.
#include <array>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "properties/count_case.h"
#include "properties/decoding_fault.h"
#include "properties/property_cases.h"
#include "properties/random_bytes.h"
#include "sources/counter.h"
#include "sources/file_columns.h"
#include "support/temporary_folder.h"

namespace quillomat::properties {
namespace {

/// A folder is counted in many ways.
constexpr int kCasesPerFolderOfBytes = 200;
constexpr std::uint64_t kBytesSeed = 2311;

/// Writes down all that it is told, and stops the count behind a file.
class ToldOfBytes final : public CountObserver {
 public:
  explicit ToldOfBytes(std::string stopBehind) : stopBehind_(std::move(stopBehind)) {}

  bool Yield() override { return stops_; }
  bool YieldFor(std::uint32_t /*calls*/) override { return stops_; }
  void OnNewWord(std::string_view word, std::int32_t number) override {
    told_ << "new " << word << ' ' << number << '\n';
  }
  void OnFileMet(const std::string& path, const CountProgress& /*progress*/) override {
    told_ << "met " << path << '\n';
  }
  void OnFileBegins(const FileBegins& file) override {
    told_ << "begins " << file.path << ' ' << file.bytes << '\n';
  }
  void OnFileEnds(const FileReport& report, const CountProgress& progress) override {
    told_ << "ends " << report.path << ' ' << progress.runBytesRead << '\n';
    stops_ = stops_ || report.path == stopBehind_;
  }
  void OnSkipped(const SkippedFile& skipped) override {
    told_ << "skipped " << skipped.path << ' ' << static_cast<int>(skipped.reason) << '\n';
  }
  [[nodiscard]] std::string Told() const { return told_.str(); }

 private:
  std::string stopBehind_;
  std::ostringstream told_;
  bool stops_ = false;
};

void Describe(const FileReport& report, std::ostream& out) {
  for (std::size_t i = 0; i < kFileColumnNames.size(); ++i) {
    const FileCell cell = CellOf(report, static_cast<FileColumn>(i));
    if (const auto* number = std::get_if<std::int64_t>(&cell)) out << *number;
    if (const auto* text = std::get_if<std::string>(&cell)) out << *text;
    out << ' ';
  }
  out << report.bytesRead << ' ' << report.identity.has_value() << '\n';
}

void Describe(const Uncounted& uncounted, std::ostream& out) {
  out << "foreign " << uncounted.foreignLetters << " not UTF-8 " << uncounted.linesNotUtf8
      << " not decoded " << uncounted.bytesNotDecoded << " whole " << uncounted.runsLeftWhole
      << '\n';
}

std::string Described(CountResult& result) {
  std::ostringstream out;
  out << "end " << static_cast<int>(result.end) << " read " << result.wordsRead << " files "
      << result.files << " folders " << result.folders << " open " << result.openComment
      << " left out " << result.leftOut.InAll() << " not decoded " << result.firstNotDecoded
      << " guessed " << result.guessed.Names() << " disk " << result.filesRead.size() << '\n';
  Describe(result.uncounted, out);
  for (const FileReport& report : result.reports) Describe(report, out);
  if (result.orderFigures) {
    for (const GrowthPoint& point : result.orderFigures->growth) out << point.differentWords << ' ';
  }
  for (std::int32_t i = 1; i <= result.store.NumDifferentWords(); ++i) {
    out << result.store.At(i).Word << ' ' << result.store.At(i).Count;
    const FileTally* files = result.store.FilesOf(i);
    for (std::size_t k = 0; files != nullptr && k < files->FileNumbers.size(); ++k) {
      out << ' ' << files->FileNumbers[k] << ':' << files->FileCounts[k];
    }
    out << '\n';
  }
  return out.str();
}

class FolderOfBytes {
 public:
  explicit FolderOfBytes(Random& random) : random_(random), sets_(EncodingsToTry()) {
    for (std::size_t files = Below(50); files > 0; --files) AddFile();
    request_.source = TextOfFolder{folder_.Path(), true, {}};
    request_.encoding = Below(3) == 0   ? CharacterSet::kAsFound
                        : Below(2) == 0 ? CharacterSet::kGuess
                                        : usual_;
    if (Below(4) > 0) request_.scan.letters = LetterRule::kAll;
    request_.keepReports = Below(3) > 0;
    request_.orderFigures = Below(4) == 0;
    if (Below(4) == 0) {
      request_.lists.ExtraCountOnlyList = WordList({"word", "o", "p", "a"}, request_.scan.letters);
    }
    if (Below(3) == 0) request_.countingPass = CountingPass::kFilesAndBytes;
    if (!paths_.empty() && Below(2) == 0) stopBehind_ = paths_[Below(paths_.size())];
  }

  void CompareThreads() {
    const std::string expected = OutcomeOn(1, {});
    for (const std::size_t threads : {2U, 3U, 8U}) {
      constexpr auto kBytes = std::to_array<std::size_t>({1, 300, 2'000'000});
      const BatchSizes batches{.bytes = kBytes[Below(kBytes.size())], .items = 1 + Below(9)};
      ASSERT_EQ(OutcomeOn(threads, batches), expected)
          << threads << " threads, batches of " << batches.items << " and " << batches.bytes
          << " bytes, " << NameOf(request_.encoding) << ", stopped behind '" << stopBehind_ << "'";
    }
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::string OutcomeOn(std::size_t threads, const BatchSizes& batches) {
    request_.threads = threads;
    ToldOfBytes observer(stopBehind_);
    CountResult result = Counter(request_, observer, batches).Run();
    return Described(result) + observer.Told();
  }

  /// Most of a folder are in one encoding.
  CharacterSet SetOfFile() { return Below(3) > 0 ? usual_ : sets_[Below(sets_.size())]; }

  /// Of a few lines; some are longer than what is read of a text to judge it, or so long that
  /// threads share them.
  void AddFile() {
    static constexpr auto kExtensions = std::to_array<std::string_view>({".txt", ".html", ".c"});
    const CharacterSet set = SetOfFile();
    std::string bytes;
    for (std::size_t lines = Below(5); lines > 0; --lines) {
      const bool isPlain = Below(3) == 0;
      bytes += isPlain ? std::string("word after word") : RandomBytes(random_, set);
      bytes += Below(8) == 0 ? "\r" : "\n";
    }
    if (Below(12) == 0) {
      constexpr std::size_t kLong = 70'000;
      constexpr std::size_t kVeryLong = 1'100'000;
      const std::size_t wanted = Below(8) == 0 ? kVeryLong : kLong;
      std::string front;
      while (front.size() < wanted)
        front += "plain lines in a row, so many that words are met often\n";
      bytes.insert(0, front);
    }
    if (Below(4) == 0 && !bytes.empty()) bytes.pop_back();
    std::string name = Below(3) == 0 ? "s" + std::to_string(Below(4)) + "/" : "";
    name += "f" + std::to_string(100 + paths_.size());
    paths_.push_back(folder_.Write(name.append(kExtensions[Below(3)]), bytes));
  }

  Random& random_;
  std::vector<CharacterSet> sets_;
  CharacterSet usual_ = sets_[random_() % sets_.size()];
  TemporaryFolder folder_;
  std::vector<std::string> paths_;
  CountRequest request_;
  std::string stopBehind_;
};

void CompareFoldersOfBytes(std::uint64_t seed) {
  Random random(seed);
  for (int i = 0; i < CasesPerSeed() / kCasesPerFolderOfBytes; ++i) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", folder " + std::to_string(i));
    FolderOfBytes folder(random);
    ASSERT_NO_FATAL_FAILURE(folder.CompareThreads());
  }
}

TEST(FolderBytesProperty, FoldersOfFixedSeedAreTheSameOnThreads) {
  CompareFoldersOfBytes(kBytesSeed);
}

TEST(FolderBytesProperty, FoldersOfFreshSeedAreTheSameOnThreads) {
  CompareFoldersOfBytes(FreshSeed());
}

}  // namespace
}  // namespace quillomat::properties
