// Holds the explanation of a text against the count of it: what is explained as counted are the
// words of the count, in the order of the text and as the list spells them; what the lists, the
// store and the filters leave out is explained as left out.
#include <algorithm>
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "base/text_helpers.h"
#include "engine/explain/text_explainer.h"
#include "engine/token_taker.h"
#include "engine/word_scanner.h"
#include "properties/count_case.h"
#include "properties/count_outcome.h"
#include "properties/property_cases.h"
#include "sources/counter.h"

namespace quillomat::properties {
namespace {

constexpr std::uint64_t kExplainedSeed = 1607;

/// A random case as one text of the clipboard.
struct ExplainedCase {
  explicit ExplainedCase(const CountCase& from)
      : scan(ScanChoicesOf(from)), filters(FilterChoicesOf(from.choices)) {
    for (const CaseText& part : from.texts) {
      for (const std::string& line : part.lines) text += line + "\r\n";
    }
    const auto typed = [&](int kind) {
      const std::string& words =
          from.choices.txbWordsToIgnoreOrCount[static_cast<std::size_t>(kind)];
      return WordList(ParseTypedWords(words, scan.letters, scan.makeSegmenter).items, scan.letters);
    };
    const auto ofFile = [&](std::size_t kind) {
      const std::string words = JoinWithBlanks(from.wordsFiles[kind]);
      return WordList(ParseTypedWords(words, scan.letters, scan.makeSegmenter).items, scan.letters);
    };
    lists = {ofFile(0), typed(0), ofFile(1), typed(1)};
  }

  std::string text;
  ScanChoices scan;
  FilterChoices filters;
  WordLists lists;
};

class NeverStopping final : public ScanYield {
 public:
  bool Yield() override { return false; }
};

struct WordsInOrder {
  std::vector<std::string> words;
  std::int32_t read = 0;
};

/// What the scanner and the filters count.
WordsInOrder Count(const ExplainedCase& of) {
  ScanSettings settings;
  settings.CountOnlyMode = of.lists.HasCountOnlyWords();
  settings.SetAllowWordsFlags(of.scan);
  settings.BuildExtraWordChars();
  settings.SetCommentMarkers(kUserPreset, of.scan);
  WordStore store;
  WordOrderRecorder order;
  store.SetOrderListener(&order);
  NeverStopping yield;
  WordScanner scanner(settings, of.scan, of.lists, store, yield);
  std::string buffer;
  scanner.GetWords(PrepareLine(of.text, IsSet(of.scan.caseSignificant), buffer, of.scan.letters));
  WordsInOrder counted;
  counted.read = scanner.WordsRead();
  for (const std::uint32_t place : order.places) {
    counted.words.emplace_back(store.WordAtPlace(place));
  }
  if (settings.CountOnlyMode) return counted;
  ApplyWordFilters(store, of.filters);
  for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
    if (!store.At(i).Included) std::erase(counted.words, store.At(i).Word);
  }
  return counted;
}

bool WasRead(const Candidate& candidate) {
  using enum CandidateReason;
  constexpr std::array kNeverRead = {kSigns,   kNumerals,   kForeignLetters,
                                     kComment, kSignsAlone, kFragment};
  return candidate.fate != CandidateFate::kCut &&
         std::ranges::find(kNeverRead, candidate.reason) == kNeverRead.end();
}

WordsInOrder Explained(const std::vector<Candidate>& candidates) {
  WordsInOrder explained;
  for (const Candidate& candidate : candidates) {
    explained.read += WasRead(candidate) ? 1 : 0;
    if (candidate.fate == CandidateFate::kCounted) explained.words.push_back(candidate.word);
  }
  return explained;
}

/// By the program's counter, from request to ranking; nothing of what it takes for no text.
std::map<std::string, std::int32_t> ListedByCounter(const ExplainedCase& of) {
  CountRequest request;
  request.source = TextOfClipboard{of.text};
  request.scan = of.scan;
  request.filters = of.filters;
  request.lists = of.lists;
  CountResult result = Counter(request).Run();
  std::map<std::string, std::int32_t> listed;
  if (result.end != CountEnd::kComplete) return listed;
  result.Rank(request.filters);
  for (std::int32_t i = 1; i <= result.store.NumDifferentWords(); ++i) {
    const WordRec record = result.store.At(i);
    if (record.Included) listed.emplace(record.Word, record.Count);
  }
  return listed;
}

/// Every candidate by the western rule is a piece of the text, each behind the one before.
void ExpectPiecesOfText(const ExplainedCase& of, const std::vector<Candidate>& candidates) {
  if (of.scan.letters == LetterRule::kAll) return;
  std::size_t position = 0;
  for (const Candidate& candidate : candidates) {
    const std::size_t found = of.text.find(candidate.text, position);
    ASSERT_NE(found, std::string::npos) << candidate.text << " is not in the text in its turn";
    position = found + (candidate.fate == CandidateFate::kCut ? 0 : candidate.text.size());
  }
}

void ExpectReasons(const std::vector<Candidate>& candidates) {
  for (const Candidate& candidate : candidates) {
    EXPECT_FALSE(candidate.text.empty());
    EXPECT_EQ(candidate.reason == CandidateReason::kNone, candidate.fate == CandidateFate::kCounted)
        << candidate.text;
    const bool betweenLetters = candidate.reason == CandidateReason::kUnspaced;
    EXPECT_EQ(candidate.fate == CandidateFate::kCut && candidate.word.empty(), betweenLetters)
        << candidate.text;
  }
}

void CheckExplanation(const CountCase& countCase) {
  const ExplainedCase explainedCase(countCase);
  const std::vector<Candidate> candidates = ExplainText(explainedCase.text, explainedCase.scan,
                                                        explainedCase.filters, explainedCase.lists)
                                                .candidates;
  const WordsInOrder counted = Count(explainedCase);
  const WordsInOrder explained = Explained(candidates);
  EXPECT_EQ(explained.words, counted.words);
  EXPECT_EQ(explained.read, counted.read);
  ExpectReasons(candidates);
  ExpectPiecesOfText(explainedCase, candidates);
  std::map<std::string, std::int32_t> listed;
  for (const std::string& word : explained.words) ++listed[word];
  const auto byCounter = ListedByCounter(explainedCase);
  if (!byCounter.empty()) {
    EXPECT_EQ(listed, byCounter);
  }
}

void CheckRandomExplanations(std::uint64_t seed) {
  Random random(seed);
  const int cases = CasesPerSeed();
  for (int i = 0; i < cases; ++i) {
    const CountCase countCase = RandomCase(random);
    CheckExplanation(countCase);
    if (testing::Test::HasFailure()) {
      FAIL() << "seed " << seed << ", case " << i << ":\n" << AsCode(countCase);
    }
  }
}

TEST(ExplainProperty, RandomTextsOfFixedSeedAreExplainedAsTheyAreCounted) {
  CheckRandomExplanations(kExplainedSeed);
}

TEST(ExplainProperty, RandomTextsOfFreshSeedAreExplainedAsTheyAreCounted) {
  CheckRandomExplanations(FreshSeed());
}

}  // namespace
}  // namespace quillomat::properties
