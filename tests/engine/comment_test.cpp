// Comments: which text is hidden, and for how long.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class Comments : public EngineFixture {};

TEST_F(Comments, BlockCommentSpansLines) {
  UsePreset("C");
  EXPECT_EQ(Count({"a /* b", "c */ d"}), "a d");
}

TEST_F(Comments, LineCommentEndsWithTheLine) {
  UsePreset("C");
  EXPECT_EQ(Count({"x // y", "z"}), "x z");
}

TEST_F(Comments, LineCommentHidesAllTheRestOfOneLongText) {
  UsePreset("C");
  EXPECT_EQ(Count("x // y\r\nz"), "x");
}

TEST_F(Comments, CommentEndsWhereItsMarkerOverlapsItsStart) {
  UsePreset("C");
  EXPECT_EQ(Count("a /*/ b /*/ c"), "a b c");
}

TEST_F(Comments, SameMarkerAtBothEndsHidesNothing) {
  UseMarkers("|", "|");
  EXPECT_EQ(Count("a | b | c"), "a b c");
}

TEST_F(Comments, CommentsMayFollowEachOtherDirectly) {
  UsePreset("C");
  EXPECT_EQ(Count("a/*b*//*c*///d"), "a");
  EXPECT_EQ(Count("a/*b*//*c*/d"), "a d");
}

TEST_F(Comments, WordsStandDirectlyBesideMarkers) {
  UsePreset("C");
  EXPECT_EQ(Count("ab/*cd*/ef"), "ab ef");
}

TEST_F(Comments, CommentsDoNotNest) {
  UsePreset("C");
  EXPECT_EQ(Count("a /* b /* c */ d */ e"), "a d e");
}

TEST_F(Comments, MarkerInsideAWordIsNotSeen) {
  UsePreset("C");
  Allow(AllowFlag::kForwardSlash);
  EXPECT_EQ(Count("a//b c"), "a//b c");
}

TEST_F(Comments, FirstPairWinsByOrderNotByLength) {
  UseMarkers("#", ";", "##", "!");
  EXPECT_EQ(Count("a ## b ; c ! d"), "a c d");
}

TEST_F(Comments, PairWithoutStartMarkerIsNone) {
  UseMarkers("", ";", "#", "");
  EXPECT_EQ(Count("a ; b # c"), "a b");
}

TEST_F(Comments, UserMarkersHideNothingUnlessAllowed) {
  UseMarkers("/*", "*/");
  choices.allowCommentMarkers = CheckState::kUnchecked;
  EXPECT_EQ(Count("a /* b */ c"), "a b c");
  choices.allowCommentMarkers = CheckState::kGrayed;
  EXPECT_EQ(Count("a /* b */ c"), "a b c");
  choices.allowCommentMarkers = CheckState::kChecked;
  EXPECT_EQ(Count("a /* b */ c"), "a c");
}

TEST_F(Comments, MarkersOfTheFilesKindAreInForceWhateverIsAllowed) {
  UsePreset("C");
  EXPECT_EQ(choices.allowCommentMarkers, CheckState::kUnchecked);
  EXPECT_EQ(Count("a /* b */ c"), "a c");
}

TEST_F(Comments, WithoutAnyStartMarkerTheOpenCommentWaits) {
  UseMarkers("", "", "", "");
  settings.OpenComment = 0;
  EXPECT_EQ(Count("a b"), "a b");
  EXPECT_EQ(settings.OpenComment, 0);
}

TEST_F(Comments, UnclosedCommentHidesTheStartOfTheNextFile) {
  UsePreset("C");
  EXPECT_EQ(Count("a /* b"), "a");
  EXPECT_EQ(Count({"c", "d */ e */ f"}), "e f");
}

TEST_F(Comments, OpenCommentIsClosedByTheNewMarkersOfItsPair) {
  UsePreset("C");
  EXPECT_EQ(Count("a /* b"), "a");
  UsePreset("HTML");
  EXPECT_EQ(Count("c */ d > e"), "e");
}

TEST_F(Comments, OpenCommentOutlivesTextsScannedWithoutMarkers) {
  UsePreset("C");
  EXPECT_EQ(Count("a /* b"), "a");
  UsePreset("");
  EXPECT_EQ(Count("c d"), "c d");
  UsePreset("C");
  EXPECT_EQ(Count("e */ f"), "f");
}

