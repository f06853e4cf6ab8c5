#include "app/count/run_context.h"

#include <utility>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// The panel's commands that load settings or words, or open a dialog over a run.
std::vector<Control*> CommandsThatTouchWords(ParamsForm& frmParams) {
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

void Tell(const RunContext& context, std::string text, std::string title, MessageIcon icon) {
  context.desktop.ShowMessage({std::move(text), std::move(title), icon});
}

void Refuse(const RunContext& context, std::string text, std::string title) {
  Tell(context, std::move(text), std::move(title), MessageIcon::kExclamation);
}

std::string Grouped(const RunContext& context, std::int64_t number) {
  return GroupDigits(number, context.desktop.DigitGroupSeparator());
}

BusyGuard::BusyGuard(const RunContext& context)
    : state_(context.state), before_(context.state.busy) {
  state_.busy = true;
  for (Control* command : CommandsThatTouchWords(context.frmParams)) {
    if (!command->Enabled()) continue;
    command->SetEnabled(false);
    disabled_.push_back(command);
  }
}

BusyGuard::~BusyGuard() {
  for (Control* command : disabled_) command->SetEnabled(true);
  state_.busy = before_;
}

}  // namespace quillomat
