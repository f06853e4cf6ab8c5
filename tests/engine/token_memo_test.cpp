#include "engine/token_memo.h"

#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

/// As a token stands in a text, with other bytes behind it.
TokenMemo::Key InText(const std::string& token, char behind) {
  const std::string text = token + std::string(TokenMemo::kMostBytes, behind);
  return TokenMemo::KeyOf(text.data(), token.size(), text.size());
}

TokenMemo::Key AtTheEnd(const std::string& token) {
  return TokenMemo::KeyOf(token.data(), token.size(), token.size());
}

TokenOutcome Outcome(std::uint32_t place) {
  TokenOutcome outcome;
  outcome.place = place;
  outcome.isWord = true;
  return outcome;
}

TEST(TokenMemo, RemembersTokensOfEverySize) {
  TokenMemo memo;
  std::string token;
  for (std::uint32_t size = 1; size <= TokenMemo::kMostBytes; ++size) {
    token += static_cast<char>('a' + size);
    EXPECT_EQ(memo.Find(InText(token, 'z')), nullptr);
    memo.Remember(InText(token, 'z'), Outcome(size));
    ASSERT_NE(memo.Find(InText(token, 'q')), nullptr) << size;
    EXPECT_EQ(memo.Find(InText(token, 'q'))->place, size);
    ASSERT_NE(memo.Find(AtTheEnd(token)), nullptr) << size;
    EXPECT_EQ(memo.Find(AtTheEnd(token))->place, size);
  }
}

TEST(TokenMemo, TokenOfZeroBytesIsNotTheShorterOne) {
  TokenMemo memo;
  memo.Remember(AtTheEnd("a"), Outcome(1));
  EXPECT_EQ(memo.Find(AtTheEnd(std::string("a\0", 2))), nullptr);
}

TEST(TokenMemo, GrowsAndKeepsWhatItHas) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i < 20'000; ++i) {
    memo.Remember(AtTheEnd("token" + std::to_string(i)), Outcome(i));
  }
  for (std::uint32_t i = 0; i < 20'000; ++i) {
    const TokenOutcome* outcome = memo.Find(AtTheEnd("token" + std::to_string(i)));
    ASSERT_NE(outcome, nullptr);
    EXPECT_EQ(outcome->place, i);
  }
}

TEST(TokenMemo, StartsAnewWhenItIsFull) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i <= TokenMemo::kMostTokens; ++i) {
    memo.Remember(AtTheEnd("t" + std::to_string(i)), Outcome(i));
  }
  EXPECT_EQ(memo.Find(AtTheEnd("t0")), nullptr);
  ASSERT_NE(memo.Find(AtTheEnd("t" + std::to_string(TokenMemo::kMostTokens))), nullptr);
}

TEST(TokenMemo, ForgetsWhenItIsCleared) {
  TokenMemo memo;
  memo.Remember(AtTheEnd("a"), Outcome(1));
  memo.Clear();
  EXPECT_EQ(memo.Find(AtTheEnd("a")), nullptr);
}

}  // namespace
}  // namespace quillomat
