#include "app/count/window_count.h"

#include <string>
#include <utility>

#include "app/count/panel_choices.h"
#include "app/count/window_state.h"
#include "app/list/summary.h"
#include "sources/counter.h"

namespace quillomat {

CountRequest RequestFromControls(const RunContext& context, CountSource source) {
  const CountState& state = context.state;
  CountRequest request;
  request.source = std::move(source);
  request.scan = ReadScanChoices(context.frmParams);
  request.filters = ReadFilterChoices(context.frmParams);
  request.lists = state.lists;
  request.openComment = state.settings.OpenComment;
  request.threads = state.scanThreads;
  return request;
}

void WindowObserver::OnScanBegins() {
  scanHasBegun_ = true;
  HideNoticeLabels(context_.frmMain);
  context_.state.DiscardWords();
  context_.state.counted = text_;
}

void WindowObserver::OnFileBegins(const FileBegins& file) {
  std::string caption;
  if (file.lineEnds == LineEndingType::kUnix) caption = "This is a Unix-type file.";
  if (file.lineEnds == LineEndingType::kMacintosh) caption = "This is a Macintosh-type file.";
  context_.frmMain.lblNumWordsExcluded.SetCaption(caption);
  context_.frmMain.lblNumWordsExcluded.SetVisible(true);
  unixFile_ = file.lineEnds == LineEndingType::kUnix;
  if (file.bytes > CountProgress::kInstantBytes) fileProgress_.StartProgressBar();
}

/// The length of a pipe is not known, so it has no bar.
void WindowObserver::OnProgress(const CountProgress& progress) {
  if (progress.bytesInFile == 0) return;
  fileProgress_.UpdateProgressBar(progress.bytesWithLongLineEnds, progress.bytesInFile, unixFile_);
  fileProgress_.SetProgress({progress.bytesRead, progress.bytesInFile});
}

CountResult CountInWindow(const RunContext& context, const CountRequest& request,
                          WindowObserver& observer) {
  CountResult result = Counter(request, observer).Run();
  if (observer.HasScanBegun()) {
    CountState& state = context.state;
    state.store = std::move(result.store);
    state.WordsRead = result.wordsRead;
    state.counted.filesRead = std::move(result.filesRead);
    state.settings.OpenComment = result.openComment;
  }
  return result;
}

}  // namespace quillomat
