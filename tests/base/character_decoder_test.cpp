// Texts of sets whose characters are of one to four bytes, in made-up sets of a few characters.
#include "base/character_decoder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "base/character_form.h"

namespace quillomat {
namespace {

using namespace std::string_literals;

/// Counts how often it is asked for what.
class FewCharacters final : public EncodedCharacters {
 public:
  FewCharacters(std::map<std::string, std::string> texts, std::map<std::string, int>& asked)
      : texts_(std::move(texts)), asked_(asked) {}

  std::string TextOf(std::string_view bytes) override {
    ++asked_[std::string(bytes)];
    const auto found = texts_.find(std::string(bytes));
    return found == texts_.end() ? "" : found->second;
  }

 private:
  std::map<std::string, std::string> texts_;
  std::map<std::string, int>& asked_;
};

struct DecodedText {
  std::string text;
  std::int64_t bytesNotDecoded = 0;
  bool operator==(const DecodedText&) const = default;
};

void PrintTo(const DecodedText& decoded, std::ostream* out) {
  *out << decoded.text << " (" << decoded.bytesNotDecoded << " bad)";
}

class CharacterDecoderTest : public ::testing::Test {
 protected:
  DecodedText InChunks(CharacterSet set, std::string_view bytes, std::size_t chunk) {
    CharacterDecoder decoder(set, std::make_unique<FewCharacters>(texts_, asked_));
    DecodedText decoded;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(chunk, bytes.size()))) {
      decoder.Decode(bytes.substr(0, chunk), decoded.text);
    }
    decoder.End(decoded.text);
    decoded.bytesNotDecoded = decoder.BytesNotDecoded();
    return decoded;
  }

  /// The same however the bytes come.
  DecodedText From(CharacterSet set, const std::string& bytes) {
    const DecodedText decoded = InChunks(set, bytes, bytes.size() + 1);
    for (std::size_t chunk = 1; chunk <= 7; ++chunk) {
      EXPECT_EQ(InChunks(set, bytes, chunk), decoded) << "in chunks of " << chunk;
    }
    return decoded;
  }

  std::map<std::string, std::string> texts_{
      {"\x80", "€"},          {"\xA1\xA1", "一"},         {"\xA1z", "丁"},
      {"\x8F\xA1\xA1", "七"}, {"\x81\x30\x81\x30", "𠀀"}, {"\x88\x62", "Ê\u0304"}};
  std::map<std::string, int> asked_;
};

TEST_F(CharacterDecoderTest, DecodesCharactersOfAllLengths) {
  EXPECT_EQ(From(CharacterSet::kGb18030, "a\x80\xA1\xA1\xA1z\x81\x30\x81\x30!"),
            (DecodedText{"a€一丁𠀀!", 0}));
  EXPECT_EQ(From(CharacterSet::kEucJp, "a\x80\xA1\xA1\x8F\xA1\xA1"), (DecodedText{"a€一七", 0}));
  EXPECT_EQ(From(CharacterSet::kBig5, "\x88\x62"), (DecodedText{"Ê\u0304", 0}));
  EXPECT_EQ(From(CharacterSet::kWindows1252, "a\x80z"), (DecodedText{"a€z", 0}));
  EXPECT_EQ(From(CharacterSet::kGb18030, "\0\xA1\xA1\0"s), (DecodedText{"\0一\0"s, 0}));
  EXPECT_EQ(From(CharacterSet::kGb18030, ""), (DecodedText{"", 0}));
}

TEST_F(CharacterDecoderTest, ReplacesWhatHasTheFormOfACharacterTogether) {
  EXPECT_EQ(From(CharacterSet::kGb18030, "\xA1\xA2\xA1\xA1"), (DecodedText{"\uFFFD一", 2}));
  EXPECT_EQ(From(CharacterSet::kEucJp, "\x8F\xA1\xA2\xA1\xA1"), (DecodedText{"\uFFFD一", 3}));
}

TEST_F(CharacterDecoderTest, KeepsAsciiBehindWhatLeadsNoCharacter) {
  EXPECT_EQ(From(CharacterSet::kGb18030, "\xA1y\xA1 \xFF"),
            (DecodedText{"\uFFFDy\uFFFD \uFFFD", 3}));
  EXPECT_EQ(From(CharacterSet::kGb18030, "\x81\x30\x81\x31"), (DecodedText{"\uFFFD0\uFFFD1", 2}));
}

TEST_F(CharacterDecoderTest, ReplacesAnUnfinishedCharacterAtTheEndByteByByte) {
  EXPECT_EQ(From(CharacterSet::kGb18030, "\xA1\xA1\xA1"), (DecodedText{"一\uFFFD", 1}));
  EXPECT_EQ(From(CharacterSet::kGb18030, "\x81\x30\x81"), (DecodedText{"\uFFFD0\uFFFD", 2}));
  EXPECT_EQ(From(CharacterSet::kEucJp, "\x8F\xA1"), (DecodedText{"\uFFFD\uFFFD", 2}));
}

TEST_F(CharacterDecoderTest, AsksOnceForEachCharacter) {
  std::string bytes;
  std::string text;
  for (int i = 0; i < 3000; ++i) {
    bytes += "\xA1\xA1\x80";
    text += "一€";
  }
  EXPECT_EQ(InChunks(CharacterSet::kGb18030, bytes, 1000), (DecodedText{text, 0}));
  EXPECT_EQ(asked_, (std::map<std::string, int>{{"\xA1\xA1", 1}, {"\x80", 1}}));
}

TEST(BytesOfForm, AreTellingAsSoonAsTheyCanBe) {
  const auto form = [](std::string_view bytes) {
    return BytesOfForm(CharacterSet::kGb18030, bytes);
  };
  EXPECT_EQ(form("a"), 1U);
  EXPECT_EQ(form("\x80"), 1U);
  EXPECT_EQ(form("\xFF"), 1U);
  EXPECT_EQ(form("\x81"), std::nullopt);
  EXPECT_EQ(form("\x81\x40"), 2U);
  EXPECT_EQ(form("\x81\x7F"), 1U);
  EXPECT_EQ(form("\x81\x30"), std::nullopt);
  EXPECT_EQ(form("\x81\x30 "), 1U);
  EXPECT_EQ(form("\x81\x30\x81"), std::nullopt);
  EXPECT_EQ(form("\x81\x30\x81\x39\x81"), 4U);
}

}  // namespace
}  // namespace quillomat
