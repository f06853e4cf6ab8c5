#include "app/saved_state.h"

#include <algorithm>
#include <new>
#include <optional>

#include "app/count/named_text.h"
#include "app/count/path_boxes.h"
#include "app/list/set_the_focus.h"
#include "app/setting_values.h"
#include "app/settings_table.h"
#include "app/state_file.h"
#include "base/run_time_error.h"
#include "sources/output_rules.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

constexpr std::string_view kStateFilter = "QLM state files (*.qlm) | *.qlm";

/// While it lives, the panel does not ask whether the text may be read anew.
class PromptsInhibited {
 public:
  explicit PromptsInhibited(WindowFlags& flags) : flags_(flags), before_(flags.blnInhibitPrompt) {
    flags_.blnInhibitPrompt = true;
  }
  PromptsInhibited(const PromptsInhibited&) = delete;
  PromptsInhibited& operator=(const PromptsInhibited&) = delete;
  PromptsInhibited(PromptsInhibited&&) = delete;
  PromptsInhibited& operator=(PromptsInhibited&&) = delete;
  ~PromptsInhibited() { flags_.blnInhibitPrompt = before_; }

 private:
  WindowFlags& flags_;
  bool before_;
};

}  // namespace

void SavedState::Connect(std::function<void()> initialize) {
  initialize_ = std::move(initialize);
  count_.frmMain.cmdSaveState.Click.Connect([this] { OnSaveToSettingsFile(); });
  frmParams_.cmdSaveLoadState[0].Click.Connect([this] { OnSaveToFile(); });
  frmParams_.cmdSaveLoadState[1].Click.Connect([this] { OnLoadFromFile(); });
}

std::string SavedState::SaveState(const std::string& path, const CheckBox* switchedOn) {
  if (const std::string refusal = WhyNotToSaveTo(path); !refusal.empty()) {
    return "Error when attempting to save state: " + refusal;
  }
  try {
    WriteStateFile(PathOrSettings(path), count_.frmMain, frmParams_, AllSettings(), switchedOn);
    return {};
  } catch (const RunTimeError& error) {
    return "Error when attempting to save state: " + error.Description();
  } catch (const std::bad_alloc&) {
    return "Error when attempting to save state: " +
           DescriptionOf(RunTimeErrorNumber::kOutOfMemory);
  }
}

/// "" for no reason. The state that was loaded may be saved again: that is how it is kept up to
/// date.
std::string SavedState::WhyNotToSaveTo(const std::string& path) const {
  if (path.empty()) return {};  // the settings file, which is nobody's text
  std::optional<NeededAs> neededAs = WhyNotToWrite(path, count_.words.counted);
  if (!neededAs) {
    neededAs = WhyNotToWrite(path, TextNamedIn(count_.frmMain), count_.inForce.filesRead);
  }
  if (!neededAs || *neededAs == NeededAs::kState) return {};
  if (*neededAs == NeededAs::kText) return "the file is the text that is counted.";
  if (*neededAs == NeededAs::kWordsFile) return "the file is a words file.";
  return "the file lies in the folder that is counted.";
}

RestoreResult SavedState::ReadControls(const std::string& path) {
  const std::string& stateFile = PathOrSettings(path);
  if (!FileExists(stateFile)) return RestoreResult::kNoFile;
  count_.words.blnWordsGot = false;  // even if only some of the controls get their values
  indexOutOfRange_ = false;
  try {
    // No handler lists words while the controls are being set.
    const PhaseGuard guard(count_.run, RunPhase::kReading);
    ReadStateFile(stateFile, count_.frmMain, frmParams_);
    count_.inForce.filesRead.state = AbsolutePath(stateFile);
    return RestoreResult::kRestored;
  } catch (const RunTimeError& error) {
    indexOutOfRange_ = dynamic_cast<const ListIndexOutOfRange*>(&error) != nullptr;
    errorDescription_ = error.Description();
    return RestoreResult::kError;
  } catch (const std::bad_alloc&) {
    errorDescription_ = DescriptionOf(RunTimeErrorNumber::kOutOfMemory);
    return RestoreResult::kError;
  }
}

RestoreResult SavedState::RestoreSavedState(const std::string& path) {
  const RestoreResult read = ReadControls(path);
  return read == RestoreResult::kRestored ? TakeControlsAsTheyAre() : read;
}

