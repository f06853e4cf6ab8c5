// Controls by name, and setting them by a value in words.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// The control of that name, on the panel or the main window, or null.
[[nodiscard]] Control* FindControl(const MainForm& frmMain, const ParamsForm& frmParams,
                                   std::string_view name);

/// Sets a control: a check box takes 0, 1 or 2 (grey), a list an item's text or #INDEX, an option
/// button 1. Returns what is wrong with the value, or nothing.
[[nodiscard]] std::optional<std::string> SetValue(Control& control, const std::string& value);

}  // namespace quillomat
