// The rule for the letters of all languages, step by step.
#include <gmock/gmock.h>
#include <regex>
#include <string>

#include "engine/normal_text.h"
#include "engine/unicode_traits.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class AllLetters : public EngineFixture {
 protected:
  AllLetters() { UseAllLetters(); }

  static std::string Normal(std::string_view text) {
    std::string scratch;
    return std::string(NormalForm(text, DottedCapitalI::kKept, scratch));
  }
  static std::string Repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (; times > 0; --times) all += text;
    return all;
  }
};

TEST_F(AllLetters, LettersBeyondTheWesternOnesMakeWords) {
  EXPECT_EQ(Count("Łódź, łódź; слово ΛΟΓΟΣ"), "łódź*2 λογοσ слово");
}

TEST_F(AllLetters, WesternRuleCutsThem) {
  choices.letters = LetterRule::kWestern;
  EXPECT_EQ(Count("Łódź, łódź; слово ΛΟΓΟΣ"), "ód*2");
}

TEST_F(AllLetters, ComposedAndDecomposedTextGiveOneList) {
  const std::string composed = Count("Ångström żółć ἄνθρωπος йод 한글 ẖ");
  EXPECT_EQ(Count("A\u030Angstro\u0308m z\u0307o\u0301łc\u0301 α\u0313\u0301νθρωπος и\u0306од "
                  "\u1112\u1161\u11AB\u1100\u1173\u11AF H\u0331"),
            composed);
}

TEST_F(AllLetters, MarksInAnyOrderAreTheSame) {
  KeepAccents();
  EXPECT_EQ(Count("a\u0323\u0302x a\u0302\u0323x ậx"), "ậx*3");
}

TEST_F(AllLetters, MarkBelongsToAWordBehindALetterOnly) {
  EXPECT_EQ(Count("q\u0307x \u0307y 1\u0307z"), "q\u0307x y z");
}

TEST_F(AllLetters, TypographicApostropheIsOne) {
  EXPECT_EQ(Count("don’t don't isn‘t"), "don*2");
  Allow(AllowFlag::kApostrophe);
  EXPECT_EQ(Count("don’t don't donʼt don＇t ‘tis’"), "don't*4 tis");
}

TEST_F(AllLetters, TypographicHyphensAreThatOfTheKeyboardAndDashesAreNone) {
  EXPECT_EQ(Count("well‐known well‑known well-known well–known"), "known well well-known*3");
  EXPECT_EQ(Count("a‐‐b"), "a b") << "two of them separate";
}

TEST_F(AllLetters, WideFormsAndLigaturesAreTheirLetters) {
  EXPECT_EQ(Count("Ｔｈｅ the ﬁnd find ﬀ ﬄ ﬅ"), "ff ffl find*2 st the*2");
}

TEST_F(AllLetters, WhatIsNotSeenIsDropped) {
  EXPECT_EQ(Count("co\u00ADop coop co\u200Dop co\u200Cop co\uFEFFop \u200Fcoop\u200E"), "coop*6");
  EXPECT_EQ(Count("e\u00AD\u0301"), Count("é")) << "what it stood between is composed";
}

TEST_F(AllLetters, DigitsOfAnyScriptCountWhereNumeralsDo) {
  EXPECT_EQ(Count("٣٤ 12 x２"), "x");
  Allow(AllowFlag::kNumerals);
  EXPECT_EQ(Count("٣٤ 12 x２"), "12 x2 ٣٤");
}

TEST_F(AllLetters, SmallLettersAreThoseOfUnicode) {
  EXPECT_EQ(Count("ĄĆĘ ąćę ЖУК жук ԱԲԳ աբգ"), "ąćę*2 жук*2 աբգ*2");
  EXPECT_EQ(Count("İstanbul istanbul"), "istanbul*2");
}

TEST_F(AllLetters, KeyFoldsCaseWhereTheTextKeepsIt) {
  CaseIsSignificant();
  EXPECT_EQ(Count("ΣΟΦΟΣ σοφός ΣΟΦΌΣ"), "ΣΟΦΟΣ*3") << "the final sigma, too";
}

