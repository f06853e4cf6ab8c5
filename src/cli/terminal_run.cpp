#include "cli/terminal_run.h"

#include <cstdio>
#include <iostream>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

#include "app/program.h"
#include "app/state_check.h"
#include "base/letter_case.h"
#include "base/limited_source.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "cli/exit_status.h"
#include "cli/setting_options.h"
#include "cli/standard_input.h"
#include "cli/standard_output.h"
#include "cli/terminal_desktop.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

/// Where the system has such a name it leads to the file that standard input comes from.
constexpr const char* kStandardInputPath = "/dev/stdin";

class TerminalRun {
 public:
  TerminalRun(const CommandLine& options, std::ostream& err)
      : options_(options), err_(err), desktop_(err, options.answers), program_(desktop_) {}

  int Run() {
    if (!program_.Start({.userSettings = false, .window = false})) return kRunFailed;
    if (options_.threads) program_.state.scanThreads = *options_.threads;
    program_.state.blnStartUpCompleted = false;  // no handler shall act before all is set
    if (!ReadState()) return kRunFailed;
    if (!ApplyChoices()) return kWrongCommandLine;
    if (!CheckInput() || !ChooseSource()) return kRunFailed;
    if (!TakeEffect() || !SaveState()) return kRunFailed;
    return options_.listFiles ? ListFiles() : Count();
  }

 private:
  bool Fail(const std::string& what) {
    err_ << "quillomat-cli: " << what << '\n';
    return false;
  }

  bool ReadState() {
    if (!options_.state && !options_.userSettings) return true;
    if (options_.userSettings) program_.UseSettingsFolder();
    const std::string path = options_.state.value_or("");
    switch (program_.savedState.ReadControls(path)) {
      case RestoreResult::kNoFile:
        // Whoever has never saved settings has those of a first start.
        return options_.userSettings || Fail(path + " does not exist; check the path");
      case RestoreResult::kError:
        return Fail((path.empty() ? std::string("the user's settings") : path) +
                    " cannot be used as a state: " + program_.savedState.ErrorDescription());
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
      return Fail(path + " exists and is no state; it is not overwritten by --save-state");
    }
    if (IsSameFile(path, program_.state.filesRead.state)) {
      return Fail(path + " is the state that was read; save the new one to another file");
    }
    const std::string error = program_.savedState.SaveState(path);
    return error.empty() || Fail(path + ": " + error);
  }

  bool ApplyChoices() {
    const auto fault =
        ApplySettings(program_.frmMain, program_.frmParams, options_.settings, options_.set);
    return !fault || Fail(OnOneLine(*fault));
  }

  /// Says more about an input that cannot be read than the window would.
  bool CheckInput() {
    if (options_.folder) return CheckFolder(*options_.folder);
    const std::string& path = options_.file ? *options_.file : *options_.text;
    if (options_.text && path == "-") return true;
    if (path.empty()) return Fail("--file or --text: the path is empty");
    if (FolderExists(path)) return Fail(path + " is a folder; count its files with --folder");
    if (!FileExists(path)) return Fail(path + " does not exist; check the path");
    try {
      const InputFile file(path);
    } catch (const RunTimeError& error) {
      return Fail(path + " cannot be read: " + error.Description() + "; check its permissions");
    }
    if (options_.file && !FileLength(path)) {
      return Fail(path + " is no regular file; count what comes from a pipe with --text -");
    }
    if (options_.file && FileLength(path) == 0) {
      return Fail(path + " is empty; there is nothing to count");
    }
    return true;
  }

  bool CheckFolder(const std::string& path) {
    if (FolderExists(path)) return true;
    if (FileExists(path)) return Fail(path + " is a file; count it with --file");
    return Fail(path + " does not exist; check the path");
  }

  bool ChooseSource() {
    MainForm& frmMain = program_.frmMain;
    if (options_.folder) {
      frmMain.txbFolder.SetText(*options_.folder);
      frmMain.optFolder.SetValue(true);
    } else if (options_.file) {
      frmMain.txbFile[0].SetText(*options_.file);
      frmMain.optInFile.SetValue(true);
    } else {
      frmMain.optOnClipboard.SetValue(true);
      return FillClipboard(*options_.text);
    }
    return true;
  }

  bool FillClipboard(const std::string& path) {
    try {
      if (path == "-") {
        StandardInput input;
        TakeAsClipboard(input);
        program_.state.filesRead.clipboardText = kStandardInputPath;
      } else {
        InputFile input(path);
        TakeAsClipboard(input);
        program_.state.filesRead.clipboardText = AbsolutePath(path);
      }
      return true;
    } catch (const RunTimeError& error) {
      return Fail(path + " cannot be read: " + error.Description());
    }
  }

