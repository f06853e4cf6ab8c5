// The whole program without a screen: its windows' controls, what is behind them, and how it starts
// and ends. A face makes one, shows its windows and passes on what the user does.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/list/text_search.h"
#include "app/program_parts.h"
#include "app/table/number_signs.h"
#include "text/program_text.h"
#include "ui/desktop.h"
#include "ui/event.h"
#include "ui/event_pump.h"
#include "ui/export_form.h"
#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

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

  /// A face fills the controls itself: from now on their handlers do nothing.
  void BeginControls();
  /// It has filled them: what hangs on them is worked out, and the handlers act again.
  RestoreResult TakeControls();

  /// Puts the windows into their initial, empty state with default parameters.
  void Initialize();

  /// Saves the settings if the user wants that, without a word: the session may end at any moment.
  void KeepSettings();

  /// Saves the settings if the user wants that, and fires Ended. A run that is at work is stopped
  /// first, and Ended is fired when it has come to its end.
  void Quit();
  [[nodiscard]] bool HasEnded() const { return ended_; }

  /// The program is over: a face closes its windows.
  Event<> Ended;
  /// What was at work has come to its end, and the program goes on.
  Event<> BecameIdle;

  MainForm frmMain;
  ParamsForm frmParams;
  HelpForm frmHelp;
  ExportForm frmExport;

  // What it is doing, and the words that it has counted.
  [[nodiscard]] const RunState& State() const { return parts_.run; }
  [[nodiscard]] const CurrentWords& Words() const { return parts_.words; }
  [[nodiscard]] const InForce& Settings() const { return parts_.inForce; }
  [[nodiscard]] const WindowFlags& Flags() const { return parts_.flags; }
  [[nodiscard]] const OutputBox& Output() const { return parts_.output; }
  [[nodiscard]] const ProgramText& Text() const { return parts_.text; }

  // What a face has done besides clicks and keys on the controls.
  [[nodiscard]] SourceRows& Sources() { return parts_.sources; }
  [[nodiscard]] CountRun& Count() { return parts_.countRun; }
  [[nodiscard]] WordListReader& WordLists() { return parts_.wordLists; }
  [[nodiscard]] WordLister& Lister() { return parts_.lister; }
  [[nodiscard]] SavedState& States() { return parts_.savedState; }
  /// Where the user was last, which a face may keep from one run to the next.
  [[nodiscard]] PathBoxes& Paths() { return parts_.paths; }

  /// What stands between groups of three digits in the user's locale.
  [[nodiscard]] std::string DigitGroupSeparator() const {
    return parts_.messages.DigitGroupSeparator();
  }
  /// How numbers with decimals are written there.
  [[nodiscard]] NumberSigns Signs() const;

  /// The line above the list, and the window that exports it.
  [[nodiscard]] NoticeBar& Notices() { return parts_.notices; }
  [[nodiscard]] ExportWindow& Exports() { return parts_.exports; }

  /// What copies the view in front, if that is another than the text box; false if it is not.
  void SetViewCopier(std::function<bool()> copyView) {
    parts_.mainWindow.SetViewCopier(std::move(copyView));
  }

  /// Where the text of the output text box, with line breaks that end with a line feed, holds what
  /// is looked for, as the list takes words for the same. The titles of a list are passed over.
  [[nodiscard]] std::vector<TextPlace> PlacesIn(std::string_view text,
                                                std::string_view wanted) const;
  /// What is said of a word that the list holds below the output text box: where it stands; "" if
  /// it does not.
  [[nodiscard]] std::string FoundBelowText(std::string_view wanted) const;

  /// From now on the empty path of a state file means the one in the user's settings folder.
  void UseSettingsFolder();
  /// How many threads may scan a large text at the same time.
  void UseThreads(std::size_t threads) { parts_.inForce.scanThreads = threads; }
  /// Whether counts work out the figures that need the order of words, too. Words at hand that were
  /// counted without stay as they are, and a notice says so.
  void WantOrderFigures(bool wanted);
  /// Whether counts keep what became of each file (CurrentWords::files).
  void WantFileReports(bool wanted) { parts_.inForce.wantsFileReports = wanted; }
  /// The text on the clipboard is that of a file, which must not be written.
  void SetClipboardFile(std::string path) {
    parts_.inForce.filesRead.clipboardText = std::move(path);
  }

 private:
  void Connect();
  void ForgetWords();
  void FillLists();
  void RestoreUserSettings();
  void ToggleLanguage();
  void ShowCaptions();
  [[nodiscard]] std::string SaveSettings();
  void End();

  Desktop& desktop_;
  ProgramParts parts_;
  bool ended_ = false;
};

}  // namespace quillomat
