#include "app/count/count_run.h"

#include <new>
#include <string>
#include <utility>

#include "app/count/comment_marker_check.h"
#include "app/count/window_state.h"
#include "app/list/output_refusal.h"
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
  if (RulesOf(count_.run.Phase()).stops) {
    count_.run.RequestStop();
    return;
  }
  if (count_.run.Busy()) return;
  {
    const PhaseGuard guard(count_.run, RunPhase::kChecking);
    RunCount();
    DropProcessingNotice();
  }
  controls_.EnableControls(true);
  count_.run.ForgetStop();
  count_.run.BecameIdle.Fire();
  lister_.TellFullBox();
}

void CountRun::RunCount() {
  listWasMade_ = false;
  if (!PrepareRun()) return;
  try {
    const CountRequest request = Request({});
    if (!ScanSource(request) || !HandleInterruption()) return;
    count_.words.completeRun = !count_.words.listAfterStop;
    if (!FolderHadFiles()) return;
    FinishRun(request.filters);
  } catch (const RunTimeError& error) {
    lister_.ReportError(error);
  } catch (const std::bad_alloc&) {
    lister_.ReportOutOfMemory();
  }
}

bool CountRun::PrepareRun() {
  const bool listsTaken = wordLists_.TakeBoxes();
  count_.output.ClearOutput();
  ConcealNumWords(count_.frmMain, false);
  if (!listsTaken || !lister_.MayWriteOutputFile({})) return false;
  count_.words.minimumColumnWidth = kMinimumColumnWidth;
  if (!MarkersStand()) {
    frmParams_.SetState(WindowState::kNormal);  // it may be minimized
    frmParams_.Show();
    return false;
  }
  if (!count_.frmMain.optOnClipboard.Value() && !ExtensionsStand()) return false;
  count_.inForce.settings.ReadingWordList = false;
  count_.words.listAfterStop = false;
  lister_.ForgetOutputFile();
  count_.output.SetFull(false);
  return true;
}

bool CountRun::Prepare(const CountedText& text) {
  if (!wordLists_.TakeBoxes() || !lister_.MayWriteOutputFile(text)) return false;
  return MarkersStand() && ExtensionsStand();
}

bool CountRun::PrepareScan() {
  return wordLists_.TakeBoxes() && MarkersStand();
}

CountRequest CountRun::Request(CountSource source) const {
  return RequestFromControls(frmParams_, count_.inForce, std::move(source));
}

void CountRun::TakeFiles(CountResult result, CountedText text) {
  count_.words.Discard();
  count_.words.counted = std::move(text);
  count_.words.counted.filesRead = std::move(result.filesRead);
  count_.words.files = std::move(result.reports);
}

void CountRun::Take(CountResult result, CountedText text) {
  count_.words.Discard();
  count_.words.counted = std::move(text);
  count_.words.counted.filesRead = std::move(result.filesRead);
  count_.words.files = std::move(result.reports);
  count_.words.store = std::move(result.store);
  count_.words.totals = result.totals;
  count_.words.ranking = std::move(result.ranking);
  count_.words.WordsRead = result.wordsRead;
  count_.words.orderFigures = std::move(result.orderFigures);
  count_.words.uncounted = result.uncounted;
  count_.words.guessed = std::move(result.guessed);
  count_.words.folder = {result.files, result.folders, result.skippedInAll,
                         {},           result.leftOut, result.firstNotDecoded};
  count_.words.stoppedAfter = result.stoppedAfter;
  count_.words.settings =
      SettingFactsOf(count_.words.counted, count_.inForce, count_.frmMain, count_.frmParams);
  count_.words.completeRun = result.end == CountEnd::kComplete;
  count_.words.listAfterStop = !count_.words.completeRun;
  count_.inForce.settings.CountOnlyMode = result.countOnlyMode;
  ShowSummary(count_.frmMain, count_.words, count_.inForce, count_.messages.DigitGroupSeparator());
}

bool CountRun::MarkersStand() const {
  return !frmParams_.chkAllowCommentMarkers.IsChecked() ||
         CheckCommentMarkers(frmParams_, count_.messages);
}

bool CountRun::ExtensionsStand() {
  return extensions_.TakeBoxes() && extensions_.CheckFileExtensions();
}

