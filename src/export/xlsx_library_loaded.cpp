#include <optional>
#include <string>

#include "base/run_time_error.h"
#include "export/xlsx_library.h"
#include "system/shared_library.h"

namespace quillomat {
namespace {

constexpr const char* kFile = QUILLOMAT_XLSXWRITER_FILE;

std::optional<XlsxLibrary> Load() {
  const std::optional<SharedLibrary> library = SharedLibrary::Load(kFile);
  if (!library) return std::nullopt;
  XlsxLibrary found{};
  const bool whole = library->Find("workbook_new_opt", found.newWorkbook) &&
                     library->Find("workbook_add_format", found.addFormat) &&
                     library->Find("workbook_add_worksheet", found.addSheet) &&
                     library->Find("workbook_close", found.close) &&
                     library->Find("lxw_workbook_free", found.free) &&
                     library->Find("format_set_bold", found.setBold) &&
                     library->Find("format_set_num_format", found.setNumberFormat) &&
                     library->Find("worksheet_freeze_panes", found.freezePanes) &&
                     library->Find("worksheet_set_column", found.setColumn) &&
                     library->Find("worksheet_write_string", found.writeString) &&
                     library->Find("worksheet_write_number", found.writeNumber) &&
                     library->Find("worksheet_write_boolean", found.writeBoolean) &&
                     library->Find("lxw_strerror", found.describe);
  if (!whole) return std::nullopt;
  return found;
}

}  // namespace

const XlsxLibrary& XlsxLibrary::Get() {
  static const std::optional<XlsxLibrary> kLibrary = Load();
  if (!kLibrary) {
    throw RunTimeError(RunTimeErrorNumber::kFileNotFound,
                       std::string(kFile) +
                           " is missing, which writes workbooks; install it, or "
                           "choose another format");
  }
  return *kLibrary;
}

}  // namespace quillomat
