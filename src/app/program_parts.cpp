#include "app/program_parts.h"

#include <utility>

namespace quillomat {

ProgramParts::ProgramParts(const ProgramForms& forms, Desktop& desktop, EventPump::Clock clock)
    : pump(desktop, std::move(clock)),
      run(pump),
      messages(desktop, text),
      output(forms.frmMain, desktop),
      paths(desktop, messages),
      inputRow(forms.frmMain, messages, flags),
      controls(forms.frmMain, forms.frmParams, text, run),
      facts{run, words, inForce, flags},
      user{forms.frmMain, forms.frmParams, output, controls, messages, desktop},
      named{inputRow, paths},
      lister(user, facts),
      wordLists(user, facts, paths),
      countRun(user, facts, named, lister, wordLists),
      savedState(user, facts, named, countRun, wordLists),
      sources(user, run, flags, named, countRun.Extensions()),
      mainWindow(user, run, flags, lister, countRun),
      panel(user, facts, wordLists),
      tryIt(forms.frmParams, wordLists, inForce, text),
      help(forms.frmMain, forms.frmHelp),
      notices(user, facts, countRun),
      exports(forms.frmExport, user, facts, pump, paths) {}

}  // namespace quillomat
