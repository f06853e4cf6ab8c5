// Holds the engine's knowledge of letters against the literal engine's, for every character there
// is, between letters that it may be composed with.
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"
#include "engine/fold_accents.h"
#include "engine/normal_text.h"
#include "engine/unicode_traits.h"
#include "engine/word_list.h"
#include "engine/word_rules.h"
#include "reference/literal_letters.h"

namespace quillomat::properties {
namespace {

namespace literal = reference;

template <typename Check>
void ForEveryCharacter(Check check) {
  constexpr char32_t kBehindAssigned = 0xE0200;
  for (char32_t character = 1; character < kBehindAssigned; ++character) {
    if (character == 0x34000) character = 0xE0000;
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    check(character);
    if (testing::Test::HasFailure()) return;
  }
}

std::string Hex(char32_t character) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex;
  for (auto rest = static_cast<std::uint32_t>(character); rest > 0; rest /= 16) {
    hex.insert(0, 1, kDigits[rest % 16]);
  }
  return "U+" + hex;
}

TEST(Letters, NormalFormIsThatOfTheLiteralEngineForEveryCharacter) {
  ForEveryCharacter([](char32_t character) {
    const literal::Characters text = {U'e', character, U'\u0323', U'x', U'I', character};
    std::string scratch;
    EXPECT_EQ(NormalForm(literal::ToUtf8(text), DottedCapitalI::kKept, scratch),
              literal::ToUtf8(literal::NormalForm(text)))
        << Hex(character);
    EXPECT_EQ(NormalLowerCase(literal::ToUtf8(text)),
              literal::ToUtf8(literal::NormalLowerCase(text)))
        << Hex(character);
  });
}

TEST(Letters, KindsAndKeysAreThoseOfTheLiteralEngineForEveryCharacter) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  ForEveryCharacter([&](char32_t character) {
    EXPECT_EQ(traits.Is(character, CodePointTraits::kLetter), literal::IsAnyLetter(character))
        << Hex(character);
    EXPECT_EQ(traits.Is(character, CodePointTraits::kMark), literal::IsAnyMark(character))
        << Hex(character);
    EXPECT_EQ(traits.Is(character, CodePointTraits::kDigit), literal::IsAnyDigit(character))
        << Hex(character);
    const literal::Characters word = {character, U'\u0301', U'e', character};
    EXPECT_EQ(FoldAccentsOfAll(literal::ToUtf8(word)),
              literal::ToUtf8(literal::FoldAccentsOfAll(word)))
        << Hex(character);
    const std::string normal = literal::ToUtf8(literal::NormalForm(word));
    std::string scratch;
    EXPECT_EQ(SortKeyOf(normal, {LetterRule::kAll, true}, scratch),
              literal::ToUtf8(literal::FoldCaseOfAll(literal::NormalForm(word))))
        << Hex(character);
  });
}

TEST(Letters, RulesForLatinLettersAreThoseOfTheLiteralEngineForEveryCharacter) {
  ForEveryCharacter([](char32_t character) {
    const literal::Characters normal = literal::NormalForm({character});
    for (const literal::Characters& word : {normal + U"ks", U"k" + normal + U"s"}) {
      const std::string utf8 = literal::ToUtf8(word);
      EXPECT_EQ(DropFinalS(utf8, LetterRule::kAll),
                literal::ToUtf8(literal::ApplyFinalSRuleOfAll(word)))
          << Hex(character);
      EXPECT_EQ(LacksVowel(utf8, true, LetterRule::kAll), literal::LacksVowelOfAll(word, true))
          << Hex(character);
    }
  });
}

TEST(Letters, ListMeansItsWordsInEveryLetterCaseForEveryCharacter) {
  ForEveryCharacter([](char32_t character) {
    const literal::Characters word = literal::NormalForm({U'x', character});
    const std::string small = literal::ToUtf8(literal::NormalLowerCase(word));
    const WordList list({small}, LetterRule::kAll);
    EXPECT_TRUE(list.IsInList(literal::ToUtf8(word))) << Hex(character);
    EXPECT_TRUE(WordList({literal::ToUtf8(word)}, LetterRule::kAll).IsInList(small))
        << Hex(character);
  });
}

}  // namespace
}  // namespace quillomat::properties
