// Holds the program's counter against the literal engine: files of a folder or a list, counted by
// any number of threads, must have the outcome of the same texts read one after the other.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "properties/count_case.h"
#include "properties/count_outcome.h"
#include "properties/property_cases.h"
#include "sources/marker_fault.h"
#include "support/temporary_folder.h"

namespace quillomat::properties {
namespace {

/// Files take longer to be written than a case to be counted.
constexpr int kCasesPerFolder = 100;
constexpr std::uint64_t kFolderSeed = 708;
constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// A case whose texts stand in files of a folder and its subfolders.
class FilesOfCase {
 public:
  explicit FilesOfCase(Random& random) : random_(random), case_(RandomCase(random)) {
    case_.choices.optFolder = true;
    case_.choices.txbFolder = folder_.Path();
    if (FindMarkerFault(ScanChoicesOf(case_.choices))) case_.choices.chkAllowCommentMarkers = 0;
    if (Below(3) == 0) case_.choices.txbWordsToIgnoreOrCount[1] = "the cat dog maths a s";
    case_.texts.clear();
    AddFiles("", Below(14));
    for (const std::size_t files = Below(90); number_ < files;) AddSubfolder();
  }

  [[nodiscard]] const CountCase& Case() const { return case_; }

  /// Of the folder; of all that is in it by name; and of what is directly in it.
  [[nodiscard]] std::vector<CountSource> Sources() const {
    return {TextOfFolder{folder_.Path(), true, {}}, TextOfPaths{paths_, false, {}, nullptr},
            TextOfPaths{pathsInFolder_, true, {}, nullptr}};
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  /// Some have one of their own.
  void AddSubfolder() {
    constexpr std::size_t kMostFiles = 12;
    std::string subfolder = "s" + std::to_string(100 + number_) + "/";
    pathsInFolder_.push_back(folder_.Make(subfolder));
    const std::size_t before = pathsInFolder_.size();
    AddFiles(subfolder, 1 + Below(kMostFiles));
    if (Below(3) == 0) AddFiles(subfolder + "below/", 1 + Below(kMostFiles));
    pathsInFolder_.resize(before);
  }

  void AddFiles(const std::string& subfolder, std::size_t files) {
    for (; files > 0; --files, ++number_) {
      AddFile(subfolder);
      pathsInFolder_.push_back(paths_.back());
    }
  }

  /// Mostly a text; else one that is empty, no text, or not there.
  void AddFile(const std::string& subfolder) {
    static constexpr std::string_view kExtensions[] = {".txt", ".html", ".c", ".txt"};
    const std::size_t kind = Below(4);
    const std::string name =
        subfolder + "f" + std::to_string(100 + number_) + std::string(kExtensions[kind]);
    switch (Below(14)) {
      case 0:
        paths_.push_back(folder_.Write(name, ""));
        return;
      case 1:
        paths_.push_back(folder_.Write(name, "cat \x01 dog"));
        return;
      case 2:
        paths_.push_back(folder_ / name);
        return;
      default:
        break;
    }
    CaseText text = TextForFile();
    const bool users = case_.choices.chkAllowCommentMarkers == 1;
    text.markers = kind == 1 ? "HTML" : kind == 2 ? "C" : users ? "user" : "";
    text.path = folder_.Write(name, BytesOf(text.lines));
    paths_.push_back(text.path);
    case_.texts.push_back(text);
  }

  /// One that is a text as a file, too.
  CaseText TextForFile() {
    for (;;) {
      CaseText text = RandomCase(random_).texts[0];
      text.whole = false;
      const auto isPlain = [](const std::string& line) {
        return std::ranges::none_of(line,
                                    [](char ch) { return ch >= 0 && ch < ' ' && ch != '\t'; });
      };
      if (std::ranges::all_of(text.lines, isPlain)) return text;
    }
  }

  std::string BytesOf(const std::vector<std::string>& lines) {
    static constexpr std::string_view kLineEnds[] = {"\n", "\r\n", "\r"};
    // What looks like a mark and is text needs one in front.
    const bool hasMark = Below(8) == 0 || lines[0].starts_with(kMark);
    std::string bytes(hasMark ? kMark : "");
    for (const std::string& line : lines) bytes.append(line).append(kLineEnds[Below(3)]);
    if (bytes.ends_with("a\n") || bytes.ends_with("s\n")) bytes.pop_back();
    return bytes;
  }

  Random& random_;
  CountCase case_;
  TemporaryFolder folder_;
  std::vector<std::string> paths_;
  std::vector<std::string> pathsInFolder_;
  std::size_t number_ = 0;
};

/// So small that many batches are at work at the same time, or as they are.
BatchSizes RandomBatches(Random& random) {
  constexpr BatchSizes kUsual;
  constexpr std::array kBytes = {std::size_t{1}, std::size_t{200}, kUsual.bytes};
  constexpr std::size_t kMostItems = 8;
  return {.bytes = kBytes[random() % kBytes.size()],
          .items = random() % 8 == 0 ? kUsual.items : 1 + random() % kMostItems};
}

/// Holds the sources, read as `files` says, against the literal engine, with all numbers of
/// threads.
void CompareSources(const CountCase& expectedCase, const FilesOfCase& files, FilesInTurn reading,
                    Random& random) {
  const std::string expected = OutcomeOfReference(expectedCase, reading.told);
  for (const CountSource& source : files.Sources()) {
    reading.source = source;
    std::string expectedEvents;
    for (const std::size_t threads : {1U, 2U, 3U, 8U}) {
      reading.threads = threads;
      reading.batches = RandomBatches(random);
      std::string events;
      reading.events = &events;
      const std::string outcome = OutcomeOfCounter(files.Case(), reading);
      if (threads == 1) expectedEvents = events;
      ASSERT_EQ(outcome, expected)
          << threads << " threads, batches of " << reading.batches.items << " and "
          << reading.batches.bytes << " bytes, stopped behind '" << reading.stopBehind << "':\n"
          << AsCode(files.Case());
      ASSERT_EQ(events, expectedEvents) << threads << " threads";
    }
  }
}

void CompareRandomFolders(std::uint64_t seed) {
  Random random(seed);
  for (int i = 0; i < CasesPerSeed() / kCasesPerFolder; ++i) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", case " + std::to_string(i));
    const FilesOfCase files(random);
    // Without the order of words, files are counted together.
    FilesInTurn reading;
    reading.told = i % 2 == 0 ? Told::kNoOrder : Told::kGrowth;
    ASSERT_NO_FATAL_FAILURE(CompareSources(files.Case(), files, reading, random));
    if (files.Case().texts.empty()) continue;
    CountCase untilStop = files.Case();
    untilStop.texts.resize(1 + random() % untilStop.texts.size());
    reading.stopBehind = untilStop.texts.back().path;
    ASSERT_NO_FATAL_FAILURE(CompareSources(untilStop, files, reading, random));
  }
}

TEST(FolderProperty, RandomFoldersOfFixedSeedHaveTheOutcomeOfTheLiteralEngine) {
  CompareRandomFolders(kFolderSeed);
}

TEST(FolderProperty, RandomFoldersOfFreshSeedHaveTheOutcomeOfTheLiteralEngine) {
  CompareRandomFolders(FreshSeed());
}

}  // namespace
}  // namespace quillomat::properties
