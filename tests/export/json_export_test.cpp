// JSON and JSON lines, read back by a library.
#include <nlohmann/json.hpp>

#include "export/export_fixture.h"

namespace quillomat {
namespace {

using nlohmann::json;
using JsonExport = ExportFixture;

TEST_F(JsonExport, IsOneObjectWithRowsOfNumbersAndStrings) {
  Count({{"the", 120}, {"whale", 3}});
  totalsFacts_ = {{"words-read", std::int64_t{1000}}};
  settings_ = {{"chkDropFinalS", std::string("1")}};
  const json whole = json::parse(Export(ExportFormat::kJson, UsualColumns(false)));
  EXPECT_EQ(whole["totals"]["words-read"], 1000);
  EXPECT_EQ(whole["settings"]["chkDropFinalS"], "1");
  EXPECT_FALSE(whole.contains("statistics"));
  ASSERT_EQ(whole["rows"].size(), 2U);
  EXPECT_EQ(whole["rows"][0]["word"], "the");
  EXPECT_EQ(whole["rows"][0]["frequency"], 120);
  EXPECT_TRUE(whole["rows"][0]["frequency"].is_number_integer());
  EXPECT_DOUBLE_EQ(whole["rows"][0]["percent"], 12.0);
  EXPECT_DOUBLE_EQ(whole["rows"][1]["cumulative"], 12.3);
}

TEST_F(JsonExport, StatisticsAreAnObjectWithTheGrowthAsPairs) {
  Count({{"the", 2}, {"whale", 1}});
  OrderFigures order;
  order.growth = {{1, 1}, {3, 2}};
  statistics_ = FactsOf(StatisticsOf(store_, order));
  const json statistics =
      json::parse(Export(ExportFormat::kJson, UsualColumns(false)))["statistics"];
  EXPECT_EQ(statistics["instances"], 3);
  EXPECT_DOUBLE_EQ(statistics["type-token-ratio"], 0.666667);
  EXPECT_EQ(statistics["longest-words"], "whale the");
  EXPECT_FALSE(statistics.contains("standardised-type-token-ratio"));
  EXPECT_EQ(statistics["growth"], json::parse("[[1, 1], [3, 2]]"));
}

TEST_F(JsonExport, SeveralTextsAreAnArray) {
  Count({{"the", 2}});
  settings_ = {{"paths", std::vector<std::string>{"a, b.txt", "\xF0\x9F"}}};
  const json whole = json::parse(Export(ExportFormat::kJson, UsualColumns(false)));
  EXPECT_EQ(whole["settings"]["paths"], json::parse("[\"a, b.txt\", \"\uFFFD\uFFFD\"]"));
}

TEST_F(JsonExport, AnEmptyListIsStillAnObject) {
  Count({});
  EXPECT_TRUE(json::parse(Export(ExportFormat::kJson, UsualColumns(false)))["rows"].empty());
}

TEST_F(JsonExport, AColumnThatIsNamedTwiceIsThereOnce) {
  Count({{"the", 2}});
  EXPECT_EQ(
      Export(ExportFormat::kJsonLines, {WordColumn::kWord, WordColumn::kRank, WordColumn::kWord}),
      "{\"word\": \"the\", \"rank\": 1}\n");
}

TEST_F(JsonExport, LinesAreObjectsOfTheirOwn) {
  Count({{"a\\b", 2}, {"c\"d", 1}});
  const std::string lines = Export(ExportFormat::kJsonLines, {WordColumn::kWord});
  const std::size_t end = lines.find('\n');
  EXPECT_EQ(json::parse(lines.substr(0, end))["word"], "a\\b");
  EXPECT_EQ(json::parse(lines.substr(end + 1))["word"], "c\"d");
}

TEST_F(JsonExport, APathThatIsNoUtf8DoesNotSpoilIt) {
  CountInFile("/texts/\xF0\x9F.txt");
  settings_ = {{"file", std::string("\xF0\x9F")}};
  const json whole =
      json::parse(Export(ExportFormat::kJson, {WordColumn::kWord, WordColumn::kFile}));
  EXPECT_EQ(whole["rows"][0]["file"], "/texts/\uFFFD\uFFFD.txt");
  EXPECT_EQ(whole["settings"]["file"], "\uFFFD\uFFFD");
}

}  // namespace
}  // namespace quillomat
