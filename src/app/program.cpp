#include "app/program.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "app/captions.h"
#include "app/count/window_state.h"
#include "app/list/found_below.h"
#include "app/list/set_the_focus.h"
#include "app/list/summary.h"
#include "app/setting_values.h"
#include "base/in_parts.h"
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
    : desktop_(desktop),
      parts_({frmMain, frmParams, frmHelp, frmExport}, desktop, std::move(clock)) {
  UseThreads(UsualParts());
  Connect();
}

void Program::Connect() {
  parts_.sources.Connect();
  parts_.mainWindow.Connect();
  parts_.panel.Connect([this] { Initialize(); });
  parts_.help.Connect();
  parts_.notices.Connect();
  parts_.exports.Connect();
  parts_.notices.SetExporter([this] { parts_.exports.Open(); });
  parts_.notices.SetLetterCounter([this] {
    parts_.panel.AllowAllLetters();
    frmMain.cmdCountWords.PerformClick();
  });
  frmMain.cmdExport.Click.Connect([this] { parts_.exports.Open(); });
  parts_.savedState.Connect([this] { Initialize(); });
  frmMain.cmdLanguage.Click.Connect([this] { ToggleLanguage(); });
  parts_.tryIt.Connect();
  frmMain.cmdQuit.Click.Connect([this] { Quit(); });
  frmMain.CloseRequested.Connect([this] { Quit(); });
  parts_.run.BecameIdle.Connect([this] {
    if (parts_.run.Quitting()) return End();
    if (parts_.output.IsEmpty()) ShowNoticeLabels(frmMain);  // a run has emptied it
    BecameIdle.Fire();
  });
}

bool Program::Start(const StartOptions& options) {
  parts_.flags.blnStartUpCompleted = false;
  if (options.userSettings) {
    UseSettingsFolder();
    parts_.text.SetLanguage(ReadLanguage(desktop_.UserKeys()));
  }
  if (!parts_.text.LoadProgramText(kProgramTextFile, desktop_)) return false;
  ShowCaptions();
  parts_.controls.EnableControls(true);
  FillLists();
  ConcealNumWords(frmMain, true);
  if (options.window) frmMain.Show();
  parts_.controls.EnableControls(true);
  Initialize();
  if (options.userSettings) RestoreUserSettings();
  if (ended_) return false;  // the user has closed the window meanwhile
  parts_.controls.EnableSourceControls();
  if (options.window) MoveToRootFolder();
  SetTheFocus(frmMain);
  parts_.flags.blnStartUpCompleted = true;
  return true;
}

void Program::WantOrderFigures(bool wanted) {
  parts_.inForce.wantsOrderFigures = wanted;
  parts_.notices.UpdateWhenIdle();
}

void Program::BeginControls() {
  parts_.flags.blnStartUpCompleted = false;
}

RestoreResult Program::TakeControls() {
  parts_.flags.blnStartUpCompleted = true;
  return parts_.savedState.TakeControlsAsTheyAre();
}

void Program::FillLists() {
  parts_.wordLists.SetPathToCWDs_Eng();
  parts_.mainWindow.FillListCombos();
  frmParams.FillCombos();
  SetItems(parts_.text, frmMain, frmParams, frmExport);
  parts_.controls.SetClipboardViewer(FindClipboardViewer());
}

void Program::Initialize() {
  ForgetWords();
  frmMain.optFolder.SetValue(true);
  frmMain.lblFilesize.SetCaption("");
  frmMain.lblTwirler.SetCaption(" ");
  parts_.inForce.settings.OpenComment = -1;
  frmMain.txbFolder.SetText("");
  frmParams.txbStateFile.SetText("");
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain.txbFile[i].SetText("");
    frmMain.txbFileExtensions[i].SetText("");
    parts_.wordLists.ClearWordsFile(static_cast<WordListKind>(i));
    frmParams.txbWordsToIgnoreOrCount[i].SetText("");
    parts_.wordLists.OnExtraWordsLostFocus(static_cast<WordListKind>(i));
  }
  parts_.countRun.Extensions().OnRestored();
  parts_.tryIt.Reset();
  parts_.panel.SetDefaultValues();
  SetMainWindowsDefaults(ControlKind::kCheckBox, frmMain, frmParams);
  parts_.output.SetDisplayingWords(false);
  SetMainWindowsDefaults(ControlKind::kComboBox, frmMain, frmParams);
}

