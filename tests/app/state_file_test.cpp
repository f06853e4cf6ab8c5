// The state file line by line, and the commands that write and read one.
#include <filesystem>
#include <gmock/gmock.h>
#include <thread>

#include "app/program_image.h"
#include "app/state_lines.h"
#include "support/program_fixture.h"
#include "support/user_home.h"
#include "system/paths.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StateFileTest : public ProgramFixture {
 protected:
  StateFileTest() { program.UseSettingsFolder(); }

  RestoreResult Restore(const StateLines& lines) {
    return program.States().RestoreSavedState(folder.Write("state.qlm", FileOfLines(lines)));
  }

  std::string Saved() {
    EXPECT_EQ(program.States().SaveState(folder / "saved.qlm"), "");
    return ContentsOf(folder / "saved.qlm");
  }

  UserHome home;
};

struct StateLine {
  const char* form;
  const char* control;
};

// The 44 lines before the source, in the order of the file.
constexpr StateLine kStateLines[] = {{"main", "txbFolder"},
                                     {"panel", "txbWordsToIgnoreOrCount(0)"},
                                     {"main", "txbFile(0)"},
                                     {"main", "txbFileExtensions(0)"},
                                     {"panel", "txbStartComment(0)"},
                                     {"panel", "txbEndComment(0)"},
                                     {"panel", "txbWordsToIgnoreOrCount(1)"},
                                     {"main", "txbFile(1)"},
                                     {"main", "txbFileExtensions(1)"},
                                     {"panel", "txbStartComment(1)"},
                                     {"panel", "txbEndComment(1)"},
                                     {"panel", "cboShortWordSize"},
                                     {"panel", "cboLongWordSize"},
                                     {"panel", "cboThresholdFrequency"},
                                     {"panel", "chkIgnoreShortWords"},
                                     {"panel", "chkIgnoreInfrequentWords"},
                                     {"panel", "chkIgnoreRepetitions"},
                                     {"panel", "chkIgnoreRomNum40"},
                                     {"panel", "chkIgnoreNoVowelOrY"},
                                     {"panel", "chkCaseSignificant"},
                                     {"panel", "chkDropFinalS"},
                                     {"panel", "chkAllowWordsWithHyphens"},
                                     {"panel", "chkAllowWordsWithApostrophes"},
                                     {"panel", "chkAllowWordsWithUnderscores"},
                                     {"panel", "chkAllowWordsWithColons"},
                                     {"panel", "chkAllowWordsWithBackslashes"},
                                     {"panel", "chkAllowWordsWithForwardslashes"},
                                     {"panel", "chkAllowWordsWithParentheses"},
                                     {"panel", "chkAllowWordsWithPeriods"},
                                     {"panel", "chkAllowWordsWithCommas"},
                                     {"panel", "chkAllowWordsWithAtSigns"},
                                     {"panel", "chkAllowWordsWithNumerals"},
                                     {"panel", "chkOutputWithCommas"},
                                     {"panel", "chkUseLog10"},
                                     {"panel", "chkAllowCommentMarkers"},
                                     {"panel", "chkWarnOnOverwrite"},
                                     {"panel", "chkSaveStateOnQuit"},
                                     {"main", "chkSuppressWords"},
                                     {"main", "chkDisableOutputToFile"},
                                     {"main", "chkIncludeSubfolders"},
                                     {"main", "cboWordOrder"},
                                     {"main", "cboDisplayFormat"},
                                     {"panel", "txbWordsFile(0)"},
                                     {"panel", "txbWordsFile(1)"}};

TEST_F(StateFileTest, EveryLineIsReadIntoItsOwnControlAndWrittenFromIt) {
  const StateLines changed = ChangedLines(folder);
  ASSERT_EQ(changed.size(), 45U);
  const StateLines initial = InitialLines();
  for (std::size_t line = 0; line < std::size(kStateLines); ++line) {
    SCOPED_TRACE("line " + std::to_string(line + 1) + " " + kStateLines[line].control);
    ASSERT_NE(changed[line], initial[line]);
    StateLines lines = initial;
    lines[line] = changed[line];
    ASSERT_EQ(program.States().ReadControls(folder.Write("one.qlm", FileOfLines(lines))),
              RestoreResult::kRestored);
    const Form& form =
        kStateLines[line].form == std::string("main") ? static_cast<Form&>(Main()) : Panel();
    const Control* control = form.Find(kStateLines[line].control);
    ASSERT_NE(control, nullptr);
    const bool isText = control->Kind() == ControlKind::kTextBox;
    EXPECT_EQ(isText ? Quoted(ValueOf(*control)) : ValueOf(*control), changed[line]);
    EXPECT_EQ(Saved(), FileOfLines(lines));
  }
}

