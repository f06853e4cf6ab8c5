#include "app/list/word_lister.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

#include "app/list/output_refusal.h"
#include "app/list/text_box_list_sink.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "listing/file_list_sink.h"
#include "listing/list_cells.h"
#include "system/file_system.h"
#include "system/output_file.h"
#include "system/paths.h"
#include "system/typed_path.h"

namespace quillomat {
namespace {

constexpr int kTextBoxFull = static_cast<int>(RunTimeErrorNumber::kOutOfMemory);
constexpr std::string_view kWritingNotice = "Now writing to output file . . . ";
constexpr std::size_t kFewCharacters = 256;
constexpr std::size_t kFirstPartOfList = 4096;

/// No selection counts as the first format.
DisplayFormat ChosenFormat(const MainForm& frmMain) {
  return static_cast<DisplayFormat>(std::max(0, frmMain.cboDisplayFormat.ListIndex()));
}

/// The names under which the refusal speaks of the formats; the last is spelled with a blank that
/// the combo box does not have.
std::string_view NameInRefusal(DisplayFormat format) {
  return format == DisplayFormat::kWordFileListFreq
             ? "word file-list (+ freq)"
             : kDisplayFormatNames[static_cast<std::size_t>(format)];
}

}  // namespace

WordLister::WordLister(const UserSide& user, const ProgramFacts& facts)
    : frmMain_(user.frmMain),
      frmParams_(user.frmParams),
      output_(user.output),
      run_(facts.run),
      words_(facts.words),
      inForce_(facts.inForce),
      messages_(user.messages),
      desktop_(user.desktop) {}

bool WordLister::HasOutputFile() const {
  return !frmMain_.txbFile[1].Text().empty() && !frmMain_.chkDisableOutputToFile.IsChecked();
}

void WordLister::ListWords() {
  fileWritten_ = false;
  if (words_.totals.NumIncludedWords == 0) return ListNoWords();
  const bool toFile =
      HasOutputFile() && SparesWhatIsRead() && AskToOverwrite() && SparesWhatIsRead();
  if (toFile && !ListIntoFile()) return;
  output_.ClearOutput();
  if (run_.StopRequested()) {
    output_.OutputToTxb(std::string(kCrLf) + "Output to file was terminated.");
    return;
  }
  if (textBoxWanted_) ListInTextBox();
}

void WordLister::ListNoWords() {
  output_.ClearOutput();
  output_.OutputToTxb(
      NoWordsMessage({words_.store.NumDifferentWords(), frmParams_.cboShortWordSize.ListIndex(),
                      frmParams_.cboThresholdFrequency.ListIndex(),
                      frmParams_.chkIgnoreInfrequentWords.IsChecked()}));
  output_.FinishList();
}

void WordLister::ListInTextBox() {
  if (words_.totals.NumIncludedWords == 0) return ListNoWords();
  ListIntoTextBox();
  if (run_.StopRequested()) {
    output_.OutputToTxb(std::string(kCrLf).append("Listing stopped.").append(kCrLf));
  } else {
    RemoveLastComma();
  }
  output_.FinishList();
}

/// A list of words with commas between them does not end with one.
void WordLister::RemoveLastComma() {
  TextBox& txbOutput = frmMain_.txbOutput;
  const std::string& text = txbOutput.Text();
  if (txbOutput.Length() < 3 || ChosenFormat(frmMain_) != DisplayFormat::kWordCommas) return;
  if (text.ends_with(", ")) txbOutput.SetText(text.substr(0, text.size() - 2));
}

/// A bare name is meant to stand beside the file that is there, unless paths count from the current
/// folder.
std::string WordLister::InOutputFolder(std::string_view path) const {
  if (desktop_.DocumentsFolder().empty()) return std::string(TrimBlanks(path));
  return PathFromTyped(FolderPartOf(frmMain_.txbFile[1].Text()), path);
}

bool WordLister::AskToOverwrite() {
  TextBox& txbPath = frmMain_.txbFile[1];
  if (!frmParams_.chkWarnOnOverwrite.IsChecked() || !HoldsSomething(txbPath.Text())) return true;
  const InputBox box = OverwriteQuestion(txbPath.Text());
  const std::string path = PathForWalk(InOutputFolder(desktop_.AskForText(box)));
  if (!path.empty()) {
    const std::string folder = FolderPartOf(path);
    if (folder.empty() || FolderExists(folder)) {
      txbPath.SetText(path);
      return true;
    }
    messages_.Refuse("Folder does not exist.", "Error");
  }
  frmMain_.chkDisableOutputToFile.SetChecked(true);
  return false;
}

bool WordLister::MayWriteOutputFile(const CountedText& text) const {
  if (!HasOutputFile()) return true;
  const std::string& path = frmMain_.txbFile[1].Text();
  const std::optional<NeededAs> neededAs = WhyNotToWrite(path, text, inForce_.filesRead);
  if (neededAs) RefuseOutputFile(messages_, *neededAs);
  return !neededAs;
}

bool WordLister::SparesWhatIsRead() {
  if (MayWriteOutputFile(words_.counted)) return true;
  frmMain_.chkDisableOutputToFile.SetChecked(true);
  return false;
}

/// Who cannot have a file must know which: the path is not always the one that was meant.
std::string WordLister::PathWorthNaming(const RunTimeError& error) const {
  switch (static_cast<RunTimeErrorNumber>(error.Number())) {
    case RunTimeErrorNumber::kPermissionDenied:
    case RunTimeErrorNumber::kPathFileAccess:
    case RunTimeErrorNumber::kPathNotFound:
      return std::string(kCrLf) + frmMain_.txbFile[1].Text();
    default:
      return {};
  }
}

/// False when it went wrong and the user has been told; the file is as it was.
bool WordLister::ListIntoFile() {
  if (output_.IsEmpty()) output_.ShowText(kWritingNotice);
  try {
    OutputFile file(frmMain_.txbFile[1].Text());
    output_.ClearOutput();
    frmMain_.txbOutput.SetText(ScanHeader());
    WriteList(file);
    if (run_.StopRequested()) return true;  // part of a list takes no file's place
    file.Close();
    fileWritten_ = true;
    return true;
  } catch (const RunTimeError& error) {
    if (IsOutOfMemory(error)) {
      ReportOutOfMemory("writing " + frmMain_.txbFile[1].Text());
    } else {
      ReportProblem(error.Number(), error.Description() + PathWorthNaming(error));
    }
  } catch (const std::bad_alloc&) {
    ReportOutOfMemory("writing " + frmMain_.txbFile[1].Text());
  }
  frmMain_.lblTwirler.SetCaption(" ");
  if (frmMain_.txbOutput.Text() == kWritingNotice) output_.ClearOutput();
  frmMain_.txbOutput.SetSelStart(0);
  return false;
}

void WordLister::WriteList(ByteSink& file) {
  accumulator_ = ScanHeader();
  const LineFormatter formatter(words_.Counted(), OptionsFor(true));
  FileListSink sink([&file](std::string_view bytes) { file.Write(bytes); },
                    [this] { return StopsNow(); }, formatter.Options(),
                    words_.store.NumDifferentWords());
  if (mostWordsInFile_) sink.TakeAtMost(*mostWordsInFile_);
  Walk(formatter, sink);
  sink.Flush();
}

void WordLister::ListIntoTextBox() {
  output_.ClearOutput();
  const LineFormatter formatter(words_.Counted(), OptionsFor(false));
  TextBoxListSink sink(
      frmMain_, output_, accumulator_, [this] { return StopsNow(); }, formatter.Options());
  sink.TakeNotice(ScanHeader());
  try {
    Walk(formatter, sink);
  } catch (const RunTimeError& error) {
    frmMain_.lblTwirler.SetCaption(" ");
    ReportError(error);
    frmMain_.txbOutput.SetSelStart(0);
    return;
  }
  output_.ShowText(accumulator_);
  CellSink cells(formatter, sink.WordsTaken());
  Walk(formatter, cells);
  output_.SetList({sink.WordsTaken(), words_.totals.NumIncludedWords}, cells.Take(),
                  sink.TitleLines());
  if (output_.IsFull() && !run_.Quitting()) fullBoxMessage_ = FullBoxMessage();
}

void WordLister::TellFullBox() {
  const std::string message = std::exchange(fullBoxMessage_, {});
  if (!message.empty() && !run_.Quitting()) messages_.Refuse(message, "Problem");
}

void WordLister::Walk(const LineFormatter& formatter, ListSink& sink) {
  EmitHeader(formatter, sink);
  const bool alphabetical =
      frmMain_.cboWordOrder.ListIndex() == static_cast<int>(WordOrder::kAlphabetical);
  if (alphabetical) {
    ListAlphabetical(words_.Counted(), formatter, sink);
  } else {
    ListByFrequency(words_.Counted(), formatter, sink);
  }
}

LineOptions WordLister::OptionsFor(bool toFile) const {
  LineOptions options;
  options.format = ChosenFormat(frmMain_);
  options.withCommas = toFile && frmParams_.chkOutputWithCommas.IsChecked();
  options.useLog10 = frmParams_.chkUseLog10.IsChecked();
  options.folder = frmMain_.txbFolder.Text();
  options.lineBreak = toFile ? fileLineBreak_ : std::string(kCrLf);
  options.minimumColumnWidth = words_.minimumColumnWidth;
  return options;
}

/// The lines about the folder with their line breaks; empty for other sources.
std::string WordLister::ScanHeader() const {
  if (!frmMain_.optFolder.Value()) return {};
  return ScanHeaderText(words_.folder.filesScanned, words_.folder.foldersScanned,
                        messages_.DigitGroupSeparator())
      .append(kCrLf)
      .append(words_.folder.skippedNotice);
}

bool WordLister::StopsNow() {
  return run_.Yield();
}

void WordLister::ReportProblem(int code, std::string_view text) {
  const std::string message = code == kTextBoxFull ? FullBoxMessage() : ErrorMessage(code, text);
  messages_.Refuse(message, "Problem");
}

void WordLister::ReportError(const RunTimeError& error, std::string_view doing) {
  if (IsOutOfMemory(error)) return ReportOutOfMemory(doing);
  ReportProblem(error.Number(), error.Description());
}

void WordLister::ReportOutOfMemory(std::string_view doing) {
  std::string text = DescriptionOf(RunTimeErrorNumber::kOutOfMemory);
  if (!doing.empty()) text.append(" while ").append(doing);
  const std::string message =
      ErrorMessage(static_cast<int>(RunTimeErrorNumber::kOutOfMemory), text);
  messages_.Refuse(message, "Problem");
}

std::string WordLister::ErrorMessage(int code, std::string_view text) const {
  std::string message = "Error " + std::to_string(code) + ": " + std::string(text);
  if (fileWritten_) message.append(kCrLf).append("Results have been written to the output file.");
  return message;
}

std::string WordLister::FullBoxMessage() {
  std::string message = "Textbox is full.  ";
  if (!accumulator_.empty() && frmMain_.txbOutput.Length() < kFewCharacters) {
    message = "There is more output than will fit in the textbox.  ";
    frmMain_.txbOutput.SetText(
        accumulator_.substr(0, BytesOfFirst(accumulator_, kFirstPartOfList)));
  }
  if (frmMain_.txbFile[1].Text().empty()) {
    message.append("Try writing output to a file.");
  } else if (frmMain_.chkDisableOutputToFile.IsChecked()) {
    message.append("Try repeating with output to file enabled.");
  } else if (fileWritten_) {
    message.append(kCrLf).append("Results have been written to the output file.");
  }
  output_.SetFull(true);
  return message;
}

bool WordLister::CanServe(DisplayFormat format) const {
  return !NeedsFileTallies(format) ||
         (frmMain_.optFolder.Value() && inForce_.lists.HasCountOnlyWords());
}

bool WordLister::FormatFitsWords() const {
  return !NeedsFileTallies(ChosenFormat(frmMain_)) ||
         (words_.counted.source == CountedText::Source::kFolder && inForce_.settings.CountOnlyMode);
}

bool WordLister::CheckDisplayFormat() {
  const DisplayFormat format = ChosenFormat(frmMain_);
  if (CanServe(format)) return true;
  const std::string text = "The display format '" + std::string(NameInRefusal(format)) +
                           "' is available" + std::string(kCrLf) +
                           "only when the source of the text is a folder" + std::string(kCrLf) +
                           "and there are count-only words specified.";
  messages_.Tell(text, "Invalid display format");
  changingFormat_ = true;
  frmMain_.cboDisplayFormat.SetListIndex(0);
  changingFormat_ = false;
  return false;
}

}  // namespace quillomat
