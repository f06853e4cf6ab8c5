#include "app/count/window_state.h"

#include <cstddef>
#include <string>
#include <utility>

#include "app/list/set_the_focus.h"

namespace quillomat {
namespace {

/// The panel's commands that load settings or words, or open a dialog over a run.
std::vector<Control*> WordCommands(ParamsForm& frmParams) {
  std::vector<Control*> commands = {&frmParams.cmdRestoreDefaults, &frmParams.cmdInitialize,
                                    &frmParams.cmdSaveLoadState[0], &frmParams.cmdSaveLoadState[1],
                                    &frmParams.cmdCommonWords};
  for (std::size_t i = 0; i < 2; ++i) {
    commands.insert(commands.end(),
                    {&frmParams.cmdSelectWordsFile[i], &frmParams.cmdClearWordsFile[i],
                     &frmParams.cmdClearWordsToIgnoreOrCount[i],
                     &frmParams.txbWordsToIgnoreOrCount[i], &frmParams.txbWordsFile[i]});
  }
  return commands;
}

}  // namespace

WindowControls::WindowControls(MainForm& frmMain, ParamsForm& frmParams, const ProgramText& text,
                               RunState& run)
    : frmMain_(frmMain), frmParams_(frmParams), text_(text), run_(run) {
  run.PhaseChanged.Connect([this] { FollowPhase(); });
}

void WindowControls::SetClipboardViewer(std::string path) {
  clipboardViewer_ = std::move(path);
  frmMain_.cmdClipboardViewer.SetEnabled(!clipboardViewer_.empty());
  frmMain_.cmdClipboardViewer.SetVisible(!clipboardViewer_.empty());
}

/// Only what changes is touched: enabling the commands moves the focus.
void WindowControls::FollowPhase() {
  const PhaseRules& before = RulesOf(shown_);
  const PhaseRules& rules = RulesOf(run_.Phase());
  shown_ = run_.Phase();
  if (rules.wordCommands && !before.wordCommands) EnableWordCommands(true);
  if (rules.commands != before.commands) EnableControls(rules.commands);
  if (rules.listOptions != before.listOptions) EnableListOptions(rules.listOptions);
  if (rules.sourceOptions != before.sourceOptions) EnableSourceOptions(rules.sourceOptions);
  if (rules.caption != before.caption) ShowCountCaption();
  if (!rules.wordCommands && before.wordCommands) EnableWordCommands(false);
}

/// One that was disabled before the run stays so after it.
void WindowControls::EnableWordCommands(bool enable) {
  if (enable) {
    for (Control* command : disabled_) command->SetEnabled(true);
    disabled_.clear();
    return;
  }
  for (Control* command : WordCommands(frmParams_)) {
    if (!command->Enabled()) continue;
    command->SetEnabled(false);
    disabled_.push_back(command);
  }
}

void WindowControls::ShowCountCaption() {
  const bool stops = RulesOf(run_.Phase()).caption == CountCaption::kStop;
  frmMain_.cmdCountWords.SetCaption(stops ? std::string(kStopCaption)
                                          : text_.GetText(kCountCaptionText));
}

void WindowControls::EnableControls(bool enable) {
  if (enable) {
    EnableSourceControls();
  } else {
    DisableSourceControls();
  }
  frmMain_.cmdClipboardViewer.SetEnabled(enable && !clipboardViewer_.empty());
  frmMain_.cmdHelp.SetEnabled(enable);
  frmMain_.cmdSetParameters.SetEnabled(enable);
  frmMain_.cmdClearOutput.SetEnabled(enable);
  frmMain_.cmdExport.SetEnabled(enable);
  frmMain_.cmdSaveState.SetEnabled(enable);
  frmMain_.cmdListFiles.SetEnabled(enable);
  for (TextBox& box : frmMain_.txbFileExtensions) box.SetEnabled(enable);
}

void WindowControls::DisableSourceControls() {
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain_.cmdFile[i].SetEnabled(false);
    frmMain_.txbFile[i].SetEnabled(false);
    frmMain_.cmdClearFile[i].SetEnabled(false);
  }
  frmMain_.cmdFolder.SetEnabled(false);
  frmMain_.txbFolder.SetEnabled(false);
  frmMain_.cmdClearFolder.SetEnabled(false);
  frmMain_.chkIncludeSubfolders.SetEnabled(false);
  frmMain_.chkDisableOutputToFile.SetEnabled(false);
}

void WindowControls::EnableSourceControls() {
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain_.cmdFile[i].SetEnabled(true);
    frmMain_.txbFile[i].SetEnabled(true);
    frmMain_.cmdClearFile[i].SetEnabled(true);
    frmMain_.txbFileExtensions[i].SetEnabled(true);
  }
  frmMain_.lblFilesize.SetEnabled(true);
  frmMain_.cmdFolder.SetEnabled(true);
  frmMain_.txbFolder.SetEnabled(true);
  frmMain_.cmdClearFolder.SetEnabled(true);
  frmMain_.chkIncludeSubfolders.SetEnabled(true);
  frmMain_.lblFileExtensions.SetEnabled(true);
  frmMain_.lblInclude.SetEnabled(true);
  frmMain_.lblExclude.SetEnabled(true);
  frmMain_.cmdListFiles.SetEnabled(true);
  frmMain_.chkDisableOutputToFile.SetEnabled(true);
  ShowCountCaption();
  frmMain_.lblTwirler.SetCaption(" ");
  SetTheFocus(frmMain_);
}

void WindowControls::EnableSourceOptions(bool enable) {
  frmMain_.optOnClipboard.SetEnabled(enable);
  frmMain_.optInFile.SetEnabled(enable);
  frmMain_.optFolder.SetEnabled(enable);
}

void WindowControls::EnableListOptions(bool enable) {
  frmMain_.cboWordOrder.SetEnabled(enable);
  frmMain_.cboDisplayFormat.SetEnabled(enable);
}

}  // namespace quillomat
