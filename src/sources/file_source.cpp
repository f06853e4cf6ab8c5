#include "sources/file_source.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <new>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "listing/summary.h"
#include "sources/window_state.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

constexpr std::int64_t kLargeFileBytes = 200'000;
constexpr std::int64_t kProgressBarBytes = 10'240;
constexpr std::size_t kTextTestBytes = 10'240;
constexpr std::int64_t kBytesWorthThreads = std::int64_t{2} * LinePieces::kPieceBytes;

/// `amount` with two decimals.
std::string TwoDecimals(double amount) {
  std::array<char, 40> text{};
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed, 2)
          .ptr;
  return {text.data(), end};
}

bool IsHtmlLike(const std::string& extension) {
  return extension.find("htm") != std::string::npos || extension == "php" || extension == "xml";
}

bool IsCLike(const std::string& extension) {
  return extension == "cpp" || extension == "c";
}

/// The progress bar takes every line end for two bytes.
constexpr std::int64_t kLineEndBytes = 2;

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

ScanFileResult FileSource::ScanFile() {
  if (const ScanFileResult refused = CheckPaths(); refused != ScanFileResult::kDone) {
    return refused;
  }
  if (IsSingleFile()) {
    if (!AskAboutLargeFile()) return ScanFileResult::kCancelled;
    if (OutputIsInput()) return ScanFileResult::kOutputIsInput;  // it may have been chosen only now
    scanning_ = true;
    ConcealNumWords(context_.frmMain, false);
    context_.frmMain.cmdCountWords.SetCaption(std::string(kStopCaption));
    EnableControls(context_, false);
    context_.desktop.Repaint();
  }
  try {
    std::optional<InputFile> file;
    const LineEndingType type = OpenText(path_, kTextTestBytes, file);
    if (const ScanFileResult refused = CheckText(type); refused != ScanFileResult::kDone) {
      return refused;
    }
    LoadMarkers();
    ShowFileType(type);
    if (folderJob_ != nullptr) {
      ReadLines(*folderJob_, *file, type);
    } else {
      context_.state.DiscardWords();
      context_.state.counted = AsText();
      context_.state.store.Files().Reset(false);
      ScanJob job(context_);
      ReadLines(job, *file, type);
    }
  } catch (const RunTimeError& error) {
    error_ = error;
    return ScanFileResult::kRunTimeError;
  } catch (const std::bad_alloc&) {
    error_ = RunTimeError(RunTimeErrorNumber::kOutOfMemory);
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
  // That no file of a folder is the output file is found out before the first is read.
  if (folderJob_ != nullptr) return false;
  return WhyNotToWrite(context_.frmMain.txbFile[1].Text(), AsText()).has_value();
}

ScanFileResult FileSource::CheckInputFile(const std::string& path) {
  // A name in a folder may have blanks at its ends; a person who types a path does not mean any.
  path_ = folderJob_ != nullptr ? std::string_view(path) : TrimBlanks(path);
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

ScanFileResult FileSource::CheckText(LineEndingType type) {
  const std::string title = "Invalid input file";
  const std::string lineBreak(kCrLf);
  switch (type) {
    case LineEndingType::kNotText:
      if (IsSingleFile()) {
        Tell(context_,
             "The input file contains bytes indicating that it does not consist" + lineBreak +
                 "solely of text." + lineBreak + lineBreak +
                 "You could try reading the file using its associated application," + lineBreak +
                 "copying the text to the clipboard, and specifying the clipboard" + lineBreak +
                 "as the source of the text to be scanned.",
             title, MessageIcon::kInformation);
      }
      return ScanFileResult::kNotText;
    case LineEndingType::kZeroLength:
      if (IsSingleFile()) Refuse(context_, "This is a zero-length file.", title);
      return ScanFileResult::kZeroLength;
    case LineEndingType::kNotFound:  // it has just vanished
    case LineEndingType::kCannotBeOpened:
      if (IsSingleFile()) Refuse(context_, "This file cannot be opened.", title);
      return ScanFileResult::kCannotBeOpened;
    default:
      return ScanFileResult::kDone;
  }
}

void FileSource::LoadMarkers() {
  ScanSettings& settings = context_.state.settings;
  // Those of a folder are the same for all of its files.
  const ScanChoices choices =
      folderJob_ != nullptr ? folderJob_->Choices() : ReadScanChoices(context_.frmParams);
  const std::string extension = LowerCase(ExtensionOf(path_));
  settings.ForceCommentMarkers = IsHtmlLike(extension) || IsCLike(extension);
  if (settings.ForceCommentMarkers) {
    settings.SetCommentMarkers(IsHtmlLike(extension) ? "HTML" : "C", choices);
  } else {
    settings.SetCommentMarkers(IsSet(choices.allowCommentMarkers) ? "as per user settings" : "",
                               choices);
  }
}

void FileSource::ShowFileType(LineEndingType type) {
  HideNoticeLabels(context_.frmMain);
  std::string caption;
  if (type == LineEndingType::kUnix) caption = "This is a Unix-type file.";
  if (type == LineEndingType::kMacintosh) caption = "This is a Macintosh-type file.";
  context_.frmMain.lblNumWordsExcluded.SetCaption(caption);
  context_.frmMain.lblNumWordsExcluded.SetVisible(true);
}

void FileSource::ReadLines(ScanJob& job, InputFile& file, LineEndingType type) {
  const bool showProgress = scanning_ && file.Length() > kProgressBarBytes;
  if (showProgress) progress_.StartProgressBar();
  std::int64_t bytesRead = 0;
  const auto showBytes = [&](std::int64_t bytes) {
    bytesRead += bytes;
    progress_.UpdateProgressBar(bytesRead, file.Length(), type == LineEndingType::kUnix);
    progress_.SetProgress({file.BytesGiven(), file.Length()});
    if (onBytesRead_) onBytesRead_(file.BytesGiven());
  };
  if (context_.state.scanThreads > 1 && file.Length() >= kBytesWorthThreads) {
    return job.ScanOnThreads(file, [&](std::int64_t bytes) {
      if (showProgress) showBytes(bytes);
    });
  }
  const auto showPart = [&](std::int64_t bytes) {
    if (showProgress) showBytes(bytes);
  };
  LineDecoder lines(file);
  for (;;) {
    if (const std::string_view whole = job.PlainLines(lines.NextLines()); !whole.empty()) {
      if (showProgress) showBytes(BytesWithLongLineEnds(whole));
      job.ScanLines(whole);
      lines.SkipLines(whole.size());
    } else if (job.ScanLongLine(lines, showPart)) {
      // Its bytes are shown.
    } else if (const auto line = lines.NextLine()) {
      if (showProgress) showBytes(static_cast<std::int64_t>(line->size()) + kLineEndBytes);
      const std::string_view trimmed = TrimBlanks(*line);
      if (!trimmed.empty()) job.ScanText(trimmed);
    } else {
      return;
    }
    if (job.Yield()) return;
  }
}

void FileSource::FinishFile() {
  if (IsSingleFile()) {
    progress_.EndProgressBar();
    context_.frmMain.lblNumWordsExcluded.SetCaption("");
    scanning_ = false;
  }
  context_.frmMain.lblTwirler.SetCaption(" ");
}

}  // namespace quillomat
