// The system's converters: a text in each encoding, however its bytes come.
#include "system/system_decoder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>

#include "base/run_time_error.h"
#include "support/encoded_texts.h"

namespace quillomat {
namespace {

struct Conversion {
  std::string text;
  std::int64_t bytesNotDecoded = 0;
};

Conversion Converted(CharacterSet set, std::string_view bytes, std::size_t chunk) {
  const auto decoder = MakeTextDecoder(set);
  Conversion made;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(chunk, bytes.size()))) {
    decoder->Decode(bytes.substr(0, chunk), made.text);
  }
  decoder->End(made.text);
  made.bytesNotDecoded = decoder->BytesNotDecoded();
  return made;
}

void ExpectConverted(CharacterSet set, std::string_view bytes, std::string_view text,
                     std::int64_t bytesNotDecoded) {
  for (const std::size_t chunk : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 1000U}) {
    const Conversion made = Converted(set, bytes, chunk);
    EXPECT_EQ(made.text, text) << NameOf(set) << " in chunks of " << chunk;
    EXPECT_EQ(made.bytesNotDecoded, bytesNotDecoded) << NameOf(set) << " in chunks of " << chunk;
  }
}

TEST(SystemDecoder, DecodesEachEncoding) {
  std::set<CharacterSet> decoded;
  for (const EncodedText& encoded : kEncodedTexts) {
    decoded.insert(encoded.set);
    if (IsMissingHere(encoded.set)) continue;
    ASSERT_TRUE(CanDecode(encoded.set)) << NameOf(encoded.set);
    ExpectConverted(encoded.set, encoded.bytes, encoded.text, 0);
  }
  constexpr std::size_t kNoneOrTestedElsewhere = 3;  // as found, guess, UTF-16
  EXPECT_EQ(decoded.size() + kNoneOrTestedElsewhere, kCharacterSetNames.size());
}

TEST(SystemDecoder, DecodesMoreThanABlock) {
  std::string bytes;
  std::string text;
  for (int i = 0; i < 3000; ++i) {
    bytes += "\x90\xC3\x82\xA9 \x83J\n";
    text += "静か カ\n";
  }
  ExpectConverted(CharacterSet::kShiftJis, bytes, text, 0);
}

TEST(SystemDecoder, ReplacesBytesThatBeginNoCharacter) {
  ExpectConverted(CharacterSet::kWindows1252,
                  "a\x81"
                  "b\x8D",
                  "a\uFFFDb\uFFFD", 2);
  ExpectConverted(CharacterSet::kWindows1253, "\xD2\xE1", "\uFFFDα", 1);
  ExpectConverted(CharacterSet::kWindows1258, "a\x8A!", "a\uFFFD!", 1);
  ExpectConverted(CharacterSet::kIso8859Part7, "\xFF\xE1", "\uFFFDα", 1);
  ExpectConverted(CharacterSet::kEucKr, "\xC1\xB6\xFF!", "조\uFFFD!", 1);
  ExpectConverted(CharacterSet::kShiftJis, "\x82\xC6\x82 \x82\xC6", "と\uFFFD と", 1);
  ExpectConverted(CharacterSet::kBig5, "\xA6w\xFF\xFF\xA6w", "安\uFFFD\uFFFD安", 2);
}

/// Some systems have controls for them.
TEST(SystemDecoder, BytesThatLeadNothingAreNoControlsOfSetsOfSeveralBytes) {
  ExpectConverted(CharacterSet::kEucJp, "\x80!\x9F\x85\xC6\xFC", "\uFFFD!\uFFFD\uFFFD日", 3);
  ExpectConverted(CharacterSet::kBig5, "\x80!\xA6w", "\uFFFD!安", 1);
  ExpectConverted(CharacterSet::kShiftJis, "\x80!\xA0!\x82\xC6", "\uFFFD!\uFFFD!と", 2);
  ExpectConverted(CharacterSet::kIso8859Part1, "\x80!\xA0", "\u0080!\u00A0", 0);
}

TEST(SystemDecoder, KnowsWhatUsualTextsInEucJpHaveBeyondTheStandard) {
  ExpectConverted(CharacterSet::kEucJp, "\xAD\xA1\xC6\xFC\xAD\xEA\xCB\xDC", "①日㈱本", 0);
  ExpectConverted(CharacterSet::kEucJp, "\x8E\xB1\x8F\xB0\xA1\xA4\xC8", "ｱ丂と", 0);
}

TEST(SystemDecoder, ReplacesAPairWithoutACharacterAsAWhole) {
  ExpectConverted(CharacterSet::kEucJp, "\xA9\xA1\xC6\xFC\xCB\xDC", "\uFFFD日本", 2);
  ExpectConverted(CharacterSet::kEucJp, "\x8F\xA1\xA1\xC6\xFC", "\uFFFD日", 3);
  ExpectConverted(CharacterSet::kEucJp, "\xC6\xFC\xA9\xA1", "日\uFFFD", 2);
  ExpectConverted(CharacterSet::kEucJp, "\xC6\xFC\xA9 \xCB\xDC", "日\uFFFD 本", 1);
  ExpectConverted(CharacterSet::kEucKr, "\xA2\xFE\xC1\xB6", "\uFFFD조", 2);
}

/// A converter of the C library stands behind such a pair where it says that it stands before it.
TEST(SystemDecoder, GoesOnBehindEachPairOfEucKrWithoutACharacter) {
  for (int second = 0x81; second <= 0xFE; ++second) {
    const std::string pair{'\xA2', static_cast<char>(second)};
    const Conversion alone = Converted(CharacterSet::kEucKr, pair, 1000);
    if (alone.bytesNotDecoded == 0) continue;
    ExpectConverted(CharacterSet::kEucKr, pair + "^\xC1\xB6", "\uFFFD^조", 2);
  }
}

TEST(SystemDecoder, ReplacesAnUnfinishedCharacterAtTheEnd) {
  ExpectConverted(CharacterSet::kShiftJis, "\x82\xC6\x82", "と\uFFFD", 1);
  ExpectConverted(CharacterSet::kEucJp, "\xA4\xC8\xA4", "と\uFFFD", 1);
  ExpectConverted(CharacterSet::kGb18030, "\xB0\xB2\xB0", "安\uFFFD", 1);
  ExpectConverted(CharacterSet::kBig5, "\xA6w\xA6", "安\uFFFD", 1);
}

TEST(SystemDecoder, KeepsTheBackslashOfJapaneseTexts) {
  ExpectConverted(CharacterSet::kShiftJis, "a\\b~", "a\\b~", 0);
}

}  // namespace
}  // namespace quillomat
