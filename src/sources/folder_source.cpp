#include "sources/folder_source.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/text_helpers.h"
#include "listing/summary.h"
#include "sources/named_text.h"
#include "sources/scan_job.h"
#include "sources/wildcard.h"
#include "sources/window_state.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

std::string Counted(std::int32_t number, std::string_view noun, std::string_view separator) {
  return GroupDigits(number, separator).append(" ").append(noun).append(number == 1 ? "" : "s");
}

/// Whether an error is the count's own and not just that of one file: there may be memory for the
/// next one.
bool EndsTheRun(const RunTimeError& error) {
  return error.Number() == static_cast<int>(RunTimeErrorNumber::kOverflow);
}

/// The contents of a folder, or nothing when it may not be read.
std::optional<FolderListing> TryToList(const std::string& path) {
  try {
    return ListFolder(path);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// While it lives, the input box and the file source serve one file of a folder after the other,
/// and a progress bar follows them; afterwards the user's own input file stands in the box again.
class FilesInTurn {
 public:
  FilesInTurn(const RunContext& context, FileSource& fileSource, ProgressBar& progress)
      : txbPath_(context.frmMain.txbFile[0]),
        usersPath_(txbPath_.Text()),
        lblFilesize_(context.frmMain.lblFilesize),
        usersFilesize_(lblFilesize_.Caption()),
        fileSource_(fileSource),
        progress_(progress) {
    fileSource_.SetScanning(true);
    progress_.StartProgressBar();
  }
  FilesInTurn(const FilesInTurn&) = delete;
  FilesInTurn& operator=(const FilesInTurn&) = delete;
  FilesInTurn(FilesInTurn&&) = delete;
  FilesInTurn& operator=(FilesInTurn&&) = delete;
  ~FilesInTurn() {
    progress_.EndProgressBar();
    fileSource_.SetBytesListener({});
    fileSource_.SetFolderJob(nullptr);
    fileSource_.SetScanning(false);
    txbPath_.SetText(usersPath_);
    lblFilesize_.SetCaption(usersFilesize_);
  }

 private:
  TextBox& txbPath_;
  std::string usersPath_;
  Label& lblFilesize_;
  std::string usersFilesize_;
  FileSource& fileSource_;
  ProgressBar& progress_;
};

}  // namespace

std::string FilesInFolders(std::int32_t files, std::int32_t folders, std::string_view separator) {
  return Counted(files, "file", separator) + " in " + Counted(folders, "folder", separator);
}

bool FolderHasFiles(const std::string& path, std::string_view pattern, bool includeSubfolders) {
  const FolderListing listing = ListFolder(path);
  const auto fits = [pattern](const std::string& name) { return MatchesWildcard(name, pattern); };
  if (std::ranges::any_of(listing.files, fits)) return true;
  const auto hasFiles = [&](const std::string& name) {
    try {
      return FolderHasFiles(JoinPath(path, name), pattern, true);
    } catch (const RunTimeError&) {
      return false;
    }
  };
  return includeSubfolders && std::ranges::any_of(listing.subfolders, hasFiles);
}

bool FolderSource::CheckFolder() const {
  if (Folder().empty()) {
    Refuse(context_, "Folder not specified.", "Error");
    return false;
  }
  if (!FolderExists(Folder())) {
    Refuse(context_, "Folder does not exist", "Invalid input");
    return false;
  }
  try {
    if (!FolderHasFiles(Folder(), "*.*", IncludesSubfolders())) {
      Refuse(context_, "Folder contains no files.", "Nothing to do");
      return false;
    }
  } catch (const RunTimeError& error) {
    Refuse(context_, "Folder cannot be read: " + error.Description() + ".", "Error");
    return false;
  }
  return CheckOutputFile();
}

bool FolderSource::CheckOutputFile() const {
  const auto neededAs =
      WhyNotToWrite(context_.frmMain.txbFile[1].Text(), TextNamedIn(context_.frmMain));
  if (neededAs) context_.desktop.ShowMessage(OutputRefusal(*neededAs));
  return !neededAs;
}

std::string FolderSource::FilesInPass() const {
  const CountState& state = context_.state;
  return FilesInFolders(state.filesInPass, state.foldersVisited,
                        context_.desktop.DigitGroupSeparator());
}

bool FolderSource::ScanFolder() {
  if (!CheckFolder() || !RunCountingPass(Pass::kCounting) || !AskForOutputFile()) return false;
  if (!CheckOutputFile()) return false;  // it may have been chosen only now
  RunScanningPass();
  return true;
}

void FolderSource::ListFiles() {
  if (!CheckFolder() || !RunCountingPass(Pass::kListOnly)) return;
  const CountState& state = context_.state;
  OutputLine(state.filesInPass == 0 ? "No files will be scanned."
                                    : FilesInPass() + " will be scanned.");
}

/// False when the user stopped it.
bool FolderSource::RunCountingPass(Pass pass) {
  CountState& state = context_.state;
  context_.frmMain.cmdCountWords.SetCaption(std::string(kStopCaption));
  EnableControls(context_, false);
  pass_ = pass;
  skipped_.clear();
  state.filesInPass = 0;
  state.foldersVisited = 1;
  bytesCounted_ = 0;
  WalkFolder(Folder());
  filesCounted_ = state.filesInPass;
  if (!state.StopRequested) return true;
  OutputLine("Stopped while counting files (so far: " + FilesInPass() + ").");
  return false;
}

/// False when the user cancels the run.
bool FolderSource::AskForOutputFile() const {
  if (filesCounted_ <= 1 || !context_.frmMain.txbFile[1].Text().empty()) return true;
  const std::string text = "When scanning multiple files or folders" + std::string(kCrLf) +
                           "you must specify an output file in case" + std::string(kCrLf) +
                           "the text window will not hold the result.";
  const MessageAnswer answer = context_.desktop.ShowMessage(
      {text, "Multiple files/folders", MessageIcon::kQuestion, MessageButtons::kOkCancel});
  if (answer == MessageAnswer::kCancel) return false;
  fileSource_.ChooseOutputFile();
  return true;
}

void FolderSource::RunScanningPass() {
  CountState& state = context_.state;
  state.filesInPass = 0;
  state.foldersVisited = 1;
  state.StopRequested = false;
  HideNoticeLabels(context_.frmMain);
  state.DiscardWords();
  state.counted = TextNamedIn(context_.frmMain);
  state.store.Files().Reset(state.settings.CountOnlyMode);
  pass_ = Pass::kScanning;
  skipped_.clear();
  filesTried_ = 0;
  bytesTried_ = 0;
  {
    const FilesInTurn filesInTurn(context_, fileSource_, filesProgress_);
    ScanJob job(context_);
    fileSource_.SetFolderJob(&job);
    fileSource_.SetBytesListener([this](std::int64_t bytes) { ShowProgress(bytes); });
    WalkFolder(Folder());
  }
  state.filesScanned = state.filesInPass;
  state.foldersScanned = state.foldersVisited;
  state.skippedNotice = SkippedNotice();
  const std::string result =
      state.filesInPass == 0
          ? "No files were scanned."
          : FilesInPass() + (state.filesInPass == 1 ? " was scanned." : " were scanned.");
  OutputLine(result);
}

void FolderSource::WalkFolder(const std::string& path) {
  const std::optional<FolderListing> listing = TryToList(path);
  if (!listing) {
    if (pass_ != Pass::kCounting) WritePathLine(path);
    return Skip(path, "the folder cannot be read");
  }
  for (const std::string& name : listing->files) {
    if (!extensions_.IsScannable(name)) continue;
    TakeFile(PathForWalk(JoinPath(path, name)));
    context_.pump.Yield();
    if (context_.state.StopRequested) return;
  }
  if (!IncludesSubfolders()) return;
  for (const std::string& name : listing->subfolders) {
    ++context_.state.foldersVisited;
    WalkFolder(JoinPath(path, name));
    context_.pump.Yield();
    if (context_.state.StopRequested) return;
  }
}

void FolderSource::TakeFile(const std::string& path) {
  switch (pass_) {
    case Pass::kCounting:
      ++context_.state.filesInPass;
      bytesCounted_ += FileLength(path).value_or(0);
      return ShowFilesCounted();
    case Pass::kListOnly:
      ++context_.state.filesInPass;
      return WritePathLine(path);
    case Pass::kScanning:
      return ScanOneFile(path);
  }
}

/// Each of the first files is shown, then every fifth.
void FolderSource::ShowFilesCounted() const {
  constexpr std::int32_t kShownOneByOne = 9;
  constexpr std::int32_t kShownEvery = 5;
  const std::int32_t files = context_.state.filesInPass;
  if (files > kShownOneByOne && files % kShownEvery != 0) return;
  context_.frmMain.txbOutput.SetText("Counting files . . . " + Grouped(context_, files));
}

void FolderSource::ScanOneFile(const std::string& path) {
  CountState& state = context_.state;
  context_.frmMain.txbFile[0].SetText(path);
  state.store.Files().SetFileBeingScanned(path);
  WritePathLine(path);
  ShowProgress(0);
  const ScanFileResult result = fileSource_.ScanFile();
  fileSource_.EndProgressBar();
  bytesTried_ += FileLength(path).value_or(0);
  ++filesTried_;
  filesProgress_.UpdateProgressBar(filesTried_, std::max(filesCounted_, filesTried_), false);
  switch (result) {
    case ScanFileResult::kDone:
      ++state.filesInPass;
      break;
    case ScanFileResult::kRunTimeError:
      if (EndsTheRun(fileSource_.Error())) {
        throw RunTimeError(fileSource_.Error());
      }
      Skip(path, fileSource_.Error().Description());
      break;
    case ScanFileResult::kNotFound:
    case ScanFileResult::kCannotBeOpened:
      Skip(path, "the file cannot be opened");
      break;
    default:
      break;  // not text, empty, or the output file: not worth a word
  }
}

/// How far the run has come, when so many bytes of the current file have been read.
void FolderSource::ShowProgress(std::int64_t bytesOfFile) {
  const std::int32_t file = filesTried_ + 1;
  filesProgress_.SetProgress(
      {bytesTried_ + bytesOfFile, bytesCounted_, file, std::max(filesCounted_, file)});
}

/// The path with the chosen folder's name in place of its path.
std::string FolderSource::ShownPath(const std::string& path) const {
  for (const std::string& folder : {Folder(), PathForWalk(Folder())}) {
    if (path.starts_with(folder)) return "{Folder}" + path.substr(folder.size());
  }
  return path;
}

void FolderSource::WritePathLine(const std::string& path) {
  context_.output.OutputToTxb(std::string(kCrLf) + ShownPath(path));
}

/// A list must not look complete when it is not.
std::string FolderSource::SkippedNotice() const {
  constexpr std::size_t kShownInList = 20;
  std::string notice;
  for (std::size_t i = 0; i < std::min(skipped_.size(), kShownInList); ++i) {
    notice.append("Skipped: ").append(ShownPath(skipped_[i].path));
    notice.append(" (").append(skipped_[i].reason).append(")").append(kCrLf);
  }
  if (skipped_.size() > kShownInList) {
    const auto more = static_cast<std::int64_t>(skipped_.size() - kShownInList);
    notice.append("Skipped: ").append(Grouped(context_, more)).append(" more").append(kCrLf);
  }
  return notice;
}

void FolderSource::Skip(const std::string& path, const std::string& reason) {
  if (skipped_.size() < kMaxSkippedItems) skipped_.push_back({path, reason});
  if (pass_ == Pass::kCounting) return;
  context_.output.OutputToTxb(" (skipped: " + reason + ")");
}

/// Puts `line` on a line of its own.
void FolderSource::OutputLine(const std::string& line) {
  const bool mustBreak =
      !context_.output.IsEmpty() && !context_.frmMain.txbOutput.Text().ends_with(kCrLf);
  context_.output.OutputToTxb(mustBreak ? std::string(kCrLf) + line : line);
}

}  // namespace quillomat
