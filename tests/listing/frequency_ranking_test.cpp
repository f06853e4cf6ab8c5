// Ranks: by frequency, then by alphabet.
#include "listing/frequency_ranking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Ranking : public ListingFixture {
 protected:
  /// The words from the first rank to the last.
  [[nodiscard]] std::vector<std::string> ByRank() const {
    std::vector<std::string> words;
    for (const std::int32_t index : ranking.byRank) words.emplace_back(store.At(index).Word);
    return words;
  }

  [[nodiscard]] std::int32_t RankOf(std::string_view word) const {
    return ranking.rankOf[static_cast<std::size_t>(PlaceOf(word))];
  }
};

TEST_F(Ranking, MostFrequentWordIsFirst) {
  AddSample();
  Finish();
  EXPECT_THAT(ByRank(), ElementsAre("the", "cat", "sat", "well-known"));
}

TEST_F(Ranking, EqualFrequenciesGetConsecutiveRanksInAlphabeticalOrder) {
  AddSample();
  Finish();
  EXPECT_EQ(RankOf("the"), 1);
  EXPECT_EQ(RankOf("cat"), 2);
  EXPECT_EQ(RankOf("sat"), 3);
  EXPECT_EQ(RankOf("well-known"), 4);
}

TEST_F(Ranking, ExcludedWordsHaveNoRank) {
  AddSample();
  store.SetIncluded(PlaceOf("cat"), false);
  Finish();
  EXPECT_THAT(ByRank(), ElementsAre("the", "sat", "well-known"));
  EXPECT_EQ(RankOf("cat"), 0);
  EXPECT_EQ(RankOf("sat"), 2);
}

TEST_F(Ranking, AnEmptyStoreHasNoRanks) {
  Finish();
  EXPECT_THAT(ranking.byRank, IsEmpty());
}

TEST_F(Ranking, StoreWithoutIncludedWordsHasNoRanks) {
  Add("dog", 2);
  store.SetIncluded(1, false);
  Finish();
  EXPECT_THAT(ranking.byRank, IsEmpty());
  EXPECT_EQ(RankOf("dog"), 0);
}

TEST_F(Ranking, HighAndLowFrequenciesStandInOrder) {
  const std::vector<int> counts = {2047, 2048, 2049, 1, 4096, 100'000, 70'000, 2048, 4'200'000};
  for (std::size_t i = 0; i < counts.size(); ++i) {
    Add(std::string("word") + static_cast<char>('a' + i), counts[i]);
  }
  Finish();
  EXPECT_THAT(ByRank(), ElementsAre("wordi", "wordf", "wordg", "worde", "wordc", "wordb", "wordh",
                                    "worda", "wordd"));
}

TEST_F(Ranking, ManyWordsOfOneFrequencyKeepTheAlphabet) {
  for (int i = 0; i < 3000; ++i) {
    std::string word = "w";
    for (int divisor = 400; divisor > 0; divisor /= 20) {
      word += static_cast<char>('a' + i / divisor % 20);
    }
    Add(word);
  }
  Finish();
  for (std::size_t i = 0; i < ranking.byRank.size(); ++i) {
    ASSERT_EQ(ranking.byRank[i], static_cast<std::int32_t>(i + 1));
  }
}

TEST_F(Ranking, OnSeveralThreadsIsThatOfOne) {
  constexpr std::uint32_t kWords = 100'000;
  for (std::uint32_t i = 0; i < kWords; ++i) {
    std::string word = "w";
    for (std::uint32_t rest = i; rest > 0; rest /= 16) word += static_cast<char>('a' + rest % 16);
    const auto place = store.AddWord(word);
    store.CountWordAt(*place, static_cast<std::int32_t>(i * 7'919 % 5'000));
  }
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); index += 10) {
    store.SetIncluded(index, false);
  }
  const FrequencyRanking expected = RankByFrequency(store);
  for (const std::size_t threads : {2U, 3U, 8U}) {
    const FrequencyRanking onThreads = RankByFrequency(store, threads);
    EXPECT_TRUE(onThreads.byRank == expected.byRank) << threads;
    EXPECT_TRUE(onThreads.rankOf == expected.rankOf) << threads;
  }
}

}  // namespace
}  // namespace quillomat