TEST_F(Comments, OpenCommentWithoutEndMarkerEndsWithTheText) {
  UseMarkers("#", ";");
  EXPECT_EQ(Count("a # b"), "a");
  UseMarkers("#", "");
  EXPECT_EQ(Count({"c", "d"}), "d");
}

TEST_F(Comments, CommentThatEndsTheTextIsClosed) {
  UsePreset("C");
  EXPECT_EQ(Count({"a /* b */", "c"}), "a c");
}

TEST_F(Comments, EmptyLinesLeaveACommentOpen) {
  UsePreset("C");
  EXPECT_EQ(Count({"a /*", "", "b", "", "*/ c"}), "a c");
}

TEST_F(Comments, MarkerWithADoubleHyphenNeverMatches) {
  UseMarkers("<!--", "-->");
  EXPECT_EQ(Count("a <!-- b --> c"), "a b c");
}

TEST_F(Comments, EndMarkerWithADoubleHyphenNeverMatches) {
  UseMarkers("<!", "-->");
  EXPECT_EQ(Count({"a <! b --> c", "d"}), "a");
}

TEST_F(Comments, StartMarkerIsFoundInAnyLetterCase) {
  CaseIsSignificant();
  UseMarkers("Rem", "");
  EXPECT_EQ(Count({"a rem b", "c REM d", "e Rem f"}), "a c e");
}

TEST_F(Comments, AccentedStartMarkerIsFoundInAnyLetterCase) {
  CaseIsSignificant();
  UseMarkers("Été", "");
  EXPECT_EQ(Count({"a été b", "c ÉTÉ d"}), "a c");
}

TEST_F(Comments, EndMarkerIsLoweredSoThatItNeverMatchesCapitals) {
  CaseIsSignificant();
  UseMarkers("BEGIN", "END");
  EXPECT_EQ(Count("a BEGIN b END c"), "a");
  settings.OpenComment = -1;
  EXPECT_EQ(Count("a BEGIN b end c"), "a c");
}

TEST_F(Comments, EndMarkerInCapitalsMatchesLoweredText) {
  UseMarkers("BEGIN", "END");
  EXPECT_EQ(Count("a Begin b End c"), "a c");
}

TEST_F(Comments, HtmlFileHidesTagsAndEntities) {
  UsePreset("HTML");
  EXPECT_EQ(Count("<p class=x>one&nbsp;two&#8212;three</p>"), "one three two");
}

TEST_F(Comments, HtmlFileShowsAmpersandsThatStartNoEntity) {
  UsePreset("HTML");
  Allow(AllowFlag::kApostrophe);
  EXPECT_EQ(Count("AT&T; tea & more; fish&chips"), "at chips fish more t tea");
}

TEST_F(Comments, EntitiesOfLettersAreDecodedBeforeTheyCouldBeHidden) {
  UsePreset("HTML");
  EXPECT_EQ(Count("caf&eacute;&nbsp;noir"), "café noir");
}

TEST_F(Comments, TagMaySpanLines) {
  UsePreset("HTML");
  EXPECT_EQ(Count({"one <p", "class=x> two"}), "one two");
}

TEST_F(Comments, UsersAmpersandNeedsNoEntityBehindIt) {
  UseMarkers("", "", "&", ";");
  EXPECT_EQ(Count("tea & more; cake"), "cake tea");
}

TEST_F(Comments, AmpersandOfTheFirstPairNeedsNoEntityBehindIt) {
  UseMarkers("&", ";");
  EXPECT_EQ(Count("tea & more; cake"), "cake tea");
}

TEST_F(Comments, OnlyTheSecondPairOfAForcedMarkerNeedsAnEntity) {
  settings.ForceCommentMarkers = true;
  settings.CommentStart = {"&", ""};
  settings.CommentEnd = {";", ""};
  WordScanner scanner(settings, choices, lists, store, yield);
  scanner.GetWords("tea & more; cake ");
  EXPECT_EQ(Words(), "cake tea");
}

TEST_F(Comments, HiddenTextIsNotRead) {
  UsePreset("C");
  Count("a /* b c d */ e");
  EXPECT_EQ(wordsRead, 2);
}

}  // namespace
}  // namespace quillomat
