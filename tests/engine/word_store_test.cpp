// The store of different words.
#include "engine/word_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::Pair;

class WordStoreTest : public EngineFixture {
 protected:
  void Add(std::initializer_list<std::string_view> words) {
    for (const std::string_view word : words) store.AddWord(word);
  }
};

/// A word that no other number has: "waab" and so on.
std::string NumberedWord(int number) {
  std::string word = "w";
  for (int divisor = 26 * 26; divisor > 0; divisor /= 26) {
    word += static_cast<char>('a' + number / divisor % 26);
  }
  return word;
}

class RememberedWords final : public NewWordListener {
 public:
  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override {
    words.emplace_back(word, numDifferentWords);
  }
  std::vector<std::pair<std::string, std::int32_t>> words;
};

TEST_F(WordStoreTest, LetterCaseMakesNoDifferentWord) {
  Add({"The", "the", "THE"});
  EXPECT_EQ(Words(), "The*3");
}

TEST_F(WordStoreTest, AccentsMakeNoDifferentWord) {
  Add({"café", "cafe", "Café"});
  EXPECT_EQ(Words(), "café*3");
}

TEST_F(WordStoreTest, UmlautMeetsItsTwoLetters) {
  Add({"Müller", "Mueller"});
  EXPECT_EQ(Words(), "Müller*2");
  EXPECT_EQ(store.At(1).SortKey, "mueller");
}

TEST_F(WordStoreTest, ShowsTheSpellingFirstMet) {
  Add({"cafe", "Café"});
  EXPECT_EQ(Words(), "cafe*2");
}

TEST_F(WordStoreTest, ThornEthAndSmallOeAreLettersOfTheirOwn) {
  Add({"ðor", "dor", "œuf", "oeuf", "þor"});
  EXPECT_EQ(store.NumDifferentWords(), 5);
}

TEST_F(WordStoreTest, StandsInTheOrderOfTheKeys) {
  Add({"zebra", "ab", "a-b", "Über", "Ufer", "a", "Éclair", "edel", "a'b", "þing"});
  EXPECT_EQ(Words(), "a a'b a-b ab Éclair edel Über Ufer zebra þing");
}

TEST_F(WordStoreTest, WordsThatShareTheirFirstEightLettersStandInOrderToo) {
  Add({"internationally", "international", "internat", "internal", "internationalist"});
  EXPECT_EQ(Words(), "internal internat international internationalist internationally");
}

TEST_F(WordStoreTest, NewWordIsIncludedAndMetOnce) {
  Add({"dog"});
  EXPECT_EQ(store.At(1).Count, 1);
  EXPECT_TRUE(store.At(1).Included);
}

TEST_F(WordStoreTest, GrowsPast500WordsWithoutLosingAny) {
  for (int i = 500; i >= 0; --i) store.AddWord(NumberedWord(i));
  ASSERT_EQ(store.NumDifferentWords(), 501);
  for (int i = 0; i <= 500; ++i) {
    EXPECT_EQ(store.At(i + 1).Word, NumberedWord(i));
    EXPECT_EQ(store.At(i + 1).Count, 1);
  }
}

