// What every part of a count works with. One for the program's whole life; all parts outlive it.
#pragma once

#include <cstdint>
#include <string>

#include "app/count/count_state.h"
#include "app/list/output_box.h"
#include "app/list/word_lister.h"
#include "text/program_text.h"
#include "ui/desktop.h"
#include "ui/event.h"
#include "ui/main_form.h"
#include "ui/params_form.h"
#include "ui/yielder.h"

namespace quillomat {

struct RunContext {
  MainForm& frmMain;
  ParamsForm& frmParams;
  Desktop& desktop;
  EventPump& pump;
  const ProgramText& text;
  CountState& state;
  OutputBox& output;
  WordLister& lister;
  /// Fired when a run, a listing or the reading of a words file has come to its end.
  Event<>& becameIdle;
};

/// Shows a message box with an OK button.
void Tell(const RunContext& context, std::string text, std::string title, MessageIcon icon);

/// Tells the user why an input is refused.
void Refuse(const RunContext& context, std::string text, std::string title);

/// `number` with the digit grouping of the user's locale.
[[nodiscard]] std::string Grouped(const RunContext& context, std::int64_t number);

}  // namespace quillomat
