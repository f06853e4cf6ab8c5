// Start-up: what happens in which order, what the settings file restores, and what stands in the
// way.
#include <filesystem>
#include <gmock/gmock.h>

#include "app/program_image.h"
#include "app/state_lines.h"
#include "support/environment.h"
#include "support/program_fixture.h"
#include "support/user_home.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StartUp : public testing::Test {
 protected:
  StartUp() : program(desktop) {}

  void KeepSettings(const std::string& contents) {
    std::filesystem::create_directories(std::filesystem::path(home.SettingsFile()).parent_path());
    std::ofstream(home.SettingsFile(), std::ios::binary) << contents;
  }

  UserHome home;
  TemporaryFolder folder;
  ScriptedDesktop desktop;
  Program program;
};

TEST_F(StartUp, FirstStartMakesTheSettingsFolderSaysNothingAndSelectsTheFolderSource) {
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  const auto settings = std::filesystem::path(home.SettingsFile());
  EXPECT_TRUE(std::filesystem::is_directory(settings.parent_path()));
  EXPECT_FALSE(std::filesystem::exists(settings)) << "nothing is saved before the end";
  EXPECT_TRUE(program.frmMain.optFolder.Value());
  EXPECT_EQ(program.frmMain.cboWordOrder.ListIndex(), 0);
  EXPECT_EQ(program.frmMain.cboDisplayFormat.ListIndex(), 0);
  EXPECT_TRUE(program.Flags().blnStartUpCompleted);
  EXPECT_FALSE(program.Words().blnWordsGot);
  EXPECT_FALSE(program.HasEnded());
}

TEST_F(StartUp, StepsComeInTheirOrder) {
  KeepSettings(FileOfLines(ChangedLines(folder)));
  const std::filesystem::path root = std::filesystem::current_path().root_path();
  std::vector<std::string> steps;
  const auto step = [&](const std::string& name) {
    EXPECT_FALSE(program.Flags().blnStartUpCompleted) << name;
    EXPECT_NE(std::filesystem::current_path(), root) << name;
    if (std::ranges::find(steps, name) == steps.end()) steps.push_back(name);
  };
  program.frmMain.Changed.Connect([&] {
    step(program.frmMain.Visible() ? "window shown" : "title: " + program.frmMain.Caption());
  });
  program.frmMain.cboDisplayFormat.Changed.Connect([&] {
    if (program.frmMain.cboDisplayFormat.ListIndex() == 0) step("lists filled");
  });
  program.frmParams.cboLongWordSize.Changed.Connect([&] {
    const bool filled = !program.frmParams.cboLongWordSize.Items().empty();
    if (filled && program.frmParams.cboLongWordSize.ListIndex() == -1) step("number lists filled");
    if (program.frmParams.cboLongWordSize.ListIndex() == 3) step("defaults set");
    if (program.frmParams.cboLongWordSize.ListIndex() == 5) step("settings restored");
  });
  program.frmMain.lblNumberOfWords.Changed.Connect([&] {
    if (!program.frmMain.lblNumberOfWords.Visible()) step("word counts hidden");
  });
  program.frmMain.optFolder.Click.Connect([&] { step("folder source selected"); });
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(steps, ElementsAre("title: Quillomat 7.07", "lists filled", "number lists filled",
                                 "word counts hidden", "window shown", "folder source selected",
                                 "defaults set", "settings restored"));
  EXPECT_EQ(std::filesystem::current_path(), root);
  EXPECT_TRUE(program.Flags().blnStartUpCompleted);
}

TEST_F(StartUp, FocusIsWhereTheUserGoesOn) {
  ASSERT_TRUE(program.Start());
  EXPECT_EQ(program.frmMain.Focused(), &program.frmMain.cmdFolder);
  StateLines lines = InitialLines();
  lines[0] = Quoted(folder.Path());
  KeepSettings(FileOfLines(lines));
  ScriptedDesktop again;
  Program next(again);
  ASSERT_TRUE(next.Start());
  EXPECT_EQ(next.frmMain.Focused(), &next.frmMain.cmdCountWords);
}