TEST_F(StateFileTest, LastLineIsTheSource) {
  for (const auto& [value, button] :
       {std::pair<const char*, OptionButton*>{"0", &Main().optOnClipboard},
        {"1", &Main().optInFile},
        {"2", &Main().optFolder},
        {"1", &Main().optInFile},
        {"77", &Main().optFolder},
        {"1", &Main().optInFile},
        {"-1", &Main().optFolder}}) {
    StateLines lines = InitialLines();
    lines[kSourceLine] = value;
    EXPECT_EQ(Restore(lines), RestoreResult::kRestored);
    EXPECT_TRUE(button->Value()) << value;
    EXPECT_EQ(Main().optOnClipboard.Value() + Main().optInFile.Value() + Main().optFolder.Value(),
              1);
  }
  Main().optOnClipboard.SetValue(true);
  EXPECT_TRUE(Saved().ends_with("\"\"\r\n\"\"\r\n0\r\n"));
}

TEST_F(StateFileTest, CheckBoxValuesAreTheNumbersThatTheyStartWithRounded) {
  for (const auto& [value, state] : {std::pair<const char*, int>{"0.4", 0},
                                     {"0.6", 1},
                                     {"+1", 1},
                                     {"inf", 0},
                                     {"1.4", 1},
                                     {"0.5", 0},
                                     {"1.5", 2},
                                     {"1 yes", 1},
                                     {"yes", 0},
                                     {"", 0},
                                     {"2", 2},
                                     {"\"1\"", 1},
                                     {" 1 ", 1}}) {
    StateLines lines = InitialLines();
    lines[kFirstCheckBoxLine] = value;
    EXPECT_EQ(Restore(lines), RestoreResult::kRestored) << value;
    EXPECT_EQ(static_cast<int>(Panel().chkIgnoreShortWords.Value()), state) << value;
  }
}

TEST_F(StateFileTest, DoubleQuoteInATextThatIsNoPathIsNotKept) {
  Panel().txbWordsToIgnoreOrCount[0].SetText("a\"b");
  Panel().txbStartComment[0].SetText("\"");
  static_cast<void>(Saved());
  program.Initialize();
  EXPECT_EQ(program.States().RestoreSavedState(folder / "saved.qlm"), RestoreResult::kRestored);
  EXPECT_EQ(Panel().txbWordsToIgnoreOrCount[0].Text(), "a");
  EXPECT_EQ(Panel().txbStartComment[0].Text(), "");
  EXPECT_EQ(Main().txbFileExtensions[0].Text(), "") << "the next line is read as itself";
}

TEST_F(StateFileTest, FileInTheOldCodePageAndWithOtherLineEndsIsReadToo) {
  StateLines lines = InitialLines();
  lines[4] = "\"\xE9\x80\"";
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  EXPECT_EQ(program.States().RestoreSavedState(folder.Write("old.qlm", text)),
            RestoreResult::kRestored);
  EXPECT_EQ(Panel().txbStartComment[0].Text(), "\u00E9\u20AC");
}

TEST_F(StateFileTest, LinesBehindTheLastOneAreNotRead) {
  StateLines lines = InitialLines();
  lines.insert(lines.end(), {"more", "-1"});
  EXPECT_EQ(Restore(lines), RestoreResult::kRestored);
}

TEST_F(StateFileTest, FileThatDoesNotExistChangesNothing) {
  CountClipboard("cat");
  Main().txbFolder.SetText("/f");
  const ProgramImage before = ImageOf(program);
  EXPECT_EQ(program.States().RestoreSavedState(folder / "none.qlm"), RestoreResult::kNoFile);
  EXPECT_EQ(Differences(before, ImageOf(program)), "");
  EXPECT_TRUE(Words().blnWordsGot);
}

TEST_F(StateFileTest, RestoredStateMakesTheCountsOutdatedAndListsThemAsItWants) {
  CountClipboard("cat dog");
  StateLines lines = InitialLines();
  lines[41] = "8";
  EXPECT_EQ(Restore(lines), RestoreResult::kRestored);
  EXPECT_FALSE(Words().blnWordsGot);
  EXPECT_TRUE(Output().ends_with("\r\ncat\r\ndog\r\n")) << Output();
}

TEST_F(StateFileTest, WriteErrorsAreDescribed) {
  EXPECT_EQ(program.States().SaveState(folder / "none/state.qlm"),
            "Error when attempting to save state: Path not found");
  EXPECT_EQ(program.States().SaveState("/dev/full"),
            "Error when attempting to save state: Disk full");
}

TEST_F(StateFileTest, AFailedSaveLeavesTheStateAsItWas) {
  const std::string path = folder.Write("state.qlm", "the old state");
  EXPECT_NE(program.States().SaveState(path + "/x"), "");
  EXPECT_EQ(ContentsOf(path), "the old state");
}

