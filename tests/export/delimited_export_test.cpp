// CSV and TSV.
#include "export/export_fixture.h"

namespace quillomat {
namespace {

using DelimitedExport = ExportFixture;

TEST_F(DelimitedExport, CsvHasALineOfNamesAndALineForEachWord) {
  Count({{"whale", 3}, {"the", 120}, {"sea", 3}});
  EXPECT_EQ(Export(ExportFormat::kCsv, UsualColumns(false)),
            "rank,word,frequency,percent,per-million,cumulative,length\r\n"
            "1,the,120,12.000000,120000.00,12.000000,3\r\n"
            "2,sea,3,0.300000,3000.00,12.300000,3\r\n"
            "3,whale,3,0.300000,3000.00,12.600000,5\r\n");
}

TEST_F(DelimitedExport, CsvQuotesWhatHoldsACommaOrAQuote) {
  Count({{"1,000", 2}, {"a\"b", 1}});
  EXPECT_EQ(Export(ExportFormat::kCsv, {WordColumn::kWord, WordColumn::kFrequency}),
            "word,frequency\r\n\"1,000\",2\r\n\"a\"\"b\",1\r\n");
}

TEST_F(DelimitedExport, TsvEscapesWhatWouldEndACell) {
  Count({{"a\\b", 1}});
  EXPECT_EQ(Export(ExportFormat::kTsv, {WordColumn::kWord, WordColumn::kLength}),
            "word\tlength\na\\\\b\t3\n");
}

TEST_F(DelimitedExport, ColumnsComeInTheOrderAskedFor) {
  Count({{"the", 2}, {"\xC3\xA9t\xC3\xA9", 1}});
  EXPECT_EQ(Export(ExportFormat::kCsv, {WordColumn::kLength, WordColumn::kWord}),
            "length,word\r\n3,the\r\n3,\xC3\xA9t\xC3\xA9\r\n");
}

TEST_F(DelimitedExport, AColumnMayComeTwice) {
  Count({{"the", 2}});
  EXPECT_EQ(
      Export(ExportFormat::kCsv, {WordColumn::kWord, WordColumn::kFrequency, WordColumn::kWord}),
      "word,frequency,word\r\nthe,2,the\r\n");
}

TEST_F(DelimitedExport, PathsThatAreNoUtf8AreShownAsFarAsTheyAre) {
  CountInFile("/caf\xE9/\xF0\x9F\x98.txt");
  EXPECT_EQ(Export(ExportFormat::kCsv, {WordColumn::kWord, WordColumn::kFile}),
            "word,file\r\nwhale,/caf\uFFFD/\uFFFD\uFFFD\uFFFD.txt\r\n");
  EXPECT_EQ(Export(ExportFormat::kTsv, {WordColumn::kFile}),
            "file\n/caf\uFFFD/\uFFFD\uFFFD\uFFFD.txt\n");
}

TEST_F(DelimitedExport, AColumnOfFilesMakesARowForEach) {
  store_.Files().Reset(true);
  store_.Files().SetFileBeingScanned("/texts/a, b.txt");
  store_.AddWord("whale");
  store_.AddWord("whale");
  store_.Files().SetFileBeingScanned("/texts/c.txt");
  store_.AddWord("whale");
  Rank();
  EXPECT_EQ(
      Export(ExportFormat::kCsv, {WordColumn::kWord, WordColumn::kFile, WordColumn::kFrequency}),
      "word,file,frequency\r\nwhale,\"/texts/a, b.txt\",2\r\nwhale,/texts/c.txt,1\r\n");
  EXPECT_EQ(Export(ExportFormat::kCsv, {WordColumn::kWord, WordColumn::kFiles}),
            "word,files\r\nwhale,2\r\n");
}

TEST_F(DelimitedExport, ARowOfAFileHasTheSharesOfItsFrequency) {
  store_.Files().Reset(true);
  store_.Files().SetFileBeingScanned("a.txt");
  for (const char* word : {"sea", "whale", "whale"}) store_.AddWord(word);
  store_.Files().SetFileBeingScanned("b.txt");
  store_.AddWord("whale");
  Rank();
  EXPECT_EQ(Export(ExportFormat::kCsv,
                   {WordColumn::kWord, WordColumn::kFile, WordColumn::kFrequency,
                    WordColumn::kPercent, WordColumn::kPerMillion, WordColumn::kCumulative}),
            "word,file,frequency,percent,per-million,cumulative\r\n"
            "whale,a.txt,2,0.200000,2000.00,0.300000\r\n"
            "whale,b.txt,1,0.100000,1000.00,0.300000\r\n"
            "sea,a.txt,1,0.100000,1000.00,0.400000\r\n");
}

TEST_F(DelimitedExport, ProgressIsToldAndCanEndIt) {
  for (int i = 0; i < 10'000; ++i) store_.AddWord("w" + std::to_string(i));
  Rank();
  TextSink sink;
  std::vector<std::size_t> told;
  EXPECT_FALSE(
      ExportText(Table({WordColumn::kWord}), ExportFormat::kCsv, sink, [&](std::size_t rows) {
        told.push_back(rows);
        return told.size() < 2;
      }));
  EXPECT_EQ(told, (std::vector<std::size_t>{4096, 8192}));
}

}  // namespace
}  // namespace quillomat
