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
  ExpectConverted(CharacterSet::kIso8859Part7, "\xFF\xE1", "\uFFFDα", 1);
  ExpectConverted(CharacterSet::kEucKr, "\xC1\xB6\xFF!", "조\uFFFD!", 1);
  ExpectConverted(CharacterSet::kShiftJis, "\x82\xC6\x82 \x82\xC6", "と\uFFFD と", 1);
  ExpectConverted(CharacterSet::kBig5, "\xA6w\xFF\xFF\xA6w", "安\uFFFD\uFFFD安", 2);
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
