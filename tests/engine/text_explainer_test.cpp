// What a user is told of the pieces of a text.
#include "engine/explain/text_explainer.h"

#include <gtest/gtest.h>
#include <string>

#include "support/engine_fixture.h"
#include "support/made_up_segmenter.h"

namespace quillomat {
namespace {

using enum CandidateReason;

class TextExplainer : public EngineFixture {
 protected:
  TextExplainer() { filters = FilterChoices(); }

  std::vector<Candidate> Explain(std::string_view text) {
    return ExplainText(text, choices, filters, lists).candidates;
  }

  /// A piece each: "The=the" counted, "s!" left out, "don't|'" cut, with blanks between them.
  std::string Outline(std::string_view text) {
    std::string outline;
    for (const Candidate& candidate : Explain(text)) {
      if (!outline.empty()) outline += "  ";
      outline += candidate.text;
      if (candidate.fate == CandidateFate::kCounted) outline += "=" + candidate.word;
      if (candidate.fate == CandidateFate::kLeftOut) outline += "!";
      if (candidate.fate == CandidateFate::kCut) outline += "|" + candidate.word;
    }
    return outline;
  }

  /// Of the only piece that was left out.
  CandidateReason Reason(std::string_view text) {
    CandidateReason reason = kNone;
    for (const Candidate& candidate : Explain(text)) {
      if (candidate.fate == CandidateFate::kLeftOut) reason = candidate.reason;
    }
    return reason;
  }
};

TEST_F(TextExplainer, ShowsPiecesAsTheyStandInTheText) {
  EXPECT_EQ(Outline("The (well-known) Caf\u00E9."),
            "The=the  well-known=well-known  Caf\u00E9=caf\u00E9");
}

TEST_F(TextExplainer, ShowsWhatRewritingHasMadeOfThem) {
  EXPECT_EQ(Outline("so--called caf&eacute; AT&T;"),
            "so=so  called=called  caf&eacute;=caf\u00E9  AT=at  T!");
  UseAllLetters();
  EXPECT_EQ(Outline("Cafe\u0301 \uFB01n e\u00ADmail"),
            "Cafe\u0301=caf\u00E9  \uFB01n=fin  e\u00ADmail=email");
}

TEST_F(TextExplainer, ShowsWhatScriptsWithoutBlanksAreCutInto) {
  UseAllLetters();
  EXPECT_EQ(Outline("\u4E2D\u56FDx"), "\u4E2D\u56FDx=\u4E2D\u56FDx");
  choices.makeSegmenter = MakeMadeUpSegmenter;
  EXPECT_EQ(Outline("X\u4E2Dy"), "X\u4E2Dy|  X=x  \u4E2D=\u4E2D  y=y");
  EXPECT_EQ(Explain("X\u4E2Dy")[0].reason, kUnspaced);
}

TEST_F(TextExplainer, ShowsTheRewrittenTextWhereTheOriginCannotBeTold) {
  UseAllLetters();
  EXPECT_EQ(Outline("Caf\u0065\u00AD\u0301 now"), "caf\u00E9=caf\u00E9  now=now");
}

TEST_F(TextExplainer, TellsAtWhichSignAPieceIsCut) {
  AllowNothing();
  choices.allowWordsWith[static_cast<std::size_t>(AllowFlag::kApostrophe)] = CheckState::kGrayed;
  EXPECT_EQ(Outline("don't e-mail/e-post, (end)."),
            "don't|'  don=don  t=t  e-mail/e-post|- /  e=e  mail=mail  e=e  post=post  end=end");
}

TEST_F(TextExplainer, SignsThatAlwaysSeparateCutNothing) {
  EXPECT_EQ(Outline("one\u2014two \u201Cthree\u201D four;five"),
            "one=one  two=two  three=three  four=four  five=five");
}

TEST_F(TextExplainer, SignsWithoutAShapeAreNamed) {
  EXPECT_EQ(Outline("e\u00ADmail cafe\u0301s"),
            "e\u00ADmail|U+00AD  e=e  mail=mail  cafe\u0301s|U+0301  cafe=cafe  s!");
}

TEST_F(TextExplainer, AllSignsThatCannotBeSeenAreNamed) {
  for (const auto& [sign, name] :
       {std::pair{"\u200E", "U+200E"}, std::pair{"\u061C", "U+061C"}, std::pair{"\u202A", "U+202A"},
        std::pair{"\u2069", "U+2069"}, std::pair{"\uFEFF", "U+FEFF"}, std::pair{"\u2060", "U+2060"},
        std::pair{"\u180E", "U+180E"}, std::pair{"\u2063", "U+2063"}, std::pair{"\u206A", "U+206A"},
        std::pair{"\uFFF9", "U+FFF9"}, std::pair{"\U000E0061", "U+E0061"},
        std::pair{"\uFF07", "\uFF07"}}) {
    const std::string piece = std::string("ab") + sign + "cd";
    EXPECT_EQ(Outline("- " + piece), piece + "|" + name + "  ab=ab  cd=cd");
  }
}

TEST_F(TextExplainer, TellsLettersOfOtherAlphabets) {
  EXPECT_EQ(Outline("\u0142\u00F3d\u017A \u0421\u043B\u043E\u0432\u043E"),
            "\u0142\u00F3d\u017A|\u0142 \u017A  \u00F3d=\u00F3d  \u0421\u043B\u043E\u0432\u043E!");
  EXPECT_EQ(Reason("\u0421\u043B\u043E\u0432\u043E"), kForeignLetters);
}

TEST_F(TextExplainer, TellsNumerals) {
  EXPECT_EQ(Outline("3rd 1,000 --"), "3rd|3  rd=rd  1,000!");
  EXPECT_EQ(Reason("2024"), kNumerals);
  Allow(AllowFlag::kNumerals);
  EXPECT_EQ(Outline("3rd"), "3rd=3rd");
}

TEST_F(TextExplainer, TellsComments) {
  UseMarkers("/*", "*/", "//");
  EXPECT_EQ(Outline("a /* b */ c // d"), "a=a  /* b */!  c=c  // d!");
  EXPECT_EQ(Reason("a /* b"), kComment);
}

TEST_F(TextExplainer, TellsFragmentsAndSignsAlone) {
  EXPECT_EQ(Reason("John's"), kFragment);
  Allow(AllowFlag::kColon);
  EXPECT_EQ(Reason("a ::"), kSignsAlone);
}

TEST_F(TextExplainer, TellsWhichListDecides) {
  Ignore("cat");
  lists.IgnoreList = WordList({"dog"});
  EXPECT_EQ(Reason("Cat"), kTypedToIgnore);
  EXPECT_EQ(Reason("dog"), kFileToIgnore);
  CountOnly("bird");
  EXPECT_EQ(Reason("fish bird"), kNotCountOnly);
  EXPECT_EQ(Outline("cat bird"), "cat!  bird=bird");
}

TEST_F(TextExplainer, TellsWhichFilterDecides) {
  filters.ignoreInfrequentWords = CheckState::kChecked;
  EXPECT_EQ(Outline("once twice Twice"), "once!  twice=twice  Twice=twice");
  EXPECT_EQ(Reason("once"), kInfrequent);
  filters = FilterChoices();
  filters.ignoreShortWords = CheckState::kChecked;
  EXPECT_EQ(Reason("a"), kShort);
  filters = FilterChoices();
  filters.ignoreRepetitions = CheckState::kChecked;
  filters.ignoreRomNum40 = CheckState::kChecked;
  filters.ignoreNoVowelOrY = CheckState::kChecked;
  EXPECT_EQ(Reason("aaa"), kRepetition);
  EXPECT_EQ(Reason("XIV"), kRomanNumeral);
  EXPECT_EQ(Reason("hmm"), kNoVowel);
  EXPECT_EQ(Reason(std::string(51, 'a') + "b"), kLong);
  EXPECT_EQ(Reason(std::string(101, 'a')), kTooLongToStore);
}

TEST_F(TextExplainer, TellsWhatHasBecomeOfAWord) {
  DropFinalS();
  const std::vector<Candidate> candidates = Explain("Caf\u00E9 cafe well- cats");
  ASSERT_EQ(candidates.size(), 4U);
  EXPECT_TRUE(candidates[1].spelledAsBefore);
  EXPECT_EQ(candidates[1].word, "caf\u00E9");
  EXPECT_TRUE(candidates[2].trimmed);
  EXPECT_EQ(candidates[2].word, "well");
  EXPECT_TRUE(candidates[3].lostFinalS);
  EXPECT_EQ(candidates[3].word, "cat");
}

TEST_F(TextExplainer, TellsThatRunsWereLeftWhole) {
  const auto leftWhole = [this](std::string_view text) {
    return ExplainText(text, choices, filters, lists).runsLeftWhole ||
           ExplainLines(text, choices, filters, lists).runsLeftWhole;
  };
  UseAllLetters();
  choices.makeSegmenter = MakeNoSegmenter;
  EXPECT_EQ(Outline("iPhone手机 手"), "iPhone手机=iphone手机  手=手");
  EXPECT_TRUE(leftWhole("iPhone手机 手"));
  EXPECT_FALSE(leftWhole("iPhone 手")) << "a single letter has no words to find";
  choices.makeSegmenter = MakeMadeUpSegmenter;
  EXPECT_FALSE(leftWhole("iPhone手机"));
}

TEST_F(TextExplainer, HasNothingToTellOfATextWithoutWords) {
  EXPECT_EQ(Outline(""), "");
  EXPECT_EQ(Outline(" ... \u2014 !"), "");
}

}  // namespace
}  // namespace quillomat
