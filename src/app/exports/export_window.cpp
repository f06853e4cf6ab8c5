#include "app/exports/export_window.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <system_error>

#include "app/count/path_boxes.h"
#include "app/count/window_state.h"
#include "app/exports/export_run.h"
#include "app/list/output_refusal.h"
#include "app/list/set_the_focus.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "export/word_export.h"
#include "system/file_system.h"
#include "system/paths.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

/// The name without its ending, if it has one.
std::string WithoutEnding(const std::string& path) {
  const std::string ending = ExtensionOf(path);
  return ending.empty() ? path : path.substr(0, path.size() - ending.size() - 1);
}

std::string_view EndingOf(ExportFormat format) {
  return std::ranges::find(kExportFormats, format, &ExportFormatInfo::format)->ending;
}

/// "CSV (*.csv) | *.csv | ...", the chosen format first, since a dialog starts with that.
std::string FileFilterFor(ExportFormat chosen) {
  std::string filter;
  const auto add = [&filter](const ExportFormatInfo& info) {
    const std::string pattern = "*." + std::string(info.ending);
    if (!filter.empty()) filter.append(" | ");
    filter.append(info.name).append(" (").append(pattern).append(") | ").append(pattern);
  };
  for (const ExportFormatInfo& info : kExportFormats) {
    if (info.format == chosen) add(info);
  }
  for (const ExportFormatInfo& info : kExportFormats) {
    if (info.format != chosen) add(info);
  }
  return filter;
}

int TextOf(NeededAs neededAs) {
  switch (neededAs) {
    case NeededAs::kText:
    case NeededAs::kPartOfFolder:
      return kExportIsTextText;
    case NeededAs::kWordsFile:
      return kExportIsWordsFileText;
    case NeededAs::kState:
      return kExportIsStateText;
  }
  return 0;
}

}  // namespace

void ExportWindow::Connect() {
  for (const ExportFormatInfo& info : kExportFormats) {
    frmExport_.cboFormat.AddItem(std::string(info.name) + " (." + std::string(info.ending) + ")");
  }
  for (const std::string_view name : kWordOrderNames) {
    frmExport_.cboOrder.AddItem(std::string(name));
  }
  frmExport_.cboFormat.SetListIndex(0);
  frmExport_.cboOrder.SetListIndex(0);
  frmExport_.cboFormat.Click.Connect([this] { ShowEnding(); });
  frmExport_.txbFile.Entered.Connect([this] { FollowEnding(); });
  frmExport_.txbFile.LostFocus.Connect([this] {
    paths_.CompletePathIn(frmExport_.txbFile);
    FollowEnding();
  });
  frmExport_.cmdChooseFile.Click.Connect([this] { ChooseFile(); });
  frmExport_.cmdExport.Click.Connect([this] { OnExportClick(); });
  frmExport_.cmdClose.Click.Connect([this] { Close(); });
  frmExport_.CloseRequested.Connect([this] { Close(); });
  run_.BecameIdle.Connect([this] {
    if (frmExport_.Visible()) Prepare();  // there may be another list now
  });
}

void ExportWindow::Open() {
  if (run_.Busy()) return;
  if (words_.totals.NumIncludedWords == 0) {
    return messages_.Tell(Text(kNothingToExportText), frmExport_.Caption());
  }
  Prepare();
  frmExport_.cboOrder.SetListIndex(frmMain_.cboWordOrder.ListIndex());
  frmExport_.lblState.SetCaption("");
  frmExport_.SetState(WindowState::kNormal);  // it may be minimized
  frmExport_.Show();
  frmExport_.SetFocus(frmExport_.txbFile);
  SelectName();
}

/// What is typed first takes the name's place; folder and ending stay.
void ExportWindow::SelectName() const {
  const std::string& path = frmExport_.txbFile.Text();
  const std::string name = FileNamePartOf(path);
  const std::size_t length = CharacterCount(WithoutEnding(name));
  frmExport_.txbFile.Select(CharacterCount(path) - CharacterCount(name), length);
}

void ExportWindow::Prepare() {
  SuggestFile();
  OfferColumns();
  frmExport_.chkFiltered.SetVisible(filter_ && filter_());
}

void ExportWindow::OnFilterChange() {
  if (frmExport_.Visible() && !run_.Busy()) Prepare();
}

/// Beside the text, under its name; what the user has named instead stays.
void ExportWindow::SuggestFile() {
  TextBox& txbFile = frmExport_.txbFile;
  if (!txbFile.Text().empty() && txbFile.Text() != suggested_) return;
  const CountedText& counted = words_.counted;
  const bool isFile = counted.source == CountedText::Source::kFile;
  std::string name = FileNamePartOf(isFile ? WithoutEnding(counted.path) : counted.path);
  if (name.empty()) name = "words";
  txbFile.SetText(name + "." + std::string(EndingOf(Format())));
  paths_.CompletePathIn(txbFile);
  suggested_ = txbFile.Text();
}

