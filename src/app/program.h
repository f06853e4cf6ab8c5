// The whole program without a screen: its windows' controls, what is behind them, and the
// connections between. A face makes one, shows its windows and passes on what the user does.
#pragma once

#include "app/main_window.h"
#include "app/parameters_panel.h"
#include "listing/count_state.h"
#include "listing/output_box.h"
#include "listing/word_lister.h"
#include "sources/count_run.h"
#include "sources/run_context.h"
#include "sources/word_list_reader.h"
#include "text/program_text.h"
#include "ui/desktop.h"
#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"
#include "ui/yielder.h"

namespace quillomat {

class Program {
 public:
  /// `desktop` must outlive the program. Tests give a clock of their own.
  explicit Program(Desktop& desktop, EventPump::Clock clock = std::chrono::steady_clock::now);

  /// Loads the program text, sets the captions in English, fills the lists and puts every setting
  /// to its default. False when the program must end; the user has been told why.
  [[nodiscard]] bool Start();

  /// The controls were set from outside: works out what hangs on them. Typed lists are parsed,
  /// words files read, markers without a start dropped; the user is told what is wrong. False when
  /// a words file could not be read.
  bool TakeControlsAsTheyAre();

  /// The language that the user chose last becomes current.
  void UseLanguageOfRegistry();

  MainForm frmMain;
  ParamsForm frmParams;
  HelpForm frmHelp;

  CountState state;
  EventPump pump;
  ProgramText text;
  OutputBox output;
  WordLister lister;
  RunContext context;
  CountRun countRun;
  WordListReader wordLists;

 private:
  MainWindow mainWindow_;
  ParametersPanel panel_;
};

}  // namespace quillomat