/// False when the run has ended; the user has been told why.
bool CountRun::ScanSource(const CountRequest& request) {
  if (count_.frmMain.optFolder.Value()) return folder_.ScanFolder(request);
  if (count_.frmMain.optInFile.Value()) return ScanSingleFile(request);
  return ScanClipboard(request);
}

bool CountRun::ScanSingleFile(const CountRequest& request) {
  const ScanFileResult result = file_.ScanFile(request);
  file_.EndProgressBar();
  if (result == ScanFileResult::kDone) return true;
  if (result == ScanFileResult::kRunTimeError) {
    lister_.ReportError(file_.Error(), "reading " + file_.Path());
  } else {
    ReportInputFileError(result);
  }
  return false;
}

bool CountRun::ScanClipboard(const CountRequest& request) {
  if (clipboard_.ReadClipboard(false)) return clipboard_.ScanClipboard(request);
  count_.frmMain.optInFile.SetValue(true);
  return false;
}

void CountRun::ReportInputFileError(ScanFileResult code) const {
  switch (code) {
    case ScanFileResult::kFolderNotFile:
      return count_.messages.Refuse("Invalid input file specification.", "Invalid input");
    case ScanFileResult::kNotFound:
      return RefuseMissingInput(count_.messages, file_.Path());
    case ScanFileResult::kNotSpecified:
      return count_.messages.Refuse("Input file not specified.", "Error");
    case ScanFileResult::kOutputIsInput:
      return RefuseOutputFile(count_.messages, NeededAs::kText);
    default:
      return;
  }
}

/// False when the user stopped the scan and does not want the words listed that were found until
/// then.
bool CountRun::HandleInterruption() {
  if (!count_.run.StopRequested()) return true;
  if (count_.run.Quitting()) return false;
  count_.run.ForgetStop();
  const std::string lineBreak(kCrLf);
  if (!count_.output.IsEmpty()) count_.output.OutputToTxb(lineBreak + lineBreak);
  const std::int32_t words = count_.words.store.NumDifferentWords();
  count_.output.OutputToTxb("Stopped with " + std::to_string(words) +
                            (words == 1 ? " word found." : " words found."));
  const MessageAnswer answer =
      count_.messages.AskToKeep("The operation was stopped before all words were counted." +
                                    lineBreak + "Do you wish to list the words which were found?",
                                "Counting interrupted");
  if (answer != MessageAnswer::kYes || count_.run.Quitting()) {
    ConcealNumWords(count_.frmMain, false);  // what they say so far is said of no list
    return false;
  }
  count_.words.listAfterStop = true;
  return true;
}

bool CountRun::FolderHadFiles() const {
  if (!count_.frmMain.optFolder.Value() || count_.words.folder.filesScanned > 0) return true;
  const std::string text = "No " + ScanableFilesIn("this folder", extensions_.Filter().AnyGiven(),
                                                   count_.frmMain.chkIncludeSubfolders.IsChecked());
  count_.messages.Tell(text + ".", "No files found");
  return false;
}

void CountRun::FilterAndRank(const FilterChoices& filters) {
  if (!count_.inForce.settings.CountOnlyMode) {
    ApplyWordFilters(count_.words.store, filters, count_.inForce.scanThreads);
  }
  count_.output.ShowText(count_.frmMain.txbOutput.Text() + ". . . ");
  count_.words.totals = count_.words.store.TallyWords(count_.inForce.scanThreads);
  RankWords();
}

void CountRun::FinishRun(const FilterChoices& filters) {
  ShowProcessingNotice();
  count_.frmMain.lblNumWordsExcluded.SetCaption("");
  count_.run.EnterPhase(RunPhase::kListing);
  desktop_.Repaint();
  try {
    FilterAndRank(filters);
  } catch (...) {
    count_.words.Discard();  // what is not ranked cannot be listed
    throw;
  }
  ShowSummary(count_.frmMain, count_.words, count_.inForce, count_.messages.DigitGroupSeparator());
  count_.words.blnWordsGot = true;
  count_.words.WordsRanked.Fire();
  lister_.ListWords();
  listWasMade_ = count_.words.totals.NumIncludedWords > 0;
}

