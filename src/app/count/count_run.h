// The count command and one run of it: the checks, the source, an interruption by the user, and the
// list at the end.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/count/clipboard_source.h"
#include "app/count/count_basis.h"
#include "app/count/file_extensions.h"
#include "app/count/file_source.h"
#include "app/count/folder_source.h"
#include "app/count/window_count.h"
#include "app/count/word_list_reader.h"
#include "app/list/word_lister.h"
#include "app/what_parts_share.h"
#include "engine/word_filters.h"
#include "sources/count_request.h"
#include "sources/count_result.h"
#include "sources/output_rules.h"

namespace quillomat {

class CountRun {
 public:
  /// All must outlive it.
  CountRun(const UserSide& user, const ProgramFacts& facts, const NamedPaths& named,
           WordLister& lister, WordListReader& wordLists)
      : count_(WindowCountOf(user, facts)),
        frmParams_(user.frmParams),
        controls_(user.controls),
        lister_(lister),
        wordLists_(wordLists),
        flags_(facts.flags),
        desktop_(user.desktop),
        clipboard_(count_, lister, user.desktop),
        file_(count_, named.inputRow, named.paths, user.desktop),
        extensions_(user.frmMain, user.messages),
        folder_(count_, named.inputRow, named.paths, extensions_) {}

  /// The count command was clicked: starts a run, or asks the one that is at work to stop.
  void OnCountClick();

  /// The command that lists the files of the folder.
  void OnListFilesClick();

  /// The order or the format of the list was changed.
  void OnListChoiceChanged();

  /// File output was switched on or off.
  void OnDisableOutputClick();

  /// The settings were restored. A list that stood in the text box before is made anew as they want
  /// it, there alone; where its words are gone, or are not what the format needs, the box is
  /// emptied.
  void OnRestored(bool listStood);

  // For a face that counts with Counter itself, without the window.

  /// Checks what the boxes say, as before a count in the window; the user is told of what is wrong.
  [[nodiscard]] bool Prepare(const CountedText& text);
  /// The same for a scan that writes nothing.
  [[nodiscard]] bool PrepareScan();
  /// What the controls ask for.
  [[nodiscard]] CountRequest Request(CountSource source) const;
  /// Makes the words of a count, ranked, those of the program, and shows their summary.
  void Take(CountResult result, CountedText text);

  /// Of a count that gave no words: keeps what became of its files.
  void TakeFiles(CountResult result, CountedText text);

  [[nodiscard]] FileExtensions& Extensions() { return extensions_; }
  [[nodiscard]] const FileExtensions& Extensions() const { return extensions_; }

  /// What the last count of a folder had to skip.
  [[nodiscard]] const std::vector<SkippedItem>& Skipped() const { return folder_.Skipped(); }

  /// How many that is in all.
  [[nodiscard]] std::int64_t SkippedInAll() const { return folder_.SkippedInAll(); }
  /// What the last count went by.
  [[nodiscard]] const CountBasis& Basis() const { return count_.words.basis; }

  /// A list was made, of words that were found, since the last count began.
  [[nodiscard]] bool ListWasMade() const { return listWasMade_; }

 private:
  enum class ListTarget : std::uint8_t { kAll, kTextBox };

  void RunCount();
  [[nodiscard]] bool PrepareRun();
  [[nodiscard]] bool MarkersStand() const;
  [[nodiscard]] bool ExtensionsStand();
  [[nodiscard]] bool ScanSource(const CountRequest& request);
  [[nodiscard]] bool ScanSingleFile(const CountRequest& request);
  [[nodiscard]] bool ScanClipboard(const CountRequest& request);
  void ReportInputFileError(ScanFileResult code) const;
  [[nodiscard]] bool HandleInterruption();
  [[nodiscard]] bool FolderHadFiles() const;
  void ShowProcessingNotice();
  void DropProcessingNotice();
  void RankWords();
  void FilterAndRank(const FilterChoices& filters);
  void FinishRun(const FilterChoices& filters);
  void ListFiles();
  void ListAgain(ListTarget target);

  WindowCount count_;
  ParamsForm& frmParams_;
  WindowControls& controls_;
  WordLister& lister_;
  WordListReader& wordLists_;
  const WindowFlags& flags_;
  Desktop& desktop_;
  ClipboardSource clipboard_;
  FileSource file_;
  FileExtensions extensions_;
  FolderSource folder_;
  /// The output with the processing notice, and as it was before.
  std::string shownNotice_;
  std::string outputBeforeNotice_;
  bool listWasMade_ = false;
};

}  // namespace quillomat
