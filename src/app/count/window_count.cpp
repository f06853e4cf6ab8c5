#include "app/count/window_count.h"

#include <string>
#include <utility>

#include "app/count/panel_choices.h"
#include "app/list/summary.h"
#include "sources/counter.h"

namespace quillomat {

CountRequest RequestFromControls(ParamsForm& frmParams, const InForce& inForce,
                                 CountSource source) {
  CountRequest request;
  request.source = std::move(source);
  request.scan = ReadScanChoices(frmParams);
  request.filters = ReadFilterChoices(frmParams);
  request.lists = inForce.lists;
  request.encoding = ReadEncoding(frmParams);
  request.openComment = inForce.settings.OpenComment;
  request.orderFigures = inForce.wantsOrderFigures;
  request.keepReports = inForce.wantsFileReports;
  request.threads = inForce.scanThreads;
  return request;
}

void WindowObserver::OnScanBegins() {
  scanHasBegun_ = true;
  HideNoticeLabels(count_.frmMain);
  count_.words.Discard();
  count_.words.counted = text_;
  count_.words.basis = basis_;
  count_.words.settings = settings_;
  count_.inForce.settings.CountOnlyMode = countOnlyMode_;
}

void WindowObserver::OnFileBegins(const FileBegins& file) {
  std::string caption;
  if (file.lineEnds == LineEndingType::kUnix) caption = "This is a Unix-type file.";
  if (file.lineEnds == LineEndingType::kMacintosh) caption = "This is a Macintosh-type file.";
  Label& label = count_.frmMain.lblNumWordsExcluded;
  label.SetCaption(caption);
  label.SetVisible(true);
  unixFile_ = file.lineEnds == LineEndingType::kUnix;
  if (file.bytes > CountProgress::kInstantBytes) fileProgress_.StartProgressBar();
}

/// The length of a pipe is not known, so it has no bar.
void WindowObserver::OnProgress(const CountProgress& progress) {
  if (progress.bytesInFile == 0) return;
  fileProgress_.UpdateProgressBar(progress.bytesWithLongLineEnds, progress.bytesInFile, unixFile_);
  fileProgress_.SetProgress({progress.bytesRead, progress.bytesInFile});
}

CountResult CountInWindow(const WindowCount& count, const CountRequest& request,
                          WindowObserver& observer) {
  CountResult result = Counter(request, observer).Run();
  if (observer.HasScanBegun()) {
    count.words.store = std::move(result.store);
    count.words.WordsRead = result.wordsRead;
    count.words.orderFigures = std::move(result.orderFigures);
    count.words.uncounted = result.uncounted;
    count.words.guessed = std::move(result.guessed);
    count.words.counted.filesRead = std::move(result.filesRead);
    count.words.files = std::move(result.reports);
    count.words.folder = {result.files, result.folders, result.skippedInAll,
                          {},           result.leftOut, result.firstNotDecoded};
    count.words.stoppedAfter = result.stoppedAfter;
    count.words.FilesKnown.Fire();
    count.inForce.settings.OpenComment = result.openComment;
  }
  return result;
}

}  // namespace quillomat
