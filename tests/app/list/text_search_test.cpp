// What is looked for in the output text box is found by the rule of the list.
#include "app/list/text_search.h"

#include <gtest/gtest.h>
#include <string>

#include "app/table/row_filter.h"

namespace quillomat {
namespace {

constexpr KeyRule kWestern{};
constexpr KeyRule kAll{.letters = LetterRule::kAll};

/// The text with brackets round its places.
std::string Found(std::string text, std::string_view wanted, KeyRule rule = kWestern) {
  const std::vector<TextPlace> places = PlacesIn(text, wanted, rule);
  for (auto place = places.rbegin(); place != places.rend(); ++place) {
    text.insert(place->end, "]");
    text.insert(place->begin, "[");
  }
  return text;
}

TEST(TextSearch, LetterCaseAndAccentsCountAsLittleAsInTheList) {
  EXPECT_EQ(Found("1 caf\u00E9\n2 Cafeteria", "cafe"), "1 [caf\u00E9]\n2 [Cafe]teria");
  EXPECT_EQ(Found("1 caf\u00E9\n2 Cafeteria", "CAF\u00C9"), "1 [caf\u00E9]\n2 [Cafe]teria");
}

TEST(TextSearch, UmlautsAreTheTwoLettersThatTheyStandFor) {
  EXPECT_EQ(Found("M\u00FCller mueller", "muel"), "[M\u00FCl]ler [muel]ler");
  EXPECT_EQ(Found("M\u00FCller mueller", "m\u00FCl"), "[M\u00FCl]ler [muel]ler");
  EXPECT_EQ(Found("M\u00FCller muller", "mull"), "M\u00FCller [mull]er");
  EXPECT_EQ(Found("M\u00FCller", "ell"), "M[\u00FCll]er") << "whole characters";
  EXPECT_EQ(Found("\u00FC\u00FC", "eu"), "[\u00FC\u00FC]") << "which do not overlap";
}

TEST(TextSearch, WhereAccentsCountTheyDo) {
  constexpr KeyRule kAccents{.keepAccents = true};
  EXPECT_EQ(Found("Caf\u00E9 cafe", "cafe", kAccents), "Caf\u00E9 [cafe]");
  EXPECT_EQ(Found("Caf\u00E9 cafe", "CAF\u00C9", kAccents), "[Caf\u00E9] cafe");
}

TEST(TextSearch, LettersOfAllLanguagesAreFoundByTheirRule) {
  EXPECT_EQ(Found("\u0141\u00F3d\u017A \u041C\u0438\u0440", "lodz", kAll),
            "[\u0141\u00F3d\u017A] \u041C\u0438\u0440");
  EXPECT_EQ(Found("\u041C\u0438\u0440", "\u043C\u0418", kAll), "[\u041C\u0438]\u0440");
  EXPECT_EQ(Found("cafe\u0301s", "CAF\u00C9", kAll), "[cafe\u0301]s") << "with its mark";
}

TEST(TextSearch, PlacesFollowEachOther) {
  EXPECT_EQ(Found("aaaa a", "aa"), "[aa][aa] a");
  EXPECT_EQ(Found("rank 1  the", "1  t"), "rank [1  t]he") << "over blanks, too";
}

TEST(TextSearch, NothingIsFoundWhereNothingIsLookedFor) {
  EXPECT_TRUE(PlacesIn("cat", "", kWestern).empty());
  EXPECT_TRUE(PlacesIn("", "cat", kWestern).empty());
  EXPECT_TRUE(PlacesIn("cat dog", " \n", kWestern).empty());
  EXPECT_EQ(PlacesIn("a cat", " cat\n", kWestern), PlacesIn("a cat", "cat", kWestern));
  EXPECT_TRUE(PlacesIn("cat", "cats", kWestern).empty());
}

TEST(TextSearch, WordsAreFoundThatTheFilterOfTheTableShows) {
  const RowFilter contains{FilterKind::kContains, {}};
  for (const char* word : {"Stra\u00DFe", "\u00C6ther", "na\u00EFve", "\u0153uvre", "\u00C5se"}) {
    for (const char* typed : {"SS", "ae", "nai", "oeu", "as", "\u00E5", "\u00E6t", "x"}) {
      for (const KeyRule rule : {kWestern, kAll}) {
        RowFilter filter = contains;
        filter.text = typed;
        const std::string key = KeyOfTyped(word, rule);
        EXPECT_EQ(!PlacesIn(word, typed, rule).empty(),
                  WordMatcher(filter, {}, rule).Matches({word, key}))
            << word << ' ' << typed;
      }
    }
  }
}

}  // namespace
}  // namespace quillomat
