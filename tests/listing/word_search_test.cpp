#include "listing/word_search.h"

#include <gtest/gtest.h>

#include "engine/word_filters.h"

namespace quillomat {
namespace {

class WordSearch : public testing::Test {
 protected:
  /// By frequency: emu (3), M\u00FCll (2), then ant, cat, zoo.
  WordSearch() {
    for (const char* word : {"emu", "emu", "emu", "M\u00FCll", "M\u00FCll", "zoo", "cat", "ant"}) {
      store.AddWord(word);
    }
    Rank();
  }
  void Rank() {
    totals = store.TallyWords();
    ranking = RankByFrequency(store);
  }
  /// The word that is found, with "=" if it is what was looked for; "" for none.
  std::string Found(WordOrder order, std::int32_t shown, std::string_view text) {
    const auto found = FindBelow({store, ranking, totals}, order, shown, text);
    if (!found) return {};
    return (found->isTheWord ? "=" : "") + std::string(store.WordOf(found->place));
  }

  static constexpr auto kByRank = WordOrder::kByFrequency;
  WordStore store;
  WordTotals totals;
  FrequencyRanking ranking;
};

TEST_F(WordSearch, LooksOnlyBelowWhatIsShown) {
  EXPECT_EQ(Found(kByRank, 2, "cat"), "=cat");
  EXPECT_EQ(Found(kByRank, 4, "cat"), "");
  EXPECT_EQ(Found(kByRank, 1, "emu"), "");
  EXPECT_EQ(Found(WordOrder::kAlphabetical, 2, "emu"), "=emu");
  EXPECT_EQ(Found(WordOrder::kAlphabetical, 3, "emu"), "");
}

TEST_F(WordSearch, FirstWordOfTheListIsTakenWhereNoneIsTheWordItself) {
  EXPECT_EQ(Found(kByRank, 0, "u"), "emu");
  EXPECT_EQ(Found(kByRank, 1, "u"), "M\u00FCll");
  EXPECT_EQ(Found(kByRank, 2, "t"), "ant");
  EXPECT_EQ(Found(WordOrder::kAlphabetical, 1, "t"), "cat");
}

TEST_F(WordSearch, KeysAreCompared) {
  EXPECT_EQ(Found(kByRank, 0, "muell"), "=M\u00FCll");
  EXPECT_EQ(Found(kByRank, 0, "Muell"), "");
  EXPECT_EQ(Found(kByRank, 0, ""), "");
}

TEST_F(WordSearch, WordsThatAreNotListedOrNotRankedAreNotFound) {
  store.SetIncluded(2, false);  // cat
  Rank();
  EXPECT_EQ(Found(kByRank, 0, "cat"), "");
  EXPECT_EQ(Found(WordOrder::kAlphabetical, 1, "zoo"), "=zoo");
  store.AddWord("yak");
  EXPECT_EQ(Found(kByRank, 0, "zoo"), "");
}

}  // namespace
}  // namespace quillomat
