// A text that is scanned in pieces on several threads gives what it gives from end to end.
#include "engine/parallel/threaded_scan.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "support/engine_fixture.h"
#include "support/failing_source.h"
#include "support/placed_text.h"

namespace quillomat {
namespace {

class ToldWords final : public NewWordListener {
 public:
  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override {
    told.append(word).append(" ").append(std::to_string(numDifferentWords)).append(" ");
  }
  std::string told;
};

class ThreadedScanTest : public EngineFixture {
 protected:
  struct Outcome {
    std::string told;
    std::string words;
    std::string files;
    std::vector<std::uint32_t> order;
    std::int32_t read = 0;
    int open = -1;

    bool operator==(const Outcome&) const = default;
  };

  Outcome Described(const ToldWords& told) {
    Outcome outcome{told.told,           Words(), "", std::move(order_.places), wordsRead,
                    settings.OpenComment};
    order_.places.clear();
    for (std::int32_t i = 1; i <= store.NumDifferentWords() && store.Files().IsOn(); ++i) {
      const FileTally& files = *store.FilesOf(i);
      for (std::size_t k = 0; k < files.FileNumbers.size(); ++k) {
        outcome.files +=
            std::to_string(files.FileNumbers[k]) + ":" + std::to_string(files.FileCounts[k]) + " ";
      }
    }
    return outcome;
  }

  void Begin(ToldWords& told) {
    StartCount();
    settings.OpenComment = -1;
    store.Files().Reset(settings.CountOnlyMode);
    store.SetListener(&told);
    store.SetOrderListener(&order_);
    wordsRead = 0;
  }

  Outcome FromEndToEnd(const std::vector<std::string>& files) {
    ToldWords told;
    Begin(told);
    WordScanner scanner(settings, choices, lists, store, yield);
    std::string buffer;
    for (std::size_t i = 0; i < files.size(); ++i) {
      store.Files().SetFileBeingScanned("file " + std::to_string(i));
      TextSource source(files[i]);
      LineDecoder lines(source);
      while (const auto line = lines.NextLine()) {
        const std::string_view trimmed = TrimBlanks(*line);
        if (trimmed.empty()) continue;
        scanner.GetWords(PrepareLine(trimmed, IsSet(choices.caseSignificant), buffer));
      }
    }
    wordsRead = scanner.WordsRead();
    return Described(told);
  }

  /// The text comes from front to back, or lies still.
  enum class Source { kInTurn, kPlaced };

  Outcome OnThreads(const std::vector<std::string>& files, std::size_t threads,
                    std::size_t pieceBytes, Source kind = Source::kInTurn) {
    ToldWords told;
    Begin(told);
    ThreadedScan scan({settings, store, wordsRead}, choices, lists, threads, pieceBytes);
    for (std::size_t i = 0; i < files.size(); ++i) {
      store.Files().SetFileBeingScanned("file " + std::to_string(i));
      TextSource inTurn(files[i]);
      PlacedText placed(files[i]);
      ByteSource& source = kind == Source::kPlaced ? static_cast<ByteSource&>(placed) : inTurn;
      scan.Scan(source, {[] { return false; }, [](std::int64_t) {}});
    }
    return Described(told);
  }

  WordOrderRecorder order_;