TEST_F(WordStoreTest, KeepsTheCountsOfManyWords) {
  for (int round = 1; round <= 3; ++round) {
    for (int i = 0; i < 10'000; ++i) {
      if (i % round == 0) store.AddWord(NumberedWord(i));
    }
  }
  ASSERT_EQ(store.NumDifferentWords(), 10'000);
  for (int i = 0; i < 10'000; ++i) {
    const int expected = 1 + (i % 2 == 0 ? 1 : 0) + (i % 3 == 0 ? 1 : 0);
    ASSERT_EQ(store.At(i + 1).Word, NumberedWord(i));
    ASSERT_EQ(store.At(i + 1).Count, expected);
  }
}

TEST_F(WordStoreTest, KeepsMoreWordsThanOneOfItsChunksHolds) {
  constexpr int kWords = 150'000;
  for (int i = kWords - 1; i >= 0; --i) store.AddWord(std::to_string(1'000'000 + i));
  store.AddWord("1000007");
  ASSERT_EQ(store.NumDifferentWords(), kWords);
  for (int i = 0; i < kWords; ++i) {
    ASSERT_EQ(store.WordOf(i + 1), std::to_string(1'000'000 + i));
    ASSERT_EQ(store.CountOf(i + 1), i == 7 ? 2 : 1);
  }
}

TEST_F(WordStoreTest, WordsThatArriveLaterAreIncludedAndLeaveOthersExcluded) {
  Add({"dog", "bee"});
  store.SetIncluded(2, false);
  EXPECT_TRUE(store.IsIncluded(1));
  Add({"ant", "cat", "dog"});
  std::string included;
  for (int i = 1; i <= 4; ++i) included += store.IsIncluded(i) ? '1' : '0';
  EXPECT_EQ(included, "1110");
}

TEST_F(WordStoreTest, GoesOnCountingAfterSomebodyLooked) {
  Add({"dog", "ant"});
  EXPECT_EQ(Words(), "ant dog");
  Add({"dog", "cat"});
  EXPECT_EQ(Words(), "ant cat dog*2");
  Add({"ant"});
  EXPECT_EQ(Words(), "ant*2 cat dog*2");
}

TEST_F(WordStoreTest, CountsManyOccurrencesAtOnce) {
  const std::uint32_t dog = store.AddWord("dog").value();
  const std::uint32_t ant = store.AddWord("ant").value();
  const std::vector<std::uint32_t> places = {dog, ant, dog};
  store.CountWordsAt(places);
  store.CountWordAt(ant, 10);
  EXPECT_EQ(Words(), "ant*12 dog*3");
}

TEST_F(WordStoreTest, CountThatLeavesItsRangeIsAnOverflow) {
  const std::uint32_t dog = store.AddWord("dog").value();
  const std::uint32_t ant = store.AddWord("ant").value();
  store.CountWordAt(dog, std::numeric_limits<std::int32_t>::max() - 2);
  const std::vector<std::uint32_t> places = {ant, dog, ant};
  store.CountWordsAt(places);
  EXPECT_THROW(store.CountWordsAt(places), RunTimeError);
  EXPECT_THROW(store.AddWord("dog"), RunTimeError);
  EXPECT_EQ(store.At(2).Count, std::numeric_limits<std::int32_t>::max());
}

TEST_F(WordStoreTest, CountsThatAreTakenBeginAnew) {
  const auto counted = [this] {
    std::string words;
    for (const auto& [place, times] : store.TakeCountedWords()) {
      words.append(store.WordAtPlace(place)).append("*" + std::to_string(times) + " ");
    }
    return words;
  };
  const std::vector<std::uint32_t> dogAntDog = {0, 1, 0};
  for (const bool noted : {true, false}) {
    store.Clear();
    store.NoteCountedWords(noted);
    Add({"dog", "ant", "dog"});
    EXPECT_EQ(counted(), "dog*2 ant*1 ");
    Add({"ant", "cat"});
    store.CountWordsAt(dogAntDog);
    EXPECT_EQ(counted(), noted ? "ant*2 cat*1 dog*2 " : "dog*2 ant*2 cat*1 ");
    EXPECT_EQ(counted(), "");
  }
}

TEST_F(WordStoreTest, LongWordsAndLongKeysAreKeptWhole) {
  const std::string capitals(30, 'A');
  const std::string longWord(99, 'b');
  const std::string umlauts = "\u00DC\u00DC\u00DC\u00DC\u00DC\u00DC\u00DC\u00DC\u00DC\u00DC";
  Add({longWord, capitals, umlauts, "\u00E4", longWord, umlauts});
  EXPECT_EQ(store.At(1).SortKey, std::string(30, 'a'));
  EXPECT_EQ(store.At(1).Word, capitals);
  EXPECT_EQ(store.At(2).SortKey, "ae");
  EXPECT_EQ(store.At(3).Word, longWord);
  EXPECT_EQ(store.At(4).SortKey, "ueueueueueueueueueue");
  EXPECT_EQ(store.At(4).Count, 2);
}

TEST_F(WordStoreTest, WordOf100CharactersIsStored) {
  store.AddWord(std::string(100, 'a'));
  EXPECT_EQ(store.NumDifferentWords(), 1);
}

TEST_F(WordStoreTest, WordOf101CharactersIsNotStored) {
  store.AddWord(std::string(101, 'a'));
  EXPECT_EQ(store.NumDifferentWords(), 0);
}

TEST_F(WordStoreTest, WordOf101CharactersIsStoredFromAWordsFile) {
  store.AddWord(std::string(101, 'a'), true);
  EXPECT_EQ(store.NumDifferentWords(), 1);
}

TEST_F(WordStoreTest, LongWordLimitCountsCharactersNotBytes) {
  std::string word;
  for (int i = 0; i < 100; ++i) word += "é";
  store.AddWord(word);
  EXPECT_EQ(store.NumDifferentWords(), 1);
  store.AddWord(word + "é");
  EXPECT_EQ(store.NumDifferentWords(), 1);
}

TEST_F(WordStoreTest, TellsOfNewWordsOnly) {
  RememberedWords listener;
  store.SetListener(&listener);
  Add({"dog", "ant", "DOG", "cat"});
  EXPECT_THAT(listener.words, ElementsAre(Pair("dog", 1), Pair("ant", 2), Pair("cat", 3)));
  store.SetListener(nullptr);
  Add({"eel"});
  EXPECT_EQ(listener.words.size(), 3U);
}

TEST_F(WordStoreTest, LongWordIsNoNewWord) {
  RememberedWords listener;
  store.SetListener(&listener);
  store.AddWord(std::string(101, 'a'));
  EXPECT_TRUE(listener.words.empty());
}

TEST_F(WordStoreTest, KeepsWordsWhoseTextIsGone) {
  {
    std::string buffer = "Dog";
    store.AddWord(buffer);
    buffer = "cat";
    store.AddWord(buffer);
  }
  EXPECT_EQ(Words(), "cat Dog");
}

TEST_F(WordStoreTest, ClearEmptiesIt) {
  Add({"dog", "cat"});
  store.Clear();
  EXPECT_EQ(store.NumDifferentWords(), 0);
  EXPECT_EQ(Words(), "");
  Add({"cat"});
  EXPECT_EQ(Words(), "cat");
}

TEST_F(WordStoreTest, TotalsSumTheIncludedWords) {
  Add({"dog", "dog", "dog", "hippopotamus", "hippopotamus", "elephant"});
  const WordTotals totals = store.TallyWords();
  EXPECT_EQ(totals.NumIncludedWords, 3);
  EXPECT_EQ(totals.NumExcludedWords, 0);
  EXPECT_EQ(totals.TotalIncludedCount, 6);
  EXPECT_EQ(totals.MaxCount, 3);
  EXPECT_EQ(totals.MaxWordLength, 12);
}

TEST_F(WordStoreTest, TotalsLeaveOutExcludedWords) {
  Add({"dog", "dog", "dog", "hippopotamus", "elephant"});
  store.SetIncluded(PlaceOf("dog"), false);
  store.SetIncluded(PlaceOf("hippopotamus"), false);
  const WordTotals totals = store.TallyWords();
  EXPECT_EQ(totals.NumIncludedWords, 1);
  EXPECT_EQ(totals.NumExcludedWords, 2);
  EXPECT_EQ(totals.TotalIncludedCount, 1);
  EXPECT_EQ(totals.MaxCount, 1);
  EXPECT_EQ(totals.MaxWordLength, 8);
}

TEST_F(WordStoreTest, TotalsOfAnEmptyStoreAreZero) {
  const WordTotals totals = store.TallyWords();
  EXPECT_EQ(totals.NumIncludedWords, 0);
  EXPECT_EQ(totals.NumExcludedWords, 0);
  EXPECT_EQ(totals.TotalIncludedCount, 0);
  EXPECT_EQ(totals.MaxCount, 0);
  EXPECT_EQ(totals.MaxWordLength, 0);
}

TEST_F(WordStoreTest, LongestWordIsMeasuredInCharacters) {
  Add({"éééé"});
  EXPECT_EQ(store.TallyWords().MaxWordLength, 4);
}

TEST_F(WordStoreTest, WordTooLongForTheTotalsIsAnOverflow) {
  store.AddWord(std::string(32'767, 'a'), true);
  EXPECT_EQ(store.TallyWords().MaxWordLength, 32'767);
  store.AddWord(std::string(32'768, 'b'), true);
  try {
    const WordTotals totals = store.TallyWords();
    FAIL() << "a length of " << totals.MaxWordLength;
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
}

}  // namespace
}  // namespace quillomat