TEST_F(StartUp, SettingsComeBackWithWhatHangsOnThem) {
  KeepSettings(FileOfLines(ChangedLines(folder)));
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), ElementsAre("Words loaded", "Words loaded"));
  EXPECT_THAT(program.Settings().lists.ExtraIgnoreList.Words(), ElementsAre("ox", "cow"));
  EXPECT_THAT(program.Settings().lists.ExtraCountOnlyList.Words(), ElementsAre("hen"));
  EXPECT_THAT(program.Settings().lists.IgnoreList.Words(), ElementsAre("dog"));
  EXPECT_THAT(program.Settings().lists.CountOnlyList.Words(), ElementsAre("cat", "rat"));
  EXPECT_NE(program.frmMain.lblFilesize.Caption(), "");
  EXPECT_FALSE(program.Count().Extensions().IsScannable("a.bak"));
  EXPECT_TRUE(program.Count().Extensions().IsScannable("a.txt"));
  EXPECT_EQ(program.frmMain.txbOutput.Text(), "");
}

TEST_F(StartUp, LostWordsToIgnoreAreReplacedByTheCommonWordsWithoutAMessage) {
  StateLines lines = InitialLines();
  lines[42] = Quoted(folder / "lost.txt");
  KeepSettings(FileOfLines(lines));
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(program.frmParams.txbWordsFile[0].Text().ends_with("cwds_en.txt"));
}

TEST_F(StartUp, LostCountOnlyWordsSpoilNothingElse) {
  StateLines lines = ChangedLines(folder);
  lines[43] = Quoted(folder / "lost.txt");
  KeepSettings(FileOfLines(lines));
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), ElementsAre("Words loaded"));
  EXPECT_EQ(program.frmMain.cboDisplayFormat.ListIndex(), 8);
  EXPECT_TRUE(program.frmMain.optInFile.Value());
}

TEST_F(StartUp, WindowClosedMeanwhileEndsIt) {
  KeepSettings(FileOfLines(ChangedLines(folder)));
  desktop.AtMessage("Words loaded", [&] { program.frmMain.CloseRequested.Fire(); });
  EXPECT_FALSE(program.Start());
  EXPECT_TRUE(program.HasEnded());
  EXPECT_FALSE(program.Flags().blnStartUpCompleted);
}

TEST_F(StartUp, LostFolderIsTold) {
  StateLines lines = InitialLines();
  lines[0] = Quoted(folder / "lost");
  KeepSettings(FileOfLines(lines));
  ASSERT_TRUE(program.Start());
  ASSERT_EQ(desktop.Messages().size(), 1U);
  EXPECT_EQ(desktop.Messages()[0].text, "Folder does not exist.");
  EXPECT_EQ(program.frmMain.txbFolder.Text(), folder / "lost");
}

TEST_F(StartUp, TextFileThatIsMissingEndsItBeforeTheWindowIsShown) {
  const ScopedVariable data("QUILLOMAT_DATA", folder.Path());
  EXPECT_FALSE(program.Start());
  ASSERT_EQ(desktop.Messages().size(), 1U);
  EXPECT_EQ(
      desktop.Messages()[0],
      (MessageBox{"Cannot open file containing program text.\r\n" + (folder / "qlav_text.dat"), "",
                  MessageIcon::kCritical, MessageButtons::kOk, MessageSeverity::kError}));
  EXPECT_FALSE(program.frmMain.Visible());
  EXPECT_FALSE(program.Flags().blnStartUpCompleted);
}

TEST_F(StartUp, TextFileWithADuplicateIsRefusedWithItsLine) {
  std::string texts = "1 EN Quillomat\n1 DE Quillomat\n";
  for (int line = 3; line < 12; ++line) texts += "#\n";
  static_cast<void>(folder.Write("qlav_text.dat", texts + "1 EN Quillomat\n"));
  const ScopedVariable data("QUILLOMAT_DATA", folder.Path());
  EXPECT_FALSE(program.Start());
  ASSERT_EQ(desktop.Messages().size(), 1U);
  EXPECT_EQ(desktop.Messages()[0].text, "Duplicate in program text at line 12.");
}

TEST_F(StartUp, HomeThatCannotBeWrittenToIsNoHindrance) {
  const ScopedVariable config(UserHome::kVariable, folder.Write("file", "") + "/below");
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(program.frmMain.Visible());
}

