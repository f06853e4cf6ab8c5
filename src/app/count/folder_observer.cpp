#include "app/count/folder_observer.h"

#include <algorithm>

#include "app/count/named_text.h"
#include "base/text_helpers.h"
#include "system/paths.h"

namespace quillomat {

std::string ShownPath(const RunContext& context, const std::string& path) {
  const std::string& chosen = context.frmMain.txbFolder.Text();
  for (const std::string& folder : {chosen, PathForWalk(chosen)}) {
    if (path.starts_with(folder)) return "{Folder}" + path.substr(folder.size());
  }
  return path;
}

std::string ReasonText(const SkippedFile& skipped) {
  switch (skipped.reason) {
    case Refusal::kFolderUnreadable:
      return "the folder cannot be read";
    case Refusal::kReadFailed:
      return skipped.error->Description();
    default:
      return "the file cannot be opened";
  }
}

void WritePathLine(const RunContext& context, const std::string& path) {
  context.output.OutputToTxb(std::string(kCrLf) + ShownPath(context, path));
}

void WriteSkipped(const RunContext& context, const SkippedFile& skipped) {
  context.output.OutputToTxb(" (skipped: " + ReasonText(skipped) + ")");
}

bool AskAboutManyFiles(const RunContext& context, std::int32_t files,
                       const std::string& outputPath) {
  if (files <= 1 || !outputPath.empty()) return true;
  const MessageAnswer answer = context.desktop.ShowMessage(
      {"When scanning multiple files or folders" + std::string(kCrLf) +
           "you must specify an output file in case" + std::string(kCrLf) +
           "the text window will not hold the result.",
       "Multiple files/folders", MessageIcon::kQuestion, MessageButtons::kOkCancel});
  return answer != MessageAnswer::kCancel;
}

FolderObserver::FilesInTurn::FilesInTurn(const RunContext& context, FileSource& fileSource)
    : frmMain_(context.frmMain),
      fileSource_(fileSource),
      progress_(context.frmMain.lblNumOccurrences),
      usersPath_(frmMain_.txbFile[0].Text()),
      usersFilesize_(frmMain_.lblFilesize.Caption()) {
  fileSource_.SetScanning(true);
  progress_.StartProgressBar();
}

FolderObserver::FilesInTurn::~FilesInTurn() {
  progress_.EndProgressBar();
  fileSource_.EndProgressBar();
  fileSource_.SetScanning(false);
  frmMain_.txbFile[0].SetText(usersPath_);
  frmMain_.lblFilesize.SetCaption(usersFilesize_);
}

void FolderObserver::FilesInTurn::ShowDone(std::int32_t files, std::int32_t of) {
  progress_.UpdateProgressBar(files, std::max(files, of), false);
}

void FolderObserver::FilesInTurn::ShowProgress(const CountProgress& progress) {
  const std::int32_t file = progress.filesDone + 1;
  progress_.SetProgress(
      {progress.runBytesRead, progress.bytesInRun, file, std::max(progress.filesInRun, file)});
}

FolderObserver::FolderObserver(const RunContext& context, FileSource& fileSource)
    : WindowObserver(context, TextNamedIn(context.frmMain)), fileSource_(fileSource) {}

/// Each of the first files is shown, then every fifth.
void FolderObserver::OnFileCounted(std::int32_t files, std::int32_t /*folders*/) {
  constexpr std::int32_t kShownOneByOne = 9;
  constexpr std::int32_t kShownEvery = 5;
  if (files > kShownOneByOne && files % kShownEvery != 0) return;
  Context().frmMain.txbOutput.SetText("Counting files . . . " + Grouped(Context(), files));
}

/// False when the user cancels the run.
bool FolderObserver::GoOn(std::int32_t files, std::int32_t /*folders*/, std::string& outputPath) {
  if (!AskAboutManyFiles(Context(), files, outputPath)) return false;
  if (files > 1 && outputPath.empty()) {
    fileSource_.ChooseOutputFile();
    outputPath = Context().frmMain.txbFile[1].Text();
  }
  Context().state.StopRequested = false;
  return true;
}

void FolderObserver::OnScanBegins() {
  WindowObserver::OnScanBegins();
  filesInTurn_.emplace(Context(), fileSource_);
}

void FolderObserver::OnFileMet(const std::string& path, const CountProgress& progress) {
  Context().frmMain.txbFile[0].SetText(path);
  WritePathLine(Context(), path);
  filesInTurn_->ShowProgress(progress);
}

void FolderObserver::OnFileBegins(const FileBegins& file) {
  Context().frmMain.lblFilesize.SetCaption(
      FileSizeText(file.bytes, Context().desktop.DigitGroupSeparator()));
  WindowObserver::OnFileBegins(file);
}

void FolderObserver::OnProgress(const CountProgress& progress) {
  WindowObserver::OnProgress(progress);
  filesInTurn_->ShowProgress(progress);
}

void FolderObserver::OnFileEnds(const FileReport& /*report*/, const CountProgress& progress) {
  FileProgress().EndProgressBar();
  Context().frmMain.lblTwirler.SetCaption(" ");
  filesInTurn_->ShowDone(progress.filesDone, progress.filesInRun);
}

void FolderObserver::OnSkipped(const SkippedFile& skipped) {
  if (!IsFault(skipped.reason)) return;
  if (skipped.reason == Refusal::kFolderUnreadable) WritePathLine(Context(), skipped.path);
  WriteSkipped(Context(), skipped);
}

}  // namespace quillomat
