// Pieces of a text that lies still are whole lines, and together the text.
#include "engine/parallel/placed_pieces.h"

#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"
#include "support/placed_text.h"

namespace quillomat {
namespace {

std::vector<std::string> PlacedPiecesOf(const std::string& text, std::size_t threads,
                                        std::size_t pieceBytes) {
  PlacedText source(text);
  PlacedPieces pieces(*source.Rest(), threads, pieceBytes);
  std::vector<std::string> cut;
  while (const auto piece = pieces.Next()) {
    const auto begin = static_cast<std::size_t>(piece->begin);
    cut.push_back(text.substr(begin, static_cast<std::size_t>(piece->end) - begin));
    EXPECT_TRUE(cut.back().ends_with(pieces.LastLines()));
    EXPECT_FALSE(pieces.LastLines().empty());
  }
  return cut;
}

std::string Joined(const std::vector<std::string>& parts) {
  std::string joined;
  for (const std::string& part : parts) joined += part;
  return joined;
}

TEST(PlacedPieces, AreWholeLines) {
  for (const std::string lineEnd : {"\n", "\r\n", "\r"}) {
    std::string text;
    for (int i = 0; i < 500; ++i) text += "word " + std::to_string(i * 7919) + lineEnd;
    const std::string rest = "no end yet";
    const std::vector<std::string> pieces = PlacedPiecesOf(text + rest, 2, 200);
    EXPECT_GT(pieces.size(), 4U);
    EXPECT_EQ(Joined(pieces), text);
    for (const std::string& piece : pieces) {
      EXPECT_TRUE(piece.ends_with(lineEnd));
      EXPECT_FALSE(piece.starts_with('\n'));
      EXPECT_LE(piece.size(), 1600U);
    }
  }
}

TEST(PlacedPieces, BecomeSmallerTowardsTheEnd) {
  const std::string line = "one two three\n";
  std::string text;
  for (int i = 0; i < 2000; ++i) text += line;
  const std::vector<std::string> pieces = PlacedPiecesOf(text, 2, 2000);
  EXPECT_GT(pieces.front().size(), 3 * pieces.back().size());
}

TEST(PlacedPieces, EndWhereNoLineEndsWithinReach) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "a line\n";
  const std::string lines = text;
  text += std::string(20'000, 'x') + "\nlast\n";
  const std::string cut = Joined(PlacedPiecesOf(text, 2, 300));
  EXPECT_FALSE(cut.empty());
  EXPECT_TRUE(lines.starts_with(cut));
}

TEST(PlacedPieces, EndWhereTheBytesCannotBeRead) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "a line\n";
  PlacedText source(text, 1000);
  PlacedPieces pieces(*source.Rest(), 2, 100);
  std::int64_t end = 0;
  while (const auto piece = pieces.Next()) end = piece->end;
  EXPECT_GT(end, 500);
  EXPECT_LE(end, 1000);
}

TEST(PlacedLines, AreReadSomeAtATime) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += std::string(static_cast<std::size_t>(i % 40), 'w') + "\r\n";
  text += std::string(500, 'x') + "\nend";
  PlacedText source(text);
  const PlacedPiece piece{&source.Rest()->bytes, 7, static_cast<std::int64_t>(text.size())};
  std::vector<char> memory;
  PlacedLines lines(piece, memory, 64);
  std::vector<std::string> parts;
  for (std::string_view part = lines.Next(); !part.empty(); part = lines.Next()) {
    EXPECT_TRUE(parts.empty() || parts.back().ends_with('\n'));
    parts.emplace_back(part);
  }
  EXPECT_GT(parts.size(), 20U);
  EXPECT_EQ(Joined(parts), text.substr(7));
}

TEST(PlacedLines, ThatAreGoneAreAFault) {
  const std::string text = "one\ntwo\n";
  PlacedText source(text);
  const PlacedPiece piece{&source.Rest()->bytes, 0, 100};
  std::vector<char> memory;
  PlacedLines lines(piece, memory, 64);
  EXPECT_EQ(lines.Next(), text);
  EXPECT_THROW(static_cast<void>(lines.Next()), RunTimeError);
}

}  // namespace
}  // namespace quillomat
