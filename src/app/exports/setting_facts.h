// What a count goes by, as an export tells it: under the names of the terminal's options, so that
// whoever has the file can make the count again.
#pragma once

#include <vector>

#include "app/count/in_force.h"
#include "export/export_table.h"
#include "sources/output_rules.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// The text, and the settings that bear on its words as the windows stand now; those that are empty
/// are left out, and count-only words that are none, as all words are counted then. Paths are whole
/// ones, "-" is standard input.
[[nodiscard]] std::vector<ExportFact> SettingFactsOf(const CountedText& text,
                                                     const InForce& inForce,
                                                     const MainForm& frmMain,
                                                     const ParamsForm& frmParams);

}  // namespace quillomat