TEST_F(AllLetters, AccentsMakeNoDifferenceForLatinAndGreekOnly) {
  EXPECT_EQ(Count("sąd sad λόγος λογος"), "sąd*2 λόγος*2");
  EXPECT_EQ(Count("й и ё е שָׁלוֹם שלום क का"), "е и й ё שָׁלוֹם שלום क का");
}

TEST_F(AllLetters, LettersThatConsistOfNoOthersFoldAsTheirLike) {
  EXPECT_EQ(Count("Łódź lodz"), "łódź*2");
  for (const char* pair : {"đx dx", "ħx hx", "ıx ix", "ŧx tx", "øx ox", "œx oex", "æx aex",
                           "ßx ssx", "äx aex", "öx oex", "üx uex", "ǿx ox", "ǽx aex"}) {
    Count(pair);
    EXPECT_EQ(store.NumDifferentWords(), 1) << pair;
  }
}

TEST_F(AllLetters, LetterIsLatinOrGreekByItsScriptWhateverItIsCalled) {
  // Below the line, above it, turned, and the micro sign, which folds to a letter of Greek.
  EXPECT_EQ(Count("x\u1D65\u0323 x\u1D65"), "x\u1D65\u0323*2");
  EXPECT_EQ(Count("x\uA770\u0323 x\uA770"), "x\uA770\u0323*2");
  EXPECT_EQ(Count("x\u1D2C\u0323 x\u1D2C"), "x\u1D2C\u0323*2");
  EXPECT_EQ(Count("x\uAB69\u0323 x\uAB69"), "x\uAB69\u0323*2");
  EXPECT_EQ(Count("x\u214E\u0323 x\u214E"), "x\u214E\u0323*2");
  EXPECT_EQ(Count("x\u00B5\u0323 x\u03BC"), "x\u00B5\u0323*2");
  // Letters of Cyrillic, of no script and of Hebrew among them.
  EXPECT_EQ(Count("x\u1D78\u0323 x\u1D78"), "x\u1D78 x\u1D78\u0323");
  EXPECT_EQ(Count("x\uA788\u0323 x\uA788"), "x\uA788 x\uA788\u0323");
  EXPECT_EQ(Count("x\u2135\u0323 x\u2135"), "x\u2135 x\u2135\u0323");
}

TEST_F(AllLetters, AccentsMakeADifferenceIfTheyAreToBeKept) {
  KeepAccents();
  EXPECT_EQ(Count("sąd sad SĄD"), "sad sąd*2");
  choices.letters = LetterRule::kWestern;
  EXPECT_EQ(Count("si sí Si ou où Müller mueller"), "mueller müller ou où si*2 sí");
}

TEST_F(AllLetters, VowelsAreAskedForInLatinWordsOnly) {
  Count("krk być sędź слово кв שלום ŵ hmm");
  EXPECT_EQ(Listed(), "być sędź кв слово שלום");
}

TEST_F(AllLetters, LetterThatTheWesternRuleDoesNotKnowMayBeAVowel) {
  Count("þrð Ðs ŋŋ bwb nəm gbɛ xɔ kĳk mʉ ˈkt ksμ ªb");
  EXPECT_EQ(Listed(), "gbɛ ksμ kĳk mʉ nəm xɔ ªb ˈkt");
}

TEST_F(AllLetters, RomanNumeralsAreLatin) {
  Count("xiv хiv ⅳ");
  EXPECT_EQ(Listed(), "хiv") << "the second begins with a Cyrillic letter";
}

TEST_F(AllLetters, FinalSIsDroppedFromLatinWordsOnly) {
  DropFinalS();
  EXPECT_EQ(Count("żółws cats ős словs"), "cat ős żółw словs");
  EXPECT_EQ(Count("xλs λxs x\u00B5s ℵxs"), "xλs x\u00B5s λxs ℵxs");
}

TEST_F(AllLetters, FinalSIsDroppedFromEveryWordOfLatinLetters) {
  DropFinalS();
  EXPECT_EQ(Count("orðs boþs sáŋs ŋats vətəns ƙafts ʔats"), "boþ orð sáŋ vətən ŋat ƙaft ʔat");
  EXPECT_EQ(Count("nəs gbɛs xɔs kĳs"), "gbɛs kĳs nəs xɔs") << "it may stand behind a vowel";
  CaseIsSignificant();
  EXPECT_EQ(Count("NƏs"), "NƏ") << "as NEs loses it";
}

