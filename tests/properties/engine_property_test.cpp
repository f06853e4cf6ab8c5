// Holds the program's engine and listing against the literal engine: the same case must have the
// same outcome, to the letter. A case that fails is made as small as it can be and printed as code.
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#include "properties/count_case.h"
#include "properties/count_outcome.h"
#include "properties/property_cases.h"
#include "reference/literal_engine.h"
#include "sources/marker_fault.h"

namespace quillomat::properties {
namespace {

/// Threads take longer to be made than a case to be counted, so only every so manieth case has
/// them.
constexpr int kCasesPerThreadedCase = 24;
/// Two stores for every line with accents.
constexpr int kCasesPerCaseInParts = 4;
constexpr std::uint64_t kFixedSeed = 707;

struct SlowWays {
  bool inParts = true;
  bool onThreads = true;
};

bool Differs(const CountCase& countCase, const SlowWays& ways = {}) {
  const std::string expected = OutcomeOfReference(countCase);
  return OutcomeOfProgram(countCase, Reading::kByLines) != expected ||
         OutcomeOfProgram(countCase, Reading::kInBlocks) != expected ||
         (ways.inParts && OutcomeOfProgram(countCase, Reading::kInParts) != expected) ||
         (ways.onThreads && OutcomeOfProgram(countCase, Reading::kOnThreads) != expected);
}

CountCase Smallest(CountCase failing) {
  for (bool smaller = true; smaller;) {
    smaller = false;
    for (const CountCase& simpler : SimplerCases(failing)) {
      if (!Differs(simpler)) continue;
      failing = simpler;
      smaller = true;
      break;
    }
  }
  return failing;
}

void CompareRandomCases(std::uint64_t seed) {
  Random random(seed);
  const int cases = CasesPerSeed();
  for (int i = 0; i < cases; ++i) {
    const CountCase countCase = RandomCase(random);
    const SlowWays ways{i % kCasesPerCaseInParts == 0, i % kCasesPerThreadedCase == 0};
    if (!Differs(countCase, ways)) continue;
    const CountCase smallest = Smallest(countCase);
    FAIL() << "seed " << seed << ", case " << i << ":\n"
           << AsCode(smallest) << "\nthe program's outcome by lines:\n"
           << OutcomeOfProgram(smallest, Reading::kByLines) << "\nin blocks:\n"
           << OutcomeOfProgram(smallest, Reading::kInBlocks) << "\nin parts of lines:\n"
           << OutcomeOfProgram(smallest, Reading::kInParts) << "\non threads:\n"
           << OutcomeOfProgram(smallest, Reading::kOnThreads) << "\nthe literal engine's:\n"
           << OutcomeOfReference(smallest);
  }
}

TEST(EngineProperty, CommentMarkersAreRefusedForTheReasonOfTheLiteralEngine) {
  Random random(kFixedSeed);
  for (int i = 0; i < CasesPerSeed(); ++i) {
    const CountCase countCase = RandomCase(random);
    reference::LiteralEngine literal;
    literal.choices = countCase.choices;
    const auto fault = FindMarkerFault(ScanChoicesOf(countCase.choices));
    ASSERT_EQ(fault ? static_cast<int>(fault->kind) + 1 : 0, literal.CheckCommentMarkers())
        << AsCode(countCase);
  }
}

TEST(EngineProperty, OverflowOfAFileIsTheOutcomeOfBoth) {
  constexpr std::size_t kMostInAFile = 32'767;
  std::string line;
  for (std::size_t words = 0; words < kMostInAFile; ++words) line += "dog cat ";
  CountCase countCase;
  countCase.choices.optFolder = true;
  countCase.choices.txbWordsToIgnoreOrCount[1] = "dog";
  countCase.texts.push_back({"", "/books/a.txt", false, {line, "dogs"}});
  EXPECT_EQ(OutcomeOfReference(countCase).find(kOverflow), std::string::npos);
  EXPECT_FALSE(Differs(countCase));
  countCase.texts[0].lines.emplace_back("dog");
  EXPECT_TRUE(OutcomeOfReference(countCase).ends_with(kOverflow));
  EXPECT_FALSE(Differs(countCase));
}

TEST(EngineProperty, RandomCasesOfFixedSeedHaveTheOutcomeOfTheLiteralEngine) {
  CompareRandomCases(kFixedSeed);
}

TEST(EngineProperty, RandomCasesOfFreshSeedHaveTheOutcomeOfTheLiteralEngine) {
  CompareRandomCases(FreshSeed());
}

}  // namespace
}  // namespace quillomat::properties
