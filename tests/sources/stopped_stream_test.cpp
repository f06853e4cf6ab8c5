// Streams that come slowly, and streams whose count is stopped: what has come is counted.
#include <algorithm>
#include <chrono>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "sources/counter_fixture.h"
#include "sources/file_columns.h"
#include "sources/until_stop.h"
#include "support/encoded_texts.h"

namespace quillomat {
namespace {

using namespace std::string_view_literals;

/// A pipe into which somebody writes one portion after the other, with a pause behind each. When
/// there is none left, the count is stopped.
class PortionedPipe final : public ByteSource {
 public:
  PortionedPipe(std::vector<std::string> portions, RecordingObserver& observer)
      : portions_(std::move(portions)), observer_(observer) {}

  std::size_t Read(std::span<char> buffer) override {
    if (rest_.empty() && next_ < portions_.size()) {
      wordsBefore.push_back(observer_.newWords);
      rest_ = portions_[next_++];
    }
    if (rest_.empty()) observer_.stopped = true;
    const std::size_t bytes = std::min(buffer.size(), rest_.size());
    std::memcpy(buffer.data(), rest_.data(), bytes);
    rest_.remove_prefix(bytes);
    return bytes;
  }
  [[nodiscard]] bool IsReady(std::chrono::milliseconds /*longest*/) const override {
    return !rest_.empty();
  }

  /// The words that had been counted before each portion.
  std::vector<std::string> wordsBefore;

 private:
  std::vector<std::string> portions_;
  RecordingObserver& observer_;
  std::size_t next_ = 0;
  std::string_view rest_;
};

std::string Repeated(std::string_view text, int times) {
  std::string repeated;
  for (int i = 0; i < times; ++i) repeated += text;
  return repeated;
}

class StoppedStream : public CounterFixture, public testing::WithParamInterface<std::size_t> {
 protected:
  StoppedStream() { request.threads = GetParam(); }

  CountResult CountOf(std::vector<std::string> portions) {
    PortionedPipe pipe(std::move(portions), observer);
    CountResult result = Run(TextOfStream{&pipe, "pipe"});
    wordsBefore_ = pipe.wordsBefore;
    return result;
  }

