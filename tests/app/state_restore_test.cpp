// State files: what is written comes back, and a file that is not as it should be has its code,
// does no harm, and leaves no half-set program.
#include <gmock/gmock.h>
#include <iostream>
#include <random>
#include <vector>

#include "app/setting_values.h"
#include "app/settings_table.h"
#include "app/state_file.h"
#include "support/program_fixture.h"
#include "support/user_home.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find("\r\n", start);
    if (end == std::string::npos) {
      ADD_FAILURE() << "a line without CR LF";
      break;
    }
    lines.push_back(text.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

std::string FileOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

class StateRestore : public ProgramFixture {
 protected:
  StateRestore() {
    EXPECT_EQ(program.States().SaveState(folder / "state.qlm"), "");
    initial_ = LinesOf(ContentsOf(folder / "state.qlm"));
  }

  RestoreResult Restore(const std::string& contents) {
    return program.States().RestoreSavedState(folder.Write("other.qlm", contents));
  }

  std::vector<std::string> Now() {
    EXPECT_EQ(program.States().SaveState(folder / "now.qlm"), "");
    return LinesOf(ContentsOf(folder / "now.qlm"));
  }

  /// Loads the file as the user does from the panel.
  void LoadOnPanel(const std::string& contents) {
    desktop.AnswerFile(folder.Write("other.qlm", contents));
    Panel().cmdSaveLoadState[1].PerformClick();
  }

  std::vector<std::string> initial_;
};

TEST_F(StateRestore, FileOfAFirstStartHasItsValuesLineByLine) {
  EXPECT_THAT(initial_,
              ElementsAre(R"("")", R"("")", R"("")", R"("")", R"("/*")", R"("*/")", R"("")",
                          R"("")", R"("")", R"("//")", R"("")", "1", "3", "0", "0", "0", "1", "1",
                          "1", "0", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0",
                          "1", "0", "1", "1", "0", "0", "0", "0", "0", R"("")", R"("")", "2"));
}

TEST_F(StateRestore, EveryLineIsItsControls) {
  Main().txbFolder.SetText("/f");
  Panel().txbWordsToIgnoreOrCount[0].SetText("ignore");
  Main().txbFile[0].SetText("/in");
  Main().txbFileExtensions[0].SetText("txt");
  Panel().txbStartComment[0].SetText("s0");
  Panel().txbEndComment[0].SetText("e0");
  Panel().txbWordsToIgnoreOrCount[1].SetText("only");
  Main().txbFile[1].SetText("/out");
  Main().txbFileExtensions[1].SetText("c");
  Panel().txbStartComment[1].SetText("s1");
  Panel().txbEndComment[1].SetText("e1");
  Panel().txbWordsFile[0].SetText("/w0");
  Panel().txbWordsFile[1].SetText("/w1");
  Main().optInFile.SetValue(true);
  const auto lines = Now();
  EXPECT_THAT(std::vector<std::string>(lines.begin(), lines.begin() + 11),
              ElementsAre(R"("/f")", R"("ignore")", R"("/in")", R"("txt")", R"("s0")", R"("e0")",
                          R"("only")", R"("/out")", R"("c")", R"("s1")", R"("e1")"));
  EXPECT_EQ(lines[42], R"("/w0")");
  EXPECT_EQ(lines[43], R"("/w1")");
  EXPECT_EQ(lines[44], "1");
}

TEST_F(StateRestore, CutFilesAreErrorsAfterEveryLine) {
  for (std::size_t lines = 0; lines < kStateValues; ++lines) {
    SCOPED_TRACE(lines);
    const std::vector<std::string> head(initial_.begin(),
                                        initial_.begin() + static_cast<std::ptrdiff_t>(lines));
    EXPECT_EQ(Restore(FileOf(head)), RestoreResult::kError);
    EXPECT_EQ(program.States().ErrorDescription(), "Input past end of file");
  }
  EXPECT_EQ(Restore(FileOf(initial_)), RestoreResult::kRestored);
}

TEST_F(StateRestore, IndexesThatAreNoneOrOutOfRangeHaveTheirCodes) {
  for (const std::size_t line : {11U, 12U, 13U, 40U, 41U}) {
    SCOPED_TRACE(line);
    auto lines = initial_;
    lines[line] = "-1";
    EXPECT_EQ(Restore(FileOf(lines)), RestoreResult::kInvalidIndex);
    for (const char* value : {"99", "-2", "4000000000", "cat", ""}) {
      lines[line] = value;
      EXPECT_EQ(Restore(FileOf(lines)), RestoreResult::kError) << value;
    }
  }
}

TEST_F(StateRestore, LostWordsFileIsNotTalkedAboutWhenItsBoxIsLeftForTheLoading) {
  for (const std::size_t i : {0U, 1U}) {
    SCOPED_TRACE(i);
    auto lines = initial_;
    lines[42 + i] = "\"" + (folder / "lost.txt") + "\"";
    Panel().SetFocus(Panel().txbWordsFile[i]);
    LoadOnPanel(FileOf(lines));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_EQ(Panel().lblState.Caption(), "Error loading from");
  }
  EXPECT_EQ(Panel().txbWordsFile[1].Text(), folder / "lost.txt") << "the next count will tell";
}

TEST_F(StateRestore, BoxThatIsLeftForALoadingThatIsCancelledIsTakenAllTheSame) {
  const std::string words = folder.Write("w.txt", "cat\r\n");
  Panel().SetFocus(Panel().txbWordsFile[1]);
  Panel().txbWordsFile[1].EnterText(words);
  desktop.AnswerFile(std::nullopt);
  Panel().cmdSaveLoadState[1].PerformClick();
  EXPECT_EQ(OnlyMessage().title, "Words loaded");
}

TEST_F(StateRestore, GarbageInAnyLineNeverHarms) {
  const std::string binary("\x00\xFF\xFE\x01", 4);
  for (std::size_t line = 0; line < kStateValues; ++line) {
    for (const std::string& garbage :
         {std::string("cat"), std::string("\"\"\""), binary, std::string(100'000, '9')}) {
      auto lines = initial_;
      lines[line] = garbage;
      LoadOnPanel(FileOf(lines));
      const bool loaded = Panel().lblState.Caption() == "State loaded from";
      const bool wordsFile = line == 42 || line == 43;
      if (!loaded && !wordsFile) {
        auto now = Now();
        EXPECT_EQ(now, initial_) << "line " << line;
      }
      program.Initialize();
      desktop.ForgetQuestions();
    }
  }
}

TEST_F(StateRestore, MissingWordsFileIsToldOnThePanelWithoutABoxAndTheRestStands) {
  auto lines = initial_;
  lines[0] = "\"" + folder.Path() + "\"";
  lines[43] = "\"" + (folder / "missing.txt") + "\"";
  LoadOnPanel(FileOf(lines));
  EXPECT_EQ(Panel().lblState.Caption(), "Error loading from");
  EXPECT_THAT(desktop.Titles(), ElementsAre("Specify file to load state from."));
  EXPECT_EQ(Main().txbFolder.Text(), folder.Path());
}

TEST_F(StateRestore, BadFilesOnThePanelAreSaidAndReset) {
  Main().txbFolder.SetText("/f");
  auto lines = initial_;
  lines[40] = "-1";
  LoadOnPanel(FileOf(lines));
  ASSERT_EQ(desktop.Messages().size(), 1U);
  ExpectMessage(desktop.Messages()[0], "Invalid combo box index.", "Load state",
                MessageIcon::kExclamation);
  EXPECT_EQ(Now(), initial_);
  desktop.ForgetQuestions();
  LoadOnPanel("");
  ExpectMessage(desktop.Messages()[0],
                "Error when attempting to load state: Input past end of file", "Load state",
                MessageIcon::kExclamation);
  EXPECT_EQ(Now(), initial_);
}

TEST_F(StateRestore, MarkersWithoutAStartAreDropped) {
  auto lines = initial_;
  lines[9] = R"("")";
  lines[10] = R"("x")";
  EXPECT_EQ(Restore(FileOf(lines)), RestoreResult::kRestored);
  EXPECT_EQ(Panel().txbEndComment[1].Text(), "");
  lines[4] = lines[5] = R"("")";
  lines[34] = "1";
  EXPECT_EQ(Restore(FileOf(lines)), RestoreResult::kRestored);
  EXPECT_FALSE(Panel().chkAllowCommentMarkers.IsChecked());
}

TEST_F(StateRestore, HugeFileIsNoTrouble) {
  auto lines = initial_;
  lines[0] = "\"" + std::string(10'000'000, 'x') + "\"";
  EXPECT_EQ(Restore(FileOf(lines)), RestoreResult::kRestored);
  EXPECT_EQ(Main().txbFolder.Length(), 10'000'000U);
}

TEST_F(StateRestore, RandomStatesComeBack) {
  const std::uint64_t fresh = std::random_device()();
  std::cout << "fresh seed " << fresh << std::endl;
  for (const std::uint64_t seed : {std::uint64_t{707}, fresh}) {
    std::mt19937_64 random(seed);
    for (int round = 0; round < 100; ++round) {
      for (const StateValue& value : StateValuesOf(Main(), Panel())) {
        if (auto* const* box = std::get_if<TextBox*>(&value)) {
          const std::vector<std::string> texts = {"",    " x ", "\xC3\xA9\xE2\x82\xAC",
                                                  "a,b", "1",   "'"};
          (*box)->SetText(texts[random() % texts.size()]);
        } else if (auto* const* combo = std::get_if<ComboBox*>(&value)) {
          (*combo)->SetListIndex(static_cast<int>(random() % (*combo)->Items().size()));
        } else if (auto* const* check = std::get_if<CheckBox*>(&value)) {
          (*check)->SetValue(static_cast<CheckState>(random() % 3));
        }
      }
      const auto before = Now();
      program.Initialize();
      EXPECT_EQ(program.States().ReadControls(folder / "now.qlm"), RestoreResult::kRestored);
      EXPECT_EQ(Now(), before) << "seed " << seed;
      program.Initialize();
      desktop.ForgetQuestions();
    }
  }
}

TEST_F(StateRestore, AnyListWithoutAnItemIsSaidAndReset) {
  int lists = 0;
  for (const Setting& setting : AllSettings()) {
    if (ControlOf(setting, Main(), Panel()).As<ComboBox>() == nullptr) continue;
    ++lists;
    SCOPED_TRACE(setting.control);
    LoadOnPanel(FileOf(initial_) + std::string(setting.control) + "=-1\r\n");
    ASSERT_EQ(desktop.Messages().size(), 1U);
    EXPECT_EQ(desktop.Messages()[0].text, "Invalid combo box index.");
    EXPECT_EQ(Now(), initial_);
    desktop.ForgetQuestions();
  }
  EXPECT_GE(lists, 7);
}

TEST_F(StateRestore, BadSettingsFileIsReportedOnceAtStartAndLeavesTheInitialState) {
  const UserHome home;
  const std::pair<std::string, std::string> cases[] = {
      {"-1", "Invalid combo box index when attempting to load previous state."},
      {"77", "Invalid combo box index when attempting to load previous state."}};
  for (const auto& [index, message] : cases) {
    auto lines = initial_;
    lines[0] = R"("/f")";
    lines[41] = index;
    std::filesystem::create_directories(std::filesystem::path(home.SettingsFile()).parent_path());
    std::ofstream(home.SettingsFile(), std::ios::binary) << FileOf(lines);
    ScriptedDesktop newDesktop;
    Program started(newDesktop);
    ASSERT_TRUE(started.Start());
    ASSERT_FALSE(newDesktop.Messages().empty());
    ExpectMessage(newDesktop.Messages().back(), message, "Load state", MessageIcon::kExclamation);
    EXPECT_EQ(started.frmMain.txbFolder.Text(), "");
    EXPECT_EQ(started.frmMain.cboDisplayFormat.ListIndex(), 0);
  }
}

}  // namespace
}  // namespace quillomat
