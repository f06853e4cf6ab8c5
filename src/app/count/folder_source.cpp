#include "app/count/folder_source.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "app/count/folder_observer.h"
#include "app/count/window_count.h"
#include "app/list/output_refusal.h"
#include "base/text_helpers.h"
#include "sources/counter.h"
#include "sources/folder_walk.h"
#include "system/paths.h"

namespace quillomat {
namespace {

std::string Counted(std::int32_t number, std::string_view noun, std::string_view separator) {
  return GroupDigits(number, separator).append(" ").append(noun).append(number == 1 ? "" : "s");
}

}  // namespace

std::string FilesInFolders(std::int32_t files, std::int32_t folders, std::string_view separator) {
  return Counted(files, "file", separator) + " in " + Counted(folders, "folder", separator);
}

TextOfFolder FolderSource::Folder() const {
  const MainForm& frmMain = context_.frmMain;
  return {frmMain.txbFolder.Text(), frmMain.chkIncludeSubfolders.IsChecked(), extensions_.Filter()};
}

bool FolderSource::ScanFolder() {
  CountRequest request = RequestFromControls(context_, Folder());
  request.countingPass = CountingPass::kFilesAndBytes;
  request.outputPath = context_.frmMain.txbFile[1].Text();
  CountResult result;
  {
    FolderObserver observer(context_, fileSource_);
    result = CountInWindow(context_, request, observer);
  }
  if (result.end == CountEnd::kRefused) {
    TellRefusal(result);
    return false;
  }
  if (result.end == CountEnd::kStoppedCounting) {
    TellStoppedCounting(result.files, result.folders);
    return false;
  }
  TakeSkipped(result);
  if (result.end == CountEnd::kFailed) throw RunTimeError(*result.error);
  CountState& state = context_.state;
  state.filesScanned = result.files;
  state.foldersScanned = result.folders;
  state.skippedNotice = SkippedNotice(result);
  OutputLine(result.files == 0 ? "No files were scanned."
                               : FilesIn(result.files, result.folders) +
                                     (result.files == 1 ? " was scanned." : " were scanned."));
  return true;
}

void FolderSource::TellRefusal(const CountResult& result) const {
  switch (result.refusal) {
    case Refusal::kNothingNamed:
      Refuse(context_, "Folder not specified.", "Error");
      break;
    case Refusal::kFolderNotFound:
      Refuse(context_, "Folder does not exist", "Invalid input");
      break;
    case Refusal::kFolderHasNoFiles:
      Refuse(context_, "Folder contains no files.", "Nothing to do");
      break;
    case Refusal::kFolderUnreadable:
      Refuse(context_, "Folder cannot be read: " + result.error->Description() + ".", "Error");
      break;
    case Refusal::kOutputInFolder:
      context_.desktop.ShowMessage(OutputRefusal(NeededAs::kPartOfFolder));
      break;
    default:
      break;  // the user knows: the run was cancelled
  }
}

void FolderSource::ListFiles() {
  // Nothing is counted, so markers and extensions that a count is refused for do no harm.
  CountRequest request;
  request.source = TextOfFolder{Folder().path, Folder().subfolders, {}};
  request.outputPath = context_.frmMain.txbFile[1].Text();
  CountResult check;
  check.refusal = Counter::Check(request, check.error);
  if (check.refusal != Refusal::kNone) return TellRefusal(check);
  EnterPhase(context_, RunPhase::kCounting);
  std::int32_t files = 0;
  std::int32_t folders = 1;
  const auto writePath = [this](const std::string& path) { WritePathLine(context_, path); };
  WalkFolder(Folder(), {.onFile =
                            [&](const std::string& path) {
                              ++files;
                              writePath(path);
                            },
                        .onSubfolder = [&] { ++folders; },
                        .onUnreadableFolder =
                            [&](const std::string& path) {
                              writePath(path);
                              WriteSkipped(context_, {path, Refusal::kFolderUnreadable, {}});
                            },
                        .stops =
                            [this] {
                              context_.pump.Yield();
                              return context_.state.StopRequested;
                            }});
  if (context_.state.StopRequested) return TellStoppedCounting(files, folders);
  OutputLine(files == 0 ? "No files will be scanned."
                        : FilesIn(files, folders) + " will be scanned.");
}

void FolderSource::TellStoppedCounting(std::int32_t files, std::int32_t folders) const {
  OutputLine("Stopped while counting files (so far: " + FilesIn(files, folders) + ").");
}

std::string FolderSource::FilesIn(std::int32_t files, std::int32_t folders) const {
  return FilesInFolders(files, folders, context_.desktop.DigitGroupSeparator());
}

void FolderSource::TakeSkipped(const CountResult& result) {
  skipped_.clear();
  for (const SkippedFile& skipped : result.skipped) {
    skipped_.push_back({skipped.path, ReasonText(skipped)});
  }
}

/// A list must not look complete when it is not.
std::string FolderSource::SkippedNotice(const CountResult& result) const {
  constexpr std::size_t kShownInList = 20;
  const std::size_t shown = std::min(skipped_.size(), kShownInList);
  std::string notice;
  for (std::size_t i = 0; i < shown; ++i) {
    notice.append("Skipped: ").append(ShownPath(context_, skipped_[i].path));
    notice.append(" (").append(skipped_[i].reason).append(")").append(kCrLf);
  }
  const std::int64_t more = result.skippedInAll - static_cast<std::int64_t>(shown);
  if (more > 0) notice.append("Skipped: ").append(Grouped(context_, more)).append(" more\r\n");
  return notice;
}

/// Puts `line` on a line of its own.
void FolderSource::OutputLine(const std::string& line) const {
  const bool mustBreak =
      !context_.output.IsEmpty() && !context_.frmMain.txbOutput.Text().ends_with(kCrLf);
  context_.output.OutputToTxb(mustBreak ? std::string(kCrLf) + line : line);
}

}  // namespace quillomat
