// What most parts of the program work with, grouped by what it is for. A part is made of these
// groups and takes from them what it needs; all of it outlives the parts.
#pragma once

#include "app/count/in_force.h"
#include "app/count/input_file_row.h"
#include "app/count/path_boxes.h"
#include "app/count/run_state.h"
#include "app/count/window_state.h"
#include "app/list/current_words.h"
#include "app/list/output_box.h"
#include "app/messages.h"
#include "app/window_flags.h"
#include "ui/desktop.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// The user's side: what is seen and set, told and asked.
struct UserSide {
  MainForm& frmMain;
  ParamsForm& frmParams;
  OutputBox& output;
  WindowControls& controls;
  const Messages& messages;
  Desktop& desktop;
};

/// What the program is doing, has counted, and goes by.
struct ProgramFacts {
  RunState& run;
  CurrentWords& words;
  InForce& inForce;
  WindowFlags& flags;
};

/// Where the user names texts, and how.
struct NamedPaths {
  InputFileRow& inputRow;
  PathBoxes& paths;
};

}  // namespace quillomat
