// Whether a file is a state, without anything being set.
#pragma once

#include <string>

#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// Whether ReadStateFile would take the file for these windows, whose lists are filled. False when
/// it cannot be read.
[[nodiscard]] bool IsStateFile(const std::string& path, const MainForm& frmMain,
                               const ParamsForm& frmParams);

}  // namespace quillomat
