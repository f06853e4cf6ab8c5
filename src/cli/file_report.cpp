#include "cli/file_report.h"

#include <algorithm>
#include <variant>
#include <vector>

#include "cli/result_export.h"
#include "export/plain_table.h"
#include "sources/file_columns.h"

namespace quillomat {
namespace {

PlainTable TableOf(const std::vector<FileReport>& files) {
  return {.columns = {kFileColumnNames.begin(), kFileColumnNames.end()},
          .rows = files.size(),
          .cellAt = [&files](std::size_t row, std::size_t column) {
            return CellOf(files[row], static_cast<FileColumn>(column));
          }};
}

/// Whether the list or an export goes there, too.
bool IsOtherTarget(const CommandLine& options, const std::string& path) {
  if (std::ranges::count(options.exports, path) > 0) return true;
  return std::ranges::any_of(options.settings, [&path](const GivenOption& given) {
    return given.setting->option.name == "--output" && given.values.back() == path;
  });
}

}  // namespace

std::optional<std::string> FindReportFault(const CommandLine& options) {
  if (!options.report) return std::nullopt;
  const std::string& path = *options.report;
  if (!PlainFormatOfPath(path)) {
    return "--report: '" + path + "' must end in one of: " + PlainEndings();
  }
  if (IsOtherTarget(options, path))
    return "--report: '" + path + "' is written by --output or --export";
  return std::nullopt;
}

std::optional<std::string> WriteFileReport(const Program& program, const CommandLine& options) {
  if (!options.report) return std::nullopt;
  const std::string& path = *options.report;
  const std::vector<FileReport>& files = program.Words().files;
  if (files.empty()) return path + " is not written: no file was met";
  return WriteBesideList(path, program,
                         [&] { ExportPlainTable(TableOf(files), *PlainFormatOfPath(path), path); });
}

}  // namespace quillomat
