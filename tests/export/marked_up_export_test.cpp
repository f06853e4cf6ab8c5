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

TEST_F(MarkedUpExport, HtmlNeedsNothingFromOutside) {
  Count({{"the", 1}});
  const std::string page = Export(ExportFormat::kHtml, UsualColumns(false));
  EXPECT_THAT(page, Not(HasSubstr("http")));
  EXPECT_THAT(page, Not(HasSubstr("src=")));
}

}  // namespace
}  // namespace quillomat
