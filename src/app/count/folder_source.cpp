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
#include "sources/refusal_text.h"

namespace quillomat {
namespace {

std::string Counted(std::int32_t number, std::string_view noun, std::string_view separator) {
  return GroupDigits(number, separator).append(" ").append(noun).append(number == 1 ? "" : "s");
}

}  // namespace

std::string FilesInFolders(std::int32_t files, std::int32_t folders, std::string_view separator) {
  return Counted(files, "file", separator) + " in " + Counted(folders, "folder", separator);
}

std::string ScanableFilesIn(std::string_view place, bool ofType, bool subfolders) {
  std::string text = "scanable files ";
  if (ofType) text.append("of the specified type ");
  text.append("were found in ").append(place);
  if (subfolders) text.append(" or in its subfolders");
  return text;
}

TextOfFolder FolderSource::Folder() const {
  const MainForm& frmMain = count_.frmMain;
  return {frmMain.txbFolder.Text(), frmMain.chkIncludeSubfolders.IsChecked(), extensions_.Filter()};
}

bool FolderSource::ScanFolder(CountRequest request) {
  request.source = Folder();
  request.countingPass = CountingPass::kFilesAndBytes;
  request.outputPath = count_.frmMain.txbFile[1].Text();
  CountResult result;
  {
    FolderObserver observer(count_, row_, paths_);
    result = CountInWindow(count_, request, observer);
  }
  if (result.end == CountEnd::kRefused) {
    TellRefusal(result);
    count_.output.ClearOutput();  // nothing is counted any more
    return false;
  }
  if (result.end == CountEnd::kStoppedCounting) {
    TellStoppedCounting(result.files, result.folders);
    return false;
  }
  TakeSkipped(result);
  if (result.end == CountEnd::kFailed) throw RunTimeError(*result.error);
  count_.words.folder.skippedNotice = SkippedNotice(result);
  OutputLine(result.files == 0 ? "No files were scanned."
                               : FilesIn(result.files, result.folders) +
                                     (result.files == 1 ? " was scanned." : " were scanned."));
  return true;
}

void FolderSource::TellRefusal(const CountResult& result) const {
  switch (result.refusal) {
    case Refusal::kNothingNamed:
      count_.messages.Refuse("Folder not specified.", "Error");
      break;
    case Refusal::kFolderNotFound:
      count_.messages.Refuse("Folder does not exist", "Invalid input");
      break;
    case Refusal::kFolderHasNoFiles:
      count_.messages.Refuse("Folder contains no files.", "Nothing to do");
      break;
    case Refusal::kFolderUnreadable:
      count_.messages.Refuse("Folder cannot be read: " + result.error->Description() + ".",
                             "Error");
      break;
    case Refusal::kOutputInFolder:
      RefuseOutputFile(count_.messages, NeededAs::kPartOfFolder);
      break;
    default:
      break;  // the user knows: the run was cancelled
  }
}

void FolderSource::ListFiles() {
  // Nothing is counted, so markers and extensions that a count is refused for do no harm.
  CountRequest request;
  request.source = TextOfFolder{Folder().path, Folder().subfolders, {}};
  request.outputPath = count_.frmMain.txbFile[1].Text();
  CountResult check;
  check.refusal = Counter::Check(request, check.error, count_.run);
  if (count_.run.StopRequested()) return TellStoppedCounting(0, 1);
  if (check.refusal != Refusal::kNone) return TellRefusal(check);
  count_.run.EnterPhase(RunPhase::kCounting);
  std::int32_t files = 0;
  std::int32_t folders = 1;
  const auto writePath = [this](const std::string& path) { WritePathLine(count_, path); };
  WalkFolder(Folder(), {.onFile =
                            [&](const std::string& path) {
                              ++files;
                              writePath(path);
                            },
                        .onSubfolder = [&] { ++folders; },
                        .onUnreadableFolder =
                            [&](const std::string& path) {
                              writePath(path);
                              WriteSkipped(count_, {path, Refusal::kFolderUnreadable, {}});
                            },
                        .stops = [this] { return count_.run.Yield(); }});
  if (count_.run.StopRequested()) return TellStoppedCounting(files, folders);
  OutputLine(files == 0 ? "No files will be scanned."
                        : FilesIn(files, folders) + " will be scanned.");
}

void FolderSource::TellStoppedCounting(std::int32_t files, std::int32_t folders) const {
  OutputLine("Stopped while counting files (so far: " + FilesIn(files, folders) + ").");
}

std::string FolderSource::FilesIn(std::int32_t files, std::int32_t folders) const {
  return FilesInFolders(files, folders, count_.messages.DigitGroupSeparator());
}

void FolderSource::TakeSkipped(const CountResult& result) {
  skipped_.clear();
  skippedInAll_ = result.skippedInAll;
  for (const SkippedFile& skipped : result.skipped) {
    skipped_.push_back({skipped.path, RefusalInRun(skipped.reason, skipped.error)});
  }
}

/// A list must not look complete when it is not.
std::string FolderSource::SkippedNotice(const CountResult& result) const {
  constexpr std::size_t kShownInList = 20;
  const std::size_t shown = std::min(skipped_.size(), kShownInList);
  std::string notice;
  for (std::size_t i = 0; i < shown; ++i) {
    notice.append("Skipped: ").append(ShownPath(count_.frmMain, skipped_[i].path));
    notice.append(" (").append(skipped_[i].reason).append(")").append(kCrLf);
  }
  const std::int64_t more = result.skippedInAll - static_cast<std::int64_t>(shown);
  if (more > 0)
    notice.append("Skipped: ").append(count_.messages.Grouped(more)).append(" more\r\n");
  return notice;
}

/// Puts `line` on a line of its own.
void FolderSource::OutputLine(const std::string& line) const {
  const bool mustBreak =
      !count_.output.IsEmpty() && !count_.frmMain.txbOutput.Text().ends_with(kCrLf);
  count_.output.OutputToTxb(mustBreak ? std::string(kCrLf) + line : line);
}

}  // namespace quillomat
