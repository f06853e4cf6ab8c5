#include "app/program.h"

#include <algorithm>
#include <cstddef>
#include <thread>
#include <utility>

#include "app/captions.h"
#include "app/count/window_state.h"
#include "app/list/set_the_focus.h"
#include "app/list/summary.h"
#include "app/setting_values.h"
#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/settings_folder.h"
#include "text/language.h"
#include "text/shell_helpers.h"

namespace quillomat {
namespace {

constexpr const char* kProgramTextFile = "qlav_text.dat";
constexpr const char* kSettingsFile = "qlav.usr";

/// The root of the current drive; where that cannot be had, the folder stays as it is.
void MoveToRootFolder() {
  try {
    SetCurrentFolder(RootFolder());
  } catch (const RunTimeError&) {
    return;
  }
}

/// One for every processor core, up to some: more would wait for the memory.
std::size_t UsualScanThreads() {
  constexpr unsigned kMost = 8;
  return std::clamp(std::thread::hardware_concurrency(), 1U, kMost);
}

/// Those of the main window's controls of this kind that hold settings go to their defaults.
void SetMainWindowsDefaults(ControlKind kind, const MainForm& frmMain,
                            const ParamsForm& frmParams) {
  for (const Setting& setting : AllSettings()) {
    if (setting.window != SettingWindow::kMain) continue;
    Control& control = ControlOf(setting, frmMain, frmParams);
    if (control.Kind() == kind) SetToDefault(setting, control);
  }
}

}  // namespace

Program::Program(Desktop& desktop, EventPump::Clock clock)
    : pump(desktop, std::move(clock)),
      output(frmMain, desktop),
      lister(frmMain, frmParams, desktop, pump, state, output),
      context{frmMain, frmParams, desktop, pump, text, state, output, lister, becameIdle_},
      wordLists(context),
      countRun(context, wordLists),
      savedState(context, countRun, wordLists),
      mainWindow_(context, countRun),
      panel_(context, wordLists),
      help_(context, frmHelp) {
  state.scanThreads = UsualScanThreads();
  Connect();
}

void Program::Connect() {
  mainWindow_.Connect();
  panel_.Connect([this] { Initialize(); });
  help_.Connect();
  savedState.Connect([this] { Initialize(); });
  frmMain.cmdLanguage.Click.Connect([this] { ToggleLanguage(); });
  frmMain.cmdQuit.Click.Connect([this] { Quit(); });
  frmMain.CloseRequested.Connect([this] { Quit(); });
  becameIdle_.Connect([this] {
    if (state.quitting) return End();
    if (output.IsEmpty()) ShowNoticeLabels(frmMain);  // a run has emptied it
  });
}

bool Program::Start(const StartOptions& options) {
  state.blnStartUpCompleted = false;
  if (options.userSettings) {
    UseSettingsFolder();
    text.SetLanguage(ReadLanguage(context.desktop.UserKeys()));
  }
  if (!text.LoadProgramText(kProgramTextFile, context.desktop)) return false;
  SetCaptions(text, frmMain, frmParams, frmHelp);
  ShowCountCaption(context);
  EnableControls(context, true);
  FillLists();
  ConcealNumWords(frmMain, true);
  if (options.window) frmMain.Show();
  EnableControls(context, true);
  Initialize();
  if (options.userSettings) RestoreUserSettings();
  if (ended_) return false;  // the user has closed the window meanwhile
  EnableSourceControls(context);
  if (options.window) MoveToRootFolder();
  SetTheFocus(frmMain);
  state.blnStartUpCompleted = true;
  return true;
}

void Program::FillLists() {
  wordLists.SetPathToCWDs_Eng();
  mainWindow_.FillListCombos();
  frmParams.FillCombos();
  SetItems(text, frmParams);
  state.clipboardViewerPath = FindClipboardViewer();
  frmMain.cmdClipboardViewer.SetEnabled(!state.clipboardViewerPath.empty());
}

void Program::Initialize() {
  ForgetWords();
  frmMain.optFolder.SetValue(true);
  frmMain.lblFilesize.SetCaption("");
  frmMain.lblTwirler.SetCaption(" ");
  state.settings.OpenComment = -1;
  frmMain.txbFolder.SetText("");
  frmParams.txbStateFile.SetText("");
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain.txbFile[i].SetText("");
    frmMain.txbFileExtensions[i].SetText("");
    wordLists.ClearWordsFile(static_cast<WordListKind>(i));
    frmParams.txbWordsToIgnoreOrCount[i].SetText("");
    wordLists.OnExtraWordsLostFocus(static_cast<WordListKind>(i));
  }
  countRun.Extensions().OnRestored();
  panel_.SetDefaultValues();
  SetMainWindowsDefaults(ControlKind::kCheckBox, frmMain, frmParams);
  state.displayingWords = false;
  SetMainWindowsDefaults(ControlKind::kComboBox, frmMain, frmParams);
}

/// What was counted, and what is shown of it, so that nothing old is ever listed again.
void Program::ForgetWords() {
  state.DiscardWords();
  state.filesScanned = 0;
  state.foldersScanned = 0;
  output.ClearOutput();
  ConcealNumWords(frmMain, true);
}

void Program::UseSettingsFolder() {
  savedState.SetSettingsFilePath(SettingsFilePath(kSettingsFile, std::string(kSettingsFolderName)));
}

void Program::RestoreUserSettings() {
  const RestoreResult result = savedState.RestoreSavedState("");
  if (result != RestoreResult::kInvalidIndex && result != RestoreResult::kError) return;
  Refuse(context,
         result == RestoreResult::kInvalidIndex || savedState.IndexWasOutOfRange()
             ? "Invalid combo box index when attempting to load previous state."
             : "Error when attempting to load previous state: " + savedState.ErrorDescription(),
         "Load state");
  Initialize();
}

void Program::ToggleLanguage() {
  text.ToggleLanguage(context.desktop.UserKeys());
  SetCaptions(text, frmMain, frmParams, frmHelp);
  ShowCountCaption(context);
}

void Program::Quit() {
  if (ended_) return;
  state.quitting = true;
  if (!state.Busy()) return End();
  state.StopRequested = true;
}

void Program::End() {
  if (ended_) return;
  ended_ = true;
  if (frmParams.chkSaveStateOnQuit.IsChecked()) {
    const std::string error = savedState.SaveState("");
    if (!error.empty()) Refuse(context, error, "Error");
  }
  Ended.Fire();
}

}  // namespace quillomat
