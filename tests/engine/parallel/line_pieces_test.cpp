// Pieces of whole lines.
#include "engine/parallel/line_pieces.h"

#include <gtest/gtest.h>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"

namespace quillomat {
namespace {

std::vector<std::string> PiecesOf(std::string_view text, std::size_t pieceBytes) {
  TextSource source(text);
  LinePieces pieces(source, pieceBytes);
  std::vector<std::string> found;
  TextPiece piece;
  while (pieces.Next(piece)) found.emplace_back(piece.Text());
  return found;
}

std::string Together(const std::vector<std::string>& pieces) {
  std::string text;
  for (const std::string& piece : pieces) text += piece;
  return text;
}

TEST(LinePieces, EndBehindLineEnds) {
  using Pieces = std::vector<std::string>;
  EXPECT_EQ(PiecesOf("one\ntwo\nthree\nfour", 9), (Pieces{"one\ntwo\n", "three\n", "four"}));
  EXPECT_EQ(PiecesOf("one\rtwo\rthree", 6), (Pieces{"one\r", "two\r", "three"}));
  EXPECT_EQ(PiecesOf("", 9), Pieces{});
  EXPECT_EQ(PiecesOf("one", 100), Pieces{"one"});
}

TEST(LinePieces, DoNotTearALineEndApart) {
  const std::string text = "a\r\nb\r\nc\r\nd\r\n";
  for (std::size_t bytes = 1; bytes < 15; ++bytes) {
    const std::vector<std::string> pieces = PiecesOf(text, bytes);
    EXPECT_EQ(Together(pieces), text);
    for (const std::string& piece : pieces) EXPECT_TRUE(piece.ends_with("\r\n")) << bytes;
  }
}

TEST(LinePieces, LongLineIsOnePiece) {
  const std::string longLine = std::string(1000, 'x') + "\n";
  EXPECT_TRUE(PiecesOf(longLine + "y\n", 10).front().starts_with(longLine));
}

/// Counts how often it is asked for bytes.
class CountingSource final : public ByteSource {
 public:
  explicit CountingSource(std::string_view text) : source_(text) {}
  std::size_t Read(std::span<char> buffer) override {
    ++reads_;
    return source_.Read(buffer);
  }
  [[nodiscard]] int Reads() const { return reads_; }

 private:
  TextSource source_;
  int reads_ = 0;
};

TEST(LinePieces, LongLineIsReadInGrowingSteps) {
  const std::string longLine(1'000'000, 'x');
  CountingSource source(longLine);
  LinePieces pieces(source, 100);
  TextPiece piece;
  ASSERT_TRUE(pieces.Next(piece));
  EXPECT_EQ(piece.Text(), longLine);
  EXPECT_LT(source.Reads(), 50);
}

TEST(LinePieces, LineEndIsFoundWhereTwoReadsMeet) {
  // The carriage return is the last byte of a read, and no line end until the next is there.
  for (std::size_t before = 1; before < 200; ++before) {
    const std::string text = std::string(before, 'x') + "\r" + std::string(1000, 'y');
    const std::vector<std::string> pieces = PiecesOf(text, 10);
    EXPECT_EQ(pieces.front().size(), before + 1) << before;
    EXPECT_EQ(Together(pieces), text);
  }
}

TEST(LinePieces, MarkIsDroppedAtTheStartOnly) {
  EXPECT_EQ(Together(PiecesOf("\xEF\xBB\xBF"
                              "a\n\xEF\xBB\xBF"
                              "b\n",
                              4)),
            "a\n\xEF\xBB\xBF"
            "b\n");
  using namespace std::string_view_literals;
  EXPECT_EQ(Together(PiecesOf("\xFF\xFE\xE9\0\n\0z\0"sv, 4)), "\u00E9\nz");
}

TEST(LinePieces, RandomTextsAreWholeWhereverTheyAreCut) {
  std::mt19937_64 random(std::uint64_t{5});
  for (int round = 0; round < 2'000; ++round) {
    std::string text;
    for (std::size_t size = random() % 200; text.size() < size;) text += "ab \r\n"[random() % 5];
    const std::vector<std::string> pieces = PiecesOf(text, 1 + random() % 60);
    ASSERT_EQ(Together(pieces), text);
    for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
      const bool torn = pieces[i].ends_with('\r') && pieces[i + 1].starts_with('\n');
      ASSERT_TRUE(!torn && (pieces[i].ends_with('\r') || pieces[i].ends_with('\n'))) << text;
    }
  }
}

TEST(BytesWithLongLineEnds, TakesEveryLineEndForTwo) {
  EXPECT_EQ(BytesWithLongLineEnds("ab\r\ncd\nef\rg"), 13);
  EXPECT_EQ(BytesWithLongLineEnds(""), 0);
}

}  // namespace
}  // namespace quillomat
