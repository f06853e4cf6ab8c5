// Decoders of UTF-8 and UTF-16, however the bytes come.
#include "base/text_decoder.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace quillomat {
namespace {

TEST(UnfinishedUtf8Bytes, AreThoseOfTheLastCharacter) {
  for (const std::string_view whole : {"", "a", "é", "川", "𠀀"}) {
    EXPECT_EQ(UnfinishedUtf8Bytes(whole), 0U) << whole;
    for (std::size_t bytes = 1; bytes < whole.size(); ++bytes) {
      EXPECT_EQ(UnfinishedUtf8Bytes("é" + std::string(whole.substr(0, bytes))), bytes) << whole;
    }
  }
  for (const std::string_view broken : {"\x80", "a\xFF", "\xC0", "\xE0\x80", "é\xA9\xA9\xA9\xA9"}) {
    EXPECT_EQ(UnfinishedUtf8Bytes(broken), 0U);
  }
}

using namespace std::string_literals;

struct Decoded {
  std::string text;
  std::int64_t bytesNotDecoded = 0;
  bool operator==(const Decoded&) const = default;
};

void PrintTo(const Decoded& decoded, std::ostream* out) {
  *out << decoded.text << " (" << decoded.bytesNotDecoded << " bad)";
}

template <typename Decoder>
Decoded InChunks(std::string_view bytes, std::size_t chunk) {
  Decoder decoder;
  Decoded decoded;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(chunk, bytes.size()))) {
    decoder.Decode(bytes.substr(0, chunk), decoded.text);
  }
  decoder.End(decoded.text);
  decoded.bytesNotDecoded = decoder.BytesNotDecoded();
  return decoded;
}

/// The same however the bytes come.
template <typename Decoder>
Decoded FromBytes(const std::string& bytes) {
  const Decoded decoded = InChunks<Decoder>(bytes, bytes.size() + 1);
  for (std::size_t chunk = 1; chunk <= 7; ++chunk) {
    EXPECT_EQ(InChunks<Decoder>(bytes, chunk), decoded) << "in chunks of " << chunk;
  }
  return decoded;
}

Decoded FromUtf8(const std::string& bytes) {
  return FromBytes<Utf8Decoder>(bytes);
}
Decoded FromUtf16(const std::string& bytes) {
  return FromBytes<Utf16Decoder>(bytes);
}

TEST(Utf8Decoder, LeavesWhatIsWellFormed) {
  for (const char* text : {"", "cat", "é", "слово", "川 ᚠ \U00010000 \U0010FFFF \u0800 \uFFFD"}) {
    EXPECT_EQ(FromUtf8(text), (Decoded{text, 0}));
  }
}

TEST(Utf8Decoder, ReplacesEachByteThatFitsNowhere) {
  EXPECT_EQ(FromUtf8("a\x80z"), (Decoded{"a\uFFFDz", 1}));
  EXPECT_EQ(FromUtf8("\xFF\xFE"), (Decoded{"\uFFFD\uFFFD", 2}));
  EXPECT_EQ(FromUtf8("caf\xE9 noir"), (Decoded{"caf\uFFFD noir", 1})) << "Windows-1252";
  EXPECT_EQ(FromUtf8("\xC0\xAF"), (Decoded{"\uFFFD\uFFFD", 2})) << "not the shortest form";
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), (Decoded{"\uFFFD\uFFFD\uFFFD", 3})) << "a surrogate";
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), (Decoded{"\uFFFD\uFFFD\uFFFD\uFFFD", 4}));
  EXPECT_EQ(FromUtf8("\xE5\xB7 \xE5\xB7\x9D"), (Decoded{"\uFFFD\uFFFD \u5DDD", 2}));
}

TEST(Utf8Decoder, ReplacesWhatIsUnfinishedAtTheEnd) {
  EXPECT_EQ(FromUtf8("a\xC3"), (Decoded{"a\uFFFD", 1}));
  EXPECT_EQ(FromUtf8("a\xE5\xB7"), (Decoded{"a\uFFFD\uFFFD", 2}));
  EXPECT_EQ(FromUtf8("a\xF0\x90\x80"), (Decoded{"a\uFFFD\uFFFD\uFFFD", 3}));
}

TEST(Utf16Decoder, TakesTheLowByteFirstUnlessTheMarkSaysOtherwise) {
  EXPECT_EQ(FromUtf16("c\0\xE9\0\x3D\xD8\x42\xDE"s), (Decoded{"cé🙂", 0}));
  EXPECT_EQ(FromUtf16("\xFF\xFE"
                      "c\0"s),
            (Decoded{"\uFEFFc", 0}));
  EXPECT_EQ(FromUtf16("\xFE\xFF\0c\xD8\x3D\xDE\x42"s), (Decoded{"\uFEFFc🙂", 0}));
  EXPECT_EQ(FromUtf16(""), Decoded());
}

TEST(Utf16Decoder, CountsWhatIsNoCharacter) {
  EXPECT_EQ(FromUtf16("a\0\x3D\xD8"
                      "b\0"s),
            (Decoded{"a\uFFFDb", 2}))
      << "a lone high surrogate";
  EXPECT_EQ(FromUtf16("a\0\x42\xDE"
                      "b\0"s),
            (Decoded{"a\uFFFDb", 2}))
      << "a lone low surrogate";
  EXPECT_EQ(FromUtf16("a\0b"s), (Decoded{"a\uFFFD", 1})) << "an odd byte";
  EXPECT_EQ(FromUtf16("a\0\x3D\xD8"
                      "b"s),
            (Decoded{"a\uFFFD", 3}));
}

}  // namespace
}  // namespace quillomat
