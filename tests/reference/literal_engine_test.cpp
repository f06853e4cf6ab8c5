// Settings, word extraction and word lists of the literal engine.
#include <limits>

#include "reference/literal_fixture.h"

namespace quillomat::reference {
namespace {

using Flags = std::array<bool, LiteralEngine::kNumFlags>;

TEST_F(LiteralEngineTest, DefaultsAllowHyphensOnly) {
  EXPECT_EQ(Count("well-known don't 3rd a_b e.g. x@y"), "a b don e g rd well-known x y");
  EXPECT_EQ(engine.ExtraWordChars, U"-");
}

TEST_F(LiteralEngineTest, EveryFlagPutsItsCharactersInFront) {
  AllowEverything();
  Begin();
  EXPECT_EQ(engine.ExtraWordChars, U"0123456789@,.()/\\:_'-");
}

TEST_F(LiteralEngineTest, ReadingAListAllowsEverything) {
  engine.ReadingWordList = true;
  engine.choices.chkAllowWordsWithHyphens = 0;
  engine.SetAllowWordsFlags();
  Flags all;
  all.fill(true);
  EXPECT_EQ(engine.AllowFlags, all);
}

TEST_F(LiteralEngineTest, GreyBoxCountsAsClear) {
  engine.choices.chkAllowWordsWithHyphens = 2;
  EXPECT_EQ(Count("e-mail"), "e mail");
  EXPECT_EQ(engine.ExtraWordChars, U"");
}

TEST_F(LiteralEngineTest, NothingAllowedCutsAtHyphensAndDigits) {
  engine.choices.chkAllowWordsWithHyphens = 0;
  EXPECT_EQ(Count("e-mail 3rd"), "e mail rd");
}

TEST_F(LiteralEngineTest, NumeralsAllowedKeepOrdinals) {
  engine.choices.chkAllowWordsWithNumerals = 1;
  EXPECT_EQ(Count("3rd"), "3rd");
}

TEST_F(LiteralEngineTest, MultiplicationAndDivisionSignsEndWords) {
  EXPECT_EQ(Count("a×b c÷d aéßÿb"), "a aéßÿb b c d");
}

TEST_F(LiteralEngineTest, PresetsAreNamedExactly) {
  engine.SetCommentMarkers("HTML");
  EXPECT_EQ(engine.CommentStart, (std::array<Characters, 2>{U"<", U"&"}));
  EXPECT_EQ(engine.CommentEnd, (std::array<Characters, 2>{U">", U";"}));
  engine.SetCommentMarkers("C");
  EXPECT_EQ(engine.CommentStart, (std::array<Characters, 2>{U"/*", U"//"}));
  EXPECT_EQ(engine.CommentEnd, (std::array<Characters, 2>{U"*/", U""}));
  engine.SetCommentMarkers("");
  EXPECT_EQ(engine.CommentStart, (std::array<Characters, 2>{}));
  EXPECT_EQ(engine.CommentEnd, (std::array<Characters, 2>{}));
  engine.choices.txbStartComment = {"(*", "#"};
  engine.choices.txbEndComment = {"*)", "~"};
  engine.SetCommentMarkers("html");
  EXPECT_EQ(engine.CommentStart, (std::array<Characters, 2>{U"(*", U"#"}));
  EXPECT_EQ(engine.CommentEnd, (std::array<Characters, 2>{U"*)", U"~"}));
}

TEST_F(LiteralEngineTest, MarkersLeaveAnOpenCommentAlone) {
  engine.OpenComment = 1;
  engine.SetCommentMarkers("HTML");
  EXPECT_EQ(engine.OpenComment, 1);
}

TEST_F(LiteralEngineTest, HyphenatedWordIsOne) {
  EXPECT_EQ(Count("well-known"), "well-known");
}

TEST_F(LiteralEngineTest, DoubleHyphenAlwaysSeparatesWords) {
  EXPECT_EQ(Count("well--known up---down -- a----b"), "a b down known up well");
  EXPECT_EQ(engine.WordsRead, 6);
}

TEST_F(LiteralEngineTest, ParenthesesAroundAWordAreNotPartOfIt) {
  EXPECT_EQ(Count("(see)"), "see");
  engine.choices.chkAllowWordsWithParentheses = 1;
  EXPECT_EQ(Count("(see) f(x)"), "f(x see");
}

TEST_F(LiteralEngineTest, ApostrophesInsideStayAndAtTheEndsGo) {
  engine.choices.chkAllowWordsWithApostrophes = 1;
  EXPECT_EQ(Count("rock'n'roll'"), "rock'n'roll");
  EXPECT_EQ(Count("'tis"), "tis");
}

TEST_F(LiteralEngineTest, NumbersKeepTheirPeriods) {
  engine.choices.chkAllowWordsWithNumerals = 1;
  engine.choices.chkAllowWordsWithPeriods = 1;
  EXPECT_EQ(Count("3.14."), "3.14");
}

TEST_F(LiteralEngineTest, AllowedSignsMayBeginAWordExceptSix) {
  AllowEverything();
  EXPECT_EQ(Count("-a 'b .c ,d (e :f _g \\h /i @j 7k"), "/i 7k :f @j \\h _g a b c d e");
}

TEST_F(LiteralEngineTest, OneCharacterWithoutABlankHoldsNoWord) {
  Begin();
  engine.LineBuffer = U"a";
  engine.GetWords();
  EXPECT_EQ(engine.NumDifferentWords, 0);
  engine.LineBuffer = U"ab";
  engine.GetWords();
  EXPECT_EQ(Stored(), "ab");
}

TEST_F(LiteralEngineTest, EmptyWordsAreNeitherReadNorStored) {
  engine.choices.chkAllowWordsWithColons = 1;
  EXPECT_EQ(Count(": :: isn't"), "");
  EXPECT_EQ(engine.WordsRead, 0);
}

TEST_F(LiteralEngineTest, FragmentsOfContractionsAreDropped) {
  EXPECT_EQ(Count("weren't n"), "");
  EXPECT_EQ(Count("don't John's won't"), "don john won");
  EXPECT_EQ(engine.WordsRead, 3);
}

TEST_F(LiteralEngineTest, GreyApostropheBoxKeepsFragments) {
  engine.choices.chkAllowWordsWithApostrophes = 2;
  EXPECT_EQ(Count("don't"), "don t");
}

TEST_F(LiteralEngineTest, FinalSRuleActsWhileWordsAreCut) {
  engine.choices.chkDropFinalS = 1;
  engine.choices.chkAllowWordsWithApostrophes = 1;
  EXPECT_EQ(Count("its it's cats"), "cat it it's");
  engine.choices.chkDropFinalS = 2;
  EXPECT_EQ(Count("its"), "its");
}

TEST_F(LiteralEngineTest, WordIsNotTrimmedAgainAfterItsFinalS) {
  engine.choices.chkDropFinalS = 1;
  EXPECT_EQ(Count("ab-s"), "ab-");
}

TEST_F(LiteralEngineTest, LowerCaseUnlessCaseIsSignificant) {
  EXPECT_EQ(Count("ÉTÉ Été"), "été*2");
  engine.choices.chkCaseSignificant = 1;
  EXPECT_EQ(Count("ÉTÉ Été Dog"), "Dog ÉTÉ*2");
}

TEST_F(LiteralEngineTest, BlankLinesHoldNothing) {
  EXPECT_EQ(Count({"", "   ", " a "}), "a");
}

TEST_F(LiteralEngineTest, TextIsScannedInOnePieceWithItsLineBreaks) {
  Begin();
  engine.ScanText("one\r\ntwo\nthree\t");
  engine.ScanText("");
  EXPECT_EQ(Stored(), "one three two");
}

TEST_F(LiteralEngineTest, WordsLongerThanSixtyFiveThousandCharactersAreCut) {
  Begin();
  engine.LongWordLimit = 100'000;
  engine.ScanLine(std::string(65'003, 'a'));
  EXPECT_EQ(engine.NumDifferentWords, 2);
  EXPECT_EQ(engine.WordStore[1].Word.size(), 3U);
  EXPECT_EQ(engine.WordStore[2].Word.size(), 65'000U);
}

TEST_F(LiteralEngineTest, CommentsSpanLines) {
  EXPECT_EQ(Count({"a /* b", "c */ d"}, "C"), "a d");
}

TEST_F(LiteralEngineTest, LineCommentEndsWithItsLine) {
  EXPECT_EQ(Count({"x // y", "z"}, "C"), "x z");
  EXPECT_EQ(engine.OpenComment, -1);
}

TEST_F(LiteralEngineTest, CommentsMayFollowDirectly) {
  EXPECT_EQ(Count({"a /* b *//* c */d // e"}, "C"), "a d");
}

TEST_F(LiteralEngineTest, MarkerInsideAWordIsPassedOver) {
  engine.choices.chkAllowWordsWithForwardslashes = 1;
  EXPECT_EQ(Count({"a//b // c"}, "C"), "a//b");
}

TEST_F(LiteralEngineTest, EndMarkerMayOverlapTheStartMarker) {
  EXPECT_EQ(Count({"a /*/ b */ c"}, "C"), "a b c");
}

TEST_F(LiteralEngineTest, PairOfTheSameMarkersHidesNothing) {
  engine.choices.chkAllowCommentMarkers = 1;
  engine.choices.txbStartComment = {"|", ""};
  engine.choices.txbEndComment = {"|", ""};
  Begin("user");
  engine.ScanLine("a |b| c");
  EXPECT_EQ(Stored(), "a b c");
}

TEST_F(LiteralEngineTest, StartMarkersIgnoreCaseAndEndMarkersDoNot) {
  engine.choices.chkAllowCommentMarkers = 1;
  engine.choices.chkCaseSignificant = 1;
  engine.choices.txbStartComment = {"Note", ""};
  engine.choices.txbEndComment = {"END", ""};
  Begin("user");
  engine.ScanLine("a nOTE b END c end d");
  EXPECT_EQ(Stored(), "a d");
}

TEST_F(LiteralEngineTest, MarkersActOnlyWhenAllowedOrForced) {
  Begin("C");
  engine.ForceCommentMarkers = false;
  engine.ScanLine("a /* b */ c");
  EXPECT_EQ(Stored(), "a b c");
  Begin("");
  engine.choices.chkAllowCommentMarkers = 1;
  engine.ScanLine("a /* b */ c");
  EXPECT_FALSE(engine.UseCommentMarkers);
}

TEST_F(LiteralEngineTest, CommentStaysOpenIntoTheNextRun) {
  EXPECT_EQ(Count({"a /* b"}, "C"), "a");
  EXPECT_EQ(engine.OpenComment, 0);
  EXPECT_EQ(Count({"c d */ e"}, "C"), "e");
  EXPECT_EQ(engine.OpenComment, -1);
}

TEST_F(LiteralEngineTest, CommentThatEndsWithTheLineIsClosed) {
  EXPECT_EQ(Count({"a /* b */", "c"}, "C"), "a c");
}

TEST_F(LiteralEngineTest, LetterEntitiesBecomeLetters) {
  EXPECT_EQ(Count("caf&eacute; &AMP; &Eacute"), "amp café eacute");
}

TEST_F(LiteralEngineTest, HtmlFilesSkipTagsAndEntities) {
  EXPECT_EQ(Count({"<p>one&nbsp;two</p>", "AT&X; &#8212;y", "&eacute;t&eacute; & more; <a", "b> c"},
                  "HTML"),
            "at c été more one two x y");
}

TEST_F(LiteralEngineTest, AmpersandOfTheUsersMarkersNeedsNoEntity) {
  engine.choices.chkAllowCommentMarkers = 1;
  engine.choices.txbStartComment = {"<", "&"};
  engine.choices.txbEndComment = {">", ";"};
  Begin("user");
  engine.ScanLine("a & more; b");
  EXPECT_EQ(Stored(), "a b");
}

TEST_F(LiteralEngineTest, StopLeavesTheWordsFoundSoFar) {
  Begin();
  engine.onYield = [this] { engine.StopRequested = engine.NumDifferentWords == 2; };
  engine.ScanLine("a b c");
  EXPECT_EQ(Stored(), "a b");
}

TEST_F(LiteralEngineTest, TooManyWordsReadIsAnOverflow) {
  Begin();
  engine.WordsRead = std::numeric_limits<std::int32_t>::max();
  EXPECT_THROW(engine.ScanLine("a"), Overflow);
}

TEST_F(LiteralEngineTest, TypedWordsAreCleaned) {
  engine.choices.txbWordsToIgnoreOrCount[0] = " Dog,   cat. ";
  EXPECT_EQ(engine.GetExtraWords(0), "dog cat");
  EXPECT_EQ(engine.ExtraIgnoreList.Words(), (std::vector<std::string>{"dog", "cat"}));
  engine.choices.txbWordsToIgnoreOrCount[1] = "rock_";
  EXPECT_EQ(engine.GetExtraWords(1), "rock");
  EXPECT_EQ(engine.ExtraCountOnlyList.Words(), std::vector<std::string>{"rock"});
}

TEST_F(LiteralEngineTest, EmptiedBoxEmptiesItsList) {
  Ignore("dog");
  Ignore("  ");
  EXPECT_EQ(engine.ExtraIgnoreList.count, 0);
}

TEST_F(LiteralEngineTest, ThousandTypedWordsAreTheMost) {
  std::string words;
  for (int i = 0; i < 1000; ++i) words += "w ";
  Ignore(words);
  EXPECT_EQ(engine.ExtraIgnoreList.count, 1000);
  engine.choices.txbWordsToIgnoreOrCount = {words + "w", words + "w"};
  EXPECT_EQ(engine.GetExtraWords(0), "Too many words to ignore.");
  EXPECT_EQ(engine.GetExtraWords(1), "Too many count-only words.");
  EXPECT_EQ(engine.ExtraIgnoreList.count, 1000);
  EXPECT_EQ(engine.ExtraCountOnlyList.count, 0);
}

TEST_F(LiteralEngineTest, IgnoredWordsAreReadAndNotStored) {
  engine.ReadWords(0, {"the", "of"});
  Ignore("a");
  engine.choices.chkCaseSignificant = 1;
  EXPECT_EQ(Count("The end of a story"), "end story");
  EXPECT_EQ(engine.WordsRead, 5);
}

TEST_F(LiteralEngineTest, IgnoredWordsAreComparedWithTheirAccents) {
  engine.ReadWords(0, {"été"});
  EXPECT_EQ(Count("ete été"), "ete");
}

TEST_F(LiteralEngineTest, OnlyCountOnlyWordsAreStored) {
  engine.ReadWords(1, {"the"});
  CountOnly("dog");
  EXPECT_EQ(Count("The dog ate the cat"), "dog the*2");
  EXPECT_EQ(engine.WordsRead, 5);
}

TEST_F(LiteralEngineTest, CountOnlyWordsWinOverWordsToIgnore) {
  CountOnly("the");
  Ignore("the");
  EXPECT_EQ(Count("the dog"), "the");
}

TEST_F(LiteralEngineTest, ListFilesMayHoldComments) {
  engine.ReadWords(0, {"Aren't // comment", "/* a b */", "rock_", ""});
  EXPECT_EQ(engine.IgnoreList.Words(), (std::vector<std::string>{"aren't", "rock_"}));
}

TEST_F(LiteralEngineTest, ListsKeepTheirWordsWhole) {
  engine.choices.chkDropFinalS = 1;
  const std::string longWord(101, 'x');
  EXPECT_EQ(engine.ReadListLines({"cats t--s", longWord, "caf&eacute; b b"}),
            (std::vector<std::string>{"b", "caf", "cats", "eacute", "t--s", longWord}));
}

TEST_F(LiteralEngineTest, ReadingAListLeavesItsTraces) {
  engine.choices.chkSuppressWords = 0;
  engine.choices.chkAllowCommentMarkers = 2;
  Count("word");
  engine.ReadWords(0, {"a"});
  EXPECT_TRUE(engine.ReadingWordList);
  EXPECT_EQ(engine.CommentStart[0], U"/*");
  EXPECT_EQ(engine.choices.chkSuppressWords, 0);
  EXPECT_EQ(engine.choices.chkAllowCommentMarkers, 2);
  EXPECT_EQ(Stored(), "a");
  engine.ReadWords(0, {});
  EXPECT_EQ(engine.IgnoreList.count, 0);
  engine.BeginRun();
  EXPECT_FALSE(engine.ReadingWordList);
}

TEST_F(LiteralEngineTest, CountOnlyFileTicksBoxesAndIgnoreFileDoesNot) {
  engine.choices.chkAllowWordsWithHyphens = 0;
  engine.ReadWords(0, {"co-op"});
  EXPECT_TRUE(engine.ListCharFlags[0]);
  EXPECT_EQ(engine.choices.chkAllowWordsWithHyphens, 0);
  engine.ReadWords(1, {"co-op e-mail"});
  EXPECT_EQ(engine.choices.chkAllowWordsWithHyphens, 1);
  EXPECT_EQ(engine.choices.chkAllowWordsWithApostrophes, 0);
}

TEST_F(LiteralEngineTest, OfAllLettersListsMeanWordsInEveryLetterCase) {
  engine.choices.cboLetters = 1;
  Ignore("της");
  EXPECT_EQ(Count("της ΤΗΣ Της τής"), "τής");
  engine.ReadWords(1, {"ΤΟΥΣ τους", "wiſſen"});
  EXPECT_EQ(Count("ΤΟΥΣ τους Τους τον WISSEN wisen"), "wissen τουσ*3");
}

TEST_F(LiteralEngineTest, ForeignLettersAreThoseThatAllLettersTake) {
  Count("слово Łk e\u00AD\u0301 don\u02BCt \u02BC\u0301 \u00B5");
  EXPECT_EQ(engine.ForeignLetters, 8);
}

TEST_F(LiteralEngineTest, OfAllLettersRulesForLatinOnesAskAllOfThem) {
  engine.choices.cboLetters = 1;
  engine.choices.chkDropFinalS = 1;
  EXPECT_EQ(Count("orðs sáŋs nəs cats kλs"), "cat kλs nəs orð sáŋ");
  EXPECT_TRUE(LacksVowelOfAll(U"þŕð", true));
  EXPECT_FALSE(LacksVowelOfAll(U"gbɛ", true));
  EXPECT_FALSE(LacksVowelOfAll(U"кв", true));
}

TEST_F(LiteralEngineTest, EveryListCharacterSetsItsFlag) {
  const std::vector<std::string> words = {"a-b", "a'b", "a_b", "a:b", "a\\b", "a/b",
                                          "a(b", "a.b", "a,b", "a@b", "a7"};
  for (std::size_t i = 0; i < words.size(); ++i) {
    engine.ReadListLines({words[i]});
    Flags expected{};
    expected[i] = true;
    EXPECT_EQ(engine.ListCharFlags, expected) << words[i];
  }
}

}  // namespace
}  // namespace quillomat::reference
