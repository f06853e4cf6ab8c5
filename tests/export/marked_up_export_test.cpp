// HTML and Markdown.
#include <gmock/gmock.h>

#include "export/export_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::Not;
using MarkedUpExport = ExportFixture;

TEST_F(MarkedUpExport, MarkdownIsATableWithNumbersOnTheRight) {
  Count({{"the", 2}, {"snake_case", 1}});
  EXPECT_EQ(Export(ExportFormat::kMarkdown, {WordColumn::kWord, WordColumn::kFrequency}),
            "| word | frequency |\n| --- | ---: |\n| the | 2 |\n| snake\\_case | 1 |\n");
}

TEST_F(MarkedUpExport, HtmlEscapesWordsAndSettings) {
  Count({{"a&b", 1}});
  settings_ = {{"txbStartComment(0)", std::string("<")}};
  const std::string page = Export(ExportFormat::kHtml, {WordColumn::kWord});
  EXPECT_THAT(page, HasSubstr("<td class=\"text\">a&amp;b</td>"));
  EXPECT_THAT(page, HasSubstr("txbStartComment(0)</th><td>&lt;</td>"));
}

TEST_F(MarkedUpExport, HtmlSaysAtItsTopThatSomethingOfTheTextIsMissing) {
  Count({{"the", 1}});
  totalsFacts_ = {{"complete", true}};
  const std::string whole = Export(ExportFormat::kHtml, {WordColumn::kWord});
  EXPECT_THAT(whole, HasSubstr("<details><summary>Totals"));
  EXPECT_THAT(whole, Not(HasSubstr("part of the text")));
  totalsFacts_ = {{"complete", false}, {"files-begun", std::int64_t{40}}};
  const std::string part = Export(ExportFormat::kHtml, {WordColumn::kWord});
  EXPECT_THAT(part, HasSubstr("<details open><summary>Totals"));
  EXPECT_LT(part.find("part of the text"), part.find("<details"));
}

TEST_F(MarkedUpExport, WhatIsNoUtf8IsShownAsFarAsItIs) {
  CountInFile("/caf\xE9.txt");
  settings_ = {{"file", std::string("caf\xE9")}};
  EXPECT_THAT(Export(ExportFormat::kMarkdown, {WordColumn::kFile}),
              HasSubstr("| /caf\uFFFD.txt |"));
  const std::string page = Export(ExportFormat::kHtml, {WordColumn::kFile});
  EXPECT_THAT(page, HasSubstr("<td class=\"text\">/caf\uFFFD.txt</td>"));
  EXPECT_THAT(page, HasSubstr("<td>caf\uFFFD</td>"));
}

TEST_F(MarkedUpExport, HtmlSaysWhichColumnItsRowsAreSortedBy) {
  Count({{"the", 1}});
  const std::vector<WordColumn> columns = {WordColumn::kRank, WordColumn::kWord,
                                           WordColumn::kFrequency, WordColumn::kCumulative};
  const std::string page = Export(ExportFormat::kHtml, columns);
  EXPECT_THAT(page, HasSubstr(R"(<th scope="col" aria-sort="ascending"><button>rank<)"));
  EXPECT_THAT(page, HasSubstr(R"(<th scope="col" class="text"><button>word<)"));
  EXPECT_THAT(page, HasSubstr(R"(<th scope="col" class="most"><button>frequency<)"));
  EXPECT_THAT(page, HasSubstr(R"(<th scope="col"><button>cumulative<)"));
  ExportTable table = Table(columns);
  table.order = WordOrder::kAlphabetical;
  TextSink alphabetical;
  EXPECT_TRUE(ExportText(table, ExportFormat::kHtml, alphabetical, {}));
  EXPECT_THAT(alphabetical.text,
              HasSubstr(R"(<th scope="col" class="text" aria-sort="ascending"><button>word<)"));
  EXPECT_THAT(alphabetical.text, HasSubstr(R"(<th scope="col"><button>rank<)"));
}

TEST_F(MarkedUpExport, HtmlHasALineForEachOfSeveralTexts) {
  Count({{"the", 1}});
  settings_ = {{"paths", std::vector<std::string>{"a&b.txt", "c.txt"}}};
  EXPECT_THAT(Export(ExportFormat::kHtml, {WordColumn::kWord}),
              HasSubstr("paths</th><td>a&amp;b.txt<br>c.txt</td>"));
}

TEST_F(MarkedUpExport, HtmlNeedsNothingFromOutside) {
  Count({{"the", 1}});
  const std::string page = Export(ExportFormat::kHtml, UsualColumns(false));
  EXPECT_THAT(page, Not(HasSubstr("http")));
  EXPECT_THAT(page, Not(HasSubstr("src=")));
}

}  // namespace
}  // namespace quillomat
