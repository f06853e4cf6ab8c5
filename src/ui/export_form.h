// The controls of the window that exports the list.
#pragma once

#include <array>

#include "ui/controls.h"
#include "ui/form.h"

namespace quillomat {

class ExportForm final : public Form {
 public:
  ExportForm() : Form("frmExport", "Export") {}

  Label lblFile{*this, "lblFile", "File:"};
  TextBox txbFile{*this, "txbFile"};
  CommandButton cmdChooseFile{*this, "cmdChooseFile", "Choose..."};
  Label lblFormat{*this, "lblFormat", "Format:"};
  ComboBox cboFormat{*this, "cboFormat"};
  Label lblOrder{*this, "lblOrder", "Order of the words:"};
  ComboBox cboOrder{*this, "cboOrder"};
  Label lblFirst{*this, "lblFirst", "Only the first words (empty for all):"};
  TextBox txbFirst{*this, "txbFirst"};
  /// There while a filter is set.
  CheckBox chkFiltered{*this, "chkFiltered", "Only what the filter shows"};

  Frame fraColumns{*this, "fraColumns", "Columns"};
  /// In the order of WordColumn.
  std::array<CheckBox, 9> chkColumn{CheckBox{*this, {"chkColumn", 0}, "Rank"},
                                    CheckBox{*this, {"chkColumn", 1}, "Word"},
                                    CheckBox{*this, {"chkColumn", 2}, "Frequency"},
                                    CheckBox{*this, {"chkColumn", 3}, "Share %"},
                                    CheckBox{*this, {"chkColumn", 4}, "Per million"},
                                    CheckBox{*this, {"chkColumn", 5}, "Cumulative %"},
                                    CheckBox{*this, {"chkColumn", 6}, "Length"},
                                    CheckBox{*this, {"chkColumn", 7}, "Number of files"},
                                    CheckBox{*this, {"chkColumn", 8}, "A row for each file"}};

  /// Why those about files cannot be chosen.
  Label lblFilesUnknown{*this, "lblFilesUnknown", "Files: known of folders with count-only words."};

  /// What came of it, or how far it is.
  Label lblState{*this, "lblState"};
  CommandButton cmdExport{*this, "cmdExport", "Export"};
  CommandButton cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace quillomat