RestoreResult SavedState::TakeControlsAsTheyAre() {
  const bool listStood = count_.words.CanBeListed() && count_.output.HoldsList();
  TakeTypedLists();
  RestoreResult result =
      AnyComboWithoutItem() ? RestoreResult::kInvalidIndex : RestoreResult::kRestored;
  const std::string& inputPath = count_.frmMain.txbFile[0].Text();
  if (!inputPath.empty()) inputRow_.CheckInputFile(inputPath);
  count_.frmMain.txbFolder.LostFocus.Fire();
  for (const WordListKind kind : {WordListKind::kIgnore, WordListKind::kCountOnly}) {
    if (count_.run.Quitting()) break;
    // Words of the state before would go on to count, although another file is named now.
    wordLists_.ForgetWordsOfFile(kind);
    const bool named = !frmParams_.txbWordsFile[static_cast<std::size_t>(kind)].Text().empty();
    if (named && !wordLists_.AttemptToReadWords(kind)) result = RestoreResult::kWordsFileFailed;
  }
  if (result != RestoreResult::kInvalidIndex) countRun_.OnRestored(listStood);
  return result;
}

void SavedState::TakeTypedLists() {
  countRun_.Extensions().OnRestored();
  for (std::size_t i = 0; i < 2; ++i) {
    wordLists_.OnExtraWordsLostFocus(static_cast<WordListKind>(i));
    const bool startless = frmParams_.txbStartComment[i].Text().empty();
    if (startless) frmParams_.txbEndComment[i].SetText("");
  }
  if (frmParams_.txbStartComment[0].Text().empty() &&
      frmParams_.txbStartComment[1].Text().empty()) {
    frmParams_.chkAllowCommentMarkers.SetChecked(false);
  }
}

bool SavedState::AnyComboWithoutItem() const {
  return std::ranges::any_of(AllSettings(), [this](const Setting& setting) {
    const auto* combo = ControlOf(setting, count_.frmMain, frmParams_).As<ComboBox>();
    return combo != nullptr && combo->ListIndex() == -1;
  });
}

void SavedState::OnSaveToSettingsFile() {
  const std::string title = "Save state";
  const std::string error = SaveState("");
  if (error.empty()) {
    count_.messages.Tell("State saved.", title);
  } else {
    count_.messages.Refuse(error, title);
  }
  SetTheFocus(count_.frmMain);
}

void SavedState::OnSaveToFile() {
  FileDialog dialog;
  dialog.mode = FileDialog::Mode::kSave;
  dialog.title = "Specify file to save state to";
  dialog.filter = kStateFilter;
  dialog.promptBeforeOverwriting = true;
  dialog.hideReadOnly = true;
  dialog.pathMustExist = true;
  dialog.noReadOnlyReturn = true;
  const auto path = paths_.ChooseFileFor(frmParams_.txbStateFile, dialog);
  if (!path) return;
  frmParams_.lblState.SetCaption("");
  frmParams_.txbStateFile.SetText(*path);
  const std::string error = SaveState(*path);
  if (error.empty()) {
    frmParams_.lblState.SetCaption("State saved to");
  } else {
    count_.messages.Refuse(error, "Save state");
    frmParams_.lblState.SetCaption("Error saving to");
  }
}

void SavedState::OnLoadFromFile() {
  FileDialog dialog;
  dialog.title = "Specify file to load state from.";
  dialog.filter = kStateFilter;
  dialog.hideReadOnly = true;
  dialog.pathMustExist = true;
  dialog.fileMustExist = true;
  const auto path = paths_.ChooseFileFor(frmParams_.txbStateFile, dialog);
  if (!path) return;
  frmParams_.lblState.SetCaption("");
  frmParams_.txbStateFile.SetText(*path);
  RestoreResult result = RestoreResult::kError;
  {
    const PromptsInhibited inhibited(flags_);
    result = RestoreSavedState(*path);
  }
  frmParams_.ForgetAfterClick();  // the box that was left for this click holds what was loaded
  if (result < RestoreResult::kInvalidIndex) {
    frmParams_.lblState.SetCaption("State loaded from");
    return;
  }
  if (result != RestoreResult::kWordsFileFailed) {
    const std::string message = result == RestoreResult::kInvalidIndex
                                    ? std::string("Invalid combo box index.")
                                    : "Error when attempting to load state: " + errorDescription_;
    count_.messages.Refuse(message, "Load state");
    initialize_();
  }
  frmParams_.lblState.SetCaption("Error loading from");
}

}  // namespace quillomat
