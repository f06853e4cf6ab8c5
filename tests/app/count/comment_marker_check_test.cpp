// The check of the user's comment markers before a count.
#include "app/count/comment_marker_check.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

using ::testing::IsEmpty;

const std::string kAdvice =
    "\r\n\r\nCheck the comment markers in the 'Set parameters' panel\r\n"
    "and perhaps disallow comment markers.";
const std::string kNoMarker =
    "If comment markers are allowed then at least one\r\n"
    "start-comment marker must be non-empty." +
    kAdvice;
const std::string kEndWithoutStart =
    "Cannot have an empty start-comment marker\r\nwith a non-empty end-comment marker." + kAdvice;
const std::string kSameMarkers =
    "Start-comment and end-comment markers must be different.\r\n\r\n"
    "Check the comment markers in the 'Set parameters' panel.";

std::string PartOfAWord(const std::string& marker) {
  return "The way the parameters are set the start-comment marker\r\n\"" + marker +
         "\" could be part of a word.\r\n\r\n"
         "Check the start-comment markers in the 'Set parameters' panel and\r\n"
         "perhaps disallow comment markers or restrict allowable words.";
}

class CommentMarkerCheck : public SourcesFixture {
 protected:
  CommentMarkerCheck() { Panel().chkAllowCommentMarkers.SetChecked(true); }

  void SetMarkers(const std::string& start, const std::string& end,
                  const std::string& secondStart = {}, const std::string& secondEnd = {}) {
    Panel().txbStartComment[0].SetText(start);
    Panel().txbEndComment[0].SetText(end);
    Panel().txbStartComment[1].SetText(secondStart);
    Panel().txbEndComment[1].SetText(secondEnd);
  }

  /// A count is refused with that message, and the panel opens.
  void ExpectRefused(const std::string& message) {
    desktop.ForgetQuestions();
    Panel().Hide();
    CountClipboard("cat");
    ExpectMessage(OnlyMessage(), message, "Error", MessageIcon::kExclamation);
    EXPECT_TRUE(Panel().Visible());
    EXPECT_EQ(StoredWords(), "");
    ExpectIdle();
  }

  void ExpectAccepted() {
    desktop.ForgetQuestions();
    CountClipboard("cat");
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_FALSE(Panel().Visible());
    EXPECT_EQ(StoredWords(), "cat");
  }
};

TEST_F(CommentMarkerCheck, TheMarkersOfTheStartAreFine) {
  ExpectAccepted();
}

TEST_F(CommentMarkerCheck, WithoutAnyStartMarkerThereIsNothingToAllow) {
  SetMarkers("", "");
  ExpectRefused(kNoMarker);
}

TEST_F(CommentMarkerCheck, TheSecondPairAloneIsNotEnough) {
  SetMarkers("", "", "//", "");
  ExpectRefused(kNoMarker);
}

TEST_F(CommentMarkerCheck, TheMissingStartIsToldBeforeItsEndWithoutAStart) {
  SetMarkers("", "*/", "", "");
  ExpectRefused(kNoMarker);
}

TEST_F(CommentMarkerCheck, AnEndNeedsAStart) {
  SetMarkers("/*", "*/", "", ";");
  ExpectRefused(kEndWithoutStart);
}

TEST_F(CommentMarkerCheck, StartAndEndMustDiffer) {
  SetMarkers("%", "%");
  ExpectRefused(kSameMarkers);
  SetMarkers("/*", "*/", "%", "%");
  ExpectRefused(kSameMarkers);
}

TEST_F(CommentMarkerCheck, StartAndEndMayDifferInLetterCaseAlone) {
  SetMarkers("<!a", "<!A");
  ExpectAccepted();
}

TEST_F(CommentMarkerCheck, AnEndWithoutAStartIsToldBeforeMarkersThatAreTheSame) {
  SetMarkers("%", "%", "", ";");
  ExpectRefused(kEndWithoutStart);
}

TEST_F(CommentMarkerCheck, MarkersThatAreTheSameAreToldBeforeOnesThatCouldBeWords) {
  SetMarkers("rem", "*/", "%", "%");
  ExpectRefused(kSameMarkers);
}

TEST_F(CommentMarkerCheck, TwoEmptyMarkersAreNoPairAndSoNotTheSame) {
  SetMarkers("/*", "*/", "", "");
  ExpectAccepted();
}