  static std::string RandomText(std::mt19937_64& random, std::size_t words) {
    static const std::vector<std::string> kPieces = {
        "the ", "The ", "THE\n", "cat ", "cats\r\n", "caf\u00E9 ", "cafe\n",   "Caf&eacute; ",
        "/* ",  "*/ ",  "// ",   "<b ",  "> ",       "\n\n",       "caf\xE9 ", "well--known ",
        "\r",   "& ",   "zebra", "a-b ", "\t",       "&nbsp;",     "x1 "};
    std::string text;
    for (std::size_t i = 0; i < words; ++i) {
      text += random() % 8 == 0 ? "w" + std::to_string(random() % 500) + "\n"
                                : kPieces[random() % kPieces.size()];
    }
    return text;
  }
};

TEST_F(ThreadedScanTest, RandomTextsAreTheSameWhereverTheyAreCut) {
  std::mt19937_64 random(std::uint64_t{17});
  Allow(AllowFlag::kNumerals);
  for (int round = 0; round < 300; ++round) {
    UsePreset(std::vector<std::string>{"", "C", "HTML"}[random() % 3]);
    choices.caseSignificant = random() % 2 == 0 ? CheckState::kChecked : CheckState::kUnchecked;
    CountOnly(random() % 3 == 0 ? "the cat cafe w1 w2 w3" : "");
    const std::vector<std::string> files = {RandomText(random, random() % 400),
                                            RandomText(random, random() % 400)};
    const Outcome expected = FromEndToEnd(files);
    const std::size_t threads = std::vector<std::size_t>{0, 1, 2, 3, 8}[random() % 5];
    for (const Source kind : {Source::kInTurn, Source::kPlaced}) {
      const Outcome outcome = OnThreads(files, threads, 1 + random() % 300, kind);
      ASSERT_EQ(outcome.told, expected.told) << round;
      ASSERT_EQ(outcome, expected) << round;
    }
  }
}

TEST_F(ThreadedScanTest, CommentsThatAreHardToGuessAreFound) {
  UsePreset("C");
  std::string text;
  for (int i = 0; i < 200; ++i) {
    text += "w" + std::string(1, static_cast<char>('a' + i % 26)) + " // /* no comment\n";
    if (i % 7 == 3) text += "/* open\nhidden\nhidden // */ seen\n";
  }
  const Outcome expected = FromEndToEnd({text});
  for (const std::size_t pieceBytes : {20U, 64U, 300U}) {
    EXPECT_EQ(OnThreads({text}, 3, pieceBytes), expected) << pieceBytes;
    EXPECT_EQ(OnThreads({text}, 3, pieceBytes, Source::kPlaced), expected) << pieceBytes;
  }
}

TEST_F(ThreadedScanTest, ScannersThatHaveMetTooManyWordsBeginAnew) {
  std::string text;
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 150'000; ++i) {
      std::string word = "x";
      for (int rest = i; rest > 0; rest /= 26) word += static_cast<char>('a' + rest % 26);
      text += word + (i % 8 == 7 ? "\n" : " ");
    }
  }
  const Outcome expected = FromEndToEnd({text});
  EXPECT_EQ(OnThreads({text}, 2, 50'000), expected);
  EXPECT_EQ(OnThreads({text}, 2, 50'000, Source::kPlaced), expected);
}

TEST_F(ThreadedScanTest, StopsAtTheEndOfAPiece) {
  std::string text;
  for (int i = 0; i < 5'000; ++i) text += "word\n";
  ToldWords told;
  Begin(told);
  ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, 100);
  int pieces = 0;
  TextSource source(text);
  scan.Scan(source, {[&] { return pieces >= 3; }, [&](std::int64_t) { ++pieces; }});
  EXPECT_EQ(pieces, 3);
  EXPECT_EQ(wordsRead, 60);
  EXPECT_EQ(Words(), "word*60");
  // What was read ahead is gone, and the next text is a text of its own.
  TextSource next("other\n");
  scan.Scan(next, {[] { return false; }, [](std::int64_t) {}});
  EXPECT_EQ(wordsRead, 61);
}

TEST_F(ThreadedScanTest, TellsOfTheBytesOfEveryPiece) {
  ToldWords told;
  Begin(told);
  ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, 8);
  TextSource source("one\ntwo\nthree\n");
  std::int64_t bytes = 0;
  scan.Scan(source, {[] { return false; }, [&](std::int64_t more) { bytes += more; }});
  EXPECT_EQ(bytes, 17);
}

TEST_F(ThreadedScanTest, LinesBeforeAFailureAreCountedAndThenTheScanEnds) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "word other\n";
  ToldWords told;
  Begin(told);
  ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, 100);
  text += "unfinished";
  FailingSource source(text);
  EXPECT_THROW(scan.Scan(source, {[] { return false; }, [](std::int64_t) {}}), RunTimeError);
  EXPECT_EQ(Words(), "other*100 word*100");
  EXPECT_EQ(wordsRead, 200);
  TextSource next("one\n");
  scan.Scan(next, {[] { return false; }, [](std::int64_t) {}});
  EXPECT_EQ(Words(), "one other*100 word*100");
}

TEST_F(ThreadedScanTest, AMarkIsOneOnlyAtTheStart) {
  const std::string mark = "\xEF\xBB\xBF";
  const std::string lines = mark + "one two\n" + mark + "two three\n";
  std::string text;
  for (int i = 0; i < 40; ++i) text += lines;
  text += std::string(300, 'x') + "\n" + lines;  // and where the source is read in turn again
  const Outcome expected = FromEndToEnd({text});
  for (std::size_t pieceBytes = 10; pieceBytes < 40; ++pieceBytes) {
    EXPECT_EQ(OnThreads({text}, 2, pieceBytes, Source::kPlaced), expected) << pieceBytes;
  }
}

TEST_F(ThreadedScanTest, PlacedTextMayBeUtf16) {
  std::string text = "\xFF\xFE";
  for (int i = 0; i < 100; ++i) {
    for (const char ch : std::string("word other\n")) text += {ch, '\0'};
  }
  EXPECT_EQ(OnThreads({text}, 2, 30, Source::kPlaced), FromEndToEnd({text}));
}

TEST_F(ThreadedScanTest, PlacedLinesBeforeAFailureAreCounted) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "word other\n";
  for (const std::size_t pieceBytes : {20U, 64U, 300U}) {
    ToldWords told;
    Begin(told);
    ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, pieceBytes);
    PlacedText source(text, 50 * 11 + 3);
    EXPECT_THROW(scan.Scan(source, {[] { return false; }, [](std::int64_t) {}}), RunTimeError);
    EXPECT_EQ(Words(), "other*50 word*50");
    EXPECT_EQ(wordsRead, 100);
  }
}