  std::vector<std::string> wordsBefore_;
};

TEST_P(StoppedStream, GivesAllThatHadCome) {
  for (const int lines : {1, 1'000, 40'000, 120'000}) {
    const std::string portion = Repeated("hello world hello\n", lines / 2 + 1);
    observer.stopped = false;
    const CountResult result = CountOf({portion, portion});
    EXPECT_EQ(result.end, CountEnd::kStopped);
    EXPECT_EQ(result.wordsRead, 6 * (lines / 2 + 1));
    EXPECT_EQ(result.reports.at(0).wordsRead, result.wordsRead);
  }
}

TEST_P(StoppedStream, CountsALineThatHasNotEnded) {
  EXPECT_EQ(WordsOf(CountOf({"cat dog\ncat", " bird"})), "bird cat*2 dog");
}

TEST_P(StoppedStream, IsReadInPartAsItsReportSays) {
  const CountResult result = CountOf({"cat dog\n", "cat\n"});
  const FileReport& report = result.reports.at(0);
  EXPECT_TRUE(IsReadInPart(report));
  EXPECT_EQ(CellOf(report, FileColumn::kSkipped), FileCell("stopped behind byte 12"));
}

TEST_P(StoppedStream, IsCountedAsItComes) {
  (void)CountOf({"cat\n", "dog\n", "bird\n"});
  EXPECT_EQ(wordsBefore_, (std::vector<std::string>{"", "cat", "cat dog"}));
}

TEST_P(StoppedStream, IsGuessedByAllOfItsStart) {
  request.encoding = CharacterSet::kGuess;
  const CountResult result = CountOf({"cat\n", "dog\n"});
  EXPECT_EQ(wordsBefore_, (std::vector<std::string>{"", ""}));
  EXPECT_EQ(WordsOf(result), "cat dog");
}

TEST_P(StoppedStream, MakesNoWordsOfItsOwn) {
  // Ten bytes a word, so that no block of a pipe ends behind one.
  observer.stopAtWord = 1;
  const CountResult result = CountOf({Repeated("catalogue ", 300'000)});
  EXPECT_EQ(result.end, CountEnd::kStopped);
  EXPECT_EQ(result.store.NumDifferentWords(), 1) << WordsOf(result);
  EXPECT_LT(result.wordsRead, 300'000);
  EXPECT_EQ((result.reports.at(0).bytesRead + 1) / 10, result.wordsRead);
}

TEST_P(StoppedStream, MakesNoWordsOfItsOwnInUtf16) {
  // The bytes of its letters are those of blanks, too.
  const std::u16string_view word = u"АРАРАРАРА\n";
  request.scan.letters = LetterRule::kAll;
  for (const bool highByteFirst : {false, true}) {
    const std::string mark = highByteFirst ? "\xFE\xFF" : "\xFF\xFE";
    observer.stopped = false;
    observer.stopAtWord = 1;
    const CountResult result = CountOf({mark + Repeated(InUtf16(word, highByteFirst), 400'000)});
    EXPECT_EQ(result.end, CountEnd::kStopped);
    EXPECT_EQ(WordsOf(result), "арарарара*" + std::to_string(result.wordsRead));
    EXPECT_LT(result.wordsRead, 400'000);
    EXPECT_EQ(result.uncounted, Uncounted());
    EXPECT_EQ(result.reports.at(0).bytesRead % 2, 0);
  }
}

TEST_P(StoppedStream, TakesWholeCharactersOfUtf16HoweverTheyCome) {
  const std::string text = "\xFF\xFE" + InUtf16(u"cat dog birds", false);
  for (const std::size_t headBytes : {2U, 3U, 4U, 9U}) {
    std::vector<std::string> portions = {text.substr(0, headBytes)};
    std::size_t come = headBytes;
    for (const std::size_t bytes : {1U, 1U, 5U, 1U, 3U}) {
      portions.push_back(text.substr(come, bytes));
      come += bytes;
    }
    observer.stopped = false;
    const CountResult result = CountOf(portions);
    const CountResult whole = CountOf({text.substr(0, come - come % 2)});
    EXPECT_EQ(WordsOf(result), WordsOf(whole)) << headBytes;
    EXPECT_EQ(result.uncounted, Uncounted()) << headBytes;
  }
}

TEST_P(StoppedStream, GivesNoUnfinishedCharacter) {
  request.scan.letters = LetterRule::kAll;
  const std::string text = "Le café né; дом 川𠀀";
  const std::size_t ascii = text.find('\xC3');
  for (const CharacterSet encoding :
       {CharacterSet::kAsFound, CharacterSet::kGuess, CharacterSet::kUtf8}) {
    request.encoding = encoding;
    for (std::size_t bytes = ascii; bytes <= text.size(); ++bytes) {
      std::size_t whole = bytes;
      while (whole < text.size() && (static_cast<unsigned char>(text[whole]) & 0xC0U) == 0x80U) {
        --whole;
      }
      observer.stopped = false;
      const std::string expected = WordsOf(CountOf({text.substr(0, whole)}));
      for (const std::size_t head : {std::size_t{1}, ascii, bytes}) {
        observer.stopped = false;
        const CountResult result = CountOf({text.substr(0, head), text.substr(head, bytes - head)});
        EXPECT_EQ(WordsOf(result), expected) << bytes << ' ' << head;
        EXPECT_EQ(result.uncounted, Uncounted()) << bytes << ' ' << head;
      }
    }
  }
}

TEST_P(StoppedStream, GivesNoUnfinishedCharacterOfALongLineWithoutBlanks) {
  request.scan.letters = LetterRule::kAll;
  observer.stopAtWord = 1;
  const CountResult result = CountOf({"cat " + Repeated("а", 400'000), "дом"});
  EXPECT_EQ(result.uncounted, Uncounted());
}

TEST(UntilStop, GivesAllHoweverSmallTheBuffer) {
  const std::string text = "né 川𠀀";
  for (const std::size_t room : {1U, 2U, 3U, 4U}) {
    TextSource source(text);
    RecordingObserver observer;
    StopQuestion stop(observer);
    UntilStop bytes(source, stop, CharacterSet::kAsFound);
    std::string buffer(room, '\0');
    std::string read;
    while (const std::size_t size = bytes.Read(buffer)) read.append(buffer, 0, size);
    EXPECT_EQ(read, text) << room;
  }
}

TEST_P(StoppedStream, GivesNoUnfinishedCharacterOfOtherEncodings) {
  request.scan.letters = LetterRule::kAll;
  struct Cut {
    CharacterSet encoding;
    std::string bytes;
  };
  for (const Cut& cut : {Cut{CharacterSet::kShiftJis, "cat \x82\xC6\x82"},
                         Cut{CharacterSet::kUtf16, InUtf16(u"cat と", false) + "d"},
                         Cut{CharacterSet::kUtf16HighByteFirst, InUtf16(u"cat と\xD834", true)}}) {
    request.encoding = cut.encoding;
    observer.stopped = false;
    const CountResult result = CountOf({cut.bytes});
    EXPECT_EQ(WordsOf(result), "cat と") << NameOf(cut.encoding);
    EXPECT_EQ(result.uncounted, Uncounted()) << NameOf(cut.encoding);
  }
}

TEST_P(StoppedStream, GivesAllOfAnEncodingOfOneByte) {
  request.encoding = CharacterSet::kWindows1252;
  EXPECT_EQ(WordsOf(CountOf({"caf\xE9"})), "café");
  request.encoding = CharacterSet::kAsFound;
  observer.stopped = false;
  EXPECT_EQ(WordsOf(CountOf({"o\xF9 l\xE0 caf\xE9"})), "café là où");
}

TEST_P(StoppedStream, WaitsForNoCharacterThatEndsWithTheText) {
  TextSource text("cat caf\xC3");
  EXPECT_EQ(Run(TextOfStream{&text, "pipe"}).uncounted.linesNotUtf8, 1);
}

TEST_P(StoppedStream, HalfACharacterOfUtf16AtTheEndOfAllIsToldOf) {
  TextSource text(
      "\xFF\xFE"
      "c\0a\0t"sv);
  EXPECT_EQ(Run(TextOfStream{&text, "pipe"}).uncounted.bytesNotDecoded, 1);
}

TEST_P(StoppedStream, ThatEndsByItselfWasReadToItsEnd) {
  TextSource text("cat dog\n");
  const CountResult result = Run(TextOfStream{&text, "pipe"});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_FALSE(IsReadInPart(result.reports.at(0)));
}

INSTANTIATE_TEST_SUITE_P(Threads, StoppedStream, testing::Values(1, 3));

}  // namespace
}  // namespace quillomat