TEST_F(StateFileTest, AReaderNeverSeesHalfOfWhatAWriterWrites) {
  constexpr int kTurns = 300;
  const std::string path = folder / "state.qlm";
  ASSERT_EQ(program.States().SaveState(path), "");
  ScriptedDesktop otherDesktop;
  Program other(otherDesktop);
  ASSERT_TRUE(other.Start({.userSettings = false, .window = false}));
  std::thread writer([&] {
    for (int turn = 0; turn < kTurns; ++turn) {
      const std::string folderName(static_cast<std::size_t>(turn) * 50, 'x');
      other.frmMain.txbFolder.SetText(folderName);
      EXPECT_EQ(other.States().SaveState(path), "");
    }
  });
  for (int turn = 0; turn < kTurns; ++turn) {
    const RestoreResult result = program.States().ReadControls(path);
    // While a file takes the place of another, Windows may for a moment show neither.
    const bool neither =
        PathSeparator() == '\\' && (result == RestoreResult::kNoFile ||
                                    program.States().ErrorDescription() == "File not found");
    EXPECT_TRUE(neither || result == RestoreResult::kRestored)
        << program.States().ErrorDescription();
  }
  writer.join();
}

TEST_F(StateFileTest, ALineThatIsTooLongIsNamed) {
  const std::string path = folder.Write("state.qlm", std::string(17'000'000, 'x'));
  EXPECT_EQ(program.States().ReadControls(path), RestoreResult::kError);
  EXPECT_EQ(program.States().ErrorDescription(), "a line of it is longer than 16,777,216 bytes");
}

TEST_F(StateFileTest, MarkersAreMendedPairByPair) {
  StateLines lines = InitialLines();
  lines[4] = Quoted("");
  lines[34] = "1";
  EXPECT_EQ(Restore(lines), RestoreResult::kRestored);
  EXPECT_EQ(Panel().txbEndComment[0].Text(), "");
  EXPECT_EQ(Panel().txbStartComment[1].Text(), "//");
  EXPECT_TRUE(Panel().chkAllowCommentMarkers.IsChecked()) << "the second pair has a start";
  lines[9] = Quoted("");
  lines[10] = Quoted("end");
  EXPECT_EQ(Restore(lines), RestoreResult::kRestored);
  EXPECT_EQ(Panel().txbEndComment[1].Text(), "");
  EXPECT_FALSE(Panel().chkAllowCommentMarkers.IsChecked());
}

TEST_F(StateFileTest, WordsFileThatIsNoTextIsToldAndTheOtherIsStillRead) {
  StateLines lines = ChangedLines(folder);
  lines[42] = Quoted(folder.Write("binary", std::string("\x01\x00\x02", 3)));
  EXPECT_EQ(Restore(lines), RestoreResult::kWordsFileFailed);
  EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid input", "Error", "Words loaded"));
  EXPECT_THAT(program.Settings().lists.CountOnlyList.Words(), ElementsAre("cat", "rat"));
  EXPECT_EQ(Panel().txbWordsFile[0].Text(), "");
}

// "Save state" on the main window.

TEST_F(StateFileTest, SaveStateWritesTheSettingsFileAndSaysSo) {
  Main().Show();
  Main().cmdSaveState.PerformClick();
  ExpectMessage(OnlyMessage(), "State saved.", "Save state", MessageIcon::kInformation);
  EXPECT_EQ(ContentsOf(home.SettingsFile()), FileOfLines(InitialLines()));
  EXPECT_EQ(Main().Focused(), &Main().cmdFolder);
}

TEST_F(StateFileTest, SaveStateThatFailsSaysWhy) {
  Main().Show();
  std::filesystem::create_directories(home.SettingsFile());
  Main().cmdSaveState.PerformClick();
  const MessageBox box = OnlyMessage();
  EXPECT_TRUE(box.text.starts_with("Error when attempting to save state: ")) << box.text;
  EXPECT_EQ(box.title, "Save state");
  EXPECT_EQ(box.icon, MessageIcon::kExclamation);
  EXPECT_EQ(Main().Focused(), &Main().cmdFolder);
}

// The panel's commands.

TEST_F(StateFileTest, PanelSavesWhereTheUserSays) {
  desktop.AnswerFile(folder / "mine.qlm");
  Panel().cmdSaveLoadState[0].PerformClick();
  FileDialog dialog;
  dialog.mode = FileDialog::Mode::kSave;
  dialog.title = "Specify file to save state to";
  dialog.filter = "QLM state files (*.qlm) | *.qlm";
  dialog.promptBeforeOverwriting = true;
  dialog.hideReadOnly = true;
  dialog.pathMustExist = true;
  dialog.noReadOnlyReturn = true;
  ASSERT_EQ(desktop.FileDialogs().size(), 1U);
  EXPECT_EQ(desktop.FileDialogs()[0], dialog);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(Panel().txbStateFile.Text(), folder / "mine.qlm");
  EXPECT_EQ(Panel().lblState.Caption(), "State saved to");
  EXPECT_EQ(ContentsOf(folder / "mine.qlm"), FileOfLines(InitialLines()));
}