void CountRun::ShowProcessingNotice() {
  const std::string& shown = count_.frmMain.txbOutput.Text();
  const std::size_t length = count_.frmMain.txbOutput.Length();
  const bool keep = length >= 1 && length < kShortOutput;
  outputBeforeNotice_ = keep ? shown : std::string();
  shownNotice_ = keep ? shown + std::string(kCrLf) + std::string(kCrLf) : std::string();
  shownNotice_.append(kProcessingNotice);
  count_.frmMain.txbOutput.SetText(shownNotice_);
}

/// A run that went wrong behind the notice has put no list in its place.
void CountRun::DropProcessingNotice() {
  const std::string notice = std::exchange(shownNotice_, {});
  if (notice.empty() || !count_.frmMain.txbOutput.Text().starts_with(notice)) return;
  count_.frmMain.txbOutput.SetText(outputBeforeNotice_);
}

void CountRun::RankWords() {
  count_.words.ranking = RankByFrequency(count_.words.store, count_.inForce.scanThreads);
  const std::int32_t steps = count_.words.totals.MaxCount / kFrequenciesPerStep;
  std::string progress;
  progress.reserve(static_cast<std::size_t>(steps) * 4);
  for (std::int32_t step = 0; step < steps; ++step) progress.append(". . ");
  count_.output.OutputToTxb(progress);
}

void CountRun::OnListFilesClick() {
  if (count_.run.Busy()) return;
  ConcealNumWords(count_.frmMain, false);
  count_.output.ClearOutput();
  {
    const PhaseGuard guard(count_.run, RunPhase::kChecking);
    ListFiles();
  }
  controls_.EnableControls(true);
  count_.run.ForgetStop();
  count_.run.BecameIdle.Fire();
}

void CountRun::ListFiles() {
  try {
    count_.output.OutputToTxb("{Folder} = " + count_.frmMain.txbFolder.Text() + std::string(kCrLf));
    folder_.ListFiles();
  } catch (const RunTimeError& error) {
    lister_.ReportError(error);
  } catch (const std::bad_alloc&) {
    lister_.ReportOutOfMemory();
  }
}

void CountRun::OnListChoiceChanged() {
  if (!flags_.blnStartUpCompleted || count_.run.Busy() || lister_.IsChangingFormat()) return;
  if (lister_.CheckDisplayFormat() && count_.words.CanBeListed()) {
    ListAgain(ListTarget::kAll);
    if (count_.words.listAfterStop && !count_.run.Quitting()) {
      count_.messages.Tell(count_.messages.Text(kInterruptedListText),
                           count_.messages.Text(kInterruptedListTitle));
    }
  }
  SetTheFocus(count_.frmMain);
}

void CountRun::OnDisableOutputClick() {
  const bool canRelist = flags_.blnStartUpCompleted && !count_.run.Busy() &&
                         count_.words.completeRun &&
                         count_.frmMain.chkDisableOutputToFile.Value() == CheckState::kUnchecked &&
                         !count_.frmMain.txbFile[1].Text().empty();
  if (canRelist) {
    const MessageAnswer answer =
        count_.messages.Ask("Relist words (so as to write to file)?", "Relist?");
    if (answer == MessageAnswer::kYes && !count_.run.Quitting()) ListAgain(ListTarget::kAll);
  }
  SetTheFocus(count_.frmMain);
}

void CountRun::OnRestored(bool listStood) {
  if (!listStood) return;
  if (count_.words.CanBeListed() && lister_.FormatFitsWords())
    return ListAgain(ListTarget::kTextBox);
  count_.output.ClearOutput();
  ConcealNumWords(count_.frmMain, true);
}

void CountRun::ListAgain(ListTarget target) {
  {
    const PhaseGuard guard(count_.run, RunPhase::kListingAgain);
    try {
      if (target == ListTarget::kTextBox) {
        lister_.ForgetOutputFile();
        lister_.ListInTextBox();
      } else {
        lister_.ListWords();
      }
    } catch (const std::bad_alloc&) {
      lister_.ReportOutOfMemory();
    }
    count_.frmMain.lblTwirler.SetCaption(" ");
  }
  count_.run.ForgetStop();
  count_.run.BecameIdle.Fire();
  lister_.TellFullBox();
}

}  // namespace quillomat
