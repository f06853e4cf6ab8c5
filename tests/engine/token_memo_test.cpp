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

TEST(TokenMemo, RemembersTokensOfEverySize) {
  TokenMemo memo;
  std::string token;
  for (std::uint32_t size = 1; size <= TokenMemo::kMostBytes; ++size) {
    token += static_cast<char>('a' + size);
    EXPECT_EQ(memo.Find(InText(token, 'z')), kUnknownToken);
    memo.Remember(InText(token, 'z'), size);
    EXPECT_EQ(memo.Find(InText(token, 'q')), size);
    EXPECT_EQ(memo.Find(AtTheEnd(token)), size);
  }
}

TEST(TokenMemo, NoKeyIsNeverFound) {
  TokenMemo memo;
  EXPECT_EQ(memo.Find(TokenMemo::NoKey()), kUnknownToken);
  for (std::uint32_t i = 0; i < 2'000; ++i) memo.Remember(AtTheEnd("t" + std::to_string(i)), i);
  EXPECT_EQ(memo.Find(TokenMemo::NoKey()), kUnknownToken);
}

TEST(TokenMemo, KeepsEveryKindOfOutcome) {
  TokenMemo memo;
  memo.Remember(AtTheEnd("-"), kNoWord);
  memo.Remember(AtTheEnd("the"), kWordNotStored);
  EXPECT_EQ(memo.Find(AtTheEnd("-")), kNoWord);
  EXPECT_EQ(memo.Find(AtTheEnd("the")), kWordNotStored);
  EXPECT_FALSE(IsPlace(kNoWord) || IsPlace(kWordNotStored) || IsPlace(kUnknownToken));
  EXPECT_TRUE(IsPlace(INT32_MAX));
}

TEST(TokenMemo, GrowsAndKeepsWhatItHas) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i < 20'000; ++i) {
    memo.Remember(AtTheEnd("token" + std::to_string(i)), i);
  }
  for (std::uint32_t i = 0; i < 20'000; ++i) {
    EXPECT_EQ(memo.Find(AtTheEnd("token" + std::to_string(i))), i);
  }
}

TEST(TokenMemo, StartsAnewWhenItIsFull) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i <= TokenMemo::kMostTokens; ++i) {
    memo.Remember(AtTheEnd("t" + std::to_string(i)), i);
  }
  EXPECT_EQ(memo.Find(AtTheEnd("t0")), kUnknownToken);
  EXPECT_EQ(memo.Find(AtTheEnd("t" + std::to_string(TokenMemo::kMostTokens))),
            TokenMemo::kMostTokens);
}

TEST(TokenMemo, ForgetsWhenItIsCleared) {
  TokenMemo memo;
  memo.Remember(AtTheEnd("a"), 1);
  memo.Clear();
  EXPECT_EQ(memo.Find(AtTheEnd("a")), kUnknownToken);
}

}  // namespace
}  // namespace quillomat
