// Setting controls by name and value, as "--set" does.
#pragma once

#include <optional>
#include <string>

#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// Sets the control of that name, on the main window or the panel. Returns what is wrong with the
/// name or the value, or nothing.
[[nodiscard]] std::optional<std::string> SetControl(MainForm& frmMain, ParamsForm& frmParams,
                                                    const std::string& name,
                                                    const std::string& value);

}  // namespace quillomat
