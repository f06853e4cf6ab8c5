// The counter on a single text: the clipboard's, a file, a stream.
#include "sources/counter.h"

#include <gmock/gmock.h>
#include <new>

#include "sources/counter_fixture.h"
#include "support/chunked_source.h"
#include "support/failing_source.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

using OneText = CounterFixture;

TEST_F(OneText, OfTheClipboardIsScannedInOnePiece) {
  request.scan.allowCommentMarkers = CheckState::kChecked;
  request.scan.startComment = {"//", ""};
  const CountResult result = Run(TextOfClipboard{"The cat // the\r\ndog"});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat the") << "the comment ends with the text, which is one line";
  EXPECT_EQ(result.wordsRead, 2);
  EXPECT_EQ(result.files, 0);
}

TEST_F(OneText, OfAFileIsCounted) {
  const CountResult result = Run(TextOfFile{folder.Write("a.txt", "The cat saw\nthe dog\n")});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat dog saw the*2");
  EXPECT_EQ(result.wordsRead, 5);
  EXPECT_EQ(result.files, 1);
  ASSERT_EQ(result.reports.size(), 1U);
  EXPECT_EQ(result.reports[0].path, folder / "a.txt");
  EXPECT_EQ(result.reports[0].bytesRead, 20);
  EXPECT_EQ(result.reports[0].lineEnds, LineEndingType::kUnix);
  EXPECT_EQ(result.reports[0].encoding, TextEncoding::kUtf8OrWindows1252);
  EXPECT_THAT(observer.events, ElementsAre("checked", "scan", "begins a.txt", "ends a.txt"));
  EXPECT_EQ(observer.newWords, "the cat saw dog");
}

TEST_F(OneText, NeedsNoObserver) {
  request.source = TextOfFile{folder.Write("a.txt", "cat dog cat")};
  EXPECT_EQ(WordsOf(Counter(request).Run()), "cat*2 dog");
}

TEST_F(OneText, TellsItsEncoding) {
  using namespace std::string_literals;
  const auto encodingOf = [this](std::string_view contents) {
    return Run(TextOfFile{folder.Write("a.txt", contents)}).reports.at(0).encoding;
  };
  EXPECT_EQ(encodingOf("\xEF\xBB\xBF"
                       "cat"),
            TextEncoding::kUtf8WithMark);
  EXPECT_EQ(encodingOf("\xFF\xFE"
                       "c\0a\0t\0"s),
            TextEncoding::kUtf16LittleEndian);
  EXPECT_EQ(encodingOf("\xFE\xFF"
                       "\0c\0a\0t"s),
            TextEncoding::kUtf16BigEndian);
}

TEST_F(OneText, ChoosesMarkersByItsExtension) {
  EXPECT_EQ(WordsOf(Run(TextOfFile{folder.Write("a.HTM", "<b>cat</b>")})), "cat");
  EXPECT_EQ(WordsOf(Run(TextOfFile{folder.Write("a.c", "cat // dog\nfox /* owl */")})), "cat fox");
  EXPECT_EQ(WordsOf(Run(TextOfFile{folder.Write("a.h", "cat // dog")})), "cat dog");
}

TEST_F(OneText, CarriesTheOpenCommentFromCountToCount) {
  const CountResult first = Run(TextOfFile{folder.Write("a.c", "cat /* dog")});
  EXPECT_EQ(first.openComment, 0);
  request.openComment = first.openComment;
  const CountResult second = Run(TextOfFile{folder.Write("b.c", "fox */ owl")});
  EXPECT_EQ(WordsOf(second), "owl");
  EXPECT_EQ(second.openComment, -1);
}

TEST_F(OneText, StopsAtTheWordThatItIsStoppedAt) {
  observer.stopAtWord = 2;
  const CountResult result = Run(TextOfFile{folder.Write("a.txt", "cat dog fox\nowl")});
  EXPECT_EQ(result.end, CountEnd::kStopped);
  EXPECT_EQ(WordsOf(result), "cat dog");
  EXPECT_EQ(result.files, 1);
  EXPECT_EQ(result.stoppedAfter, (CountReach{.bytes = 15, .bytesInAll = 15}))
      << "a short text is read at once";
}

