#include "export/xlsx_library.h"

namespace quillomat {

const XlsxLibrary& XlsxLibrary::Get() {
  static constexpr XlsxLibrary kLibrary = {.newWorkbook = workbook_new_opt,
                                           .addFormat = workbook_add_format,
                                           .addSheet = workbook_add_worksheet,
                                           .close = workbook_close,
                                           .free = lxw_workbook_free,
                                           .setBold = format_set_bold,
                                           .setNumberFormat = format_set_num_format,
                                           .freezePanes = worksheet_freeze_panes,
                                           .setColumn = worksheet_set_column,
                                           .writeString = worksheet_write_string,
                                           .writeNumber = worksheet_write_number,
                                           .writeBoolean = worksheet_write_boolean,
                                           .describe = lxw_strerror};
  return kLibrary;
}

}  // namespace quillomat