TEST_F(StartUp, SettingsPathThatIsAFolderCountsAsNoSettings) {
  std::filesystem::create_directories(home.SettingsFile());
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(StartUp, LanguageIsTheOneChosenLast) {
  desktop.Memory().CreateOrOpenKey("Software\\Orvandel Systems\\Quillomat");
  desktop.Memory().WriteValue("Software\\Orvandel Systems\\Quillomat", "Language", "DE");
  ASSERT_TRUE(program.Start());
  EXPECT_EQ(program.frmMain.cmdQuit.Caption(), "Beenden");
  EXPECT_EQ(program.frmMain.cmdCountWords.Caption(), "Worth\u00E4ufigkeiten ermitteln");
  EXPECT_EQ(program.frmHelp.Caption(), "QLAV-Hilfe");
}

TEST_F(StartUp, WithoutUserSettingsNothingIsLookedUpAndNothingMade) {
  KeepSettings(FileOfLines(ChangedLines(folder)));
  desktop.Memory().CreateOrOpenKey("Software\\Orvandel Systems\\Quillomat");
  desktop.Memory().WriteValue("Software\\Orvandel Systems\\Quillomat", "Language", "DE");
  const auto before = std::filesystem::current_path();
  ASSERT_TRUE(program.Start({.userSettings = false, .window = false}));
  EXPECT_EQ(program.frmMain.txbFolder.Text(), "");
  EXPECT_EQ(program.frmMain.cmdQuit.Caption(), "Quit");
  EXPECT_FALSE(program.frmMain.Visible());
  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(StartUp, RestoredStateAsksNothing) {
  StateLines lines = ChangedLines(folder);
  lines[kSourceLine] = "0";
  KeepSettings(FileOfLines(lines));
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(desktop.Titles(), ElementsAre("Words loaded", "Words loaded"));
  EXPECT_TRUE(program.frmMain.optOnClipboard.Value());
  EXPECT_FALSE(program.Words().blnWordsGot);
  EXPECT_FALSE(program.State().Busy());
}

// Initialize.

class Initialize : public ProgramFixture {};

TEST_F(Initialize, PutsEverythingBackToTheFirstStart) {
  const ProgramImage before = ImageOf(program);
  const std::string path = folder.Write("changed.qlm", FileOfLines(ChangedLines(folder)));
  ASSERT_EQ(program.States().RestoreSavedState(path), RestoreResult::kRestored);
  const ProgramImage changed = ImageOf(program);
  EXPECT_NE(changed, before);
  desktop.ForgetQuestions();
  CountFile(folder.Write("open.c", "cat /* dog"));
  program.Initialize();
  EXPECT_EQ(Differences(before, ImageOf(program)), "");
  EXPECT_EQ(program.Settings().settings.OpenComment, -1) << "no comment is open any more";
  EXPECT_FALSE(program.Output().DisplayingWords());
}

TEST_F(Initialize, GoesThroughItsStepsInOrder) {
  ASSERT_EQ(program.States().RestoreSavedState(
                folder.Write("changed.qlm", FileOfLines(ChangedLines(folder)))),
            RestoreResult::kRestored);
  const std::filesystem::path root = std::filesystem::current_path().root_path();
  std::vector<std::string> steps;
  const auto note = [&](Control& control) {
    control.Changed.Connect([&steps, &control] {
      if (std::ranges::find(steps, control.Name()) == steps.end()) steps.push_back(control.Name());
    });
  };
  for (Control* control : Main().Controls()) note(*control);
  for (TextBox* box : {&Panel().txbStateFile, &Panel().txbWordsFile[0], &Panel().txbWordsFile[1],
                       &Panel().txbWordsToIgnoreOrCount[0], &Panel().txbWordsToIgnoreOrCount[1],
                       &Panel().txbEndComment[0]}) {
    note(*box);
  }
  note(Panel().chkCaseSignificant);
  note(Panel().cboThresholdFrequency);
  Panel().txbStateFile.SetText("x");
  Main().lblNumberOfWords.SetVisible(true);
  steps.clear();
  program.Initialize();
  EXPECT_THAT(steps,
              ElementsAre("lblNumberOfWords", "optInFile", "optFolder", "lblFilesize", "txbFolder",
                          "txbStateFile", "txbFile(0)", "txbFileExtensions(0)", "txbWordsFile(0)",
                          "txbWordsToIgnoreOrCount(0)", "txbFile(1)", "txbFileExtensions(1)",
                          "txbWordsFile(1)", "txbWordsToIgnoreOrCount(1)", "chkCaseSignificant",
                          "txbEndComment(0)", "cboThresholdFrequency", "chkSuppressWords",
                          "chkDisableOutputToFile", "chkIncludeSubfolders", "cboWordOrder",
                          "cboDisplayFormat"));
}

}  // namespace
}  // namespace quillomat