/// A box of what is not known of this list cannot be checked.
void ExportWindow::OfferColumns() {
  const bool filesKnown = words_.store.Files().IsOn();
  const std::vector<WordColumn> usual = UsualColumns(filesKnown);
  for (std::size_t i = 0; i < frmExport_.chkColumn.size(); ++i) {
    const auto column = static_cast<WordColumn>(i);
    CheckBox& box = frmExport_.chkColumn[i];
    const bool isNew = !filesKnown_ || (NeedsFiles(column) && *filesKnown_ != filesKnown);
    if (isNew) box.SetChecked(std::ranges::find(usual, column) != usual.end());
    if (NeedsFiles(column)) box.SetEnabled(filesKnown);
  }
  frmExport_.lblFilesUnknown.SetVisible(!filesKnown);
  filesKnown_ = filesKnown;
}

ExportFormat ExportWindow::Format() const {
  const int index = std::max(0, frmExport_.cboFormat.ListIndex());
  return kExportFormats[static_cast<std::size_t>(index)].format;
}

/// The name's ending chooses the format.
void ExportWindow::FollowEnding() {
  const auto format = ExportFormatOfPath(frmExport_.txbFile.Text());
  if (!format || *format == Format()) return;
  const auto found = std::ranges::find(kExportFormats, *format, &ExportFormatInfo::format);
  frmExport_.cboFormat.SetListIndex(static_cast<int>(found - kExportFormats.begin()));
}

/// The format that was chosen gives the name its ending, unless the ending says the same or is none
/// of ours.
void ExportWindow::ShowEnding() {
  TextBox& txbFile = frmExport_.txbFile;
  const auto named = ExportFormatOfPath(txbFile.Text());
  if (!named || *named == Format()) return;
  const bool wasSuggested = txbFile.Text() == suggested_;
  txbFile.SetText(WithoutEnding(txbFile.Text()) + "." + std::string(EndingOf(Format())));
  if (wasSuggested) suggested_ = txbFile.Text();
}

void ExportWindow::ChooseFile() {
  FileDialog dialog;
  dialog.mode = FileDialog::Mode::kSave;
  dialog.title = frmExport_.Caption();
  dialog.filter = FileFilterFor(Format());
  dialog.fileName = FileNamePartOf(frmExport_.txbFile.Text());
  dialog.pathMustExist = true;
  dialog.hideReadOnly = true;
  dialog.noReadOnlyReturn = true;
  if (const auto path = paths_.ChooseFileFor(frmExport_.txbFile, dialog)) {
    frmExport_.txbFile.SetText(*path);
    FollowEnding();
  }
  frmExport_.SetFocus(frmExport_.cmdExport);
}

void ExportWindow::OnExportClick() {
  if (running_) {
    run_.RequestStop();
    return;
  }
  if (!run_.Busy()) Export();
}

void ExportWindow::Export() {
  frmExport_.lblState.SetCaption("");
  if (words_.totals.NumIncludedWords == 0)
    return Complain(Text(kNothingToExportText), frmExport_.cmdClose);
  const std::optional<ExportWish> wish = TakeWish();
  if (!wish || !TakePath() || !MayWrite(frmExport_.txbFile.Text()) || !AskToOverwrite()) return;
  Write(*wish);
}

std::optional<ExportWish> ExportWindow::TakeWish() {
  ExportWish wish;
  for (std::size_t i = 0; i < frmExport_.chkColumn.size(); ++i) {
    const CheckBox& box = frmExport_.chkColumn[i];
    if (box.Enabled() && box.IsChecked()) wish.columns.push_back(static_cast<WordColumn>(i));
  }
  if (wish.columns.empty()) {
    Complain(Text(kNoColumnChosenText), frmExport_.chkColumn[0]);
    return std::nullopt;
  }
  wish.order = static_cast<WordOrder>(frmExport_.cboOrder.ListIndex());
  if (!TakeFirst(wish)) return std::nullopt;
  if (filter_ && frmExport_.chkFiltered.Visible() && frmExport_.chkFiltered.IsChecked()) {
    wish.among = filter_();
  }
  return wish;
}

bool ExportWindow::TakeFirst(ExportWish& wish) {
  const std::string text(TrimBlanks(frmExport_.txbFirst.Text()));
  if (text.empty()) return true;
  std::size_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc() && rest == end && number > 0) {
    wish.first = number;
    return true;
  }
  Complain(Text(kFirstWordsFaultText), frmExport_.txbFirst);
  return false;
}

