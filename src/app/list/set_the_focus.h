// Where the keyboard focus goes when a command is done.
#pragma once

#include "ui/main_form.h"

namespace quillomat {

/// Moves the focus to the command that the user needs next: the one that chooses the source's file
/// or folder while none is chosen, else the count command. Does nothing while the window is not
/// visible.
void SetTheFocus(MainForm& frmMain);

}  // namespace quillomat
