// The whole program without a screen: its windows' controls, what is behind them, and how it starts
// and ends. A face makes one, shows its windows and passes on what the user does.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "app/count/count_run.h"
#include "app/count/count_state.h"
#include "app/count/run_context.h"
#include "app/count/word_list_reader.h"
#include "app/help_window.h"
#include "app/list/output_box.h"
#include "app/list/word_lister.h"
#include "app/main_window.h"
#include "app/parameters_panel.h"
#include "app/saved_state.h"
#include "text/program_text.h"
#include "ui/desktop.h"
#include "ui/event.h"
#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"
#include "ui/yielder.h"

namespace quillomat {

/// How a face wants the program to start.
struct StartOptions {
  /// Restore the state that the settings file holds, and use the language chosen last. Without it
  /// the start is that of a new user, and nothing is looked up.
  bool userSettings = true;
  /// Show the main window and make the root folder current. A terminal keeps its folder.
  bool window = true;
};

class Program {
 public:
  /// `desktop` must outlive the program. Tests give a clock of their own.
  explicit Program(Desktop& desktop, EventPump::Clock clock = std::chrono::steady_clock::now);

  /// Makes the program ready for a count. False when it must end; the user has been told why, or
  /// has closed the window already (HasEnded).
  [[nodiscard]] bool Start(const StartOptions& options = {});

  /// Puts the windows into their initial, empty state with default parameters.
  void Initialize();

  /// Makes a file or a folder the text to be counted, as when it is dropped on the main window.
  void ChooseText(const std::string& path) { mainWindow_.ChooseText(path); }

  /// Takes what was dropped on the main window; no path at all stands for anything but files.
  void TakeDrop(const std::vector<std::string>& paths) { mainWindow_.TakeDrop(paths); }

  /// What is said when a word is not found in the output text box.
  [[nodiscard]] std::string NotFoundText() const { return mainWindow_.NotFoundText(); }

  /// From now on the empty path of a state file means the one in the user's settings folder.
  void UseSettingsFolder();

  /// Restores the user's settings; a file that cannot be used is told of and has no effect.
  void RestoreUserSettings();

  /// Saves the settings if the user wants that, and fires Ended. A run that is at work is stopped
  /// first, and Ended is fired when it has come to its end.
  void Quit();
  [[nodiscard]] bool HasEnded() const { return ended_; }

  /// The program is over: a face closes its windows.
  Event<> Ended;

  MainForm frmMain;
  ParamsForm frmParams;
  HelpForm frmHelp;

 private:
  Event<> becameIdle_;

 public:
  CountState state;
  EventPump pump;
  ProgramText text;
  OutputBox output;
  WordLister lister;
  RunContext context;
  WordListReader wordLists;
  CountRun countRun;
  SavedState savedState;

 private:
  void Connect();
  void ForgetWords();
  void FillLists();
  void ToggleLanguage();
  void End();

  MainWindow mainWindow_;
  ParametersPanel panel_;
  HelpWindow help_;
  bool ended_ = false;
};

}  // namespace quillomat
