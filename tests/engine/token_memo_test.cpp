#include "engine/token_memo.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>

namespace quillomat {
namespace {

/// As a token stands in a text, with other bytes behind it.
TokenMemo::Key InText(TokenMemo& memo, const std::string& token, char behind) {
  const std::string text = token + std::string(TokenMemo::kMostBytes, behind);
  return memo.KeyOf(text.data(), token.size(), text.size());
}

TokenMemo::Key AtTheEnd(TokenMemo& memo, const std::string& token) {
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

TEST(TokenMemo, IsFullAtSoManyTokensAndStartsAnewOnceItHasForgotten) {
  TokenMemo memo;
  for (std::uint32_t i = 0; i < TokenMemo::kMostTokens; ++i) {
    ASSERT_FALSE(memo.IsFullFor(1));
    memo.Remember(AtTheEnd(memo, "t" + std::to_string(i)), i);
  }
  EXPECT_TRUE(memo.IsFullFor(1));
  memo.Forget();
  EXPECT_FALSE(memo.IsFullFor(1));
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "t0")), kUnknownToken);
  memo.Remember(AtTheEnd(memo, "t0"), 7);
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "t0")), 7U);
}

/// Meets a token that the memo knows.
std::int32_t Meet(TokenMemo& memo, const std::string& token) {
  return ++TokenMemo::Finder(memo).Find(AtTheEnd(memo, token))->kept;
}

std::map<TokenOutcome, std::int32_t> TakeKeptOf(TokenMemo& memo) {
  std::map<TokenOutcome, std::int32_t> kept;
  memo.TakeKept([&](TokenOutcome outcome, std::int32_t times) { kept[outcome] += times; });
  return kept;
}

TEST(TokenMemo, KeepsCountsUntilTheyAreTakenAlsoWhileItGrows) {
  TokenMemo memo;
  memo.Remember(AtTheEnd(memo, "a"), 1);
  memo.Remember(AtTheEnd(memo, "b"), 2);
  EXPECT_EQ(Meet(memo, "a"), 1);
  EXPECT_EQ(Meet(memo, "a"), 2);
  for (std::uint32_t i = 10; i < 5'000; ++i) {
    memo.Remember(AtTheEnd(memo, "t" + std::to_string(i)), i);
  }
  EXPECT_EQ(Meet(memo, "b"), 1);
  EXPECT_EQ(TakeKeptOf(memo), (std::map<TokenOutcome, std::int32_t>{{1, 2}, {2, 1}}));
  EXPECT_TRUE(TakeKeptOf(memo).empty());
  EXPECT_EQ(Meet(memo, "a"), 1);
}

TEST(TokenMemo, TokensThatChangePlacesKeepTheirCountsAndWorth) {
  constexpr std::uint32_t kTokens = 3'000;
  TokenMemo memo;
  for (std::uint32_t i = 0; i < kTokens; ++i) {
    memo.Remember(AtTheEnd(memo, "t" + std::to_string(i)), i % 7 == 0 ? kNoWord : i);
  }
  std::mt19937_64 random(std::uint64_t{21});
  std::map<TokenOutcome, std::int32_t> met;
  for (int meeting = 0; meeting < 60'000; ++meeting) {
    // Those that came first are seldom met, and many of them have the places of others.
    const auto i = static_cast<std::uint32_t>(std::max(random() % kTokens, random() % kTokens));
    const std::string token = "t" + std::to_string(i);
    if (i % 7 == 0) {
      ASSERT_EQ(memo.Find(AtTheEnd(memo, token)), kNoWord);
    } else {
      ASSERT_EQ(Meet(memo, token), ++met[i]);
      ASSERT_EQ(memo.Find(AtTheEnd(memo, token)), i);
    }
  }
  EXPECT_EQ(TakeKeptOf(memo), met);
}

TEST(TokenMemo, KeepsNoCountsOfWhatIsNotOneWord) {
  TokenMemo memo;
  memo.Remember(AtTheEnd(memo, "-"), kNoWord);
  memo.Remember(AtTheEnd(memo, "a--b"), kFirstOfSeveral);
  memo.Remember(AtTheEnd(memo, "the"), kWordNotStored);
  EXPECT_LT(Meet(memo, "-"), 0);
  EXPECT_LT(Meet(memo, "a--b"), 0);
  EXPECT_EQ(Meet(memo, "the"), 1);
  EXPECT_EQ(TakeKeptOf(memo), (std::map<TokenOutcome, std::int32_t>{{kWordNotStored, 1}}));
}

TEST(TokenMemo, ForgetsWhenItIsCleared) {
  TokenMemo memo;
  memo.Remember(AtTheEnd(memo, "a"), 1);
  memo.Clear();
  EXPECT_EQ(memo.Find(AtTheEnd(memo, "a")), kUnknownToken);
}

}  // namespace
}  // namespace quillomat
