// Texts of many different words, whose tokens it would be for nothing to remember.
#include "engine/memo_rest.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

constexpr std::size_t kLook = MemoRest::kUnknownPerLook;

TEST(MemoRest, BeginsWhereHardlyATokenIsKnown) {
  MemoRest rest;
  rest.Note(kLook - 1, kLook - 1);
  EXPECT_FALSE(rest.Rests());
  rest.Note(1, 1);
  EXPECT_TRUE(rest.Rests());
  EXPECT_TRUE(rest.Sleeps());
}

TEST(MemoRest, DoesNotBeginWhereMostTokensAreKnown) {
  MemoRest rest;
  rest.Note(3 * kLook, kLook);
  EXPECT_FALSE(rest.Rests());
  EXPECT_FALSE(rest.Sleeps());
}

TEST(MemoRest, LooksTokensUpWhereSomeAreKnown) {
  MemoRest rest;
  rest.Note(3 * kLook, 2 * kLook);
  EXPECT_TRUE(rest.Rests());
  EXPECT_FALSE(rest.Sleeps());
}

TEST(MemoRest, EndsAndMayBeginAgain) {
  MemoRest rest;
  rest.Note(kLook, kLook);
  rest.Note(MemoRest::kTokensOfRest - 1, MemoRest::kTokensOfRest - 1);
  EXPECT_TRUE(rest.Rests());
  rest.Note(64, 64);
  EXPECT_FALSE(rest.Rests());
  rest.Note(kLook - 1, kLook - 1);
  EXPECT_FALSE(rest.Rests());
  rest.Note(1, 1);
  EXPECT_TRUE(rest.Rests());
}

class ManyDifferentWords : public EngineFixture {
 protected:
  static constexpr std::uint32_t kWords = 400'000;

  static std::string WordOf(std::uint32_t number) {
    std::string word = "w";
    for (; number > 0; number /= 16) word += static_cast<char>('a' + number % 16);
    return word;
  }

  /// Many different words, each once; then few, each often; and then the many again.
  static std::vector<std::uint32_t> NumbersOfText() {
    std::vector<std::uint32_t> numbers;
    for (std::uint32_t i = 0; i < kWords; ++i) numbers.push_back(i * 7'919 % kWords);
    for (std::uint32_t i = 0; i < 4 * kWords; ++i) numbers.push_back(i % 40);
    for (std::uint32_t i = 0; i < 4 * kWords; ++i) numbers.push_back(i * 7'919 % kWords);
    return numbers;
  }

  class ManyAtOnce final : public ScanYield {
   public:
    bool Yield() override { return false; }
    [[nodiscard]] std::uint32_t CallsLeft() const override {
      return std::numeric_limits<std::uint32_t>::max();
    }
  };

  /// Scans the words as lines in blocks.
  void Scan(const std::vector<std::uint32_t>& numbers) {
    StartCount();
    ManyAtOnce manyAtOnce;
    WordScanner scanner(settings, choices, lists, store, manyAtOnce);
    std::string lines;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      lines.append(WordOf(numbers[i])).append(i % 10 == 9 ? "\n" : " ");
      if (i % 1'000 != 999 && i + 1 < numbers.size()) continue;
      lines += '\n';
      ASSERT_EQ(scanner.PlainLineBytes(lines), lines.size());
      scanner.GetWordsOfLines(lines);
      lines.clear();
    }
    wordsRead = scanner.WordsRead();
  }
};

TEST_F(ManyDifferentWords, AreAllCounted) {
  const std::vector<std::uint32_t> numbers = NumbersOfText();
  Scan(numbers);
  EXPECT_EQ(static_cast<std::size_t>(wordsRead), numbers.size());
  std::vector<std::int32_t> expected(kWords);
  for (const std::uint32_t number : numbers) ++expected[number];
  ASSERT_EQ(store.NumDifferentWords(), static_cast<std::int32_t>(kWords));
  std::int32_t wrong = 0;
  for (std::uint32_t number = 0; number < kWords; ++number) {
    const auto place = store.AddWord(WordOf(number));
    store.CountWordAt(*place, -1 - expected[number]);
  }
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    if (store.CountOf(index) != 0) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
}

TEST_F(ManyDifferentWords, AreToldOfInTheirOrder) {
  WordOrderRecorder recorder;
  store.SetOrderListener(&recorder);
  const std::vector<std::uint32_t> numbers = NumbersOfText();
  Scan(numbers);
  store.SetOrderListener(nullptr);
  ASSERT_EQ(recorder.places.size(), numbers.size());
  std::size_t wrong = 0;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (store.WordAtPlace(recorder.places[i]) != WordOf(numbers[i])) ++wrong;
  }
  EXPECT_EQ(wrong, 0U);
}

}  // namespace
}  // namespace quillomat
