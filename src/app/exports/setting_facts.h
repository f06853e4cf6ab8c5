// What a count goes by, as an export tells it: under the names of the terminal's options, so that
// whoever has the file can make the count again.
#pragma once

#include <string>
#include <vector>

#include "export/export_table.h"
#include "sources/output_rules.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// The text, and the settings that bear on its words as the windows stand now; those that are empty
/// are left out. Paths are whole ones, "-" is standard input. `clipboardFile`: the file whose text
/// stands on the clipboard; "" for none.
[[nodiscard]] std::vector<ExportFact> SettingFactsOf(const CountedText& text,
                                                     const std::string& clipboardFile,
                                                     const MainForm& frmMain,
                                                     const ParamsForm& frmParams);

}  // namespace quillomat
