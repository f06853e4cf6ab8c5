// State files that are not as they should be, at start-up and from the panel: the program says
// what it must, never crashes, and is in its initial state afterwards, never half restored.
#include <cstdint>
#include <filesystem>
#include <gmock/gmock.h>
#include <iostream>
#include <optional>
#include <random>

#include "app/program_image.h"
#include "app/state_lines.h"
#include "support/program_fixture.h"
#include "support/user_home.h"

namespace quillomat {
namespace {

using Random = std::mt19937_64;

struct BadLine {
  const char* value;
  RestoreResult result;
  bool invalidIndex = false;
};

/// What may stand in line `line` instead of what should.
std::vector<BadLine> BadValues(std::size_t line) {
  using enum RestoreResult;
  if (std::ranges::find(kComboLines, line) != std::end(kComboLines)) {
    return {{"-1", kInvalidIndex, true},
            {"14", kError, true},
            {"99", kError, true},
            {"-2", kError, true},
            {"cat", kError},
            {"1 2", kError},
            {"1.5", kError},
            {"4000000000", kError}};
  }
  if (line >= kFirstCheckBoxLine && line <= kLastCheckBoxLine) {
    return {{"3", kError}, {"-1", kError}, {"40000", kError}, {"1e300", kError}};
  }
  if (line == kSourceLine) return {{"cat", kError}, {"99999999999", kError}};
  return {};
}

class BadStateFile : public ProgramFixture {
 protected:
  BadStateFile() : initial_(ImageOf(program)) {}

  /// Loads it on the panel after a count, and checks what the user sees.
  RestoreResult LoadOnPanel(const std::string& contents) {
    program.Initialize();
    CountClipboard("cat dog");
    EXPECT_TRUE(Words().blnWordsGot);
    desktop.ForgetQuestions();
    desktop.AnswerFile(folder.Write("bad.qlm", contents));
    Panel().cmdSaveLoadState[1].PerformClick();
    const RestoreResult result = ResultShown();
    if (WasReset(result)) {
      EXPECT_EQ(Differences(initial_, ImageOf(program)), "");
    }
    EXPECT_FALSE(program.Flags().blnInhibitPrompt);
    EXPECT_FALSE(program.State().Busy());
    return result;
  }

  /// Starts a program with it as the settings file, and checks what the user sees.
  /// `invalidIndex`: whether it must say so; no value when either may be.
  void StartWith(const std::string& contents, RestoreResult expected,
                 std::optional<bool> invalidIndex = false) {
    const UserHome home;
    std::filesystem::create_directories(std::filesystem::path(home.SettingsFile()).parent_path());
    std::ofstream(home.SettingsFile(), std::ios::binary) << contents;
    ScriptedDesktop newDesktop;
    Program started(newDesktop);
    ASSERT_TRUE(started.Start());
    std::vector<MessageBox> told;
    for (const MessageBox& box : newDesktop.Messages()) {
      if (box.title == "Load state") told.push_back(box);
    }
    if (!WasReset(expected)) {
      EXPECT_TRUE(told.empty()) << told[0].text;
      return;
    }
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].icon, MessageIcon::kExclamation);
    EXPECT_EQ(told[0].buttons, MessageButtons::kOk);
    const std::string message = "Invalid combo box index when attempting to load previous state.";
    if (invalidIndex.value_or(told[0].text == message)) {
      EXPECT_EQ(told[0].text, message);
    } else {
      EXPECT_TRUE(told[0].text.starts_with("Error when attempting to load previous state: "));
    }
    EXPECT_EQ(Differences(initial_, ImageOf(started)), "");
    EXPECT_TRUE(started.Flags().blnStartUpCompleted);
  }

  static bool WasReset(RestoreResult result) {
    return result == RestoreResult::kInvalidIndex || result == RestoreResult::kError;
  }

 private:
  RestoreResult ResultShown() {
    std::vector<std::string> told;
    for (const MessageBox& box : desktop.Messages()) {
      if (box.title == "Load state") told.push_back(box.text);
    }
    const bool loaded = Panel().lblState.Caption() == "State loaded from";
    if (loaded) {
      EXPECT_TRUE(told.empty());
      return RestoreResult::kRestored;
    }
    EXPECT_EQ(Panel().lblState.Caption(), "Error loading from");
    if (told.empty()) return RestoreResult::kWordsFileFailed;
    EXPECT_EQ(told.size(), 1U);
    if (told[0] == "Invalid combo box index.") return RestoreResult::kInvalidIndex;
    EXPECT_TRUE(told[0].starts_with("Error when attempting to load state: ")) << told[0];
    return RestoreResult::kError;
  }

 protected:
  const ProgramImage initial_;
};

TEST_F(BadStateFile, CutAfterAnyLine) {
  const StateLines changed = ChangedLines(folder);
  for (std::size_t count = 0; count < changed.size(); ++count) {
    SCOPED_TRACE(count);
    const auto end = changed.begin() + static_cast<std::ptrdiff_t>(count);
    const std::string head = FileOfLines(StateLines(changed.begin(), end));
    EXPECT_EQ(LoadOnPanel(head), RestoreResult::kError);
    EXPECT_EQ(desktop.Messages().back().text,
              "Error when attempting to load state: Input past end of file");
    StartWith(head, RestoreResult::kError);
  }
  EXPECT_EQ(LoadOnPanel(FileOfLines(changed)), RestoreResult::kRestored);
}

