// The words that the program has counted, and what is known of their count: what is listed, and
// listed again in another order. One object for the program's whole life.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/count/count_basis.h"
#include "engine/uncounted.h"
#include "engine/word_store.h"
#include "export/export_table.h"
#include "listing/frequency_ranking.h"
#include "listing/list_line.h"
#include "listing/order_figures.h"
#include "sources/count_result.h"
#include "sources/output_rules.h"
#include "ui/event.h"

namespace quillomat {

/// What a count went through.
struct FolderFigures {
  /// 0 for text of the clipboard.
  std::int32_t filesScanned = 0;
  /// The chosen one included; 0 where no folder was scanned.
  std::int32_t foldersScanned = 0;
  /// Files and folders that should have been read and were not.
  std::int64_t skipped = 0;
  /// Lines, ended with CR LF, about files and folders that had to be skipped.
  std::string skippedNotice;
  LeftOut leftOut;
  /// The first file with bytes that could not be decoded; "" where there is none.
  std::string firstNotDecoded;
};

struct CurrentWords {
  // The words of the last count, or of the words file that was read since.
  WordStore store;
  WordTotals totals;
  FrequencyRanking ranking;
  /// Candidate words read, counted or not.
  std::int32_t WordsRead = 0;
  /// Of the same words; nothing if nobody wanted them.
  std::optional<OrderFigures> orderFigures;
  /// What was met beside them.
  Uncounted uncounted;
  GuessedSets guessed;
  std::int16_t minimumColumnWidth = kMinimumColumnWidth;

  // Whoever listens changes nothing of the words.
  /// The words of a count are filtered and ranked: who shows them may look at them from now on.
  mutable Event<> WordsRanked;
  /// What became of the files of a count is known, whether there are words or not.
  mutable Event<> FilesKnown;
  // The words, or the files, are about to go: nobody may look at them any more.
  mutable Event<> WordsGo;
  mutable Event<> FilesGo;

  /// Where they come from.
  CountedText counted;
  /// What became of each file of the count, in their order; if that was wanted, or of a single one.
  std::vector<FileReport> files;
  FolderFigures folder;
  /// How far their count came, if it was stopped.
  std::optional<CountReach> stoppedAfter;
  /// What their count went by.
  CountBasis basis;
  /// The same for people, as exports tell it.
  std::vector<ExportFact> settings;

  /// The last count went to its end, and its words can be listed again.
  bool completeRun = false;
  /// The last count was stopped, and the user wants its words listed.
  bool listAfterStop = false;
  /// The words of the last count made room for a file of words.
  bool gaveWay = false;
  /// The counts on display were obtained under the current parameters.
  bool blnWordsGot = false;

  [[nodiscard]] CountedWords Counted() const { return {store, ranking, totals}; }

  /// Whether a list of words stands that can be made anew.
  [[nodiscard]] bool CanBeListed() const { return completeRun || listAfterStop; }

  /// Whether the words are those of the whole text: nothing was skipped, and nobody stopped it.
  [[nodiscard]] bool AreOfWholeText() const { return !stoppedAfter && folder.skipped == 0; }

  /// Empties the store: the words of the last count are gone, and with them what was known of them.
  void Discard() {
    FilesGo.Fire();
    files.clear();
    stoppedAfter.reset();
    DiscardWords();
  }

  /// Makes room for a file of words. What became of the files of the last count stays known.
  void GiveWay() {
    const bool stood = CanBeListed() || gaveWay;
    DiscardWords();
    gaveWay = stood;
  }

 private:
  void DiscardWords() {
    WordsGo.Fire();
    store.Clear();
    totals = {};
    ranking = {};
    WordsRead = 0;
    orderFigures.reset();
    uncounted = {};
    counted = {};
    folder = {};
    basis = {};
    settings.clear();
    completeRun = false;
    listAfterStop = false;
    blnWordsGot = false;
    gaveWay = false;
  }
};

}  // namespace quillomat
