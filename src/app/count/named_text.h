// The text that the main window names at the moment, to be counted next.
#pragma once

#include "sources/output_rules.h"
#include "ui/main_form.h"

namespace quillomat {

[[nodiscard]] CountedText TextNamedIn(const MainForm& frmMain);

}  // namespace quillomat
