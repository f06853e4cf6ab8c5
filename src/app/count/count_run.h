// The count command and one run of it: the checks, the source, an interruption by the user, and the
// list at the end.
#pragma once

#include <cstdint>
#include <string>

#include "app/count/clipboard_source.h"
#include "app/count/file_extensions.h"
#include "app/count/file_source.h"
#include "app/count/folder_source.h"
#include "app/count/run_context.h"
#include "app/count/word_list_reader.h"
#include "engine/word_filters.h"

namespace quillomat {

class CountRun {
 public:
  CountRun(const RunContext& context, WordListReader& wordLists)
      : context_(context),
        wordLists_(wordLists),
        clipboard_(context),
        file_(context),
        extensions_(context),
        folder_(context, file_, extensions_) {}

  /// The count command was clicked: starts a run, or asks the one that is at work to stop.
  void OnCountClick();

  /// The command that lists the files of the folder.
  void OnListFilesClick();

  /// The order or the format of the list was changed.
  void OnListChoiceChanged();

  /// File output was switched on or off.
  void OnDisableOutputClick();

  /// Whether a list of words stands that can be made anew.
  [[nodiscard]] bool ListStands() const {
    return context_.state.completeRun || context_.state.listAfterStop;
  }
  /// The settings were restored. A list that stood before is made anew as they want it, in the text
  /// box alone; where its words are gone, or are not what the format needs, the box is emptied.
  void OnRestored(bool listStood);

  [[nodiscard]] ClipboardSource& Clipboard() { return clipboard_; }
  [[nodiscard]] FileSource& File() { return file_; }
  [[nodiscard]] FileExtensions& Extensions() { return extensions_; }
  [[nodiscard]] FolderSource& Folder() { return folder_; }

  /// A list was made, of words that were found, since the last count began.
  [[nodiscard]] bool ListWasMade() const { return listWasMade_; }

 private:
  enum class ListTarget : std::uint8_t { kAll, kTextBox };

  void RunCount();
  [[nodiscard]] bool PrepareRun();
  [[nodiscard]] bool ScanSource();
  [[nodiscard]] bool ScanSingleFile();
  [[nodiscard]] bool ScanClipboard();
  void ReportInputFileError(ScanFileResult code);
  [[nodiscard]] bool HandleInterruption();
  [[nodiscard]] bool FolderHadFiles();
  void ShowProcessingNotice();
  void DropProcessingNotice();
  void RankWords();
  void FinishRun();
  void ListAgain(ListTarget target);

  const RunContext& context_;
  WordListReader& wordLists_;
  ClipboardSource clipboard_;
  FileSource file_;
  FileExtensions extensions_;
  FolderSource folder_;
  /// As the panel stood when the count began, like all that a count goes by.
  FilterChoices filterChoices_;
  /// The output with the processing notice, and as it was before.
  std::string shownNotice_;
  std::string outputBeforeNotice_;
  bool listWasMade_ = false;
};

}  // namespace quillomat
