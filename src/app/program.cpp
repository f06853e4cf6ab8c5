#include "app/program.h"

#include <utility>

#include "app/captions.h"
#include "sources/window_state.h"

namespace quillomat {

Program::Program(Desktop& desktop, EventPump::Clock clock)
    : pump(desktop, std::move(clock)),
      output(frmMain, desktop),
      lister(frmMain, frmParams, desktop, pump, state, output),
      context{frmMain, frmParams, desktop, pump, text, state, output, lister},
      countRun(context),
      wordLists(context),
      mainWindow_(context, countRun),
      panel_(context, wordLists) {
  mainWindow_.Connect();
  panel_.Connect();
  frmMain.cmdLanguage.Click.Connect([this] {
    text.ToggleLanguage(context.desktop.UserKeys());
    SetCaptions(text, frmMain, frmParams, frmHelp);
  });
}

bool Program::Start() {
  if (!text.LoadProgramText("qlav_text.dat", context.desktop)) return false;
  SetCaptions(text, frmMain, frmParams, frmHelp);
  mainWindow_.FillListCombos();
  frmParams.FillNumberCombos();
  frmMain.optFolder.SetValue(true);
  panel_.SetDefaultValues();
  EnableControls(context, true);
  state.blnStartUpCompleted = true;
  return true;
}

void Program::UseLanguageOfRegistry() {
  text.SetLanguage(ReadLanguage(context.desktop.UserKeys()));
  SetCaptions(text, frmMain, frmParams, frmHelp);
}

bool Program::TakeControlsAsTheyAre() {
  for (std::size_t i = 0; i < 2; ++i) {
    countRun.Extensions().OnLostFocus(static_cast<ExtensionList>(i));
    wordLists.OnExtraWordsLostFocus(static_cast<WordListKind>(i));
    if (frmParams.txbStartComment[i].Text().empty()) frmParams.txbEndComment[i].SetText("");
  }
  if (frmParams.txbStartComment[0].Text().empty() && frmParams.txbStartComment[1].Text().empty()) {
    frmParams.chkAllowCommentMarkers.SetChecked(false);
  }
  bool ok = true;
  for (std::size_t i = 0; i < 2; ++i) {
    const bool given = !frmParams.txbWordsFile[i].Text().empty();
    if (given && !wordLists.AttemptToReadWords(static_cast<WordListKind>(i))) ok = false;
  }
  return ok;
}

}  // namespace quillomat
