#include "engine/long_token_memo.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "engine/token_memo.h"
#include "support/colliding_words.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

LongTokenMemo::Key LongKeyOf(LongTokenMemo& memo, std::string_view token) {
  return memo.KeyOf(token.data(), token.size());
}

std::string LongToken(std::size_t number, std::size_t bytes) {
  return InLetters(number, 5) + std::string(bytes - 5, 'x');
}

TEST(LongTokenMemo, RemembersTokensOfEverySizeByAllTheirBytes) {
  LongTokenMemo memo;
  for (std::size_t size = TokenMemo::kMostBytes + 1; size <= LongTokenMemo::kMostBytes; ++size) {
    const std::string token(size, 'a');
    EXPECT_EQ(memo.Find(LongKeyOf(memo, token)), kUnknownToken);
    memo.Remember(LongKeyOf(memo, token), static_cast<TokenOutcome>(size));
    EXPECT_EQ(memo.Find(LongKeyOf(memo, token)), size);
    for (std::size_t i = 0; i < size; ++i) {
      std::string other = token;
      other[i] = 'b';
      EXPECT_EQ(memo.Find(LongKeyOf(memo, other)), kUnknownToken) << size << ' ' << i;
    }
  }
}

TEST(LongTokenMemo, TokenThatIsTooLongIsNotRemembered) {
  LongTokenMemo memo;
  const std::string token(LongTokenMemo::kMostBytes + 1, 'a');
  memo.Remember(LongKeyOf(memo, token), 1);
  EXPECT_EQ(memo.Find(LongKeyOf(memo, token)), kUnknownToken);
}

TEST(LongTokenMemo, GrowsUntilItIsFullAndStartsAnewOnceItHasForgotten) {
  for (const std::size_t bytes : {std::size_t{13}, LongTokenMemo::kMostBytes}) {
    LongTokenMemo memo;
    TokenOutcome next = 0;
    while (!memo.IsFullFor(bytes)) {
      ASSERT_LT(next, LongTokenMemo::kMostTokens);
      memo.Remember(LongKeyOf(memo, LongToken(next, bytes)), next);
      ASSERT_EQ(memo.Find(LongKeyOf(memo, LongToken(next, bytes))), next);
      ++next;
    }
    EXPECT_EQ(memo.Find(LongKeyOf(memo, LongToken(0, bytes))), 0U);
    EXPECT_GT(next, 16'000U);
    memo.Forget();
    EXPECT_FALSE(memo.IsFullFor(bytes));
    EXPECT_EQ(memo.Find(LongKeyOf(memo, LongToken(next - 1, bytes))), kUnknownToken);
  }
}

TEST(LongTokenMemo, MemoThatIsCrowdedGoesByAnotherSeedOnceItIsCleared) {
  constexpr std::string_view kEnd = "together";
  LongTokenMemo memo({1, LoadNumber<std::uint64_t>(kEnd.data())});
  const auto token = [kEnd](std::size_t number) {
    return InLetters(number, 8) + std::string(kEnd);
  };
  EXPECT_EQ(LongKeyOf(memo, token(1)).hash, LongKeyOf(memo, token(2)).hash);
  TokenOutcome next = 0;
  while (!memo.IsCrowded()) {
    memo.Remember(LongKeyOf(memo, token(next)), next);
    ASSERT_LT(++next, 1'000U);
  }
  EXPECT_EQ(memo.Find(LongKeyOf(memo, token(next - 1))), next - 1);
  memo.Clear();
  EXPECT_FALSE(memo.IsCrowded());
  for (next = 0; next < 20'000; ++next) memo.Remember(LongKeyOf(memo, token(next)), next);
  EXPECT_FALSE(memo.IsCrowded());
  EXPECT_EQ(memo.Find(LongKeyOf(memo, token(17))), 17U);
}

class ManyLongTokens : public EngineFixture {
 protected:
  /// What lines of a block hold, all of them many times.
  std::string CountBlock(std::string_view line) {
    constexpr int kTimes = 70;
    StartCount();
    std::string lines;
    for (int i = 0; i < kTimes; ++i) lines.append(line).append("\n");
    AllAtOnce allAtOnce;
    WordScanner scanner(settings, choices, lists, store, allAtOnce);
    EXPECT_EQ(scanner.PlainLineBytes(lines), lines.size());
    scanner.GetWordsOfLines(lines);
    EXPECT_EQ(scanner.WordsRead() % kTimes, 0);
    std::string words;
    for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
      words.append(store.WordOf(i)).append("*");
      words.append(std::to_string(store.CountOf(i) / kTimes)).append(" ");
      EXPECT_EQ(store.CountOf(i) % kTimes, 0);
    }
    return words;
  }

 private:
  class AllAtOnce final : public ScanYield {
   public:
    bool Yield() override { return false; }
    [[nodiscard]] std::uint32_t CallsLeft() const override { return 1000; }
  };
};

TEST_F(ManyLongTokens, AreCountedAsOftenAsTheyStand) {
  EXPECT_EQ(CountBlock("unquestionably the internationalisation unquestionably"),
            "internationalisation*1 the*1 unquestionably*2 ");
}

TEST_F(ManyLongTokens, MayBeSeveralWords) {
  EXPECT_EQ(CountBlock("ma\u0142a ksi\u0105\u017Cka"), "a*1 ka*1 ksi*1 ma*1 ");
  UseAllLetters();
  EXPECT_EQ(CountBlock("\u0441\u043B\u043E\u0432\u043E\u2014\u0434\u0435\u043B\u043E, "
                       "\u0421\u043B\u043E\u0432\u043E"),
            "\u0434\u0435\u043B\u043E*1 \u0441\u043B\u043E\u0432\u043E*2 ");
}

}  // namespace
}  // namespace quillomat
