// What the main window knows besides its controls: the counted words, the word lists, and how the
// last count went. One object for the program's whole life.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "app/count/run_phase.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"
#include "engine/word_store.h"
#include "listing/frequency_ranking.h"
#include "listing/list_line.h"
#include "sources/output_rules.h"
#include "ui/event.h"

namespace quillomat {

struct CountState {
  // The words of the last count, or of the words file that was read since.
  WordStore store;
  WordTotals totals;
  FrequencyRanking ranking;
  /// Candidate words read, counted or not.
  std::int32_t WordsRead = 0;
  std::int16_t minimumColumnWidth = kMinimumColumnWidth;
  /// The words of a count are filtered and ranked: who shows them may look at them from now on.
  Event<> WordsRanked;
  /// They are about to go: nobody may look at them any more.
  Event<> WordsGo;
  /// Where they come from.
  CountedText counted;
  FilesRead filesRead;

  // What a scan goes by.
  ScanSettings settings;
  WordLists lists;
  /// How many threads may scan a large text at the same time; with 1 it is scanned by the caller's.
  std::size_t scanThreads = 1;

  // The folder source: files scanned in the last count, and folders visited in it (the chosen one
  // included).
  std::int32_t filesScanned = 0;
  std::int32_t foldersScanned = 0;
  /// Lines, ended with CR LF, about files and folders that the last count had to skip.
  std::string skippedNotice;

  // The count run.
  /// The user has asked the run to stop. Every long loop tests it.
  bool StopRequested = false;
  /// The last count went to its end, and its words can be listed again.
  bool completeRun = false;
  /// The last count was stopped, and the user wants its words listed.
  bool listAfterStop = false;
  /// New words of the running count are being shown in the output text box.
  bool displayingWords = false;
  /// Changed by PhaseGuard and EnterPhase alone.
  RunPhase phase = RunPhase::kIdle;

  // The main window's public flags.
  bool blnStartUpCompleted = false;
  /// The counts on display were obtained under the current parameters.
  bool blnWordsGot = false;
  /// The panel does not ask whether the text may be read anew.
  bool blnInhibitPrompt = false;

  /// Where the file or the folder lies that the user chose or named last; "" for none yet.
  std::string lastFolder;

  /// The program that shows the clipboard, or "".
  std::string clipboardViewerPath;
  /// The user wants to quit: at once, or as soon as the run has ended.
  bool quitting = false;

  /// Something is at work: nothing else may touch the words now.
  [[nodiscard]] bool Busy() const { return phase != RunPhase::kIdle; }

  [[nodiscard]] CountedWords Counted() const { return {store, ranking, totals}; }

  /// Empties the store: the words of the last count are gone, and with them what was known of them.
  void DiscardWords() {
    WordsGo.Fire();
    store.Clear();
    totals = {};
    ranking = {};
    counted = {};
    skippedNotice.clear();
    completeRun = false;
    listAfterStop = false;
    blnWordsGot = false;
  }
};

}  // namespace quillomat