TEST_F(ThreadedScanTest, PlacedTextMayHaveGrownOrShrunkMeanwhile) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "word other\n";
  const Outcome expected = FromEndToEnd({text});
  for (const std::size_t told : {500U, 503U, 1099U, 1500U}) {
    ToldWords words;
    Begin(words);
    ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, 64);
    PlacedText source(text, text.size() + 1, told);
    scan.Scan(source, {[] { return false; }, [](std::int64_t) {}});
    EXPECT_EQ(Described(words), expected) << told;
  }
}

TEST_F(ThreadedScanTest, PlacedTextStopsAtTheEndOfAPiece) {
  std::string text;
  for (int i = 0; i < 5'000; ++i) text += "word\n";
  ToldWords told;
  Begin(told);
  ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, 100);
  std::int64_t bytes = 0;
  PlacedText source(text);
  scan.Scan(source, {[&] { return bytes >= 1000; }, [&](std::int64_t more) { bytes += more; }});
  // Line ends have two.
  EXPECT_GE(bytes, 1000);
  EXPECT_LT(bytes, 2000);
  EXPECT_EQ(wordsRead, bytes / 6);
  EXPECT_EQ(Words(), "word*" + std::to_string(bytes / 6));
  EXPECT_EQ(source.Rest()->begin, bytes / 6 * 5);
  PlacedText next("other\n");
  scan.Scan(next, {[] { return false; }, [](std::int64_t) {}});
  EXPECT_EQ(wordsRead, bytes / 6 + 1);
}

TEST_F(ThreadedScanTest, WithoutThreadsTheOwnerScans) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "word w" + std::to_string(i) + "\n";
  EXPECT_EQ(OnThreads({text}, 0, 100), FromEndToEnd({text}));
  EXPECT_EQ(OnThreads({text}, 0, 100, Source::kPlaced), FromEndToEnd({text}));
}

TEST_F(ThreadedScanTest, WordsReadThatLeaveTheirRangeAreAnOverflow) {
  ToldWords told;
  Begin(told);
  wordsRead = std::numeric_limits<std::int32_t>::max() - 5;
  ThreadedScan scan({settings, store, wordsRead}, choices, lists, 2, 10);
  TextSource source("one\ntwo\nthree\nfour\nfive\nsix\n");
  EXPECT_THROW(scan.Scan(source, {[] { return false; }, [](std::int64_t) {}}), RunTimeError);
  EXPECT_EQ(store.NumDifferentWords(), 5);
  EXPECT_EQ(wordsRead, std::numeric_limits<std::int32_t>::max());
}

TEST_F(ThreadedScanTest, TalliesOverflowAtTheWordThatDoesSoFirst) {
  constexpr int kMost = 20'000;
  constexpr std::size_t kPieceBytes = 2 * kMost * 4;
  std::string text;
  for (const std::string_view line : {"cat\n", "dog\n"}) {
    for (int i = 0; i < kMost; ++i) text += line;
  }
  text += "cat\n";  // what comes first in the second piece is over the limit last
  for (const std::string_view line : {"dog\n", "cat\n"}) {
    for (int i = 0; i < kMost; ++i) text += line;
  }
  CountOnly("cat dog");
  for (const std::size_t threads : {2U, 3U, 8U}) {
    for (const bool isPlaced : {false, true}) {
      ToldWords told;
      Begin(told);
      store.Files().SetFileBeingScanned("file");
      ThreadedScan scan({settings, store, wordsRead}, choices, lists, threads, kPieceBytes);
      TextSource inTurn(text);
      PlacedText placed(text);
      ByteSource& source = isPlaced ? static_cast<ByteSource&>(placed) : inTurn;
      try {
        scan.Scan(source, {[] { return false; }, [](std::int64_t) {}});
        ADD_FAILURE() << "no overflow";
      } catch (const RunTimeError& error) {
        EXPECT_NE(error.Description().find("the word \"dog\" occurs"), std::string::npos);
      }
      EXPECT_EQ(Words(), "cat*20001 dog*32768");
    }
  }
}

}  // namespace
}  // namespace quillomat
