#include "cli/terminal_run.h"

#include <algorithm>
#include <new>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

#include "app/count/panel_choices.h"
#include "app/exports/result_export.h"
#include "app/list/output_refusal.h"
#include "app/messages.h"
#include "app/program.h"
#include "app/state_check.h"
#include "base/byte_source.h"
#include "base/character_set.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "cli/box_set_aside.h"
#include "cli/clipboard_text.h"
#include "cli/direct_count.h"
#include "cli/exit_status.h"
#include "cli/explanation.h"
#include "cli/file_report.h"
#include "cli/input_choice.h"
#include "cli/list_exports.h"
#include "cli/list_notes.h"
#include "cli/option_conflicts.h"
#include "cli/setting_options.h"
#include "cli/skipped_lines.h"
#include "cli/standard_output.h"
#include "cli/state_fault.h"
#include "cli/targets.h"
#include "cli/terminal_desktop.h"
#include "cli/uncounted_notes.h"
#include "engine/explain/text_explainer.h"
#include "export/cell_text.h"
#include "listing/statistics.h"
#include "sources/count_observer.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

class TerminalRun {
 public:
  TerminalRun(const CommandLine& options, const TerminalStreams& streams)
      : options_(options),
        streams_(streams),
        err_(streams.err),
        input_(InputOf(options)),
        desktop_(err_, options.answers),
        program_(desktop_) {}

  int Run() {
    if (!program_.Start({.userSettings = false, .window = false})) return kRunFailed;
    if (options_.threads) program_.UseThreads(*options_.threads);
    program_.WantOrderFigures(options_.statistics);
    program_.WantFileReports(options_.report.has_value());
    program_.BeginControls();
    if (!ReadState()) return kRunFailed;
    if (!ApplyChoices()) return kWrongCommandLine;
    if (options_.explain) return UnlessInterrupted(Explain());
    if (!CheckInput()) return kRunFailed;
    if (!CheckWhatGoesWithInput() || !CheckThatTargetsDiffer()) return kWrongCommandLine;
    if (!ChooseSource() || !CheckWordsFiles() || !TakeEffect()) return kRunFailed;
    if (!CheckTargets() || !SaveState()) return kRunFailed;
    if (options_.listFiles) return ListFiles();
    return UnlessInterrupted(Count());
  }

 private:
  /// An interruption that was noted and came too late to stop anything is told here.
  [[nodiscard]] int UnlessInterrupted(int status) {
    const int interruption = streams_.interruption();
    if (interruption == 0) return status;
    if (status == kListMade && !program_.Words().stoppedAfter) {
      err_ << Headed{MessageTone::kWarning, "Interrupted: "} << "the whole text was read by then\n";
    }
    return interruption;
  }

  bool Fail(const std::string& what) {
    err_ << kOwnError << what << '\n';
    return false;
  }

  bool ReadState() {
    if (!options_.state && !options_.userSettings) return true;
    if (options_.userSettings) program_.UseSettingsFolder();
    const std::string path = options_.state.value_or("");
    switch (program_.States().ReadControls(path)) {
      case RestoreResult::kNoFile:
        // Whoever has never saved settings has those of a first start.
        if (options_.userSettings) return true;
        return Fail(
            "--state " + path +
            (FolderExists(path) ? " is a folder; name a file" : " does not exist; check the path"));
      case RestoreResult::kError:
        return Fail(
            (path.empty() ? std::string("the user's settings") : "--state " + path) +
            " cannot be used as a state: " + StateFaultText(program_.States().ErrorDescription()));
      default:
        return true;
    }
  }

  bool SaveState() {
    if (!options_.saveState) return true;
    const std::string& path = *options_.saveState;
    // A device, or a file that is made for this, holds nothing that could be lost.
    const bool holdsSomething = FileLength(path).value_or(0) > 0;
    if (holdsSomething && !IsStateFile(path, program_.frmMain, program_.frmParams)) {
      return Fail("--save-state " + path + " exists and is no state; it is not overwritten");
    }
    if (IsSameFile(path, program_.Settings().filesRead.state)) {
      return Fail("--save-state " + path +
                  " is the state that was read; save the new one to another file");
    }
    const std::string error = program_.States().SaveState(path);
    if (!error.empty()) return Fail("--save-state " + path + ": " + error);
    return true;
  }