  /// No more is read than makes certain that the clipboard would not take it: input may be endless.
  void TakeAsClipboard(ByteSource& input) {
    constexpr std::size_t kMostBytesPerCharacter = 4;
    constexpr std::size_t kMarkBytes = 3;
    StartOfSource start(input, kMarkBytes + kMostBytesPerCharacter * (kClipboardTextLimit + 1));
    std::string text = DecodeText(start);
    desktop_.SetClipboardText(std::move(text), start.WasCut());
  }

  /// The controls were set from outside: what hangs on them is worked out, as after loading a
  /// state.
  bool TakeEffect() {
    program_.state.blnStartUpCompleted = true;
    // A folder that a state names and that is not there is nobody's affair when a file is counted.
    TextBox& folder = program_.frmMain.txbFolder;
    const std::string path = folder.Text();
    if (!program_.frmMain.optFolder.Value()) folder.SetText("");
    const RestoreResult result = program_.savedState.TakeControlsAsTheyAre();
    if (result == RestoreResult::kInvalidIndex) return Fail("Invalid combo box index.");
    folder.SetText(path);
    return result == RestoreResult::kRestored && !desktop_.ProblemShown();
  }

  int ListFiles() {
    program_.frmMain.cmdListFiles.PerformClick();
    if (desktop_.ProblemShown()) return kRunFailed;
    return PrintWindowText() ? kListMade : kRunFailed;
  }

  int Count() {
    program_.lister.SetTextBoxWanted(options_.windowText);
    if (options_.null) program_.lister.SetFileLineBreak(std::string(1, '\0'));
    if (!program_.lister.CheckDisplayFormat()) return kRunFailed;
    const bool toFile = HasOutputFile();
    program_.frmMain.cmdCountWords.PerformClick();
    PrintSkipped();
    if (options_.summary) PrintSummary();
    const bool made = program_.countRun.ListWasMade();
    if (options_.windowText) {
      // That the box does not take all of a list is no failure of the run.
      const bool failed = desktop_.ProblemShown() && !program_.output.IsFull();
      return PrintWindowText() && made && !failed ? kListMade : kRunFailed;
    }
    if (!made) {
      TellWhyThereIsNoList();
      return kRunFailed;
    }
    const bool printed = toFile ? program_.lister.FileWritten() : PrintList();
    return printed && !desktop_.ProblemShown() ? kListMade : kRunFailed;
  }

  /// Whether the list goes to a file, by --output, a state or a setting.
  bool HasOutputFile() const {
    return !program_.frmMain.txbFile[1].Text().empty() &&
           !program_.frmMain.chkDisableOutputToFile.IsChecked();
  }

  void PrintSkipped() {
    for (const SkippedItem& item : program_.countRun.Folder().Skipped()) {
      err_ << "Skipped: " << item.path << ": " << item.reason << '\n';
    }
  }

  /// What the window would show in place of a list; else a message has told why, but not of what.
  void TellWhyThereIsNoList() {
    const std::string& denial = desktop_.Denial();
    const std::string& shown = program_.frmMain.txbOutput.Text();
    if (!denial.empty()) {
      Fail("cancelled by --answer '" + denial + "'; there is no list");
    } else if (!shown.empty() && !desktop_.ProblemShown()) {
      Fail(OnOneLine(shown));
    } else {
      Fail("there is no list of " + InputName());
    }
  }

  [[nodiscard]] std::string InputName() const {
    if (options_.folder) return *options_.folder;
    if (options_.file) return *options_.file;
    return *options_.text == "-" ? "standard input" : *options_.text;
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

  bool PrintList() {
    return PrintToStandardOutput([this](ByteSink& out) { program_.lister.WriteList(out); }, err_);
  }

  bool PrintWindowText() {
    std::string text = ReplaceAll(program_.frmMain.txbOutput.Text(), kCrLf, kPlatformLineBreak);
    if (!text.ends_with('\n')) text.append(kPlatformLineBreak);
    return PrintToStandardOutput([&text](ByteSink& out) { out.Write(text); }, err_);
  }

  const CommandLine& options_;
  std::ostream& err_;
  TerminalDesktop desktop_;
  Program program_;
};

}  // namespace

int RunInTerminal(const CommandLine& options, std::ostream& err) {
  return TerminalRun(options, err).Run();
}

}  // namespace quillomat
