// A workbook that is not whole is seen to be so, wherever its parts or the archive end.
#include "export/workbook_check.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <zlib.h>

#include "export/export_fixture.h"
#include "export/xlsx_export.h"
#include "support/chunked_source.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

constexpr std::string_view kDocument = "<?xml version=\"1.0\"?>\n<sheet a=\"b\"><row/></sheet>";

std::string Number(std::uint32_t number, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> (8 * i) & 0xFF);
  return text;
}

std::string Deflated(std::string text) {
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, 6, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY), Z_OK);
  std::string out(text.size() + 1000, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(text.data());
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(out.data());
  stream.avail_out = static_cast<uInt>(out.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  out.resize(stream.total_out);
  deflateEnd(&stream);
  return out;
}

std::string Part(std::string_view name, std::string_view text) {
  const std::string packed = Deflated(std::string(text));
  return Number(0x04034B50, 4) + Number(20, 2) + Number(0, 2) + Number(8, 2) +
         std::string(16, '\0') + Number(static_cast<std::uint32_t>(name.size()), 2) + Number(0, 2) +
         std::string(name) + packed;
}

const std::string kContentsFollow = Number(0x02014B50, 4) + "and so on";

bool IsWhole(const std::string& archive) {
  ChunkedSource source(archive, 100);
  return IsWholeWorkbook(source);
}

TEST(WorkbookCheck, PartsThatEndAsTheyBeginAreWhole) {
  EXPECT_TRUE(IsWhole(Part("a.xml", kDocument) + Part("b.xml", kDocument) + kContentsFollow));
  EXPECT_TRUE(IsWhole(Part("a.xml", std::string(kDocument) + "\n") + kContentsFollow));
}

TEST(WorkbookCheck, APartThatIsCutOffIsNot) {
  for (std::size_t bytes = 0; bytes < kDocument.size(); ++bytes) {
    const std::string cut = Part("b.xml", kDocument.substr(0, bytes));
    EXPECT_FALSE(IsWhole(Part("a.xml", kDocument) + cut + kContentsFollow)) << bytes;
  }
}

TEST(WorkbookCheck, ALongPartThatIsCutOffIsNot) {
  std::string text = "<?xml version=\"1.0\"?>\n<sheet>";
  for (int i = 0; i < 100'000; ++i) text += "<row n=\"" + std::to_string(i) + "\"/>";
  EXPECT_TRUE(IsWhole(Part("a.xml", text + "</sheet>") + kContentsFollow));
  EXPECT_FALSE(IsWhole(Part("a.xml", text) + kContentsFollow));
}

TEST(WorkbookCheck, AnArchiveThatIsCutOffIsNot) {
  const std::string archive = Part("a.xml", kDocument) + Part("b.xml", kDocument);
  for (std::size_t bytes = 0; bytes <= archive.size(); ++bytes) {
    EXPECT_FALSE(IsWhole(archive.substr(0, bytes))) << bytes;
  }
}

class WorkbookCheckOfExport : public ExportFixture {};

TEST_F(WorkbookCheckOfExport, WhatTheLibraryMakesIsWhole) {
  Count({{"the", 2}, {"whale", 1}});
  totalsFacts_ = {{"words", std::int64_t{2}}};
  const TemporaryFolder folder;
  ASSERT_TRUE(WriteXlsx(Table({WordColumn::kWord, WordColumn::kRank}), folder / "words.xlsx",
                        folder.Path(), {}, 1));
  const std::string archive = ContentsOf(folder / "words.xlsx");
  EXPECT_TRUE(IsWhole(archive));
  EXPECT_FALSE(IsWhole(archive.substr(0, archive.size() / 2)));
}

}  // namespace
}  // namespace quillomat