  bool ApplyChoices() {
    const auto fault =
        ApplySettings(program_.frmMain, program_.frmParams, options_.settings, options_.set);
    if (fault) return Fail(OnOneLine(*fault));
    TextBox& listPath = program_.frmMain.txbFile[1];
    listIsPrinted_ = IsStandardOutput(listPath.Text());
    if (listIsPrinted_) listPath.SetText("");
    return true;
  }

  bool CheckInput() {
    const auto fault = FindInputFault(input_);
    return !fault || Fail(*fault);
  }

  bool CheckWhatGoesWithInput() {
    if (options_.listFiles && input_.kind != InputChoice::Kind::kFolder) {
      return Fail("--list-files goes with one folder; " + input_.Name() + " is none");
    }
    const bool windowCounts = input_.kind != InputChoice::Kind::kPaths || input_.paths.size() == 1;
    const bool readsInput = !options_.text && IsStandardInput(input_.paths.front());
    if (options_.windowText && (!windowCounts || readsInput)) {
      return Fail("--window-text goes with one file or folder, or with --text");
    }
    return true;
  }

  bool CheckThatTargetsDiffer() {
    if (!CheckThatListIsMade()) return false;
    const auto fault = FindDoubleTarget(Targets());
    return !fault || Fail(*fault);
  }

  /// An export on standard output takes the place of the list, unless that has a file.
  bool CheckThatListIsMade() {
    if (!ExportIsPrinted()) return true;
    if (listIsPrinted_) {
      return Fail("--export - does not go with --output -: standard output takes one of them");
    }
    if (program_.Lister().HasOutputFile()) return true;
    for (const char* ofList : {"--null", "--format"}) {
      if (!IsGiven(options_, ofList)) continue;
      return Fail(std::string(ofList) +
                  " goes with a list, of which --export - takes the place; with --output FILE "
                  "there is one");
    }
    return true;
  }

  /// Whoever lists files needs no words.
  bool CheckWordsFiles() {
    std::optional<std::string> fault = FindWordsFileFault(options_.settings);
    if (!fault && !options_.listFiles) fault = FindWordsFileFault(program_.frmParams);
    return !fault || Fail(*fault);
  }

  /// Nobody wants to hear after a long count that what came of it cannot be written.
  bool CheckTargets() {
    const CountedText text = input_.AsText(program_.frmMain.chkIncludeSubfolders.IsChecked());
    std::optional<std::string> fault = FindUnservedExport(options_, streams_, WillKnowFiles());
    for (const Target& target : Targets()) {
      if (fault) break;
      if (target.option == kListTarget) {
        if (!MayWriteList(target.path, text)) return false;
      } else if (target.option != kStateTarget) {
        fault = FindLoss(target, program_, text);
      }
      if (!fault) fault = FindWriteFault(target);
    }
    return !fault || Fail(*fault);
  }

  /// As it will be asked when there is a list.
  bool MayWriteList(const std::string& path, const CountedText& text) {
    if (!program_.Lister().MayWriteOutputFile(text)) {
      return Fail("--output " + path + " is refused; there is no list of " + input_.Name());
    }
    if (!program_.frmParams.chkWarnOnOverwrite.IsChecked() || !HoldsSomething(path)) return true;
    return !desktop_.AskForText(OverwriteQuestion(path)).empty();
  }

  [[nodiscard]] bool WillKnowFiles() const {
    const bool likeFolder =
        input_.kind == InputChoice::Kind::kPaths || input_.kind == InputChoice::Kind::kFolder;
    return likeFolder && program_.Settings().lists.HasCountOnlyWords();
  }

