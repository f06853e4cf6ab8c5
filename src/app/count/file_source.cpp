#include "app/count/file_source.h"

#include <utility>

#include "app/count/named_text.h"
#include "app/count/progress_bar.h"
#include "app/list/summary.h"
#include "base/text_helpers.h"
#include "system/file_system.h"
#include "system/paths.h"

namespace quillomat {
namespace {

constexpr std::int64_t kLargeFileBytes = 200'000;
constexpr std::string_view kInvalidInputFile = "Invalid input file";

class FileObserver final : public WindowObserver {
 public:
  FileObserver(const WindowCount& count, CountedText text, Desktop& desktop)
      : WindowObserver(count, std::move(text)), desktop_(desktop) {}

  void OnChecked() override {
    ConcealNumWords(Count().frmMain, false);
    WindowObserver::OnChecked();
    desktop_.Repaint();
  }

 private:
  Desktop& desktop_;
};

}  // namespace

void TellNotText(const Messages& messages) {
  const std::string lineBreak(kCrLf);
  messages.Tell("The input file contains bytes indicating that it does not consist" + lineBreak +
                    "solely of text." + lineBreak + lineBreak +
                    "You could try reading the file using its associated application," + lineBreak +
                    "copying the text to the clipboard, and specifying the clipboard" + lineBreak +
                    "as the source of the text to be scanned.",
                std::string(kInvalidInputFile), MessageIcon::kInformation);
}

void RefuseMissingInput(const Messages& messages, const std::string& path) {
  std::string text = "Input file does not exist.";
  if (FolderExists(path)) {
    text.append(kCrLf).append(kCrLf).append(path).append(kCrLf);
    text.append("is a folder.  To count the files in it, specify it as the folder.");
  }
  messages.Refuse(std::move(text), "File not found");
}

ScanFileResult FileSource::ScanFile(CountRequest request) {
  if (const ScanFileResult refused = CheckPaths(); refused != ScanFileResult::kDone) {
    return refused;
  }
  if (!AskAboutLargeFile()) return ScanFileResult::kCancelled;
  if (OutputIsInput()) return ScanFileResult::kOutputIsInput;  // it may have been chosen only now
  count_.run.SetScanning(true);
  FileObserver observer(count_, TextNamedIn(count_.frmMain), desktop_);
  request.source = TextOfFile{path_};
  const CountResult result = CountInWindow(count_, request, observer);
  if (result.end == CountEnd::kRefused) return TellRefusal(result.refusal);
  if (result.end == CountEnd::kFailed) {
    error_ = result.error;
    return ScanFileResult::kRunTimeError;
  }
  FinishFile();
  return ScanFileResult::kDone;
}

ScanFileResult FileSource::CheckPaths() {
  const std::string named = count_.frmMain.txbFile[0].Text();
  path_ = TrimBlanks(named);
  if (named.empty()) return ScanFileResult::kNotSpecified;
  if (const ScanFileResult result = row_.CheckInputFile(named); result != ScanFileResult::kDone) {
    return result;
  }
  return OutputIsInput() ? ScanFileResult::kOutputIsInput : ScanFileResult::kDone;
}

bool FileSource::OutputIsInput() const {
  return WhyNotToWrite(count_.frmMain.txbFile[1].Text(), TextNamedIn(count_.frmMain)).has_value();
}

/// False when the user cancels or quits. Only asked when an earlier scan ended early.
bool FileSource::AskAboutLargeFile() {
  const bool mayOverflow = count_.run.Scanning() && count_.frmMain.txbFile[1].Text().empty() &&
                           FileLength(path_).value_or(0) > kLargeFileBytes;
  if (!mayOverflow) return true;
  const MessageAnswer answer = count_.messages.Ask(
      "The input file is quite large.  It is advisable to specify an output file "
      "before continuing," +
          std::string(kCrLf) +
          "in case the text window will not hold the result. "
          "Do you wish to specify an output file?",
      "Large input file", MessageButtons::kYesNoCancel);
  if (count_.run.Quitting()) return false;
  if (answer == MessageAnswer::kYes) paths_.ChooseOutputFile(count_.frmMain);
  return answer != MessageAnswer::kCancel;
}

ScanFileResult FileSource::TellRefusal(Refusal refusal) const {
  const std::string title(kInvalidInputFile);
  switch (refusal) {
    case Refusal::kNotText:
      TellNotText(count_.messages);
      return ScanFileResult::kNotText;
    case Refusal::kEmpty:
      count_.messages.Refuse("This is a zero-length file.", title);
      return ScanFileResult::kZeroLength;
    default:  // it may have vanished only now
      count_.messages.Refuse("This file cannot be opened.", title);
      return ScanFileResult::kCannotBeOpened;
  }
}

void FileSource::FinishFile() {
  EndProgressBar();
  count_.frmMain.lblNumWordsExcluded.SetCaption("");
  count_.run.SetScanning(false);
  count_.frmMain.lblTwirler.SetCaption(" ");
}

void FileSource::EndProgressBar() {
  ProgressBar(count_.frmMain.lblTotalNumOccurrences).EndProgressBar();
}

}  // namespace quillomat
