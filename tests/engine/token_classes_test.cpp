#include "engine/token_classes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "engine/char_class.h"

namespace quillomat {
namespace {

std::vector<std::uint64_t> Masks(const TokenClasses& classes, std::string_view text) {
  std::vector<std::uint64_t> masks((text.size() + kBytesPerMask - 1) / kBytesPerMask);
  FindTokenBytes(classes, text, masks);
  return masks;
}

std::vector<std::uint64_t> PortableMasks(const TokenClasses& classes, std::string_view text) {
  std::vector<std::uint64_t> masks((text.size() + kBytesPerMask - 1) / kBytesPerMask);
  FindTokenBytesPortably(classes, text, masks);
  return masks;
}

std::vector<std::string> Tokens(std::string_view text, const TokenClasses& classes) {
  TokenEdges edges;
  edges.Classify(classes, text);
  edges.Find(text.size());
  std::vector<std::string> tokens;
  for (std::size_t i = 0; i < edges.TokenCount(); ++i) {
    tokens.emplace_back(text.substr(edges.Start(i), edges.End(i) - edges.Start(i)));
  }
  return tokens;
}

std::string RandomText(std::mt19937_64& random, std::size_t size) {
  std::string text(size, '\0');
  for (char& ch : text) {
    ch = static_cast<char>(random() % 4 == 0 ? random() % 256 : 'a' + random() % 3);
  }
  return text;
}

TEST(TokenClasses, EveryByteIsOfTheClassOfItsCharacter) {
  for (const std::string_view extras : {"", "-", "0123456789@,.()/\\:_'-"}) {
    for (const bool digits : {false, true}) {
      const TokenClasses classes(digits, extras);
      for (int byte = 0; byte < 256; ++byte) {
        const char ch = static_cast<char>(byte);
        const bool expected = byte >= 128 || IsWordChar({&ch, 1}, digits, extras);
        EXPECT_EQ(classes.Holds(ch), expected) << byte;
        EXPECT_EQ(Masks(classes, {&ch, 1})[0], expected ? 1U : 0U) << byte;
      }
    }
  }
}

TEST(TokenClasses, VectorsAndThePortableWayAgreeOnRandomBytesOfAnyLength) {
  std::mt19937_64 random(std::uint64_t{11});
  const TokenClasses classes(true, "-_'");
  for (std::size_t size = 0; size < 300; ++size) {
    const std::string text = RandomText(random, size);
    EXPECT_EQ(Masks(classes, text), PortableMasks(classes, text)) << size;
  }
}

TEST(SignPlaces, EveryPlaceIsFoundInTextsOfAnyLength) {
  std::mt19937_64 random(std::uint64_t{12});
  SignPlaces places;
  for (std::size_t size = 0; size < 300; ++size) {
    const std::string text = RandomText(random, size);
    for (const SignPair signs : {SignPair{'b', 'c'}, SignPair{'a', 'a'}, SignPair{'<', '\0'}}) {
      places.Find(signs, text);
      const std::string either = {signs.one, signs.other};
      for (std::size_t position = 0; position <= size; ++position) {
        ASSERT_EQ(places.Next(position), std::min(text.find_first_of(either, position), size))
            << size << ' ' << position;
      }
    }
  }
}

TEST(TokenEdges, WhatIsCutOutBelongsToNoToken) {
  const TokenClasses classes(false, "");
  const std::string text(200, 'a');
  for (const std::size_t first : {0U, 1U, 63U, 64U, 70U, 128U}) {
    for (std::size_t end = first + 1; end <= text.size(); ++end) {
      TokenEdges edges;
      edges.Classify(classes, text);
      edges.CutOut(first, end);
      edges.Find(text.size());
      std::size_t left = 0;
      for (std::size_t i = 0; i < edges.TokenCount(); ++i) {
        left += edges.End(i) - edges.Start(i);
        ASSERT_TRUE(edges.End(i) <= first || edges.Start(i) >= end) << first << ' ' << end;
      }
      ASSERT_EQ(left, text.size() - (end - first)) << first << ' ' << end;
    }
  }
}

TEST(TokenEdges, TokensAreTheLongestRuns) {
  const TokenClasses classes(false, "-");
  using Words = std::vector<std::string>;
  EXPECT_EQ(Tokens("", classes), Words{});
  EXPECT_EQ(Tokens(" .,", classes), Words{});
  EXPECT_EQ(Tokens("a", classes), Words{"a"});
  EXPECT_EQ(Tokens(" well-known, r\u00E9sum\u00E9 3", classes),
            (Words{"well-known", "r\u00E9sum\u00E9"}));
}

TEST(TokenEdges, TokensReachOverMasks) {
  const TokenClasses classes(false, "");
  for (std::size_t start = 60; start < 70; ++start) {
    for (const std::size_t size : {1U, 3U, 4U, 5U, 63U, 64U, 65U, 128U, 200U}) {
      const std::string token(size, 'x');
      const std::string blanks(start, ' ');
      EXPECT_EQ(Tokens(blanks + token, classes), std::vector<std::string>{token});
      EXPECT_EQ(Tokens(blanks + token + " y", classes), (std::vector<std::string>{token, "y"}));
    }
  }
}

TEST(TokenEdges, AgreeWithALookAtEveryByte) {
  std::mt19937_64 random(std::uint64_t{12});
  const TokenClasses classes(false, "'");
  for (int round = 0; round < 300; ++round) {
    const std::string text = RandomText(random, random() % 500);
    std::vector<std::string> expected;
    bool inside = false;
    for (const char ch : text) {
      if (classes.Holds(ch) && !inside) expected.emplace_back();
      inside = classes.Holds(ch);
      if (inside) expected.back() += ch;
    }
    EXPECT_EQ(Tokens(text, classes), expected);
  }
}

}  // namespace
}  // namespace quillomat