  /// The file of the list is what state and options together say.
  [[nodiscard]] std::vector<Target> Targets() {
    const bool toFile = program_.Lister().HasOutputFile() && !options_.listFiles;
    return TargetsOf(options_, toFile ? program_.frmMain.txbFile[1].Text() : "");
  }

  [[nodiscard]] bool ExportIsPrinted() const {
    return std::ranges::any_of(options_.exports, IsStandardOutput);
  }

  bool ChooseSource() {
    MainForm& frmMain = program_.frmMain;
    const std::string& path = input_.paths.front();
    switch (input_.kind) {
      case InputChoice::Kind::kFolder:
        frmMain.txbFolder.SetText(path);
        frmMain.optFolder.SetValue(true);
        return true;
      case InputChoice::Kind::kClipboard:
        frmMain.optOnClipboard.SetValue(true);
        return FillClipboard(path);
      default:
        frmMain.txbFile[0].SetText(path);
        frmMain.optInFile.SetValue(true);
        return true;
    }
  }

  bool FillClipboard(const std::string& path) {
    try {
      if (IsStandardInput(path)) {
        CountObserver nobody;
        TakeFrom(*streams_.openInput(nobody));
        program_.SetClipboardFile(kStandardInputPath);
      } else {
        InputFile input(path);
        TakeFrom(input);
        program_.SetClipboardFile(AbsolutePath(path));
      }
      return true;
    } catch (const RunTimeError& error) {
      return Fail(path + " cannot be read: " + error.Description());
    } catch (const std::bad_alloc&) {
      return Fail(path + " cannot be read: " + DescriptionOf(RunTimeErrorNumber::kOutOfMemory));
    }
  }

  void TakeFrom(ByteSource& input) {
    clipboard_ = TakeAsClipboard(input, ReadEncoding(program_.frmParams), desktop_);
  }

  /// The controls were set from outside: what hangs on them is worked out, as after loading a
  /// state.
  bool TakeEffect() {
    // What a state names, is not there and is not needed is nobody's affair: the folder when a file
    // is counted, words files when files are listed.
    std::vector<BoxSetAside> setAside;
    if (!program_.frmMain.optFolder.Value()) setAside.emplace_back(program_.frmMain.txbFolder);
    for (TextBox& box : program_.frmParams.txbWordsFile) {
      if (options_.listFiles && !FileExists(box.Text())) setAside.emplace_back(box);
    }
    const RestoreResult result = program_.TakeControls();
    if (result == RestoreResult::kInvalidIndex) return Fail("Invalid combo box index.");
    setAside.clear();
    if (result != RestoreResult::kRestored || desktop_.ProblemShown()) return false;
    if (!options_.listFiles) {
      TellListsWithoutEffect(options_, program_, Messages(desktop_, program_.Text()), err_);
    }
    return true;
  }

  /// The text stands on the clipboard, as that of --text; but standard input is one of lines.
  int Explain() {
    program_.frmMain.optOnClipboard.SetValue(true);
    if (!FillWithExplained() || !CheckWordsFiles() || !TakeEffect() || !SaveState()) {
      return kRunFailed;
    }
    if (clipboard_.isTooLong) {
      Fail("a text of more than 100,000 characters is not explained; give a part of it");
      return kRunFailed;
    }
    CountRun& count = program_.Count();
    if (!count.PrepareScan()) return kRunFailed;
    const CountRequest request = count.Request({});
    const auto explain = IsStandardInput(*options_.explain) ? ExplainLines : ExplainText;
    const Explanation explanation =
        explain(desktop_.ClipboardText(), request.scan, request.filters, request.lists);
    Uncounted uncounted = clipboard_.uncounted;
    uncounted.runsLeftWhole = explanation.runsLeftWhole;
    TellUncounted(uncounted, Messages(desktop_, program_.Text()), err_);
    TellGuessed(clipboard_.guessed.Names(), err_);
    const std::string lines =
        ExplanationLines(explanation.candidates, request.filters, program_.Text());
    if (lines.empty()) {
      err_ << Headed{MessageTone::kWarning, "Note: "}
           << "nothing in the text could be a word or a comment\n";
    }
    return streams_.print([&lines](ByteSink& out) { out.Write(lines); }) ? kListMade : kRunFailed;
  }