TEST_F(StateFileTest, PanelSaysWhenItCannotSave) {
  desktop.AnswerFile(folder / "none/mine.qlm");
  Panel().cmdSaveLoadState[0].PerformClick();
  ExpectMessage(OnlyMessage(), "Error when attempting to save state: Path not found", "Save state",
                MessageIcon::kExclamation);
  EXPECT_EQ(Panel().lblState.Caption(), "Error saving to");
  EXPECT_EQ(Panel().txbStateFile.Text(), folder / "none/mine.qlm");
}

TEST_F(StateFileTest, PanelLoadsWhatTheUserChooses) {
  desktop.AnswerFile(folder.Write("mine.qlm", FileOfLines(ChangedLines(folder))));
  Panel().cmdSaveLoadState[1].PerformClick();
  FileDialog dialog;
  dialog.mode = FileDialog::Mode::kOpen;
  dialog.title = "Specify file to load state from.";
  dialog.filter = "QLM state files (*.qlm) | *.qlm";
  dialog.hideReadOnly = true;
  dialog.pathMustExist = true;
  dialog.fileMustExist = true;
  ASSERT_EQ(desktop.FileDialogs().size(), 1U);
  EXPECT_EQ(desktop.FileDialogs()[0], dialog);
  EXPECT_EQ(Panel().lblState.Caption(), "State loaded from");
  EXPECT_EQ(Panel().txbStateFile.Text(), folder / "mine.qlm");
  EXPECT_EQ(Saved(), FileOfLines(ChangedLines(folder)));
}

TEST_F(StateFileTest, LoadingAfterACountAsksNothing) {
  CountClipboard("cat dog");
  desktop.AnswerFile(folder.Write("mine.qlm", FileOfLines(ChangedLines(folder))));
  Panel().cmdSaveLoadState[1].PerformClick();
  EXPECT_THAT(desktop.Titles(),
              ElementsAre("Specify file to load state from.", "Words loaded", "Words loaded"));
  EXPECT_FALSE(program.Flags().blnInhibitPrompt);
  EXPECT_EQ(Saved(), FileOfLines(ChangedLines(folder)));
}

TEST_F(StateFileTest, LineBreakInAPathDoesNotMakeAnotherLine) {
  Main().txbFolder.SetText("/a\nb");
  const std::string saved = Saved();
  EXPECT_TRUE(saved.starts_with("\"/a b\"\r\n"));
  EXPECT_TRUE(saved.ends_with("\r\ntxbFolder=/a%0Ab\r\n")) << "behind the 45 lines";
  EXPECT_EQ(std::ranges::count(saved, '\n'), 46);
}

TEST_F(StateFileTest, WordsFileThatIsMissingIsToldByThePanelAloneAndItsListIsEmpty) {
  StateLines lines = ChangedLines(folder);
  ASSERT_EQ(Restore(lines), RestoreResult::kRestored);
  ASSERT_EQ(program.Settings().lists.CountOnlyList.Count(), 2);
  desktop.ForgetQuestions();
  lines[43] = Quoted(folder / "none.txt");
  desktop.AnswerFile(folder.Write("mine.qlm", FileOfLines(lines)));
  Panel().cmdSaveLoadState[1].PerformClick();
  EXPECT_THAT(desktop.Titles(), ElementsAre("Specify file to load state from.", "Words loaded"));
  EXPECT_EQ(Panel().lblState.Caption(), "Error loading from");
  EXPECT_EQ(program.Settings().lists.CountOnlyList.Count(), 0);
}

TEST_F(StateFileTest, CancellingEitherDialogDoesNothing) {
  Panel().lblState.SetCaption("as before");
  Panel().txbStateFile.SetText("/before");
  const ProgramImage before = ImageOf(program);
  for (CommandButton& command : Panel().cmdSaveLoadState) {
    desktop.AnswerFile(std::nullopt);
    command.PerformClick();
    EXPECT_EQ(Panel().lblState.Caption(), "as before");
    EXPECT_EQ(Differences(before, ImageOf(program)), "");
  }
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(StateFileTest, FileThatVanishesBehindTheDialogCountsAsLoaded) {
  desktop.AnswerFile(folder / "gone.qlm");
  Panel().cmdSaveLoadState[1].PerformClick();
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(Panel().lblState.Caption(), "State loaded from");
}

}  // namespace
}  // namespace quillomat
