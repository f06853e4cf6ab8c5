// A file that is read is never written: neither the counted text, nor a words file, nor a state,
// whatever the boxes say by then.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/output_rules_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(OutputRules, AnotherNameOfACountedFileIsRefused) {
  const std::string text = folder.Write("g/a.txt", "dog");
  std::filesystem::create_hard_link(TestPath(text), TestPath(folder / "hard.txt"));
  ExpectRefusedInFolder(folder / "hard.txt");
}

TEST_F(OutputRules, AnotherNameOfACountedFileTakesNoState) {
  const std::string text = folder.Write("g/a.txt", "dog");
  std::filesystem::create_hard_link(TestPath(text), TestPath(folder / "hard.qlm"));
  CountFolder(folder / "g");
  EXPECT_EQ(program.States().SaveState(folder / "hard.qlm"),
            "Error when attempting to save state: the file lies in the folder that is counted.");
}

TEST_F(OutputRules, AnotherNameOfAFileThatWasNotCountedIsWritten) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  const std::string other = folder.Write("g/b.log", "cat");
  std::filesystem::create_hard_link(TestPath(other), TestPath(folder / "hard.txt"));
  Main().txbFileExtensions[0].SetText("txt");
  ListTo(folder / "hard.txt");
  CountFolder(folder / "g");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(Has(ContentsOf(folder / "hard.txt"), "dog"));
  EXPECT_EQ(ContentsOf(other), "cat");
}

TEST_F(OutputRules, TheTextThatWasCountedIsSparedWhateverTheButtonsSayNow) {
  const std::string text = folder.Write("a.txt", "dog");
  CountFile(text);
  Main().optOnClipboard.SetValue(true);
  ListTo(text);
  ChooseOrder(WordOrder::kAlphabetical);
  ExpectMessage(OnlyMessage(), "The output file cannot be the same as the input file.", "Error",
                MessageIcon::kExclamation);
  EXPECT_EQ(ContentsOf(text), "dog");
}

TEST_F(OutputRules, AFileThatIsNotCountedMayBeWrittenWhateverTheButtonsSayNow) {
  const std::string other = folder.Write("b.txt", "cat");
  CountFile(folder.Write("a.txt", "dog"));
  Main().txbFile[0].SetText(other);
  ListTo(other);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(Has(ContentsOf(other), "dog"));
}

TEST_F(OutputRules, TheRuleSpeaksBeforeTheQuestionWhetherToOverwrite) {
  Panel().chkWarnOnOverwrite.SetChecked(true);
  const std::string text = folder.Write("a.txt", "dog");
  CountFile(text);
  ListTo(text);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_THAT(desktop.InputBoxes(), IsEmpty());
  EXPECT_EQ(ContentsOf(text), "dog");
}

TEST_F(OutputRules, AWordsFileIsRefusedBeforeAnythingIsCounted) {
  const std::string words = folder.Write("words.txt", "dog\r\n");
  Panel().txbWordsFile[0].SetText(words);
  ListTo(words);
  CountClipboard("dog cat");
  ExpectMessage(OnlyMessage(), "The output file cannot be the same as a words file.",
                "Invalid output file", MessageIcon::kExclamation);
  EXPECT_EQ(ContentsOf(words), "dog\r\n");
  EXPECT_THAT(desktop.InputBoxes(), IsEmpty());
}

TEST_F(OutputRules, TheStateThatWasLoadedIsRefused) {
  const std::string state = folder / "mine.qlm";
  ASSERT_EQ(program.States().SaveState(state), "");
  const std::string before = ContentsOf(state);
  ASSERT_EQ(program.States().RestoreSavedState(state), RestoreResult::kRestored);
  DoNotWarn();
  ListTo(state);
  CountClipboard("dog");
  EXPECT_EQ(OnlyMessage().text,
            "The output file cannot be the same as the state file that was loaded.");
  EXPECT_EQ(ContentsOf(state), before);
}

TEST_F(OutputRules, AStateIsNotSavedOverWhatIsRead) {
  const std::string text = folder.Write("a.txt", "dog");
  const std::string words = folder.Write("words.txt", "dog\n");
  Panel().txbWordsFile[0].SetText(words);
  CountFile(text);
  Main().txbFile[0].SetText("");
  const std::string start = "Error when attempting to save state: ";
  EXPECT_EQ(program.States().SaveState(text), start + "the file is the text that is counted.");
  EXPECT_EQ(program.States().SaveState(words), start + "the file is a words file.");
  EXPECT_EQ(program.States().SaveState(folder / "new.qlm"), "");
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  CountFolder(folder / "g");
  EXPECT_EQ(program.States().SaveState(folder / "g/new.qlm"),
            start + "the file lies in the folder that is counted.");
}

}  // namespace
}  // namespace quillomat
