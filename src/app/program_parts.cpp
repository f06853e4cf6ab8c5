#include "app/program_parts.h"

#include <utility>

namespace quillomat {

ProgramParts::ProgramParts(MainForm& frmMain, ParamsForm& frmParams, HelpForm& frmHelp,
                           ExportForm& frmExport, Desktop& desktop, EventPump::Clock clock)
    : pump(desktop, std::move(clock)),
      run(pump),
      messages(desktop, text),
      output(frmMain, desktop),
      paths(desktop),
      inputRow(frmMain, messages, flags),
      controls(frmMain, frmParams, text, run),
      lister(frmMain, frmParams, output, run, words, inForce, messages, desktop),
      wordLists(frmMain, frmParams, output, messages, run, words, inForce, paths, flags),
      windowCount{frmMain, output, messages, run, words, inForce},
      countRun(windowCount, frmParams, controls, lister, wordLists, inputRow, paths, flags,
               desktop),
      savedState(windowCount, frmParams, flags, inputRow, paths, countRun, wordLists),
      sources(frmMain, output, messages, run, controls, inputRow, paths, countRun.Extensions(),
              flags),
      mainWindow(frmMain, output, messages, run, controls, lister, countRun, flags, desktop),
      panel(frmMain, frmParams, messages, run, words, inForce, flags, wordLists),
      help(frmMain, frmHelp),
      notices(frmMain, frmParams, output, messages, run, words, inForce, countRun, desktop),
      exports(frmMain, frmParams, frmExport, messages, run, pump, words, inForce, paths, desktop) {}

}  // namespace quillomat
