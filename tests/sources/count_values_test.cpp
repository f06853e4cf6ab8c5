// The values of a request that can be wrong by themselves: extensions and comment markers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "sources/extension_filter.h"
#include "sources/marker_fault.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

TEST(ParseExtensions, TakesThemAsUsersTypeThem) {
  EXPECT_THAT(ParseExtensions(" *.txt, .htm;xml ,; ?.c *").entries,
              ElementsAre("txt", "htm", "xml", "c"));
  EXPECT_TRUE(ParseExtensions("").entries.empty());
}

TEST(ParseExtensions, KeepsTheFirstHundred) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "e" + std::to_string(i) + " ";
  EXPECT_TRUE(ParseExtensions(text).fits);
  const ParsedExtensions parsed = ParseExtensions(text + "more");
  EXPECT_FALSE(parsed.fits);
  EXPECT_EQ(parsed.entries.size(), 100U);
  EXPECT_EQ(parsed.entries.back(), "e99");
}

TEST(ExtensionFilter, LetsTheOnlyListOverruleTheOther) {
  const ExtensionFilter filter{{"txt"}, {"htm", "txt2"}};
  EXPECT_TRUE(filter.Admits("a.TXT"));
  EXPECT_FALSE(filter.Admits("a.htm"));
  EXPECT_FALSE(filter.Admits("a.doc"));
  EXPECT_FALSE((ExtensionFilter{{"TXT"}, {}}.Admits("a.txt"))) << "entries are taken as typed";
}

TEST(ExtensionFilter, NeverAdmitsWhatIsNeverText) {
  EXPECT_FALSE((ExtensionFilter{{"png"}, {}}.Admits("a.PNG")));
  EXPECT_FALSE(ExtensionFilter{}.Admits("a.386"));
  EXPECT_TRUE(ExtensionFilter{}.Admits("a"));
}

TEST(FindExtensionFault, FindsTheFirst) {
  EXPECT_FALSE(FindExtensionFault({{"txt"}, {"htm"}}));
  const auto both = FindExtensionFault({{"t?t", "txt"}, {"txt"}});
  ASSERT_TRUE(both);
  EXPECT_EQ(both->kind, ExtensionFault::Kind::kBothLists);
  EXPECT_EQ(both->extension, "txt");
  const auto invalid = FindExtensionFault({{"txt"}, {"a.b"}});
  ASSERT_TRUE(invalid);
  EXPECT_EQ(invalid->kind, ExtensionFault::Kind::kInvalidCharacter);
  EXPECT_EQ(invalid->extension, "a.b");
}

class Markers : public testing::Test {
 protected:
  MarkerFault::Kind Fault(std::string start, std::string end, std::string start2 = {},
                          std::string end2 = {}) {
    choices_.startComment = {std::move(start), std::move(start2)};
    choices_.endComment = {std::move(end), std::move(end2)};
    const auto fault = FindMarkerFault(choices_);
    EXPECT_TRUE(fault);
    marker_ = fault ? fault->marker : "";
    return fault ? fault->kind : MarkerFault::Kind{};
  }

  ScanChoices choices_;
  std::string marker_;
};

TEST_F(Markers, MustWork) {
  using Kind = MarkerFault::Kind;
  EXPECT_EQ(Fault("", "", "//", ""), Kind::kNoStart);
  EXPECT_EQ(Fault("/*", "*/", "", "]"), Kind::kEndWithoutStart);
  EXPECT_EQ(Fault("/*", "*/", "|", "|"), Kind::kSame);
  EXPECT_EQ(Fault("/*", "*/", "rem", ""), Kind::kPartOfWord);
  EXPECT_EQ(marker_, "rem");
}

TEST_F(Markers, MayBePartOfWordsByWhatIsAllowedThere) {
  choices_.startComment = {"-", ""};
  EXPECT_FALSE(FindMarkerFault(choices_));
  choices_.allowWordsWith[static_cast<std::size_t>(AllowFlag::kHyphen)] = CheckState::kChecked;
  EXPECT_TRUE(FindMarkerFault(choices_));
}

TEST_F(Markers, MayBePartOfWordsByTheLettersThatAreChosen) {
  for (const std::string_view marker : {"\u0436", "re\u0301m", "\u8A9E"}) {
    choices_.letters = LetterRule::kWestern;
    choices_.startComment = {std::string(marker), ""};
    EXPECT_FALSE(FindMarkerFault(choices_)) << marker;
    choices_.letters = LetterRule::kAll;
    EXPECT_TRUE(FindMarkerFault(choices_)) << marker;
  }
  choices_.startComment = {"\u0301", ""};  // a mark behind no letter
  EXPECT_FALSE(FindMarkerFault(choices_));
}

TEST_F(Markers, MayBeDigitsOfAnyScriptWhereThoseAreWords) {
  choices_.letters = LetterRule::kAll;
  choices_.startComment = {"\u0663", ""};
  EXPECT_FALSE(FindMarkerFault(choices_));
  choices_.allowWordsWith[static_cast<std::size_t>(AllowFlag::kNumerals)] = CheckState::kChecked;
  EXPECT_TRUE(FindMarkerFault(choices_));
}

}  // namespace
}  // namespace quillomat
