// Scripts without blanks: where their runs are cut, and that every way of scanning cuts them alike.
#include "engine/run_cutter.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "support/engine_fixture.h"
#include "support/made_up_segmenter.h"

namespace quillomat {
namespace {

/// Every second letter begins a word.
class Pairs final : public RunSegmenter {
 public:
  bool FindCuts(std::string_view run, std::vector<std::size_t>& cuts) override {
    std::size_t letters = 0;
    for (std::size_t position = 0; position < run.size(); ++letters) {
      if (letters > 0 && letters % 2 == 0) cuts.push_back(position);
      position += CharacterAt(run, position).bytes;
    }
    return true;
  }
};

std::unique_ptr<RunSegmenter> MakePairs() {
  return std::make_unique<Pairs>();
}

/// A run of two letters is two words; of more, two halves.
class Halves final : public RunSegmenter {
 public:
  bool FindCuts(std::string_view run, std::vector<std::size_t>& cuts) override {
    cuts.push_back(BytesOfFirst(run, CharacterCount(run) / 2));
    return true;
  }
};

std::unique_ptr<RunSegmenter> MakeHalves() {
  return std::make_unique<Halves>();
}

class Failing final : public RunSegmenter {
 public:
  bool FindCuts(std::string_view /*run*/, std::vector<std::size_t>& /*cuts*/) override {
    return false;
  }
};

std::unique_ptr<RunSegmenter> MakeFailing() {
  return std::make_unique<Failing>();
}

class RunCutterTest : public EngineFixture {
 protected:
  RunCutterTest() {
    UseAllLetters();
    choices.makeSegmenter = MakePairs;
  }
};

TEST_F(RunCutterTest, RunsAreCutAsTheSegmenterSays) {
  EXPECT_EQ(Count("中国人民 中国、ภาษา"), "ภา ษา 中国*2 人民");
  EXPECT_EQ(wordsRead, 5);
}

TEST_F(RunCutterTest, OtherLettersNextToThemAreWordsOfTheirOwn) {
  EXPECT_EQ(Count("iPhone手机app 用C语言 한국中国"), "app c iphone 中国 手机 用 语言 한국");
}

TEST_F(RunCutterTest, SignsNextToThemAreNoWords) {
  AllowEverything();
  EXPECT_EQ(Count("中国-人民 _中国_ 和/或 @手机_x"), "_x 中国*2 人民 和 或 手机");
}

TEST_F(RunCutterTest, DigitsNextToThemAreWordsWhereTheyAreAllowed) {
  EXPECT_EQ(Count("第3章"), "章 第");
  Allow(AllowFlag::kNumerals);
  EXPECT_EQ(Count("第3章 3D电影"), "3 3d 电影 章 第");
}

TEST_F(RunCutterTest, MarksStayWithTheirLetters) {
  EXPECT_EQ(Count("กกิก ก\u0E34\u0E48ก"), "กกิก ก\u0E34\u0E48ก");
}

TEST_F(RunCutterTest, WesternRuleAndOtherScriptsAskNoSegmenter) {
  EXPECT_EQ(Count("слово कमल 한국어 שלום word"), "word слово שלום कमल 한국어");
  choices.letters = LetterRule::kWestern;
  EXPECT_EQ(Count("手机ab"), "ab");
}

TEST_F(RunCutterTest, WithoutASegmenterRunsStayWholeAndItIsNoted) {
  choices.makeSegmenter = nullptr;
  EXPECT_EQ(Count("iPhone手机"), "iphone手机");
  EXPECT_FALSE(settings.Uncounted.runsLeftWhole);
  choices.makeSegmenter = MakeNoSegmenter;
  EXPECT_EQ(Count("слово 手"), "слово 手");
  EXPECT_FALSE(settings.Uncounted.runsLeftWhole) << "a single letter has no words to find";
  EXPECT_EQ(Count("iPhone手机"), "iphone手机");
  EXPECT_TRUE(settings.Uncounted.runsLeftWhole);
}

TEST_F(RunCutterTest, RunThatTheSegmenterFailsAtIsNotedAsLeftWhole) {
  choices.makeSegmenter = MakeFailing;
  EXPECT_EQ(Count("用C语"), "c 用 语");
  EXPECT_FALSE(settings.Uncounted.runsLeftWhole) << "single letters";
  EXPECT_EQ(Count("iPhone手机"), "iphone 手机");
  EXPECT_TRUE(settings.Uncounted.runsLeftWhole);
}

TEST_F(RunCutterTest, ListsAreCutAsTextsAre) {
  Ignore("中国人民");
  EXPECT_EQ(Count("中国 人民 中国人民 手机"), "手机");
  Ignore("");
  CountOnly("手机iPhone");
  EXPECT_EQ(Count("中国 手机 iphone"), "iphone 手机");
  lists = {};
  EXPECT_EQ(ReadList({"中国人民", "手机"}), "中国 人民 手机");
}

TEST_F(RunCutterTest, TooManyTypedWordsAreThoseAfterTheCut) {
  std::string typed;
  for (int i = 0; i < 501; ++i) typed += "中国人民 ";
  EXPECT_TRUE(ParseTypedWords(typed, LetterRule::kAll).fits);
  EXPECT_FALSE(ParseTypedWords(typed, LetterRule::kAll, MakePairs).fits);
}

TEST_F(RunCutterTest, WordOfARunIsNotTakenForARunOfItsOwn) {
  // What is remembered of the one must not be taken for the other, whichever comes first.
  choices.makeSegmenter = MakeHalves;
  EXPECT_EQ(Count(std::vector<std::string>{"中国人民", "中国", "中国人民"}), "中 中国*2 人民*2 国");
  EXPECT_EQ(Count(std::vector<std::string>{"中国", "中国人民", "中国"}), "中*2 中国 人民 国*2");
}

}  // namespace
}  // namespace quillomat