  /// What is typed is text of the terminal, whatever the encoding of files is.
  bool FillWithExplained() {
    if (IsStandardInput(*options_.explain)) return FillClipboard(*options_.explain);
    TextSource text(*options_.explain);
    clipboard_ = TakeAsClipboard(text, CharacterSet::kAsFound, desktop_);
    if (!IsWellFormedUtf8(*options_.explain)) {
      err_ << Headed{MessageTone::kWarning, "Note: "}
           << "the text of --explain is not UTF-8 and was read as Windows-1252\n";
    }
    clipboard_.uncounted = {};  // what else there is to tell is of files
    return true;
  }

  int ListFiles() {
    program_.frmMain.cmdListFiles.PerformClick();
    if (desktop_.ProblemShown()) return kRunFailed;
    return PrintWindowText() ? kListMade : kRunFailed;
  }

  int Count() {
    program_.Lister().SetTextBoxWanted(options_.windowText);
    if (options_.null) program_.Lister().SetFileLineBreak(std::string(1, '\0'));
    if (options_.top) program_.Lister().SetMostWordsInFile(*options_.top);
    if (!FormatIsServed()) return kRunFailed;
    const bool toFile = program_.Lister().HasOutputFile();
    const bool made = options_.windowText || options_.text ? CountInWindow() : CountDirectly();
    const bool reported = Report();
    if (options_.windowText) {
      // That the box does not take all of a list is no failure of the run.
      const bool failed = desktop_.ProblemShown() && !program_.Output().IsFull();
      const bool printed = PrintWindowText();
      PrintFigures();
      return printed && made && reported && !failed ? kListMade : kRunFailed;
    }
    if (!made) {
      TellWhyThereIsNoList();
      PrintFigures();
      return kRunFailed;
    }
    const bool printed = toFile ? ListIsInFile() : ExportIsPrinted() || PrintList();
    PrintFigures();
    return Export() && printed && reported && !desktop_.ProblemShown() ? kListMade : kRunFailed;
  }

  /// A message has told why not.
  bool ListIsInFile() {
    const std::string& path = program_.frmMain.txbFile[1].Text();
    return program_.Lister().FileWritten() || Fail("--output " + path + " is not written");
  }

  /// Behind the list, where a person at a terminal sees them. The statistics are of all words that
  /// were counted, be none of them listed.
  void PrintFigures() {
    if (options_.summary) PrintSummary();
    const WordTotals& totals = program_.Words().totals;
    const bool anyCounted = totals.NumIncludedWords > 0 || totals.NumExcludedWords > 0;
    if (options_.statistics && anyCounted) PrintStatistics();
  }

  bool Export() {
    return ExportList(program_, options_, streams_,
                      [this](const std::string& fault) { Fail(fault); });
  }

  /// Also of a count that gave no list: the report may say why.
  bool Report() {
    const std::optional<std::string> fault = WriteFileReport(program_, options_);
    return !fault || Fail(*fault);
  }

  /// Paths, be it one, are served like a folder; --file and --text are the window's sources, which
  /// are not.
  bool FormatIsServed() {
    const bool likeFolder =
        input_.kind == InputChoice::Kind::kPaths && program_.Settings().lists.HasCountOnlyWords();
    if ((likeFolder && !options_.windowText) || program_.Lister().CheckDisplayFormat()) return true;
    return Fail(std::string("here formats 11 to 13 go with --folder, and ") +
                (options_.windowText ? "without --window-text " : "") +
                "with any PATH, if --only or --only-words is given");
  }

