#include "cli/result_export.h"

#include <algorithm>
#include <new>
#include <vector>

#include "app/exports/result_export.h"
#include "base/run_time_error.h"
#include "cli/export_options.h"
#include "export/word_export.h"
#include "listing/display_format.h"

namespace quillomat {
namespace {

/// The listed words, or the first ones, in the order of the list.
ExportWish WishOf(const Program& program, const CommandLine& options) {
  ExportWish wish;
  wish.columns = ExportColumns(options, program.Words().store.Files().IsOn());
  wish.order = static_cast<WordOrder>(program.frmMain.cboWordOrder.ListIndex());
  if (options.top) wish.first = static_cast<std::size_t>(*options.top);
  return wish;
}

/// Why the file may not be written, or nothing.
std::optional<std::string> FindFileFault(const Program& program, const std::string& path) {
  if (WhyNotToExport(path, program.Words(), program.Settings())) {
    return "is read by this count; it is not overwritten";
  }
  if (HoldsSomething(path) && program.frmParams.chkWarnOnOverwrite.IsChecked()) {
    return "exists and is left as it is (--overwrite replaces it)";
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> WriteBesideList(const std::string& path, const Program& program,
                                           const std::function<void()>& write) {
  if (const auto fault = FindFileFault(program, path)) return path + " " + *fault;
  try {
    write();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return path + " cannot be written: " + error.Description();
  } catch (const std::bad_alloc&) {
    return path + " cannot be written: " + DescriptionOf(RunTimeErrorNumber::kOutOfMemory);
  }
}

std::optional<std::string> ExportResult(const Program& program, const CommandLine& options) {
  const ExportWish wish = WishOf(program, options);
  if (std::ranges::any_of(wish.columns, NeedsFiles) && !program.Words().store.Files().IsOn()) {
    return "--columns: in which files a word occurs is known of folders and several paths with "
           "count-only words only";
  }
  const ResultExport result(program.Words(), program.frmMain, program.frmParams, wish);
  for (const std::string& path : options.exports) {
    auto fault = WriteBesideList(path, program, [&] {
      static_cast<void>(ExportToFile(result.Table(), *ExportFormatOfPath(path), path, {}));
    });
    if (fault) return fault;
  }
  return std::nullopt;
}

}  // namespace quillomat