TEST_F(OneText, ThatIsStoppedSaysHowFarItWasRead) {
  std::string text;
  while (text.size() < 4'000'000) text += "the cat sat on the mat\n";
  request.threads = 1;
  observer.stopAtWord = 2;
  const CountResult result = Run(TextOfFile{folder.Write("a.txt", text)});
  ASSERT_TRUE(result.stoppedAfter);
  EXPECT_GT(result.stoppedAfter->bytes, 0);
  EXPECT_LT(result.stoppedAfter->bytes, result.stoppedAfter->bytesInAll);
  EXPECT_EQ(result.stoppedAfter->bytesInAll, static_cast<std::int64_t>(text.size()));
  observer.stopAtWord = 0;
  observer.stopped = false;
  EXPECT_FALSE(Run(TextOfFile{folder / "a.txt"}).stoppedAfter);
}

TEST_F(OneText, ThatIsStoppedWithinALongLineTearsNoCharacter) {
  request.scan.letters = LetterRule::kAll;
  observer.onFileBegins = [this](const FileBegins&) { observer.stopped = true; };
  std::string text;
  while (text.size() < 2'000'000) text += "\u043A\u043E\u0442 ";
  for (const std::size_t threads : {1U, 2U}) {
    request.threads = threads;
    for (std::size_t shift = 0; shift < 4; ++shift) {
      const std::string path = folder.Write("a.txt", std::string(shift, ' ') + text);
      const CountResult result = Run(TextOfFile{path});
      EXPECT_EQ(result.end, CountEnd::kStopped);
      EXPECT_EQ(result.store.NumDifferentWords(), 1) << WordsOf(result) << " shifted by " << shift;
      observer.stopped = false;
    }
  }
}

TEST_F(OneText, IsRanked) {
  CountResult result = Run(TextOfFile{folder.Write("a.txt", "dog cat fox cat dog cat x")});
  FilterChoices filters;
  filters.ignoreShortWords = CheckState::kChecked;
  result.Rank(filters);
  EXPECT_EQ(result.totals.NumIncludedWords, 3);
  EXPECT_EQ(result.totals.NumExcludedWords, 1);
  EXPECT_THAT(result.ranking.byRank, ElementsAre(1, 2, 3));
  result.Rank({});
  EXPECT_EQ(result.totals.NumIncludedWords, 4) << "filters can be changed afterwards";
}

TEST_F(OneText, ListsEveryCountOnlyWordWhateverTheFilters) {
  CountOnly({"x", "cat"});
  CountResult result = Run(TextOfFile{folder.Write("a.txt", "x cat dog")});
  FilterChoices filters;
  filters.ignoreShortWords = CheckState::kChecked;
  result.Rank(filters);
  EXPECT_TRUE(result.countOnlyMode);
  EXPECT_EQ(result.totals.NumIncludedWords, 2);
  EXPECT_EQ(result.wordsRead, 3);
}

