#include "app/count/folder_observer.h"

#include <algorithm>

#include "app/count/named_text.h"
#include "base/text_helpers.h"
#include "sources/refusal_text.h"
#include "system/paths.h"

namespace quillomat {

std::string ShownPath(const MainForm& frmMain, const std::string& path) {
  const std::string& chosen = frmMain.txbFolder.Text();
  for (const std::string& folder : {chosen, PathForWalk(chosen)}) {
    if (path.starts_with(folder)) return "{Folder}" + path.substr(folder.size());
  }
  return path;
}

void WritePathLine(const WindowCount& count, const std::string& path) {
  count.output.OutputToTxb(std::string(kCrLf) + ShownPath(count.frmMain, path));
}

void WriteSkipped(const WindowCount& count, const SkippedFile& skipped) {
  count.output.OutputToTxb(" (skipped: " + RefusalInRun(skipped.reason, skipped.error) + ")");
}

bool AskAboutManyFiles(const Messages& messages, std::int32_t files,
                       const std::string& outputPath) {
  if (files <= 1 || !outputPath.empty()) return true;
  const MessageAnswer answer =
      messages.Ask("When scanning multiple files or folders" + std::string(kCrLf) +
                       "you must specify an output file in case" + std::string(kCrLf) +
                       "the text window will not hold the result.",
                   "Multiple files/folders", MessageButtons::kOkCancel);
  return answer != MessageAnswer::kCancel;
}

FolderObserver::FilesInTurn::FilesInTurn(const WindowCount& count, InputFileRow& row)
    : count_(count), loan_(row), progress_(count.frmMain.lblNumOccurrences) {
  count_.run.SetScanning(true);
  progress_.StartProgressBar();
}

FolderObserver::FilesInTurn::~FilesInTurn() {
  progress_.EndProgressBar();
  ProgressBar(count_.frmMain.lblTotalNumOccurrences).EndProgressBar();
  count_.run.SetScanning(false);
}

void FolderObserver::FilesInTurn::ShowDone(std::int32_t files, std::int32_t of) {
  progress_.UpdateProgressBar(files, std::max(files, of), false);
}

void FolderObserver::FilesInTurn::ShowProgress(const CountProgress& progress) {
  const std::int32_t file = progress.filesDone + 1;
  progress_.SetProgress(
      {progress.runBytesRead, progress.bytesInRun, file, std::max(progress.filesInRun, file)});
}

FolderObserver::FolderObserver(const WindowCount& count, InputFileRow& row, PathBoxes& paths)
    : WindowObserver(count, TextNamedIn(count.frmMain)), row_(row), paths_(paths) {}

/// Each of the first files is shown, then every fifth.
void FolderObserver::OnFileCounted(std::int32_t files, std::int32_t /*folders*/) {
  constexpr std::int32_t kShownOneByOne = 9;
  constexpr std::int32_t kShownEvery = 5;
  if (files > kShownOneByOne && files % kShownEvery != 0) return;
  Count().frmMain.txbOutput.SetText("Counting files . . . " + Count().messages.Grouped(files));
}

/// False when the user cancels the run, or quits.
bool FolderObserver::GoOn(std::int32_t files, std::int32_t /*folders*/, std::string& outputPath) {
  if (!AskAboutManyFiles(Count().messages, files, outputPath)) return false;
  if (Count().run.Quitting()) return false;
  if (files > 1 && outputPath.empty()) {
    paths_.ChooseOutputFile(Count().frmMain);
    outputPath = Count().frmMain.txbFile[1].Text();
  }
  Count().run.ForgetStop();
  return !Count().run.Quitting();
}

void FolderObserver::OnScanBegins() {
  WindowObserver::OnScanBegins();
  filesInTurn_.emplace(Count(), row_);
}

void FolderObserver::OnFileMet(const std::string& path, const CountProgress& progress) {
  row_.ShowPath(path);
  WritePathLine(Count(), path);
  filesInTurn_->ShowProgress(progress);
}

void FolderObserver::OnFileBegins(const FileBegins& file) {
  row_.ShowFileSize(file.bytes);
  WindowObserver::OnFileBegins(file);
}

void FolderObserver::OnProgress(const CountProgress& progress) {
  WindowObserver::OnProgress(progress);
  filesInTurn_->ShowProgress(progress);
}

void FolderObserver::OnFileEnds(const FileReport& /*report*/, const CountProgress& progress) {
  FileProgress().EndProgressBar();
  Count().frmMain.lblTwirler.SetCaption(" ");
  filesInTurn_->ShowDone(progress.filesDone, progress.filesInRun);
}

void FolderObserver::OnSkipped(const SkippedFile& skipped) {
  if (!IsFault(skipped.reason)) return;
  if (skipped.reason == Refusal::kFolderUnreadable) WritePathLine(Count(), skipped.path);
  WriteSkipped(Count(), skipped);
}

}  // namespace quillomat
