#include "app/count/file_source.h"

#include <array>
#include <charconv>

#include "app/count/progress_bar.h"
#include "app/count/window_count.h"
#include "app/list/summary.h"
#include "base/text_helpers.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

constexpr std::int64_t kLargeFileBytes = 200'000;
constexpr std::string_view kInvalidInputFile = "Invalid input file";

/// `amount` with two decimals.
std::string TwoDecimals(double amount) {
  std::array<char, 40> text{};
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed, 2)
          .ptr;
  return {text.data(), end};
}

class FileObserver final : public WindowObserver {
 public:
  using WindowObserver::WindowObserver;

  void OnChecked() override {
    ConcealNumWords(Context().frmMain, false);
    WindowObserver::OnChecked();
    Context().desktop.Repaint();
  }
};

}  // namespace

std::string FileSizeText(std::int64_t bytes, std::string_view separator) {
  constexpr std::int64_t kFirstInKilobytes = 10'000;
  constexpr std::int64_t kKilobyte = 1024;
  constexpr std::int64_t kMegabyte = kKilobyte * kKilobyte;
  if (bytes < kFirstInKilobytes) return "Filesize: " + GroupDigits(bytes, separator) + " bytes";
  const bool kilobytes = bytes < kMegabyte;
  const double amount =
      static_cast<double>(bytes) / static_cast<double>(kilobytes ? kKilobyte : kMegabyte);
  return "Filesize: " + TwoDecimals(amount) + (kilobytes ? " KB" : " MB");
}

void TellNotText(const RunContext& context) {
  const std::string lineBreak(kCrLf);
  Tell(context,
       "The input file contains bytes indicating that it does not consist" + lineBreak +
           "solely of text." + lineBreak + lineBreak +
           "You could try reading the file using its associated application," + lineBreak +
           "copying the text to the clipboard, and specifying the clipboard" + lineBreak +
           "as the source of the text to be scanned.",
       std::string(kInvalidInputFile), MessageIcon::kInformation);
}

ScanFileResult FileSource::ScanFile() {
  if (const ScanFileResult refused = CheckPaths(); refused != ScanFileResult::kDone) {
    return refused;
  }
  if (!AskAboutLargeFile()) return ScanFileResult::kCancelled;
  if (OutputIsInput()) return ScanFileResult::kOutputIsInput;  // it may have been chosen only now
  scanning_ = true;
  FileObserver observer(context_, AsText());
  const CountRequest request = RequestFromControls(context_, TextOfFile{path_});
  const CountResult result = CountInWindow(context_, request, observer);
  if (result.end == CountEnd::kRefused) return TellRefusal(result.refusal);
  if (result.end == CountEnd::kFailed) {
    error_ = result.error;
    return ScanFileResult::kRunTimeError;
  }
  FinishFile();
  return ScanFileResult::kDone;
}

ScanFileResult FileSource::CheckPaths() {
  if (InputPath().empty()) return ScanFileResult::kNotSpecified;
  if (const ScanFileResult result = CheckInputFile(InputPath()); result != ScanFileResult::kDone) {
    return result;
  }
  return OutputIsInput() ? ScanFileResult::kOutputIsInput : ScanFileResult::kDone;
}

CountedText FileSource::AsText() const {
  return {CountedText::Source::kFile, AbsolutePath(path_)};
}

bool FileSource::OutputIsInput() const {
  return WhyNotToWrite(context_.frmMain.txbFile[1].Text(), AsText()).has_value();
}

ScanFileResult FileSource::CheckInputFile(const std::string& path) {
  path_ = TrimBlanks(path);
  ScanFileResult result = ScanFileResult::kDone;
  std::optional<std::int64_t> bytes;
  if (!path_.empty() && IsPathSeparator(path_.back())) {
    result = ScanFileResult::kFolderNotFile;
    if (context_.state.blnStartUpCompleted) context_.frmMain.txbFile[0].SetText("");
  } else {
    bytes = FileLength(path_);
    if (!bytes && !FileExists(path_)) result = ScanFileResult::kNotFound;
  }
  ShowFileSize(bytes);
  return result;
}

void FileSource::ShowFileSize(std::optional<std::int64_t> bytes) {
  context_.frmMain.lblFilesize.SetCaption(
      bytes ? FileSizeText(*bytes, context_.desktop.DigitGroupSeparator()) : "");
}

/// False when the user cancels. Only asked when an earlier scan ended early.
bool FileSource::AskAboutLargeFile() {
  const bool mayOverflow = scanning_ && context_.frmMain.txbFile[1].Text().empty() &&
                           FileLength(path_).value_or(0) > kLargeFileBytes;
  if (!mayOverflow) return true;
  const MessageAnswer answer = context_.desktop.ShowMessage(
      {"The input file is quite large.  It is advisable to specify an output file "
       "before continuing," +
           std::string(kCrLf) +
           "in case the text window will not hold the result. "
           "Do you wish to specify an output file?",
       "Large input file", MessageIcon::kQuestion, MessageButtons::kYesNoCancel});
  if (answer == MessageAnswer::kCancel) return false;
  if (answer == MessageAnswer::kYes) chooseOutputFile_();
  return true;
}

ScanFileResult FileSource::TellRefusal(Refusal refusal) const {
  const std::string title(kInvalidInputFile);
  switch (refusal) {
    case Refusal::kNotText:
      TellNotText(context_);
      return ScanFileResult::kNotText;
    case Refusal::kEmpty:
      Refuse(context_, "This is a zero-length file.", title);
      return ScanFileResult::kZeroLength;
    default:  // it may have vanished only now
      Refuse(context_, "This file cannot be opened.", title);
      return ScanFileResult::kCannotBeOpened;
  }
}

void FileSource::FinishFile() {
  EndProgressBar();
  context_.frmMain.lblNumWordsExcluded.SetCaption("");
  scanning_ = false;
  context_.frmMain.lblTwirler.SetCaption(" ");
}

void FileSource::EndProgressBar() {
  ProgressBar(context_.frmMain.lblTotalNumOccurrences).EndProgressBar();
}

}  // namespace quillomat