/// A name without an ending that is one of ours gets that of the format: "vol.2" is no format.
bool ExportWindow::TakePath() {
  TextBox& txbFile = frmExport_.txbFile;
  paths_.CompletePathIn(txbFile);
  std::string path(TrimBlanks(txbFile.Text()));
  const bool isFolder = FolderExists(path);
  if (FileNamePartOf(path).empty() || isFolder) {
    Complain(isFolder ? Text(kExportIsFolderText, {path}) : Text(kNoExportFileText), txbFile);
    return false;
  }
  if (!ExportFormatOfPath(path)) path.append(".").append(EndingOf(Format()));
  if (path != txbFile.Text()) txbFile.SetText(path);
  FollowEnding();
  const std::string folder = FolderPartOf(path);
  if (folder.empty() || FolderExists(folder)) return true;
  Complain(Text(kNoExportFolderText, {folder}), txbFile);
  return false;
}

bool ExportWindow::MayWrite(const std::string& path) {
  const auto neededAs = WhyNotToExport(path, words_, inForce_);
  if (neededAs) Complain(Text(TextOf(*neededAs), {path}), frmExport_.txbFile);
  return !neededAs;
}

/// The user may name another file, which is judged anew.
bool ExportWindow::AskToOverwrite() {
  TextBox& txbFile = frmExport_.txbFile;
  if (!frmParams_.chkWarnOnOverwrite.IsChecked()) return true;
  std::string agreed;
  while (txbFile.Text() != agreed && HoldsSomething(txbFile.Text())) {
    InputBox box{Text(kExportFileExistsText), Text(kOverwriteExportText), txbFile.Text()};
    box.okLoses = true;
    const std::string answer(TrimBlanks(desktop_.AskForText(box)));
    if (answer.empty()) return false;
    agreed = txbFile.Text();
    txbFile.SetText(answer);
    if (!TakePath() || !MayWrite(txbFile.Text())) return false;
  }
  return true;
}

void ExportWindow::Write(const ExportWish& wish) {
  const std::string path = frmExport_.txbFile.Text();
  ExportOutcome outcome;
  std::string words;
  const bool existed = FileExists(path);
  {
    const PhaseGuard guard(run_, RunPhase::kExporting);
    ShowRunning(true);
    try {
      const ResultExport result(words_, wish);
      words = messages_.Grouped(static_cast<std::int64_t>(result.Table().places.size()));
      const ExportWork write = [&, format = Format()](const ExportProgress& progress) {
        return ExportToFile(result.Table(), format, path, progress);
      };
      outcome = RunExport(run_, pump_, write, [&](std::size_t done) {
        frmExport_.lblState.SetCaption(
            Text(kExportProgressText, {messages_.Grouped(static_cast<std::int64_t>(done)), words}));
      });
    } catch (const std::bad_alloc&) {
      outcome = {ExportOutcome::End::kFailed, DescriptionOf(RunTimeErrorNumber::kOutOfMemory)};
    } catch (...) {
      ShowRunning(false);
      throw;
    }
    ShowRunning(false);
  }
  run_.ForgetStop();
  frmExport_.lblState.SetCaption("");
  if (outcome.end == ExportOutcome::End::kFailed) {
    Complain(Text(existed ? kExportFailedText : kNothingExportedText, {path, outcome.error}),
             frmExport_.txbFile);
  } else if (outcome.end == ExportOutcome::End::kStopped) {
    frmExport_.lblState.SetCaption(
        Text(existed ? kExportStoppedText : kExportStoppedAtNothingText, {path}));
  } else {
    frmExport_.lblState.SetCaption(Text(kExportDoneText, {path, words}));
  }
  run_.BecameIdle.Fire();
}

void ExportWindow::ShowCommandCaption() {
  frmExport_.cmdExport.SetCaption(running_ ? std::string(kStopCaption)
                                           : messages_.Text(kExportCommandText));
}

void ExportWindow::ShowRunning(bool running) {
  running_ = running;
  ShowCommandCaption();
  frmExport_.cmdClose.SetEnabled(!running);
  frmExport_.SetFocus(frmExport_.cmdExport);
}

void ExportWindow::Complain(const std::string& text, Control& control) {
  messages_.Refuse(text, frmExport_.Caption());
  frmExport_.SetFocus(control);
}

std::string ExportWindow::Text(int number, std::initializer_list<std::string> values) const {
  return Filled(messages_.Text(number), values);
}

void ExportWindow::Close() {
  if (running_) return;
  frmExport_.Hide();
  SetTheFocus(frmMain_);
}

}  // namespace quillomat
