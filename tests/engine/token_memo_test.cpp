#include "engine/token_memo.h"

#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

/// As a token stands in a text, with other bytes behind it.
TokenMemo::Key InText(const TokenMemo& memo, const std::string& token, char behind) {
  const std::string text = token + std::string(TokenMemo::kMostBytes, behind);
  return memo.KeyOf(text.data(), token.size(), text.size());
}

TokenMemo::Key AtTheEnd(const TokenMemo& memo, const std::string& token) {
  return memo.KeyOf(token.data(), token.size(), token.size());
}

TEST(TokenMemo, RemembersTokensOfEverySize) {
  TokenMemo memo;
  std::string token;
  for (std::uint32_t size = 1; size <= TokenMemo::kMostBytes; ++size) {
    token += static_cast<char>('a' + size);
    EXPECT_EQ(memo.Find(InText(memo, token, 'z')), kUnknownToken);
    memo.Remember(InText(memo, token, 'z'), size);
    EXPECT_EQ(memo.Find(InText(memo, token, 'q')), size);
    EXPECT_EQ(memo.Find(AtTheEnd(memo, token)), size);
  }
}

TEST(TokenMemo, NoKeyIsNeverFound) {
  TokenMemo memo;
  EXPECT_EQ(memo.Find(TokenMemo::NoKey()), kUnknownToken);
  for (std::uint32_t i = 0; i < 2'000; ++i)
    memo.Remember(AtTheEnd(memo, "t" + std::to_string(i)), i);
  EXPECT_EQ(memo.Find(TokenMemo::NoKey()), kUnknownToken);
}

TEST(TokenMemo, KeepsEveryKindOfOutcome) {
  TokenMemo memo;
  memo.Remember(AtTheEnd(memo, "-"), kNoWord);
  memo.Remember(AtTheEnd(memo, "the"), kWordNotStored);
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "-")), kNoWord);
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "the")), kWordNotStored);
  EXPECT_FALSE(IsPlace(kNoWord) || IsPlace(kWordNotStored) || IsPlace(kUnknownToken));
  EXPECT_TRUE(IsPlace(INT32_MAX));
}

TEST(TokenMemo, GrowsAndKeepsWhatItHas) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i < 20'000; ++i) {
    memo.Remember(AtTheEnd(memo, "token" + std::to_string(i)), i);
  }
  for (std::uint32_t i = 0; i < 20'000; ++i) {
    EXPECT_EQ(memo.Find(AtTheEnd(memo, "token" + std::to_string(i))), i);
  }
}

TEST(TokenMemo, StartsAnewWhenItIsFull) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i <= TokenMemo::kMostTokens; ++i) {
    memo.Remember(AtTheEnd(memo, "t" + std::to_string(i)), i);
  }
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "t0")), kUnknownToken);
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "t" + std::to_string(TokenMemo::kMostTokens))),
            TokenMemo::kMostTokens);
}

TEST(TokenMemo, ForgetsWhenItIsCleared) {
  TokenMemo memo;
  memo.Remember(AtTheEnd(memo, "a"), 1);
  memo.Clear();
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "a")), kUnknownToken);
}

}  // namespace
}  // namespace quillomat
