#include "cli/file_report.h"

#include <variant>
#include <vector>

#include "cli/targets.h"
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

}  // namespace

std::optional<std::string> FindReportFault(const CommandLine& options) {
  if (!options.report) return std::nullopt;
  const std::string& path = *options.report;
  if (IsStandardOutput(path)) {
    return "--report -: a report goes to a file, whose name must end in one of: " + PlainEndings();
  }
  if (!PlainFormatOfPath(path)) {
    return "--report " + path + ": the name must end in one of: " + PlainEndings();
  }
  return std::nullopt;
}

std::optional<std::string> WriteFileReport(const Program& program, const CommandLine& options) {
  if (!options.report) return std::nullopt;
  const std::string& path = *options.report;
  const std::vector<FileReport>& files = program.Words().files;
  if (files.empty()) return "--report " + path + " is not written: no file was met";
  return WriteTarget({"--report", path}, program,
                     [&] { ExportPlainTable(TableOf(files), *PlainFormatOfPath(path), path); });
}

}  // namespace quillomat
