// The comment that is found open behind a text is the one that a scan of it leaves open.
#include "engine/parallel/open_comment_finder.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class OpenCommentFinderTest : public EngineFixture {
 protected:
  /// As a scan of all of the text, line by line, leaves it.
  int Scanned(std::string_view text, int before) {
    settings.OpenComment = before;
    WordScanner scanner(settings, choices, lists, store, yield);
    LineDecoder lines(text);
    std::string buffer;
    while (const auto line = lines.NextLine()) {
      const std::string_view trimmed = TrimBlanks(*line);
      if (trimmed.empty()) continue;
      scanner.GetWords(PrepareLine(trimmed, IsSet(choices.caseSignificant), buffer));
    }
    return settings.OpenComment;
  }

  int Found(std::string_view text, int before, std::size_t lookedAt) {
    settings.OpenComment = before;
    return OpenCommentFinder(settings, choices, lists, lookedAt).Behind(text, settings);
  }
};

TEST_F(OpenCommentFinderTest, LastLinesTellIt) {
  UsePreset("C");
  StartCount();
  const std::string text = std::string(500, 'x') + "\n*/\nx // /*\n";
  EXPECT_EQ(Found(text, -1, 20), -1);
  EXPECT_EQ(Found(text, 0, 20), -1);
  EXPECT_EQ(Found("/* a\n" + text + "/* b\nc\n", 0, 20), 0);
}

TEST_F(OpenCommentFinderTest, LinesThatSayNothingLeaveItToThoseBefore) {
  UsePreset("C");
  StartCount();
  std::string text = "/* a\n";
  for (int i = 0; i < 100; ++i) text += "// */ /*\n";
  EXPECT_EQ(Found(text, -1, 30), 0);
  EXPECT_EQ(Found(text.substr(5), -1, 30), -1);
}

TEST_F(OpenCommentFinderTest, WithoutMarkersNothingBeginsOrEnds) {
  StartCount();
  EXPECT_EQ(Found("/* a\n", -1, 10), -1);
  EXPECT_EQ(Found("*/ a\n", 0, 10), 0);
}

TEST_F(OpenCommentFinderTest, RandomTextsEndAsTheirScanEnds) {
  static const std::vector<std::string> kPieces = {
      "/*", "*/", "//", "<", ">",  "&nbsp;",   "&",    ";",    "\n",     "\n", "\r\n",
      "\r", " ",  "a",  "|", "--", "&eacute;", "\xE9", "rem ", " x end", "q",  "\n"};
  std::mt19937_64 random(std::uint64_t{23});
  for (int round = 0; round < 4'000; ++round) {
    switch (random() % 5) {
      case 0:
        UsePreset("C");
        break;
      case 1:
        UsePreset("HTML");
        break;
      case 2:
        UseMarkers("rem ", "end", "q", "");
        break;
      case 3:
        UseMarkers("|", "|", "&", ";");
        break;
      default:
        UseMarkers("--", "*/", "<", "--");
    }
    choices.caseSignificant = random() % 2 == 0 ? CheckState::kChecked : CheckState::kUnchecked;
    StartCount();
    std::string text;
    for (std::size_t parts = random() % 60; parts > 0; --parts) {
      text += kPieces[random() % kPieces.size()];
    }
    const int before = static_cast<int>(random() % 3) - 1;
    ASSERT_EQ(Found(text, before, 1 + random() % 40), Scanned(text, before)) << text;
  }
}

}  // namespace
}  // namespace quillomat
