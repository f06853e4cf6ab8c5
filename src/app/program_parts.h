// What stands behind the windows' controls, part by part, each with what it needs of the others.
// The program keeps one for its whole life (program.h) and shows the little of it that a face
// needs.
#pragma once

#include "app/count/count_run.h"
#include "app/count/in_force.h"
#include "app/count/input_file_row.h"
#include "app/count/path_boxes.h"
#include "app/count/run_state.h"
#include "app/count/window_state.h"
#include "app/count/word_list_reader.h"
#include "app/explain/try_it.h"
#include "app/exports/export_window.h"
#include "app/help_window.h"
#include "app/list/current_words.h"
#include "app/list/output_box.h"
#include "app/list/word_lister.h"
#include "app/main_window.h"
#include "app/messages.h"
#include "app/notices/notice_bar.h"
#include "app/parameters_panel.h"
#include "app/saved_state.h"
#include "app/source_rows.h"
#include "app/what_parts_share.h"
#include "app/window_flags.h"
#include "text/program_text.h"
#include "ui/desktop.h"
#include "ui/event_pump.h"
#include "ui/export_form.h"
#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// All windows.
struct ProgramForms {
  MainForm& frmMain;
  ParamsForm& frmParams;
  HelpForm& frmHelp;
  ExportForm& frmExport;
};

struct ProgramParts {
  /// All must outlive the parts. Nothing is connected yet.
  ProgramParts(const ProgramForms& forms, Desktop& desktop, EventPump::Clock clock);

  // What is known.
  EventPump pump;
  RunState run;
  CurrentWords words;
  InForce inForce;
  WindowFlags flags;
  ProgramText text;

  // What shows it.
  Messages messages;
  OutputBox output;
  PathBoxes paths;
  InputFileRow inputRow;
  WindowControls controls;

  // The same in groups, of which the others are made.
  ProgramFacts facts;
  UserSide user;
  NamedPaths named;

  // What acts.
  WordLister lister;
  WordListReader wordLists;
  CountRun countRun;
  SavedState savedState;

  // The windows.
  SourceRows sources;
  MainWindow mainWindow;
  ParametersPanel panel;
  TryIt tryIt;
  HelpWindow help;
  NoticeBar notices;
  ExportWindow exports;
};

}  // namespace quillomat
