// The functions of libxlsxwriter that workbooks are written with. It comes with libraries of its
// own whose loading would take longer than a short text is counted; so it is loaded when a workbook
// is written, where it is not a part of the program.
#pragma once

#include <xlsxwriter.h>

namespace quillomat {

struct XlsxLibrary {
  decltype(&::workbook_new_opt) newWorkbook;
  decltype(&::workbook_add_format) addFormat;
  decltype(&::workbook_add_worksheet) addSheet;
  decltype(&::workbook_close) close;
  decltype(&::lxw_workbook_free) free;
  decltype(&::format_set_bold) setBold;
  decltype(&::format_set_num_format) setNumberFormat;
  decltype(&::worksheet_freeze_panes) freezePanes;
  decltype(&::worksheet_set_column) setColumn;
  decltype(&::worksheet_write_string) writeString;
  decltype(&::worksheet_write_number) writeNumber;
  decltype(&::worksheet_write_boolean) writeBoolean;
  decltype(&::lxw_strerror) describe;

  /// Throws RunTimeError 53, naming the library, where the system has none. May be called by any
  /// thread.
  [[nodiscard]] static const XlsxLibrary& Get();
};

}  // namespace quillomat