TEST_F(OneText, TellsItsProgressInBytes) {
  std::string text;
  while (text.size() < 50'000) text += "cat dog\n";
  static_cast<void>(Run(TextOfFile{folder.Write("a.txt", text)}));
  ASSERT_FALSE(observer.progress.empty());
  const CountProgress& last = observer.progress.back();
  EXPECT_EQ(last.bytesInFile, 50'000);
  EXPECT_EQ(last.bytesWithLongLineEnds, 50'000 + 50'000 / 8);
  EXPECT_EQ(last.bytesRead, 50'000);
  for (std::size_t i = 1; i < observer.progress.size(); ++i) {
    EXPECT_LE(observer.progress[i - 1].bytesRead, observer.progress[i].bytesRead);
  }
}

TEST_F(OneText, IsSilentAboutProgressThatTakesAnInstant) {
  static_cast<void>(Run(TextOfFile{folder.Write("a.txt", std::string(10'240, 'x'))}));
  EXPECT_TRUE(observer.progress.empty());
}

// What is refused.

TEST_F(OneText, IsRefusedWhenItIsNoText) {
  ExpectRefused(Run(TextOfClipboard{"cat \x01"}), Refusal::kNotText);
  ExpectRefused(Run(TextOfFile{folder.Write("a.txt", "cat \x01")}), Refusal::kNotText);
  EXPECT_THAT(observer.events, ElementsAre("checked", "ends a.txt")) << "no scan has begun";
}

TEST_F(OneText, IsRefusedWhenItIsEmpty) {
  ExpectRefused(Run(TextOfClipboard{}), Refusal::kEmpty);
  ExpectRefused(Run(TextOfFile{folder.Write("a.txt", "")}), Refusal::kEmpty);
}

TEST_F(OneText, IsRefusedWhenItIsNotThere) {
  ExpectRefused(Run(TextOfFile{}), Refusal::kNothingNamed);
  ExpectRefused(Run(TextOfStream{}), Refusal::kNothingNamed);
  ExpectRefused(Run(TextOfFile{folder.Path()}), Refusal::kIsFolder);
  const CountResult missing = Run(TextOfFile{folder / "missing.txt"});
  ExpectRefused(missing, Refusal::kNotFound);
  ASSERT_TRUE(missing.error);
  EXPECT_EQ(missing.error->Description(), "File not found");
}

TEST_F(OneText, IsRefusedWhenItIsTheOutputFile) {
  request.outputPath = folder.Write("a.txt", "cat");
  ExpectRefused(Run(TextOfFile{request.outputPath}), Refusal::kIsOutput);
}

TEST_F(OneText, IsRefusedWithMarkersThatCannotWork) {
  request.scan.allowCommentMarkers = CheckState::kChecked;
  ExpectRefused(Run(TextOfClipboard{"cat"}), Refusal::kBadMarkers);
  EXPECT_TRUE(observer.events.empty());
}

// Streams.

using Stream = CounterFixture;

TEST_F(Stream, IsCountedAsAFile) {
  std::string text;
  for (int i = 0; i < 30'000; ++i) text += "the cat-" + std::to_string(i) + " caf\xC3\xA9\r\n";
  ChunkedSource bytes(text, 4096);
  const CountResult stream = Run(TextOfStream{&bytes, "standard input"});
  const CountResult file = Run(TextOfFile{folder.Write("a.txt", text)});
  EXPECT_EQ(WordsOf(stream), WordsOf(file));
  EXPECT_EQ(stream.wordsRead, file.wordsRead);
  EXPECT_EQ(stream.reports.at(0).lineEnds, LineEndingType::kDos);
  EXPECT_EQ(stream.reports.at(0).bytesRead, static_cast<std::int64_t>(text.size()));
}

TEST_F(Stream, IsCountedOnThreadsAsByOne) {
  std::string text;
  for (int i = 0; text.size() < 3'000'000; ++i) text += "the word" + std::to_string(i % 7) + "s\n";
  ChunkedSource alone(text, 65'536);
  const CountResult byOne = Run(TextOfStream{&alone, ""});
  request.threads = 3;
  ChunkedSource together(text, 65'536);
  const CountResult byThree = Run(TextOfStream{&together, ""});
  EXPECT_EQ(WordsOf(byOne), WordsOf(byThree));
  EXPECT_EQ(byOne.wordsRead, byThree.wordsRead);
}

TEST_F(Stream, TellsBytesAndNoShare) {
  ChunkedSource bytes("cat\n", 2);
  static_cast<void>(Run(TextOfStream{&bytes, ""}));
  ASSERT_FALSE(observer.progress.empty());
  EXPECT_EQ(observer.progress.back().bytesInFile, 0);
  EXPECT_EQ(observer.progress.back().bytesInRun, 0);
  EXPECT_EQ(observer.progress.back().filesInRun, 0);
  EXPECT_EQ(observer.afterFiles.back().runBytesRead, 4);
}

TEST_F(Stream, IsRefusedWhenItIsEmptyOrNoText) {
  ChunkedSource nothing("", 1);
  ExpectRefused(Run(TextOfStream{&nothing, "standard input"}), Refusal::kEmpty);
  ChunkedSource noText(std::string("cat\0dog", 7), 1);
  ExpectRefused(Run(TextOfStream{&noText, "standard input"}), Refusal::kNotText);
}

TEST_F(Stream, ThatFailsHasCountedTheWordsBefore) {
  for (const std::size_t threads : {1U, 2U}) {
    request.threads = threads;
    ChunkedSource bytes("cat dog\nfox\n", 8);
    bytes.FailAtTheEnd(RunTimeErrorNumber::kDeviceIo);
    const CountResult result = Run(TextOfStream{&bytes, "standard input"});
    EXPECT_EQ(result.end, CountEnd::kFailed);
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->Description(), "Device I/O error");
    EXPECT_EQ(WordsOf(result), "cat dog fox");
  }
}

TEST_F(Stream, ThatFailsAtOnceFailsTheCount) {
  ChunkedSource bytes("", 8);
  bytes.FailAtTheEnd(RunTimeErrorNumber::kDeviceIo);
  EXPECT_EQ(Run(TextOfStream{&bytes, ""}).end, CountEnd::kFailed);
}

TEST_F(Stream, ThatRunsOutOfMemoryFailsTheCount) {
  observer.onFileBegins = [](const FileBegins&) { throw std::bad_alloc(); };
  ChunkedSource bytes("cat", 8);
  const CountResult result = Run(TextOfStream{&bytes, ""});
  EXPECT_EQ(result.end, CountEnd::kFailed);
  EXPECT_EQ(result.error.value().Description(), "Out of memory");
}

}  // namespace
}  // namespace quillomat