TEST_F(CommentMarkerCheck, AStartMarkerOfLettersCouldBePartOfAWord) {
  SetMarkers("rem", "");
  ExpectRefused(PartOfAWord("rem"));
  SetMarkers("\u00E9t\u00E9", "");
  ExpectRefused(PartOfAWord("\u00E9t\u00E9"));
}

TEST_F(CommentMarkerCheck, TheSecondStartMarkerIsLookedAtToo) {
  SetMarkers("/*", "*/", "REM", "");
  ExpectRefused(PartOfAWord("REM"));
}

TEST_F(CommentMarkerCheck, OnlyTheFirstOfTwoIsTold) {
  SetMarkers("rem", "*/", "note", "");
  ExpectRefused(PartOfAWord("rem"));
}

TEST_F(CommentMarkerCheck, OneCharacterThatIsInNoWordIsEnough) {
  for (const std::string marker : {"rem:", "rem ", "#", "r\u00D7m", "\u20AC"}) {
    SetMarkers(marker, "");
    ExpectAccepted();
  }
}

TEST_F(CommentMarkerCheck, WhatMayStandInAWordIsThePanelsAffair) {
  struct Sign {
    CheckBox* box;
    std::string marker;
  };
  ParamsForm& panel = Panel();
  const std::array<Sign, 11> signs = {{{&panel.chkAllowWordsWithHyphens, "--"},
                                       {&panel.chkAllowWordsWithApostrophes, "''"},
                                       {&panel.chkAllowWordsWithUnderscores, "__"},
                                       {&panel.chkAllowWordsWithColons, "::"},
                                       {&panel.chkAllowWordsWithBackslashes, "\\"},
                                       {&panel.chkAllowWordsWithForwardslashes, "//"},
                                       {&panel.chkAllowWordsWithParentheses, "()"},
                                       {&panel.chkAllowWordsWithPeriods, "..."},
                                       {&panel.chkAllowWordsWithCommas, ","},
                                       {&panel.chkAllowWordsWithAtSigns, "@a"},
                                       {&panel.chkAllowWordsWithNumerals, "1a2"}}};
  for (const Sign& sign : signs) {
    SetMarkers(sign.marker, "");
    sign.box->SetChecked(true);
    ExpectRefused(PartOfAWord(sign.marker));
    Panel().Hide();
    for (const CheckState notSet : {CheckState::kUnchecked, CheckState::kGrayed}) {
      sign.box->SetValue(notSet);
      ExpectAccepted();
      program.Initialize();
      Panel().chkAllowCommentMarkers.SetChecked(true);
      SetMarkers(sign.marker, "");
    }
  }
}

TEST_F(CommentMarkerCheck, EndMarkersMayBeWords) {
  SetMarkers("/*", "end", "//", "end");
  ExpectAccepted();
}

TEST_F(CommentMarkerCheck, MarkersThatAreNotAllowedAreNotChecked) {
  SetMarkers("", "*/", "rem", "rem");
  desktop.Answer("Quillomat", MessageAnswer::kYes);  // the text may be read anew
  for (const CheckState notSet : {CheckState::kUnchecked, CheckState::kGrayed}) {
    Panel().chkAllowCommentMarkers.SetValue(notSet);
    ExpectAccepted();
  }
}

TEST_F(CommentMarkerCheck, EverySourceIsRefused) {
  SetMarkers("", "");
  CountFile(folder.Write("a.txt", "cat"));
  EXPECT_EQ(OnlyMessage().text, kNoMarker);
  desktop.ForgetQuestions();
  CountFolder(folder.Path());
  EXPECT_EQ(OnlyMessage().text, kNoMarker);
  EXPECT_EQ(StoredWords(), "");
}

TEST_F(CommentMarkerCheck, ARefusalLeavesTheWordsOfTheLastCount) {
  CountClipboard("cat dog");
  SetMarkers("", "");
  CountClipboard("hen");
  EXPECT_EQ(StoredWords(), "cat dog");
  EXPECT_TRUE(Words().completeRun);
}

TEST_F(CommentMarkerCheck, TheCheckGoesByTheWordsOfATextAlsoWhileAListIsRead) {
  desktop.AnswerFile(folder.Write("words.txt", "cat"));
  Panel().cmdSelectWordsFile[0].PerformClick();
  ASSERT_TRUE(program.Settings().settings.ReadingWordList);
  SetMarkers("//", "");
  EXPECT_TRUE(CheckCommentMarkers(Panel(), Messages(desktop, program.Text())));
}

}  // namespace
}  // namespace quillomat
