#include "reference/literal_rules.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "reference/literal_entities.h"
#include "reference/literal_lists.h"

namespace quillomat::reference {
namespace {

TEST(LiteralText, Utf8ComesBackAsItWent) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\x7F";
  EXPECT_EQ(FromUtf8(text).size(), 5U);
  EXPECT_EQ(ToUtf8(FromUtf8(text)), text);
}

TEST(LiteralText, LowerCaseKnowsLatinCapitalsAndFourMore) {
  EXPECT_EQ(LowerCase(U"AZ@[ÀÖØÞ×ßŠŽŒŸĀ"), U"az@[àöøþ×ßšžœÿĀ");
}

TEST(LiteralText, UpperCaseIsTheWayBack) {
  EXPECT_EQ(UpperCase(U"az`{àöøþ÷ßšžœÿā"), U"AZ`{ÀÖØÞ÷ßŠŽŒŸā");
}

TEST(LiteralText, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(Trim(U"  \ta b\u00A0  "), U"\ta b\u00A0");
  EXPECT_EQ(Trim(U"   "), U"");
}

TEST(LiteralText, ReplaceGoesLeftToRightWithoutOverlap) {
  EXPECT_EQ(Replace(U"a---b----c", U"--", U" "), U"a -b  c");
}

TEST(LiteralText, NumbersAreGroupedByThreeDigits) {
  EXPECT_EQ(Grouped(0), U"0");
  EXPECT_EQ(Grouped(999), U"999");
  EXPECT_EQ(Grouped(1000), U"1,000");
  EXPECT_EQ(Grouped(2147483647), U"2,147,483,647");
}

TEST(LiteralRules, WordCharactersAreLettersAndWhatIsAllowed) {
  EXPECT_TRUE(IsWordChar(U"a", false, U""));
  EXPECT_TRUE(IsWordChar(U"Z", false, U""));
  EXPECT_FALSE(IsWordChar(U"", true, U"abc"));
  EXPECT_FALSE(IsWordChar(U"5", false, U""));
  EXPECT_TRUE(IsWordChar(U"5", true, U""));
  EXPECT_TRUE(IsWordChar(U"5", false, U"0123456789"));
  EXPECT_TRUE(IsWordChar(U"-", false, U"'-"));
  EXPECT_FALSE(IsWordChar(U"-", true, U""));
}

TEST(LiteralRules, AccentedLettersAreWordCharactersAndSignsAreNot) {
  for (const char32_t ch : Characters(U"éßÿÀÖØöøþŸ")) {
    EXPECT_EQ(IsWordChar(Characters(1, ch), false, U""), ch <= 255) << static_cast<unsigned>(ch);
  }
  for (const char32_t ch : Characters(U"×÷\u00BF\u00AA\u0080œŠ€Ω")) {
    EXPECT_FALSE(IsWordChar(Characters(1, ch), false, Characters(1, ch)))
        << static_cast<unsigned>(ch);
  }
}

TEST(LiteralRules, WordCharactersAreCountedUpToSixtyFiveThousand) {
  EXPECT_EQ(CountWordChars(U"ab-c d", 1, false, U""), 2U);
  EXPECT_EQ(CountWordChars(U"ab-c d", 2, false, U"-"), 3U);
  EXPECT_EQ(CountWordChars(U"ab", 3, false, U""), 0U);
  EXPECT_EQ(CountWordChars(Characters(65'001, U'a'), 1, false, U""), 65'000U);
}

TEST(LiteralRules, OnlyTrailingCharactersAreTrimmed) {
  EXPECT_EQ(TrimTrailingChars(U":a:.'", U"-'.,:()"), U":a");
  EXPECT_EQ(TrimTrailingChars(U"--", U"-'.,:()"), U"");
}

TEST(LiteralRules, SuffixIsRemovedOnce) {
  Characters text = U"glass";
  RemoveSuffix(text, U"s");
  EXPECT_EQ(text, U"glas");
  RemoveSuffix(text, U"glass");
  EXPECT_EQ(text, U"glas");
}

TEST(LiteralRules, FinalSIsDroppedAfterConsonants) {
  EXPECT_EQ(ApplyFinalSRule(U"cats"), U"cat");
  EXPECT_EQ(ApplyFinalSRule(U"boys"), U"boy");
  EXPECT_EQ(ApplyFinalSRule(U"news"), U"new");
  EXPECT_EQ(ApplyFinalSRule(U"its"), U"it");
}

TEST(LiteralRules, FinalSStaysWhereItBelongs) {
  for (const Characters word : {U"gas", U"this", U"yes", U"glass", U"physics", U"maths", U"is",
                                U"John's", U"CATS", U"it's", U"PhysICs", U"Maths", U"cafés"}) {
    EXPECT_EQ(ApplyFinalSRule(word), word) << ToUtf8(word);
  }
}

TEST(LiteralRules, FinalSRuleLooksAtCase) {
  EXPECT_EQ(ApplyFinalSRule(U"BAs"), U"BA");
  EXPECT_EQ(ApplyFinalSRule(U"MISs"), U"MIS");
}

TEST(LiteralRules, ContractionStemsMatchByTheirEnds) {
  for (const Characters word : {U"isn", U"couldn", U"n", U"dn", U"ldn", U"en", U"ren", U"Weren"}) {
    EXPECT_TRUE(IsContractionStem(word)) << ToUtf8(word);
  }
  EXPECT_FALSE(IsContractionStem(U"don"));
  EXPECT_FALSE(IsContractionStem(U"won"));
  EXPECT_FALSE(IsContractionStem(U"is"));
}

TEST(LiteralRules, ApostropheFragmentsAreDropped) {
  EXPECT_EQ(ApplyApostropheFragmentRule(U"S"), U"");
  EXPECT_EQ(ApplyApostropheFragmentRule(U"t"), U"");
  EXPECT_EQ(ApplyApostropheFragmentRule(U"isn"), U"");
  EXPECT_EQ(ApplyApostropheFragmentRule(U"don"), U"don");
}

TEST(LiteralRules, SixtyVowelsAndNoY) {
  int vowels = 0;
  int lowerVowels = 0;
  for (char32_t ch = 0; ch < 0x250; ++ch) {
    if (IsVowel(Characters(1, ch), false)) vowels += 1;
    if (IsVowel(Characters(1, ch), true)) lowerVowels += 1;
  }
  EXPECT_EQ(vowels, 60);
  EXPECT_EQ(lowerVowels, 30);
  for (const Characters ch : {U"y", U"Y", U"ý", U"ÿ", U""}) EXPECT_FALSE(IsVowel(ch, false));
  EXPECT_TRUE(IsVowel(U"É", false));
  EXPECT_FALSE(IsVowel(U"É", true));
  EXPECT_TRUE(IsVowel(U"éx", true));
}

TEST(LiteralRules, GermanLettersBecomeTwo) {
  EXPECT_EQ(SortKeyOf(U"Müller"), U"mueller");
  EXPECT_EQ(SortKeyOf(U"Mueller"), U"mueller");
  EXPECT_EQ(FoldAccents(U"Ærø"), U"Aero");
  EXPECT_EQ(FoldAccents(U"ŒÄÆÖÜäæöüß"), U"OeAeAeOeUeaeaeoeuess");
}

TEST(LiteralRules, FiftyNineAccentsFallAndFourLettersStay) {
  int changed = 0;
  for (char32_t ch = 128; ch < 0x250; ++ch) {
    const Characters text(1, ch);
    if (RemoveAccents(text) != text) changed += 1;
  }
  EXPECT_EQ(changed, 59);
  EXPECT_EQ(FoldAccents(U"ðþÞœ"), U"ðþÞœ");
  EXPECT_EQ(FoldAccents(U"ÐÑÿŸšŠÝý"), U"DNyYsSYy");
}

TEST(LiteralRules, RepetitionsAreOfOneCharacter) {
  EXPECT_TRUE(IsRepetition(U"bbb"));
  EXPECT_TRUE(IsRepetition(U"a"));
  EXPECT_FALSE(IsRepetition(U"Bbb"));
  EXPECT_FALSE(IsRepetition(U""));
}

TEST(LiteralRules, RomanNumeralsAreTestedByTheirLetters) {
  for (const Characters word : {U"XIV", U"xiv", U"VIX", U"I", U"IIII", U"VV", U"XIVX"}) {
    EXPECT_TRUE(IsRomanNumeral(word, true)) << ToUtf8(word);
  }
  for (const Characters word : {U"XL", U"MIX", U"LI"}) {
    EXPECT_FALSE(IsRomanNumeral(word, true)) << ToUtf8(word);
    EXPECT_TRUE(IsRomanNumeral(word, false)) << ToUtf8(word);
  }
  for (const Characters word :
       {U"dim", U"Mid", U"VIM", U"CID", U"LID", U"LIVID", U"civil", U"DILL"}) {
    EXPECT_FALSE(IsRomanNumeral(word, false)) << ToUtf8(word);
  }
}

TEST(LiteralRules, WordsLackVowelsWithOrWithoutY) {
  for (const Characters word : {U"by", U"gym", U"rhythm"}) {
    EXPECT_FALSE(LacksVowel(word, true)) << ToUtf8(word);
    EXPECT_TRUE(LacksVowel(word, false)) << ToUtf8(word);
  }
  for (const Characters word : {U"hmm", U"www", U"3", U"ýÿ", U""}) {
    EXPECT_TRUE(LacksVowel(word, true)) << ToUtf8(word);
  }
}

TEST(LiteralEntities, EntitiesEndAtTheirSemicolon) {
  EXPECT_EQ(HtmlEntityEnd(U"&#8212; x"), 7U);
  EXPECT_EQ(HtmlEntityEnd(U"&nbsp;"), 6U);
  EXPECT_EQ(HtmlEntityEnd(U"&lt;"), 4U);
  EXPECT_EQ(HtmlEntityEnd(U"&abcdefghijklmnopqr;"), 20U);
  EXPECT_EQ(HtmlEntityEnd(U"&abcdefghijklmnopqrs;"), 0U);
}

TEST(LiteralEntities, OtherAmpersandsAreNone) {
  EXPECT_EQ(HtmlEntityEnd(U"&T; more"), 0U);
  EXPECT_EQ(HtmlEntityEnd(U"& more;"), 0U);
  EXPECT_EQ(HtmlEntityEnd(U"&mo re;"), 0U);
  EXPECT_EQ(HtmlEntityEnd(U"&1234;"), 0U);
  EXPECT_EQ(HtmlEntityEnd(U"&lt"), 0U);
  EXPECT_EQ(HtmlEntityEnd(U"x&lt;"), 0U);
}

Characters Decoded(Characters text) {
  DecodeHtmlEntities(text);
  return text;
}

TEST(LiteralEntities, LetterEntitiesAreDecoded) {
  EXPECT_EQ(Decoded(U"caf&eacute;&yuml;&AElig;&szlig;"), U"caféÿÆß");
}

TEST(LiteralEntities, SixtyTwoLettersHaveAnEntity) {
  // Every Latin-1 letter has one, by its name in small and capital letters.
  const Characters names =
      U"AElig Aacute Acirc Agrave Aring Atilde Auml Ccedil ETH Eacute Ecirc Egrave Euml Iacute "
      U"Icirc "
      U"Igrave Iuml Ntilde Oacute Ocirc Ograve Oslash Otilde Ouml THORN Uacute Ucirc Ugrave Uuml "
      U"Yacute aacute acirc aelig agrave aring atilde auml ccedil eacute ecirc egrave eth euml "
      U"iacute "
      U"icirc igrave iuml ntilde oacute ocirc ograve oslash otilde ouml szlig thorn uacute ucirc "
      U"ugrave uuml yacute yuml";
  std::vector<Characters> name(100);
  ASSERT_EQ(SplitList(names, U' ', name), 62);
  Characters letters;
  for (std::size_t i = 0; i < 62; ++i) {
    const Characters letter = Decoded(U"&" + name[i] + U";");
    EXPECT_EQ(letter.size(), 1U) << ToUtf8(name[i]);
    EXPECT_TRUE(IsWordChar(letter, false, U"")) << ToUtf8(name[i]);
    EXPECT_EQ(InStr(1, letters, letter), 0U) << ToUtf8(name[i]);
    letters += letter;
  }
}

TEST(LiteralEntities, OtherEntitiesStay) {
  for (const Characters text : {U"&AMP; &Eacute", U"&amp;&nbsp;&#233;", U"&EACUTE;", U"a & b"}) {
    EXPECT_EQ(Decoded(text), text) << ToUtf8(text);
  }
}

TEST(LiteralEntities, AnAmpersandBeforeAnEntityHidesIt) {
  EXPECT_EQ(Decoded(U"AT&T caf&eacute; caf&eacute;"), U"AT&T caf&eacute; café");
}

TEST(LiteralLists, RepeatedSeparatorsMakeNoEmptyItems) {
  std::vector<Characters> items(10);
  EXPECT_EQ(SplitList(U"  a   b ", U' ', items), 2);
  EXPECT_EQ(items[0], U"a");
  EXPECT_EQ(items[1], U"b");
  EXPECT_EQ(SplitList(U"", U' ', items), 0);
}

TEST(LiteralLists, UnsortedListsAreComparedExactly) {
  const std::vector<Characters> list = {U"", U"the", U"Dog", U"a"};
  EXPECT_TRUE(IsInList(U"a", list, 1, 3, false));
  EXPECT_FALSE(IsInList(U"a", list, 1, 2, false));
  EXPECT_FALSE(IsInList(U"dog", list, 1, 3, false));
  EXPECT_FALSE(IsInList(U"", list, 1, 3, false));
  EXPECT_FALSE(IsInList(U"a", list, 1, 0, false));
}

TEST(LiteralLists, SortedSearchEndsAtTheFirstGreaterKey) {
  const std::vector<Characters> list = {U"", U"a", U"z", U"été", U"b"};
  EXPECT_TRUE(IsInList(U"z", list, 1, 4, true));
  EXPECT_FALSE(IsInList(U"b", list, 1, 4, true));
  EXPECT_FALSE(IsInList(U"été", list, 1, 4, true));
  EXPECT_TRUE(IsInList(U"été", list, 3, 2, true));
  EXPECT_FALSE(IsInList(U"ete", list, 3, 2, true));
}

}  // namespace
}  // namespace quillomat::reference
