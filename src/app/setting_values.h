// Settings and the controls that hold them: which control a row of the table means, and its
// default.
#pragma once

#include <vector>

#include "app/settings_table.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// The control that holds the setting. Throws std::logic_error for a row without one.
[[nodiscard]] Control& ControlOf(const Setting& setting, const MainForm& frmMain,
                                 const ParamsForm& frmParams);

/// Puts the control of the setting to the setting's default.
void SetToDefault(const Setting& setting, Control& control);
[[nodiscard]] bool HasDefault(const Setting& setting, const Control& control);

/// The value as a text: of a check box 0, 1 or 2, of a list the item, of a text box its text.
[[nodiscard]] std::string ValueTextOf(const Control& control);
/// The same, but of a list the index: an item may be called otherwise in another language.
[[nodiscard]] std::string LanguageFreeValueOf(const Control& control);

/// The panel's check boxes in the order in which "Clear checkboxes" goes through them.
[[nodiscard]] std::vector<CheckBox*> BoxesInClearingOrder(const ParamsForm& frmParams);

}  // namespace quillomat
