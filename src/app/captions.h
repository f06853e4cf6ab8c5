// The windows' captions and tool tips in the current language.
#pragma once

#include <string>
#include <vector>

#include "app/settings_table.h"
#include "text/caption_table.h"
#include "text/program_text.h"
#include "ui/export_form.h"
#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// Which text is the caption (tool tip) of which control of a window: of its settings and of the
/// others.
[[nodiscard]] std::vector<ControlCaption> CaptionsOf(SettingWindow window);
[[nodiscard]] std::vector<ControlCaption> ToolTipsOf(SettingWindow window);

/// The items of the lists that hold words, in the language chosen; of lists that have been filled.
void SetItems(const ProgramText& text, MainForm& frmMain, ParamsForm& frmParams,
              ExportForm& frmExport);

/// Sets all captions that are numbered texts, but for the count command's, which follows from what
/// is done (ShowCountCaption).
void SetCaptions(const ProgramText& text, MainForm& frmMain, ParamsForm& frmParams,
                 HelpForm& frmHelp, ExportForm& frmExport);

}  // namespace quillomat
