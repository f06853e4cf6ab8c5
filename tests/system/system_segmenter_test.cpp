// The system's own knowledge of words in scripts without blanks.
#include "system/system_segmenter.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "base/utf8.h"
#include "system/icu_segmenter.h"

namespace quillomat {
namespace {

/// With bars where a word begins.
std::string Cut(std::string_view run) {
  std::vector<std::size_t> cuts;
  EXPECT_TRUE(MakeSystemSegmenter()->FindCuts(run, cuts));
  std::string cut(run);
  for (std::size_t i = cuts.size(); i > 0; --i) cut.insert(cuts[i - 1], 1, '|');
  return cut;
}

class SystemSegmenter : public testing::Test {
 protected:
  void SetUp() override {
#ifdef _WIN32
    if (MakeSystemSegmenter() == nullptr) GTEST_SKIP() << "this Windows has no ICU";
#endif
    ASSERT_NE(MakeSystemSegmenter(), nullptr);
  }
};

// Words that any dictionary has.
TEST_F(SystemSegmenter, FindsWordsOfScriptsWithoutBlanks) {
  EXPECT_EQ(Cut("我喜欢手机"), "我|喜欢|手机");
  EXPECT_EQ(Cut("日本語の文章"), "日本語|の|文章");
  EXPECT_EQ(Cut("ภาษาไทย"), "ภาษา|ไทย");
  EXPECT_EQ(Cut("ພາສາລາວ"), "ພາສາ|ລາວ");
}

TEST_F(SystemSegmenter, PlacesAreThoseOfBytesAlsoBehindTheFirstPlane) {
  const std::string rare = "\U00020000\U00020001";
  EXPECT_EQ(Cut("手机" + rare).substr(0, 7), "手机|");
  const std::string cut = Cut(rare);
  EXPECT_TRUE(cut == rare || cut == "\U00020000|\U00020001") << cut;
}

TEST_F(SystemSegmenter, OneOrNoLetterHasNoCut) {
  EXPECT_EQ(Cut(""), "");
  EXPECT_EQ(Cut("手"), "手");
}

/// A sign of no script by itself, kana and Han together, and letters of other dictionaries.
TEST_F(SystemSegmenter, CutsDependOnTheRunAlone) {
  const std::vector<std::string> runs = {"ーー",   "ーー国", "ｰｰ国", "ﾞｱ",  "゛゛",
                                         "゛ー国", "〱〱国", "々々", "ーก", "ไทย",
                                         "ລາວ",    "ខ្មែរ",   "မြန်မာ"};
  for (const std::string& before : runs) {
    const std::unique_ptr<RunSegmenter> used = MakeSystemSegmenter();
    std::vector<std::size_t> ignored;
    EXPECT_TRUE(used->FindCuts(before, ignored));
    for (const std::string& run : runs) {
      std::vector<std::size_t> cuts;
      std::vector<std::size_t> expected;
      EXPECT_TRUE(used->FindCuts(run, cuts));
      EXPECT_TRUE(MakeSystemSegmenter()->FindCuts(run, expected));
      EXPECT_EQ(cuts, expected) << run << " behind " << before;
    }
  }
}

TEST(IcuSegmenter, SaysWhereItFails) {
  const IcuFunctions functions{
      .open = [](int, const char*, const char16_t*, std::int32_t, int*) -> void* {
        static int iterator = 0;
        return &iterator;
      },
      .setText = [](void*, const char16_t*, std::int32_t, int* error) { *error = 1; },
      .next = [](void*) -> std::int32_t { return 1; },
      .close = [](void*) {}};
  std::vector<std::size_t> cuts;
  EXPECT_FALSE(MakeIcuSegmenter(functions)->FindCuts("手机", cuts));
  EXPECT_TRUE(cuts.empty());
}

std::string CutBy(RunSegmenter& segmenter, std::string_view run) {
  std::vector<std::size_t> cuts;
  EXPECT_TRUE(segmenter.FindCuts(run, cuts));
  std::string places;
  for (const std::size_t cut : cuts) places.append(" ").append(std::to_string(cut));
  return places;
}

// The library learns scripts as it meets them.
TEST_F(SystemSegmenter, WhatWasCutBeforeMakesNoDifference) {
  const std::string run = "ー日本語";
  const std::string expected = CutBy(*MakeSystemSegmenter(), run);
  for (const std::string_view before : {"ﾞﾞ", "ﾟｶﾞ", "々〪", "ᩬᩬ", "กฺ", "日本語"}) {
    const std::unique_ptr<RunSegmenter> segmenter = MakeSystemSegmenter();
    CutBy(*segmenter, before);
    EXPECT_EQ(CutBy(*segmenter, run), expected) << before;
  }
}

TEST_F(SystemSegmenter, WhatWasCutBeforeMakesNoDifferenceToAnyLetters) {
  constexpr int kRuns = 3000;
  constexpr std::size_t kLongestRun = 8;
  constexpr std::pair<char32_t, char32_t> kBlocks[] = {
      {0x0E01, 0x0EDF},   {0x1000, 0x109F},   {0x1780, 0x17DD}, {0x1A20, 0x1A7F},
      {0x3005, 0x3005},   {0x302A, 0x302F},   {0x3041, 0x30FF}, {0x4E00, 0x4EFF},
      {0xAA60, 0xAA7F},   {0xFF66, 0xFF9F},   {0x0300, 0x036F}, {0x11700, 0x1172B},
      {0x20000, 0x20010}, {0x1B000, 0x1B010}, {0x30FC, 0x30FC}};
  std::mt19937 random(20);  // NOLINT(cert-msc51-cpp): the same in each run
  const std::unique_ptr<RunSegmenter> used = MakeSystemSegmenter();
  for (int i = 0; i < kRuns; ++i) {
    std::string run;
    for (std::size_t letters = 2 + random() % kLongestRun; letters > 0; --letters) {
      const auto& [first, last] = kBlocks[random() % std::size(kBlocks)];
      AppendCharacter(run, static_cast<char32_t>(first + random() % (last - first + 1)));
    }
    ASSERT_EQ(CutBy(*used, run), CutBy(*MakeSystemSegmenter(), run)) << run;
  }
}

TEST_F(SystemSegmenter, FindsTheSameAgainAndInAnyThread) {
  const std::string expected = Cut("我喜欢手机");
  std::vector<std::string> found(4);
  std::vector<std::thread> threads;
  for (std::string& each : found) {
    threads.emplace_back([&each] { each = Cut("我喜欢手机"); });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::string& each : found) EXPECT_EQ(each, expected);
}

}  // namespace
}  // namespace quillomat
