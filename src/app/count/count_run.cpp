#include "app/count/count_run.h"

#include <new>
#include <string>
#include <utility>

#include "app/count/comment_marker_check.h"
#include "app/count/panel_choices.h"
#include "app/count/window_state.h"
#include "app/list/set_the_focus.h"
#include "app/list/summary.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "engine/word_filters.h"

namespace quillomat {
namespace {

constexpr std::string_view kProcessingNotice = "Processing . . . ";
constexpr std::size_t kShortOutput = 100;
constexpr int kInterruptedListText = 22;
constexpr int kInterruptedListTitle = 23;
/// While words are ranked, a step of progress is shown for so many frequencies.
constexpr std::int32_t kFrequenciesPerStep = 100;

}  // namespace

void CountRun::OnCountClick() {
  CountState& state = context_.state;
  if (RulesOf(state.phase).stops) {
    state.StopRequested = true;
    return;
  }
  if (state.Busy()) return;
  {
    const PhaseGuard guard(context_, RunPhase::kChecking);
    RunCount();
    DropProcessingNotice();
  }
  EnableControls(context_, true);
  state.StopRequested = false;
  context_.becameIdle.Fire();
}

void CountRun::RunCount() {
  listWasMade_ = false;
  if (!PrepareRun()) return;
  try {
    if (!ScanSource() || !HandleInterruption()) return;
    context_.state.completeRun = !context_.state.listAfterStop;
    if (!FolderHadFiles()) return;
    FinishRun();
  } catch (const RunTimeError& error) {
    if (IsOutOfMemory(error)) return context_.lister.ReportOutOfMemory();
    context_.lister.ReportProblem(error.Number(), error.Description());
  } catch (const std::bad_alloc&) {
    context_.lister.ReportOutOfMemory();
  }
}

bool CountRun::PrepareRun() {
  CountState& state = context_.state;
  const bool listsTaken = wordLists_.TakeBoxes();
  context_.output.ClearOutput();
  ConcealNumWords(context_.frmMain, false);
  if (!listsTaken || !context_.lister.MayWriteOutputFile({})) return false;
  state.minimumColumnWidth = kMinimumColumnWidth;
  state.settings.CountOnlyMode = state.lists.HasCountOnlyWords();
  if (context_.frmParams.chkAllowCommentMarkers.IsChecked() && !CheckCommentMarkers(context_)) {
    context_.frmParams.SetState(WindowState::kNormal);  // it may be minimized
    context_.frmParams.Show();
    return false;
  }
  const bool clipboard = context_.frmMain.optOnClipboard.Value();
  if (!clipboard && !(extensions_.TakeBoxes() && extensions_.CheckFileExtensions())) return false;
  state.settings.ReadingWordList = false;
  filterChoices_ = ReadFilterChoices(context_.frmParams);
  state.listAfterStop = false;
  context_.lister.ForgetOutputFile();
  context_.output.SetFull(false);
  state.WordsRead = 0;
  return true;
}

/// False when the run has ended; the user has been told why.
bool CountRun::ScanSource() {
  if (context_.frmMain.optFolder.Value()) return folder_.ScanFolder();
  if (context_.frmMain.optInFile.Value()) return ScanSingleFile();
  return ScanClipboard();
}

bool CountRun::ScanSingleFile() {
  const ScanFileResult result = file_.ScanFile();
  file_.EndProgressBar();
  if (result == ScanFileResult::kDone) return true;
  if (result == ScanFileResult::kRunTimeError) {
    if (IsOutOfMemory(file_.Error())) {
      context_.lister.ReportOutOfMemory(file_.Path());
    } else {
      context_.lister.ReportProblem(file_.Error().Number(), file_.Error().Description());
    }
  } else {
    ReportInputFileError(result);
  }
  return false;
}

bool CountRun::ScanClipboard() {
  if (clipboard_.ReadClipboard(false)) return clipboard_.ScanClipboard();
  context_.frmMain.optInFile.SetValue(true);
  return false;
}

void CountRun::ReportInputFileError(ScanFileResult code) {
  switch (code) {
    case ScanFileResult::kFolderNotFile:
      return Refuse(context_, "Invalid input file specification.", "Invalid input");
    case ScanFileResult::kNotFound:
      return Refuse(context_, "Input file does not exist.", "File not found");
    case ScanFileResult::kNotSpecified:
      return Refuse(context_, "Input file not specified.", "Error");
    case ScanFileResult::kOutputIsInput:
      return Refuse(context_, "The output file cannot be the same as the input file.", "Error");
    default:
      return;
  }
}

/// False when the user stopped the scan and does not want the words listed that were found until
/// then.
bool CountRun::HandleInterruption() {
  CountState& state = context_.state;
  if (!state.StopRequested) return true;
  if (state.quitting) return false;
  state.StopRequested = false;
  const std::string lineBreak(kCrLf);
  if (!context_.output.IsEmpty()) context_.output.OutputToTxb(lineBreak + lineBreak);
  const std::int32_t words = state.store.NumDifferentWords();
  context_.output.OutputToTxb("Stopped with " + std::to_string(words) +
                              (words == 1 ? " word found." : " words found."));
  const MessageAnswer answer = context_.desktop.ShowMessage(
      {"The operation was stopped before all words were counted." + lineBreak +
           "Do you wish to list the words which were found?",
       "Counting interrupted", MessageIcon::kQuestion, MessageButtons::kYesNo});
  if (answer == MessageAnswer::kYes) {
    state.listAfterStop = true;
    return true;
  }
  return false;
}

bool CountRun::FolderHadFiles() {
  if (!context_.frmMain.optFolder.Value() || context_.state.filesScanned > 0) return true;
  std::string text = "No scanable files ";
  if (extensions_.Filter().AnyGiven()) text.append("of the specified type ");
  text.append("were found in this folder");
  if (context_.frmMain.chkIncludeSubfolders.IsChecked()) text.append(" or in its subfolders");
  Tell(context_, text.append("."), "No files found", MessageIcon::kInformation);
  return false;
}

void CountRun::FinishRun() {
  CountState& state = context_.state;
  MainForm& frmMain = context_.frmMain;
  ShowProcessingNotice();
  frmMain.lblNumWordsExcluded.SetCaption("");
  EnterPhase(context_, RunPhase::kListing);
  context_.desktop.Repaint();
  if (!state.settings.CountOnlyMode) {
    ApplyWordFilters(state.store, filterChoices_);
  }
  context_.output.ShowText(frmMain.txbOutput.Text() + ". . . ");
  state.totals = state.store.TallyWords();
  RankWords();
  ShowSummary(frmMain, state, context_.desktop.DigitGroupSeparator());
  state.blnWordsGot = true;
  state.WordsRanked.Fire();
  context_.lister.ListWords();
  listWasMade_ = state.totals.NumIncludedWords > 0;
}

void CountRun::ShowProcessingNotice() {
  const std::string& shown = context_.frmMain.txbOutput.Text();
  const std::size_t length = context_.frmMain.txbOutput.Length();
  const bool keep = length >= 1 && length < kShortOutput;
  outputBeforeNotice_ = keep ? shown : std::string();
  shownNotice_ = keep ? shown + std::string(kCrLf) + std::string(kCrLf) : std::string();
  shownNotice_.append(kProcessingNotice);
  context_.frmMain.txbOutput.SetText(shownNotice_);
}

/// A run that went wrong behind the notice has put no list in its place.
void CountRun::DropProcessingNotice() {
  const std::string notice = std::exchange(shownNotice_, {});
  if (notice.empty() || !context_.frmMain.txbOutput.Text().starts_with(notice)) return;
  context_.frmMain.txbOutput.SetText(outputBeforeNotice_);
}

void CountRun::RankWords() {
  CountState& state = context_.state;
  state.ranking = RankByFrequency(state.store);
  const std::int32_t steps = state.totals.MaxCount / kFrequenciesPerStep;
  std::string progress;
  progress.reserve(static_cast<std::size_t>(steps) * 4);
  for (std::int32_t step = 0; step < steps; ++step) progress.append(". . ");
  context_.output.OutputToTxb(progress);
}

void CountRun::OnListFilesClick() {
  if (context_.state.Busy()) return;
  MainForm& frmMain = context_.frmMain;
  ConcealNumWords(frmMain, false);
  context_.output.ClearOutput();
  {
    const PhaseGuard guard(context_, RunPhase::kChecking);
    context_.output.OutputToTxb("{Folder} = " + frmMain.txbFolder.Text() + std::string(kCrLf));
    folder_.ListFiles();
  }
  EnableControls(context_, true);
  context_.state.StopRequested = false;
  context_.becameIdle.Fire();
}

void CountRun::OnListChoiceChanged() {
  CountState& state = context_.state;
  if (!state.blnStartUpCompleted || state.Busy() || context_.lister.IsChangingFormat()) return;
  if (context_.lister.CheckDisplayFormat() && ListStands()) {
    ListAgain(ListTarget::kAll);
    if (state.listAfterStop) {
      Tell(context_, context_.text.GetText(kInterruptedListText),
           context_.text.GetText(kInterruptedListTitle), MessageIcon::kInformation);
    }
  }
  SetTheFocus(context_.frmMain);
}

void CountRun::OnDisableOutputClick() {
  const CountState& state = context_.state;
  const MainForm& frmMain = context_.frmMain;
  const bool canRelist = state.blnStartUpCompleted && !state.Busy() && state.completeRun &&
                         frmMain.chkDisableOutputToFile.Value() == CheckState::kUnchecked &&
                         !frmMain.txbFile[1].Text().empty();
  if (canRelist) {
    const MessageAnswer answer =
        context_.desktop.ShowMessage({"Relist words (so as to write to file)?", "Relist?",
                                      MessageIcon::kQuestion, MessageButtons::kYesNo});
    if (answer == MessageAnswer::kYes) ListAgain(ListTarget::kAll);
  }
  SetTheFocus(context_.frmMain);
}

void CountRun::OnRestored(bool listStood) {
  if (!listStood) return;
  if (ListStands() && context_.lister.FormatFitsWords()) return ListAgain(ListTarget::kTextBox);
  context_.output.ClearOutput();
  ConcealNumWords(context_.frmMain, true);
}

void CountRun::ListAgain(ListTarget target) {
  {
    const PhaseGuard guard(context_, RunPhase::kListingAgain);
    try {
      if (target == ListTarget::kTextBox) {
        context_.lister.ForgetOutputFile();
        context_.lister.ListInTextBox();
      } else {
        context_.lister.ListWords();
      }
    } catch (const std::bad_alloc&) {
      context_.lister.ReportOutOfMemory();
    }
    context_.frmMain.lblTwirler.SetCaption(" ");
  }
  context_.state.StopRequested = false;
  context_.becameIdle.Fire();
}

}  // namespace quillomat
