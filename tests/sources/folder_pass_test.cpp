// Files of a folder that are scanned ahead on several threads give what they give one by one.
#include "sources/folder_pass.h"

#include <gtest/gtest.h>
#include <new>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "engine/parallel/line_pieces.h"
#include "sources/counter_fixture.h"
#include "sources/refusal_text.h"

namespace quillomat {
namespace {

constexpr int kManyFiles = 150;

class FilesOnThreads : public CounterFixture {
 protected:
  void Put(const std::string& name, const std::string& contents) {
    static_cast<void>(folder.Write(name, contents));
  }
  static std::string Numbered(int number) { return "f" + std::to_string(1000 + number) + ".txt"; }

  /// Words that are spelled in different ways in turn.
  void PutManyFiles() {
    request.scan.caseSignificant = CheckState::kChecked;
    const std::vector<std::string> spellings = {"caf\u00E9 Dog ", "cafe dog ", "Cafe owl "};
    for (int i = 0; i < kManyFiles; ++i) {
      std::string text;
      for (int k = 0; k <= i % 7; ++k) text += spellings[static_cast<std::size_t>(i + k) % 3];
      const std::string below = i % 4 == 0 ? "sub" + std::to_string(i % 9) + "/" : "";
      Put(below + Numbered(i), text + std::string(1, static_cast<char>('a' + i % 26)) + "x\n");
    }
  }

  struct Outcome {
    std::string words;
    std::string newWords;
    std::vector<std::string> events;
    std::string tallies;
    std::int32_t wordsRead = 0;
    std::int32_t files = 0;
    std::int32_t folders = 0;
    std::int64_t runBytes = 0;

    bool operator==(const Outcome&) const = default;
  };

  Outcome CountFolder(std::size_t threads, const BatchSizes& batches) {
    request.threads = threads;
    request.source = TextOfFolder{folder.Path(), true, {}};
    RecordingObserver noted;
    const CountResult result = Counter(request, noted, batches).Run();
    Outcome outcome{
        WordsOf(result),  noted.newWords, noted.events,   {},
        result.wordsRead, result.files,   result.folders, noted.afterFiles.back().runBytesRead};
    for (std::int32_t i = 1; i <= result.store.NumDifferentWords(); ++i) {
      const FileTally* files = result.store.FilesOf(i);
      for (std::size_t k = 0; files != nullptr && k < files->FileNumbers.size(); ++k) {
        outcome.tallies += std::to_string(files->FileNumbers[k]) + ":" +
                           std::to_string(files->FileCounts[k]) + " ";
      }
    }
    return outcome;
  }

