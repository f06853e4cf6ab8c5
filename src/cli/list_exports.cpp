#include "cli/list_exports.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "app/exports/result_export.h"
#include "cli/export_options.h"
#include "cli/targets.h"
#include "export/word_export.h"
#include "export/xlsx_export.h"
#include "listing/display_format.h"

namespace quillomat {
namespace {

using Fault = std::optional<std::string>;

/// The listed words, or the first ones, in the order of the list.
ExportWish WishOf(const Program& program, const CommandLine& options) {
  ExportWish wish;
  wish.columns = ExportColumns(options, program.Words().store.Files().IsOn());
  wish.order = static_cast<WordOrder>(program.frmMain.cboWordOrder.ListIndex());
  if (options.top) wish.first = static_cast<std::size_t>(*options.top);
  return wish;
}

Fault FindUnservedWorkbook(const CommandLine& options, const TerminalStreams& streams) {
  for (const std::string& path : options.exports) {
    if (FormatOfExport(options, path) != ExportFormat::kXlsx) continue;
    if (const Fault fault = FindWorkbookFault()) return "--export " + path + ": " + *fault;
    if (streams.outIsTerminal && IsStandardOutput(path)) {
      return "--export -: a workbook is nothing for a terminal; send it to a file";
    }
  }
  return std::nullopt;
}

}  // namespace

Fault FindUnservedExport(const CommandLine& options, const TerminalStreams& streams,
                         bool filesAreKnown) {
  if (!filesAreKnown && std::ranges::any_of(ExportColumns(options, false), NeedsFiles)) {
    return "--columns: in which files a word occurs is known of folders and of paths with "
           "count-only words (--only, --only-words)";
  }
  return FindUnservedWorkbook(options, streams);
}

bool ExportList(const Program& program, const CommandLine& options, const TerminalStreams& streams,
                const std::function<void(const std::string& fault)>& tell) {
  if (options.exports.empty()) return true;
  const ResultExport result(program.Words(), WishOf(program, options));
  bool allWritten = true;
  for (const std::string& path : options.exports) {
    const ExportFormat format = FormatOfExport(options, path);
    if (IsStandardOutput(path)) {
      const bool printed = streams.print(
          [&](ByteSink& out) { static_cast<void>(ExportTo(out, result.Table(), format, {})); });
      if (!printed) allWritten = false;
      continue;
    }
    const Fault fault = WriteTarget({"--export", path}, program, [&] {
      static_cast<void>(ExportToFile(result.Table(), format, path, {}));
    });
    if (!fault) continue;
    tell(*fault);
    allWritten = false;
  }
  return allWritten;
}

}  // namespace quillomat