TEST_F(BadStateFile, CutInsideTheLastLineOrWithoutItsEnd) {
  const std::string whole = FileOfLines(ChangedLines(folder));
  EXPECT_EQ(LoadOnPanel(whole.substr(0, whole.size() - 2)), RestoreResult::kRestored);
  EXPECT_EQ(LoadOnPanel(whole.substr(0, whole.size() - 3)), RestoreResult::kError);
}

TEST_F(BadStateFile, ValueThatIsNoneOrOutOfRangeInAnyLine) {
  const StateLines changed = ChangedLines(folder);
  for (std::size_t line = 0; line < changed.size(); ++line) {
    for (const BadLine& bad : BadValues(line)) {
      SCOPED_TRACE("line " + std::to_string(line + 1) + ": " + bad.value);
      StateLines lines = changed;
      lines[line] = bad.value;
      EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), bad.result);
      StartWith(FileOfLines(lines), bad.result, bad.invalidIndex);
    }
  }
}

TEST_F(BadStateFile, TextThatIsNotQuotedIsTakenAsItStands) {
  const StateLines changed = ChangedLines(folder);
  for (const std::size_t line : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U}) {
    SCOPED_TRACE(line);
    StateLines lines = changed;
    lines[line] = "cat";
    EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), RestoreResult::kRestored);
    lines[line] = "\"cat";
    EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), RestoreResult::kRestored);
  }
}

TEST_F(BadStateFile, WordsFileThatIsMissingLeavesTheRestLoaded) {
  for (const std::size_t line : {42U, 43U}) {
    StateLines lines = ChangedLines(folder);
    lines[line] = Quoted(folder / "none.txt");
    EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), RestoreResult::kWordsFileFailed);
    EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), 8);
    EXPECT_EQ(Panel().txbStartComment[0].Text(), "#");
    EXPECT_TRUE(Main().optInFile.Value());
    StartWith(FileOfLines(lines), RestoreResult::kWordsFileFailed);
  }
}

TEST_F(BadStateFile, WithoutAnItemSelectedTheProgramStillCounts) {
  // A words file that is missing weighs more than the missing item, so this state stays.
  StateLines lines = ChangedLines(folder);
  for (const std::size_t line : kComboLines) lines[line] = "-1";
  lines[43] = Quoted(folder / "none.txt");
  EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), RestoreResult::kWordsFileFailed);
  Main().txbFile[1].SetText("");
  desktop.ForgetQuestions();
  CountClipboard("cat hen dog hen");
  EXPECT_EQ(OnlyMessage().text, "File for count-only words not found.");
  Panel().txbWordsFile[1].SetText("");
  CountClipboard("cat hen dog hen");
  EXPECT_EQ(StoredWords(), "hen*2");
  EXPECT_NE(Output(), "");
}

TEST_F(BadStateFile, TenMegabytes) {
  StateLines lines = ChangedLines(folder);
  lines[4] = Quoted(std::string(10'000'000, 'x'));
  EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), RestoreResult::kRestored);
  EXPECT_EQ(LoadOnPanel(std::string(10'000'000, '"')), RestoreResult::kError);
  EXPECT_EQ(LoadOnPanel(FileOfLines(ChangedLines(folder)) + std::string(10'000'000, '\n')),
            RestoreResult::kRestored);
  lines[11] = std::string(10'000'000, '1');
  EXPECT_EQ(LoadOnPanel(FileOfLines(lines)), RestoreResult::kError);
}

TEST_F(BadStateFile, RandomBytesAndDamagedFiles) {
  const std::string whole = FileOfLines(ChangedLines(folder));
  const std::uint64_t fresh = std::random_device()();
  std::cout << "fresh seed " << fresh << std::endl;
  for (const std::uint64_t seed : {std::uint64_t{1234}, fresh}) {
    Random random(seed);
    for (int round = 0; round < 150; ++round) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
      std::string bytes = round % 3 == 0 ? std::string(random() % 3000, '\0') : whole;
      const std::size_t changes = round % 3 == 0 ? bytes.size() : 1 + random() % 8;
      for (std::size_t i = 0; i < changes && !bytes.empty(); ++i) {
        const std::size_t place = round % 3 == 0 ? i : random() % bytes.size();
        switch (round % 3) {
          case 1:
            bytes.erase(place, 1 + random() % 4);
            break;
          case 2:
            bytes.insert(place, 1, static_cast<char>(random()));
            break;
          default:
            bytes[place] = static_cast<char>(random());
        }
      }
      const RestoreResult result = LoadOnPanel(bytes);
      if (round % 15 == 0) StartWith(bytes, result, std::nullopt);
    }
  }
}

}  // namespace
}  // namespace quillomat
