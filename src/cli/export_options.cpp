#include "cli/export_options.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "cli/targets.h"
#include "engine/word_list.h"
#include "export/export_table.h"

namespace quillomat {
namespace {

using Fault = std::optional<std::string>;

std::vector<std::string> ColumnNames(const CommandLine& options) {
  if (!options.columns) return {};
  return SplitList(*options.columns, " ,", options.columns->size()).items;
}

/// "csv", or any other ending of a file's name, is the name of a format.
std::optional<ExportFormat> FormatOfName(const std::string& name) {
  return ExportFormatOfPath("." + name);
}

Fault FindPathFault(const CommandLine& options) {
  for (const std::string& path : options.exports) {
    if (options.exportFormat || IsStandardOutput(path) || ExportFormatOfPath(path)) continue;
    return "--export " + path + ": the name must end in one of: " + ExportEndings() +
           "; or --export-format says which it is";
  }
  if (std::ranges::count_if(options.exports, IsStandardOutput) > 1) {
    return "--export -: standard output takes one export";
  }
  return std::nullopt;
}

Fault FindFormatFault(const CommandLine& options) {
  if (!options.exportFormat) return std::nullopt;
  const std::string given = "--export-format " + *options.exportFormat;
  if (options.exports.empty()) return given + " goes with --export";
  const std::optional<ExportFormat> format = FormatOfName(*options.exportFormat);
  if (!format) return given + ": takes one of: " + ExportEndings();
  const bool isUsed = std::ranges::any_of(options.exports, [&](const std::string& path) {
    return ExportFormatOfPath(path).value_or(*format) == *format;
  });
  if (isUsed) return std::nullopt;
  return given + " contradicts the ending of " + options.exports.front() +
         "; it is for names without such an ending, and for -";
}

Fault FindColumnsFault(const CommandLine& options) {
  if (!options.columns) return std::nullopt;
  if (options.exports.empty()) return "--columns goes with --export";
  if (ColumnNames(options).empty()) return "--columns: no column is named";
  std::set<std::string> named;
  for (const std::string& name : ColumnNames(options)) {
    if (!named.insert(name).second) return "--columns: '" + name + "' is named twice";
    if (WordColumnOfName(name)) continue;
    std::string names;
    for (const std::string_view known : kWordColumnNames) {
      names.append(names.empty() ? "" : ", ").append(known);
    }
    return "--columns: '" + name + "' is none of: " + names;
  }
  return std::nullopt;
}

}  // namespace

ExportFormat FormatOfExport(const CommandLine& options, const std::string& path) {
  if (const auto format = ExportFormatOfPath(path)) return *format;
  return options.exportFormat ? *FormatOfName(*options.exportFormat) : ExportFormat::kCsv;
}

std::vector<WordColumn> ExportColumns(const CommandLine& options, bool knowsFiles) {
  if (!options.columns) return UsualColumns(knowsFiles);
  std::vector<WordColumn> columns;
  for (const std::string& name : ColumnNames(options)) columns.push_back(*WordColumnOfName(name));
  return columns;
}

Fault FindExportFault(const CommandLine& options) {
  for (const auto& find : {FindPathFault, FindFormatFault, FindColumnsFault}) {
    if (Fault fault = find(options)) return fault;
  }
  return std::nullopt;
}

}  // namespace quillomat
