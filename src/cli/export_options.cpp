#include "cli/export_options.h"

#include <string_view>

#include "engine/word_list.h"
#include "export/export_format.h"
#include "export/export_table.h"

namespace quillomat {
namespace {

std::vector<std::string> ColumnNames(const CommandLine& options) {
  if (!options.columns) return {};
  return SplitList(*options.columns, " ,", options.columns->size()).items;
}

}  // namespace

std::vector<WordColumn> ExportColumns(const CommandLine& options, bool knowsFiles) {
  if (!options.columns) return UsualColumns(knowsFiles);
  std::vector<WordColumn> columns;
  for (const std::string& name : ColumnNames(options)) columns.push_back(*WordColumnOfName(name));
  return columns;
}

std::optional<std::string> FindExportFault(const CommandLine& options) {
  if (options.columns && options.exports.empty()) return "--columns goes with --export";
  for (const std::string& path : options.exports) {
    if (ExportFormatOfPath(path)) continue;
    return "--export: '" + path + "' must end in one of: " + ExportEndings();
  }
  if (options.columns && ColumnNames(options).empty()) return "--columns: no column is named";
  for (const std::string& name : ColumnNames(options)) {
    if (WordColumnOfName(name)) continue;
    std::string names;
    for (const std::string_view known : kWordColumnNames) {
      names.append(names.empty() ? "" : ", ").append(known);
    }
    return "--columns: '" + name + "' is none of: " + names;
  }
  return std::nullopt;
}

}  // namespace quillomat