  /// True when a list was made.
  bool CountInWindow() {
    program_.frmMain.cmdCountWords.PerformClick();
    TellSkipped();
    if (clipboard_.isTooLong) {
      Fail("a text of any size is counted as a path: quillomat-cli " + input_.paths.front());
      clipboard_ = {};  // nothing of it was counted
    }
    Uncounted uncounted = program_.Words().uncounted;
    uncounted += clipboard_.uncounted;
    TellUncounted(uncounted, Messages(desktop_, program_.Text()), err_,
                  program_.Words().folder.firstNotDecoded);
    TellGuessed((options_.text ? clipboard_.guessed : program_.Words().guessed).Names(), err_);
    return program_.Count().ListWasMade();
  }

  bool CountDirectly() {
    // Paths in lists are relative to the folder that is counted, not to one that a state names.
    if (input_.kind != InputChoice::Kind::kFolder) program_.frmMain.txbFolder.SetText("");
    const Messages messages(desktop_, program_.Text());
    DirectCount count(program_, messages, options_, input_, streams_);
    if (!count.Run()) {
      fault_ = count.Fault();
      return false;
    }
    program_.Lister().ListWords();
    program_.Lister().TellFullBox();
    return program_.Words().totals.NumIncludedWords > 0;
  }

  void TellSkipped() {
    std::vector<std::string> items;
    for (const SkippedItem& item : program_.Count().Skipped()) {
      items.push_back(item.path + ": " + item.reason);
    }
    const Messages messages(desktop_, program_.Text());
    PrintSkipped(err_, items, program_.Count().SkippedInAll(), messages);
    PrintLeftOut(err_, program_.Words().folder.leftOut, messages);
  }

  /// What the window would show in place of a list; else a message has told why, but not of what.
  void TellWhyThereIsNoList() {
    const std::string& denial = desktop_.Denial();
    const std::string& shown = program_.frmMain.txbOutput.Text();
    if (!fault_.empty()) {
      Fail(fault_);
    } else if (!denial.empty()) {
      Fail("cancelled by --answer '" + denial + "'; there is no list");
    } else if (!shown.empty() && !desktop_.ProblemShown()) {
      Fail(OnOneLine(shown));
    } else {
      Fail("there is no list of " + input_.Name());
    }
  }

  void PrintSummary() {
    const MainForm& frmMain = program_.frmMain;
    const std::vector<const Label*> labels = {
        &frmMain.lblNumberOfWords, &frmMain.lblNumWordsExcluded, &frmMain.lblNumOccurrences,
        &frmMain.lblTotalNumOccurrences};
    for (const Label* label : labels) {
      if (label->Visible() && !label->Caption().empty()) err_ << label->Caption() << '\n';
    }
  }

  void PrintStatistics() {
    const CurrentWords& words = program_.Words();
    if (!words.AreOfWholeText()) {
      for (const ExportFact& fact : CompletenessOf(words)) {
        err_ << fact.name << '\t' << TextOf(fact) << '\n';
      }
    }
    err_ << StatisticsText(StatisticsOf(words.store, words.orderFigures));
  }

  bool PrintList() {
    return streams_.print([this](ByteSink& out) { program_.Lister().WriteList(out); });
  }

  bool PrintWindowText() {
    std::string text = ReplaceAll(program_.frmMain.txbOutput.Text(), kCrLf, kPlatformLineBreak);
    if (!text.ends_with('\n')) text.append(kPlatformLineBreak);
    return streams_.print([&text](ByteSink& out) { out.Write(text); });
  }

  const CommandLine& options_;
  const TerminalStreams& streams_;
  std::ostream& err_;
  InputChoice input_;
  TerminalDesktop desktop_;
  bool listIsPrinted_ = false;  // on standard output, by --output -
  ClipboardText clipboard_;
  /// Why the count gave no words.
  std::string fault_;
  Program program_;
};

}  // namespace

int RunInTerminal(const CommandLine& options, const TerminalStreams& streams) {
  return TerminalRun(options, streams).Run();
}

}  // namespace quillomat
