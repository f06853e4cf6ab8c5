#include "app/count/window_state.h"

#include <cstddef>
#include <string>

#include "app/list/set_the_focus.h"

namespace quillomat {
namespace {

/// The panel's commands that load settings or words, or open a dialog over a run.
std::vector<Control*> WordCommands(ParamsForm& frmParams) {
  std::vector<Control*> commands = {&frmParams.cmdRestoreDefaults, &frmParams.cmdInitialize,
                                    &frmParams.cmdSaveLoadState[0], &frmParams.cmdSaveLoadState[1]};
  for (std::size_t i = 0; i < 2; ++i) {
    commands.insert(commands.end(),
                    {&frmParams.cmdSelectWordsFile[i], &frmParams.cmdClearWordsFile[i],
                     &frmParams.cmdClearWordsToIgnoreOrCount[i],
                     &frmParams.txbWordsToIgnoreOrCount[i], &frmParams.txbWordsFile[i]});
  }
  return commands;
}

}  // namespace

PhaseGuard::PhaseGuard(const RunContext& context, RunPhase phase)
    : context_(context), before_(context.state.phase) {
  if (before_ == RunPhase::kIdle) EnterPhase(context, phase);
  if (RulesOf(phase).wordCommands) return;
  for (Control* command : WordCommands(context.frmParams)) {
    if (!command->Enabled()) continue;
    command->SetEnabled(false);
    disabled_.push_back(command);
  }
}

PhaseGuard::~PhaseGuard() {
  for (Control* command : disabled_) command->SetEnabled(true);
  EnterPhase(context_, before_);
}

/// Only what changes is touched: enabling the commands moves the focus.
void EnterPhase(const RunContext& context, RunPhase phase) {
  const PhaseRules& before = RulesOf(context.state.phase);
  const PhaseRules& rules = RulesOf(phase);
  context.state.phase = phase;
  if (rules.commands != before.commands) EnableControls(context, rules.commands);
  if (rules.listOptions != before.listOptions)
    EnableListOptions(context.frmMain, rules.listOptions);
  if (rules.sourceOptions != before.sourceOptions) {
    EnableSourceOptions(context.frmMain, rules.sourceOptions);
  }
  if (rules.stops != before.stops) ShowCountCaption(context);
}

void ShowCountCaption(const RunContext& context) {
  context.frmMain.cmdCountWords.SetCaption(RulesOf(context.state.phase).stops
                                               ? std::string(kStopCaption)
                                               : context.text.GetText(kCountCaptionText));
}

void EnableControls(const RunContext& context, bool enable) {
  if (enable) {
    EnableSourceControls(context);
  } else {
    DisableSourceControls(context);
  }
  MainForm& frmMain = context.frmMain;
  frmMain.cmdClipboardViewer.SetEnabled(enable && !context.state.clipboardViewerPath.empty());
  frmMain.cmdHelp.SetEnabled(enable);
  frmMain.cmdSetParameters.SetEnabled(enable);
  frmMain.cmdClearOutput.SetEnabled(enable);
  frmMain.cmdSaveState.SetEnabled(enable);
  frmMain.cmdListFiles.SetEnabled(enable);
  for (TextBox& box : frmMain.txbFileExtensions) box.SetEnabled(enable);
}

void DisableSourceControls(const RunContext& context) {
  MainForm& frmMain = context.frmMain;
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain.cmdFile[i].SetEnabled(false);
    frmMain.txbFile[i].SetEnabled(false);
    frmMain.cmdClearFile[i].SetEnabled(false);
  }
  frmMain.cmdFolder.SetEnabled(false);
  frmMain.txbFolder.SetEnabled(false);
  frmMain.cmdClearFolder.SetEnabled(false);
  frmMain.chkIncludeSubfolders.SetEnabled(false);
  frmMain.chkDisableOutputToFile.SetEnabled(false);
}

void EnableSourceControls(const RunContext& context) {
  MainForm& frmMain = context.frmMain;
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain.cmdFile[i].SetEnabled(true);
    frmMain.txbFile[i].SetEnabled(true);
    frmMain.cmdClearFile[i].SetEnabled(true);
    frmMain.txbFileExtensions[i].SetEnabled(true);
  }
  frmMain.lblFilesize.SetEnabled(true);
  frmMain.cmdFolder.SetEnabled(true);
  frmMain.txbFolder.SetEnabled(true);
  frmMain.cmdClearFolder.SetEnabled(true);
  frmMain.chkIncludeSubfolders.SetEnabled(true);
  frmMain.lblFileExtensions.SetEnabled(true);
  frmMain.lblInclude.SetEnabled(true);
  frmMain.lblExclude.SetEnabled(true);
  frmMain.cmdListFiles.SetEnabled(true);
  frmMain.chkDisableOutputToFile.SetEnabled(true);
  ShowCountCaption(context);
  frmMain.lblTwirler.SetCaption(" ");
  SetTheFocus(frmMain);
}

void EnableSourceOptions(MainForm& frmMain, bool enable) {
  frmMain.optOnClipboard.SetEnabled(enable);
  frmMain.optInFile.SetEnabled(enable);
  frmMain.optFolder.SetEnabled(enable);
}

void EnableListOptions(MainForm& frmMain, bool enable) {
  frmMain.cboWordOrder.SetEnabled(enable);
  frmMain.cboDisplayFormat.SetEnabled(enable);
}

}  // namespace quillomat