TEST_F(AllLetters, ListsFollow) {
  Ignore("СЛОВО don’t z\u0307o\u0301łw");
  EXPECT_EQ(Count("слово дело żółw Żółw"), "дело");
  lists = {};
  CountOnly("Łódź");
  EXPECT_EQ(Count("łódź lodz Łódź miasto"), "łódź*2") << "an accent counts, as in every list";
}

TEST_F(AllLetters, ListsMeanWordsInEveryLetterCase) {
  Ignore("της ΤΟΥΣ");
  EXPECT_EQ(Count("της ΤΗΣ Της τους ΤΟΥΣ τουσ τής"), "τής");
  CaseIsSignificant();
  EXPECT_EQ(Count("της ΤΗΣ Της τους ΤΟΥΣ τουσ ΤΉΣ"), "ΤΉΣ");
  CountOnly("wiſſen \u00B5m σ");
  EXPECT_EQ(Count("WISSEN wissen wiſſen ΜM μm ς Σ wisse"), "WISSEN*3 ΜM*2 ς*2");
}

TEST_F(AllLetters, WordsFileMeansItsOwnWordsInEveryLetterCase) {
  EXPECT_EQ(ReadList({"ΤΟΥΣ τους", "Πως"}), "πως τουσ*2");
  lists.CountOnlyList = StoredList();
  EXPECT_EQ(Count("ΤΟΥΣ τους Τους ΠΩΣ πως τον"), "πωσ*2 τουσ*3");
}

TEST_F(AllLetters, WordsFilesFollow) {
  EXPECT_EQ(ReadList({"Łódź, ’tis /* слово */", "дело ＷＩＤＥ"}), "łódź tis wide дело");
}

TEST_F(AllLetters, CommentMarkersMayBeOfAnyLetters) {
  UseMarkers("НАЧ", "КОН");
  EXPECT_EQ(Count("раз нач два кон три Нач четыре"), "раз три");
}

// In no page and no program: a page may hold one alone, which would hide the rest.
TEST_F(AllLetters, WideSignsAreNoMarkupUnlessTheyAreNamed) {
  UsePreset("HTML");
  EXPECT_EQ(Count("la ＜lb＞ <p> lc ＜ ld ＆le； lf"), "la lb lc ld le lf");
  UsePreset("");
  UseMarkers("＜", "＞");
  EXPECT_EQ(Count("la ＜lb＞ <lc> ld"), "la lc ld");
}

TEST_F(AllLetters, WideSignsThatWordsMayHaveAreThoseOfTheKeyboard) {
  AllowEverything();
  EXPECT_EQ(Count("a－b＇c＿d：e＼f／g（h）i．j，k＠l２"), "a-b'c_d:e\\f/g(h)i.j,k@l2");
}

TEST_F(AllLetters, ManyMarksStayOnTheirLetter) {
  const std::string marks = Repeated("\u0301\u0323", 100'000);  // for ever, if it were quadratic
  Count("e" + marks + " e" + marks);
  EXPECT_EQ(wordsRead, 2) << "a word has 65,000 characters at most, and the rest begins none";
  EXPECT_EQ(Count("e" + Repeated("\u0301", 50) + "x"), "é" + Repeated("\u0301", 49) + "x");
}

TEST_F(AllLetters, CharactersWithoutMeaningSeparateWords) {
  EXPECT_EQ(Count("a\U000E0001b c\U0010FFFFd e\uE000f g\uFFFDh"), "a b c d e f g h");
}

TEST_F(AllLetters, TextInNormalFormIsNotCopied) {
  std::string scratch;
  const std::string text = "Łódź слово λόγος «漢字» — “x”";
  EXPECT_EQ(NormalForm(text, DottedCapitalI::kLowered, scratch).data(), text.data());
  EXPECT_EQ(Normal("ΑΙ\u0387 x"), "ΑΙ· x");
}

TEST(UnicodeVersion, HasThreeNumbers) {
  EXPECT_TRUE(std::regex_match(std::string(UnicodeVersion()), std::regex(R"(\d+\.\d+\.\d+)")));
}

}  // namespace
}  // namespace quillomat
