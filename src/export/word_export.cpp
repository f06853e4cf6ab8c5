#include "export/word_export.h"

#include <cstddef>
#include <vector>

#include "export/export_writer.h"
#include "export/xlsx_export.h"
#include "system/input_file.h"
#include "system/output_file.h"
#include "system/scratch_folder.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;

}  // namespace

bool ExportText(const ExportTable& table, ExportFormat format, ByteSink& sink,
                const ExportProgress& progress) {
  ExportWriter writer(sink, progress);
  switch (format) {
    case ExportFormat::kCsv:
      return WriteCsv(table, writer);
    case ExportFormat::kTsv:
      return WriteTsv(table, writer);
    case ExportFormat::kJson:
      return WriteJson(table, writer);
    case ExportFormat::kJsonLines:
      return WriteJsonLines(table, writer);
    case ExportFormat::kHtml:
      return WriteHtml(table, writer);
    case ExportFormat::kMarkdown:
      return WriteMarkdown(table, writer);
    case ExportFormat::kXlsx:
      break;
  }
  return false;
}

namespace {

/// The library writes by a path, so the workbook is made apart and then takes the way of all files.
bool ExportWorkbook(const ExportTable& table, ByteSink& file, const ExportProgress& progress) {
  ScratchFolder scratch;
  const std::string path = scratch.PathOf("words.xlsx");
  if (!WriteXlsx(table, path, scratch.Path(), progress)) return false;
  InputFile made(path);
  std::vector<char> block(kBlockBytes);
  while (const std::size_t bytes = made.Read(block)) file.Write({block.data(), bytes});
  return true;
}

}  // namespace

bool ExportTo(ByteSink& sink, const ExportTable& table, ExportFormat format,
              const ExportProgress& progress) {
  return format == ExportFormat::kXlsx ? ExportWorkbook(table, sink, progress)
                                       : ExportText(table, format, sink, progress);
}

bool ExportToFile(const ExportTable& table, ExportFormat format, const std::string& path,
                  const ExportProgress& progress) {
  OutputFile file(path);
  const bool whole = ExportTo(file, table, format, progress);
  if (whole) file.Close();
  return whole;
}

}  // namespace quillomat