/// What was counted, and what is shown of it, so that nothing old is ever listed again.
void Program::ForgetWords() {
  parts_.words.Discard();
  parts_.words.folder = {};
  parts_.output.ClearOutput();
  ConcealNumWords(frmMain, true);
}

std::vector<TextPlace> Program::PlacesIn(std::string_view text, std::string_view wanted) const {
  std::size_t begin = 0;  // behind the titles, which are no words of the text
  for (std::size_t lines = parts_.output.TitleLines(); lines > 0; --lines) {
    begin = std::min(text.find('\n', begin), text.size() - 1) + 1;
  }
  std::vector<TextPlace> places =
      quillomat::PlacesIn(text.substr(begin), wanted, parts_.words.store.Rule());
  for (TextPlace& place : places) place = {place.begin + begin, place.end + begin};
  return places;
}

std::string Program::FoundBelowText(std::string_view wanted) const {
  const auto order = static_cast<WordOrder>(frmMain.cboWordOrder.ListIndex());
  return quillomat::FoundBelowText(wanted, parts_.output.Part(), parts_.words.Counted(), order,
                                   parts_.text, DigitGroupSeparator());
}

NumberSigns Program::Signs() const {
  return parts_.messages.Signs();
}

void Program::UseSettingsFolder() {
  parts_.savedState.SetSettingsFilePath(
      SettingsFilePath(kSettingsFile, std::string(kSettingsFolderName)));
}

void Program::RestoreUserSettings() {
  const RestoreResult result = parts_.savedState.RestoreSavedState("");
  if (result != RestoreResult::kInvalidIndex && result != RestoreResult::kError) return;
  parts_.messages.Refuse(
      result == RestoreResult::kInvalidIndex || parts_.savedState.IndexWasOutOfRange()
          ? "Invalid combo box index when attempting to load previous state."
          : "Error when attempting to load previous state: " + parts_.savedState.ErrorDescription(),
      "Load state");
  Initialize();
}

void Program::ToggleLanguage() {
  parts_.text.ToggleLanguage(desktop_.UserKeys());
  ShowCaptions();
  parts_.notices.Update();
  parts_.tryIt.Update();
  if (!parts_.run.Busy()) frmExport.lblState.SetCaption("");  // said in the other language
}

/// What says "Stop" while something runs follows that, whatever the language.
void Program::ShowCaptions() {
  SetCaptions(parts_.text, frmMain, frmParams, frmHelp, frmExport);
  parts_.controls.ShowCountCaption();
  parts_.exports.ShowCommandCaption();
}

void Program::Quit() {
  if (ended_) return;
  parts_.run.RequestQuit();
  if (!parts_.run.Busy()) End();
}

/// While a words file or a state is read, boxes stand as that needs them.
void Program::KeepSettings() {
  const bool isReading = parts_.run.Phase() == RunPhase::kReading;
  if (parts_.flags.blnStartUpCompleted && !isReading) static_cast<void>(SaveSettings());
}

/// Returns what went wrong, or "".
std::string Program::SaveSettings() {
  if (!frmParams.chkSaveStateOnQuit.IsChecked()) return {};
  // What a large text has switched off is no choice to be kept.
  const bool suppressed = parts_.output.SuppressedByItself();
  return parts_.savedState.SaveState("", suppressed ? &frmMain.chkSuppressWords : nullptr);
}

void Program::End() {
  if (ended_) return;
  ended_ = true;
  const std::string error = SaveSettings();
  if (!error.empty()) parts_.messages.Refuse(error, "Error");
  Ended.Fire();
}

}  // namespace quillomat