  void ExpectSameOnThreads() {
    const Outcome expected = CountFolder(1, {});
    for (const std::size_t threads : {2U, 3U, 8U}) {
      for (const BatchSizes& batches :
           {BatchSizes{.bytes = 1}, {.bytes = 200}, {.items = 3}, BatchSizes{}}) {
        EXPECT_EQ(CountFolder(threads, batches), expected)
            << threads << ", " << batches.bytes << ", " << batches.items;
      }
    }
  }
};

TEST_F(FilesOnThreads, AreJoinedInTheOrderOfTheWalk) {
  PutManyFiles();
  ExpectSameOnThreads();
}

TEST_F(FilesOnThreads, AreTalliedOneByOne) {
  PutManyFiles();
  CountOnly({"dog", "Cafe", "ax"});
  ExpectSameOnThreads();
}

TEST_F(FilesOnThreads, CarryCommentsOnThatNobodyForesees) {
  for (int i = 0; i < kManyFiles; ++i) {
    const bool opens = i % 5 == 1;
    const bool closes = i % 5 == 3;
    Put("f" + std::to_string(1000 + i) + ".c", "w" +
                                                   std::string(1, static_cast<char>('a' + i % 26)) +
                                                   (opens    ? " /* hidden"
                                                    : closes ? " hidden */ seen"
                                                             : " plain"));
  }
  ExpectSameOnThreads();
}

TEST_F(FilesOnThreads, MayBeOfAnySize) {
  for (int i = 0; i < 40; ++i) {
    std::string text;
    const std::size_t bytes = i % 13 == 5 ? 3 * LinePieces::kPieceBytes : i % 6 * 9000;
    while (text.size() < bytes) text += "word w" + std::to_string(text.size() % 97) + "\n";
    Put(Numbered(i), text + "end");
  }
  ExpectSameOnThreads();
}

TEST_F(FilesOnThreads, MayBeNoTextOrInUtf16OrOneLongLine) {
  for (int i = 0; i < 20; ++i) {
    Put(Numbered(6 * i), "cat\x01");
    Put(Numbered(6 * i + 1), "");
    Put(Numbered(6 * i + 2), std::string("\xFF\xFE"
                                         "c\0a\0t\0",
                                         8));
    Put(Numbered(6 * i + 3),
        "\xEF\xBB\xBF"
        "cat dog\r");
    Put(Numbered(6 * i + 4), "\xEF\xBB\xBF");
    std::string line;
    while (line.size() < 30'000) line += line.size() % 5 == 0 ? "caf\u00E9 " : "caf\xE9 tea ";
    Put(Numbered(6 * i + 5), line);
  }
  ExpectSameOnThreads();
}

TEST_F(FilesOnThreads, GoOnBehindOneForWhichTheMemoryRunsOut) {
  PutManyFiles();
  request.threads = 3;
  observer.onFileBegins = [](const FileBegins& file) {
    if (file.path.ends_with(Numbered(5))) throw std::bad_alloc();
  };
  const CountResult result = Run(TextOfFolder{folder.Path(), true, {}});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(result.files, kManyFiles - 1);
  EXPECT_EQ(result.skipped.at(0).reason, Refusal::kReadFailed);
  request.threads = 1;
  observer.newWords.clear();
  EXPECT_EQ(WordsOf(Run(TextOfFolder{folder.Path(), true, {}})), WordsOf(result));
}

TEST_F(FilesOnThreads, StopBehindTheFileInWhichTheyAreStopped) {
  PutManyFiles();
  request.threads = 2;
  observer.onFileBegins = [this](const FileBegins& file) {
    observer.stopped = file.path.ends_with(Numbered(30));
  };
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(result.end, CountEnd::kStopped);
  EXPECT_EQ(observer.events.back(), "ends " + Numbered(30));
}

TEST_F(FilesOnThreads, StopBehindAnyOfThemAsOneByOne) {
  constexpr int kFiles = 30;
  for (int i = 0; i < kFiles; ++i) Put(Numbered(i), "word");
  // Folders that are entered one after the other while files wait for being joined.
  Put("s/t/u/v/w/x/y/z/" + Numbered(kFiles), "word");
  const auto eventsOf = [&](int last, std::size_t threads, const BatchSizes& batches) {
    request.threads = threads;
    request.source = TextOfFolder{folder.Path(), true, {}};
    RecordingObserver noted;
    noted.stopBehind = Numbered(last);
    const CountResult result = Counter(request, noted, batches).Run();
    noted.events.push_back("end " + std::to_string(static_cast<int>(result.end)));
    return noted.events;
  };
  for (int last = 0; last <= kFiles; ++last) {
    const auto expected = eventsOf(last, 1, {});
    EXPECT_EQ(expected.back(), "end " + std::to_string(static_cast<int>(CountEnd::kStopped)));
    for (const std::size_t items : {1U, 2U, 3U, 5U, 8U, 100U}) {
      EXPECT_EQ(eventsOf(last, 8, {.items = items}), expected) << last << ", " << items;
    }
  }
}

TEST_F(FilesOnThreads, StopBehindTheLastThoughItIsReadWithoutThem) {
  constexpr int kFiles = 17;
  for (int i = 0; i < kFiles; ++i) Put(Numbered(i), "word");
  request.threads = 2;
  observer.stopBehind = Numbered(kFiles - 1);
  EXPECT_EQ(Run(TextOfFolder{folder.Path(), false, {}}).end, CountEnd::kStopped);
}

TEST_F(FilesOnThreads, CountTheWordsOfTheFilesUntilAStop) {
  PutManyFiles();
  std::vector<std::string> paths;
  for (int i = 0; i < kManyFiles; ++i) {
    if (i % 4 != 0) paths.push_back(folder / Numbered(i));
  }
  request.keepReports = true;
  for (const std::size_t stopAt : {17U, 30U, 80U}) {
    request.threads = 1;
    observer.onFileBegins = nullptr;
    observer.stopped = false;
    observer.newWords.clear();
    const std::vector<std::string> until(paths.begin(),
                                         paths.begin() + static_cast<std::ptrdiff_t>(stopAt) + 1);
    const std::string expected = WordsOf(Run(TextOfPaths{until, false, {}, nullptr}));
    const std::string expectedNew = observer.newWords;
    request.threads = 2;
    observer.newWords.clear();
    observer.stopped = false;
    observer.onFileBegins = [&](const FileBegins& file) {
      observer.stopped = file.path == paths[stopAt];
    };
    const CountResult result = Run(TextOfPaths{paths, false, {}, nullptr});
    EXPECT_EQ(result.end, CountEnd::kStopped);
    EXPECT_EQ(WordsOf(result), expected);
    EXPECT_EQ(observer.newWords, expectedNew);
  }
}

TEST_F(FilesOnThreads, CountNoWordTwiceWhereOneOfThemHasGoneBeforeAStop) {
  std::vector<std::string> paths;
  for (int i = 0; i < 150; ++i) {
    Put(Numbered(i), "dog dog w" + std::string{static_cast<char>('a' + i / 26)} +
                         static_cast<char>('a' + i % 26) + "ox\n");
    paths.push_back(folder / Numbered(i));
  }
  request.threads = 2;
  request.keepReports = true;
  observer.onFileBegins = [&](const FileBegins& file) {
    if (file.path != paths[80]) return;
    std::filesystem::remove(paths[79]);
    observer.stopped = true;
  };
  const CountResult result = Run(TextOfPaths{paths, false, {}, nullptr});
  EXPECT_EQ(result.end, CountEnd::kStopped);
  ASSERT_EQ(result.skipped.size(), 1U);
  EXPECT_EQ(result.skipped[0].path, paths[79]);
  EXPECT_EQ(result.skipped[0].reason, Refusal::kReadFailed);
  EXPECT_EQ(RefusalInRun(result.skipped[0].reason, result.skipped[0].error),
            "the file has gone or changed while it was counted, so its words are counted in part");
  EXPECT_EQ(result.files, 80);
  ASSERT_EQ(result.reports.size(), 81U);
  EXPECT_EQ(result.reports[78].refusal, Refusal::kNone);
  EXPECT_EQ(result.reports[79].refusal, Refusal::kReadFailed);
  EXPECT_EQ(result.reports[79].wordsRead, 1);
  EXPECT_EQ(result.wordsRead, 160 + 81);
  for (std::int32_t place = 1; place <= result.store.NumDifferentWords(); ++place) {
    const bool isDog = result.store.WordOf(place) == "dog";
    EXPECT_EQ(result.store.CountOf(place), isDog ? 160 : 1) << result.store.WordOf(place);
  }
}

TEST_F(FilesOnThreads, HaveTheirOwnWordsInTheReportsThoughOneHasGone) {
  std::vector<std::string> paths;
  for (int i = 0; i < 150; ++i) {
    Put(Numbered(i), "dog dog cat\n");
    paths.push_back(folder / Numbered(i));
  }
  request.threads = 2;
  request.keepReports = true;
  observer.onFileBegins = [&](const FileBegins& file) {
    if (file.path == paths[80]) std::filesystem::remove(paths[79]);
    if (file.path == paths[81]) throw std::bad_alloc();  // so that the next cannot be joined
  };
  const CountResult result = Run(TextOfPaths{paths, false, {}, nullptr});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(result.files, 148);
  std::int32_t wordsRead = 0;
  for (std::size_t i = 0; i < result.reports.size(); ++i) {
    const bool isWhole = i != 79 && i != 81;
    EXPECT_EQ(result.reports[i].wordsRead, isWhole ? 3 : 0) << i;
    wordsRead += result.reports[i].wordsRead;
  }
  EXPECT_EQ(result.wordsRead, wordsRead);
  EXPECT_EQ(WordsOf(result), "cat*148 dog*296");
}

TEST_F(FilesOnThreads, OfWhichOneCannotBeOpenedAreCountedAllTheSame) {
  PutManyFiles();
  std::vector<std::string> paths;
  for (int i = 0; i < kManyFiles; ++i) paths.push_back(folder / Numbered(i));  // some are elsewhere
  request.threads = 1;
  const std::string expected = WordsOf(Run(TextOfPaths{paths, false, {}, nullptr}));
  request.threads = 3;
  EXPECT_EQ(WordsOf(Run(TextOfPaths{paths, false, {}, nullptr})), expected);
}

TEST_F(FilesOnThreads, FailAtTheWordThatOverflowsFirst) {
  CountOnly({"cat", "dog"});
  for (int i = 0; i < 30; ++i) Put(Numbered(i), "cat dog");
  std::string text = "cat caf\xE9\n";  // met first, but over the limit last
  for (const std::string_view line : {"dog a\xE9\n", "cat\n"}) {
    for (int i = 0; i < 32'768; ++i) text += line;
  }
  for (const std::size_t bytesOfLines : {std::size_t{0}, std::size_t{3'000'000}}) {
    // With as many bytes behind it, it is scanned in pieces.
    Put(Numbered(20), text + std::string(bytesOfLines, '\n'));
    request.threads = 1;
    const CountResult alone = Run(TextOfFolder{folder.Path(), false, {}});
    ASSERT_TRUE(alone.error);
    EXPECT_NE(alone.error->Description().find("the word \"dog\" occurs"), std::string::npos);
    for (const std::size_t threads : {2U, 3U, 8U}) {
      request.threads = threads;
      const CountResult together = Run(TextOfFolder{folder.Path(), false, {}});
      ASSERT_TRUE(together.error);
      EXPECT_EQ(together.error->Description(), alone.error->Description());
      EXPECT_EQ(WordsOf(together), WordsOf(alone));
      EXPECT_EQ(together.wordsRead, alone.wordsRead);
      EXPECT_EQ(together.uncounted, alone.uncounted);
    }
  }
}

TEST_F(FilesOnThreads, FailAtTheFileThatOverflows) {
  CountOnly({"cat"});
  for (int i = 0; i < 30; ++i) Put(Numbered(i), "cat");
  std::string cats;
  for (int i = 0; i < 32'768; ++i) cats += "cat\n";
  Put(Numbered(20), cats);
  request.threads = 2;
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(result.end, CountEnd::kFailed);
  EXPECT_EQ(result.error.value().Description(),
            "Overflow: the word \"cat\" occurs more than 32,767 times in " +
                (folder / Numbered(20)) +
                ", the most that lists of files take.  Count that file by itself, in a display "
                "format without files.");
  EXPECT_EQ(observer.events.back(), "begins " + Numbered(20));
  request.tallyUse = TallyUse::kUnlisted;
  const CountResult unlisted = Run(TextOfFolder{folder.Path(), false, {}});
  ASSERT_EQ(unlisted.end, CountEnd::kComplete);
  EXPECT_EQ(unlisted.store.FilesOf(1)->FileCounts.at(20), 32'768);
}

}  // namespace
}  // namespace quillomat
