// Crafted words cost no more than others, and a seed is never seen in a result.
#include "engine/word_hash.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "engine/token_memo.h"
#include "engine/word_store.h"
#include "support/colliding_words.h"

namespace quillomat {
namespace {

/// So many that nobody waits for them if each is compared with all before it.
constexpr std::size_t kMany = 100'000;

TEST(WordHash, WordsOfTheGeneratorCollideUnderItsSeedAndNoOther) {
  std::set<std::uint64_t> hashes;
  std::set<std::uint64_t> otherHashes;
  const HashSeed other = DrawnHashSeed();
  for (const std::string& word : CollidingWords(1'000)) {
    hashes.insert(LongHashOfWord(word, SeedOfCollidingWords()));
    otherHashes.insert(LongHashOfWord(word, other));
  }
  EXPECT_EQ(hashes.size(), 1U);
  EXPECT_EQ(otherHashes.size(), 1'000U);
}

TEST(WordHash, EverySeedIsAnother) {
  std::set<std::uint64_t> seeds;
  HashSeed seed = DrawnHashSeed();
  for (int i = 0; i < 100; ++i, seed = HashSeedAfter(seed)) {
    seeds.insert(seed.first);
    seeds.insert(seed.second);
  }
  EXPECT_EQ(seeds.size(), 200U);
}

TEST(WordHash, EveryLengthAndEveryByteCounts) {
  const HashSeed seed = DrawnHashSeed();
  std::set<std::uint64_t> hashes;
  std::size_t words = 0;
  for (std::size_t size = 0; size < 70; ++size) {
    const std::string word(size, 'a');
    hashes.insert(LongHashOfWord(word, seed));
    ++words;
    for (std::size_t i = 0; i < size; ++i) {
      std::string changed = word;
      changed[i] = 'b';
      hashes.insert(LongHashOfWord(changed, seed));
      ++words;
    }
  }
  EXPECT_EQ(hashes.size(), words);
}

TEST(WordHash, UpperBitsAreSpreadEvenlyWhateverTheSeed) {
  constexpr std::size_t kPlaces = 1024;
  constexpr std::size_t kWords = kPlaces * 64;
  HashSeed seed;
  for (int round = 0; round < 20; ++round) {
    seed = HashSeedAfter(seed);
    std::vector<std::size_t> hits(kPlaces);
    for (std::size_t i = 0; i < kWords; ++i) ++hits[HashOfWord(InLetters(i, 6), seed) >> 22U];
    for (const std::size_t hit : hits) {
      ASSERT_GT(hit, 16U);
      ASSERT_LT(hit, 160U);
    }
  }
}

TEST(WordHash, StoreThatIsCrowdedTakesAnotherSeed) {
  WordStore store(SeedOfCollidingWords());
  const std::vector<std::string> words = CollidingWords(kMany);
  for (std::size_t i = 0; i < words.size(); ++i) ASSERT_EQ(store.AddWord(words[i]), i);
  EXPECT_EQ(store.SeedChanges(), 1U);
  for (std::size_t i = 0; i < words.size(); ++i) ASSERT_EQ(store.AddWord(words[i]), i);
  EXPECT_EQ(store.NumDifferentWords(), static_cast<std::int32_t>(kMany));
  EXPECT_EQ(store.WordOf(1), words.front());
  EXPECT_EQ(store.WordOf(static_cast<std::int32_t>(kMany)), words.back());
  EXPECT_EQ(store.CountOf(1), 2);
}

TEST(WordHash, OrdinaryWordsNeverCrowdAStore) {
  WordStore store;
  for (std::size_t i = 0; i < kMany; ++i) (void)store.AddWord(InLetters(i, 8));
  EXPECT_EQ(store.SeedChanges(), 0U);
}

/// Under these seeds numbers in letters lay close together when one product made a hash.
TEST(WordHash, AlikeWordsDoNotCrowdAStoreUnderAnUnluckySeed) {
  constexpr HashSeed kUnlucky[] = {{0x4427'2da1'accb'1101, 0x3f17'afed'dd1c'f039},
                                   {0xe943'8ce2'69d4'2c4a, 0x837b'0e1d'ee42'0942},
                                   {0x05ed'717f'a6d0'c7cb, 0x614e'c4c5'b2ef'e478}};
  for (const HashSeed& seed : kUnlucky) {
    WordStore store(seed);
    for (std::size_t i = 0; i < kMany; ++i) (void)store.AddWord(InLetters(i, 8));
    EXPECT_EQ(store.SeedChanges(), 0U);
  }
}

TEST(WordHash, SortedStoreFindsItsWordsAgain) {
  WordStore store(SeedOfCollidingWords());
  for (int round = 0; round < 3; ++round) {
    for (const std::string& word : CollidingWords(3'000)) (void)store.AddWord(word);
    EXPECT_EQ(store.CountOf(3'000), round + 1);
  }
  EXPECT_EQ(store.NumDifferentWords(), 3'000);
}

/// A token that a memo of CrowdedSeed puts where it puts all others of at most eight letters.
TokenMemo::Key KeyIn(TokenMemo& memo, std::size_t number) {
  const std::string token = InLetters(number, 8);
  return memo.KeyOf(token.data(), token.size(), token.size());
}
constexpr HashSeed kCrowdedSeed{0x1234'5678'9ABC'DEF0, 0};

/// In how many places the look-up of a hundred such tokens starts.
std::size_t HomesIn(TokenMemo& memo) {
  std::set<std::uint32_t> homes;
  for (std::size_t number = 0; number < 100; ++number) homes.insert(KeyIn(memo, number).home);
  return homes.size();
}

TEST(WordHash, MemoThatIsCrowdedGoesByAnotherSeedOnceItIsCleared) {
  TokenMemo memo(kCrowdedSeed);
  std::uint32_t next = 0;
  EXPECT_EQ(HomesIn(memo), 1U);
  while (!memo.IsCrowded()) {
    memo.Remember(KeyIn(memo, next), next);
    ASSERT_LT(++next, 1'000U);
  }
  EXPECT_EQ(memo.Find(KeyIn(memo, next - 1)), next - 1);
  memo.Clear();
  EXPECT_FALSE(memo.IsCrowded());
  EXPECT_GT(HomesIn(memo), 10U);
  for (next = 0; next < TokenMemo::kMostTokens; ++next) memo.Remember(KeyIn(memo, next), next);
  EXPECT_FALSE(memo.IsCrowded());
  EXPECT_EQ(memo.Find(KeyIn(memo, 17)), 17U);
}

TEST(WordHash, ResultsAreTheSameUnderEverySeed) {
  std::mt19937_64 random(std::uint64_t{11});
  std::vector<std::string> words;
  for (int i = 0; i < 5'000; ++i) words.push_back(InLetters(random() % 2'000, 1 + random() % 20));
  const auto described = [&words](const HashSeed& seed) {
    WordStore store(seed);
    std::string text;
    for (const std::string& word : words) text += std::to_string(store.AddWord(word).value()) + " ";
    for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
      text.append(store.WordOf(i)).append("*").append(std::to_string(store.CountOf(i))).append(" ");
    }
    return text;
  };
  const std::string expected = described({});
  HashSeed seed = DrawnHashSeed();
  for (int round = 0; round < 50; ++round, seed = HashSeedAfter(seed)) {
    ASSERT_EQ(described(seed), expected);
  }
}

}  // namespace
}  // namespace quillomat
