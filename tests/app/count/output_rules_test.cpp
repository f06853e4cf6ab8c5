// A file that is read is never written: neither the counted text, nor a words file, nor a state, by
// any link, whatever the boxes say by then.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OutputRules : public CountFixture {
 protected:
  OutputRules() {
    ListWordsOnly();
    DoNotWarn();
  }

  /// Counts the folder of three words with that output file, and sees it refused.
  void ExpectRefusedInFolder(const std::string& output) {
    desktop.ForgetQuestions();
    ListTo(output);
    CountFolder(folder / "g");
    EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid output file")) << output;
    EXPECT_EQ(ContentsOf(folder / "g/a.txt"), "dog");
  }

  void Link(const std::string& target, const std::string& link) {
    std::filesystem::create_symlink(TestPath(target), TestPath(link));
  }
};

TEST_F(OutputRules, ALinkToACountedFileIsRefused) {
  const std::string text = folder.Write("g/a.txt", "dog");
  Link(text, folder / "la.txt");
  ExpectRefusedInFolder(folder / "la.txt");
}

TEST_F(OutputRules, AnotherNameOfACountedFileIsRefused) {
  const std::string text = folder.Write("g/a.txt", "dog");
  std::filesystem::create_hard_link(TestPath(text), TestPath(folder / "hard.txt"));
  ExpectRefusedInFolder(folder / "hard.txt");
}

TEST_F(OutputRules, AFileThatIsCountedThroughALinkIsRefused) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  Link(folder.Write("outside.txt", "cat"), folder / "g/link.txt");
  ExpectRefusedInFolder(folder / "outside.txt");
  EXPECT_EQ(ContentsOf(folder / "outside.txt"), "cat");
}

TEST_F(OutputRules, AFolderIsTheSameByALink) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  Link(folder / "g", folder / "lg");
  ExpectRefusedInFolder(folder / "lg/new.txt");
  ListTo(folder / "g/new.txt");
  desktop.ForgetQuestions();
  CountFolder(folder / "lg");
  EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid output file"));
}

TEST_F(OutputRules, AFileBesideTheFolderIsWritten) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  static_cast<void>(folder.Write("g/sub/b.txt", "cat"));
  Link(folder.Write("old.txt", "old"), folder / "list.txt");
  ListTo(folder / "list.txt");
  CountFolder(folder / "g");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(Has(ContentsOf(folder / "old.txt"), "dog"));
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
  const std::string words = folder.Write("words.txt", "dog\n");
  Panel().txbWordsFile[0].SetText(words);
  ListTo(words);
  CountClipboard("dog cat");
  ExpectMessage(OnlyMessage(), "The output file cannot be the same as a words file.",
                "Invalid output file", MessageIcon::kExclamation);
  EXPECT_EQ(ContentsOf(words), "dog\n");
  EXPECT_THAT(desktop.InputBoxes(), IsEmpty());
}

TEST_F(OutputRules, TheStateThatWasLoadedIsRefused) {
  const std::string state = folder / "mine.qlm";
  ASSERT_EQ(program.savedState.SaveState(state), "");
  const std::string before = ContentsOf(state);
  ASSERT_EQ(program.savedState.RestoreSavedState(state), RestoreResult::kRestored);
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
  EXPECT_EQ(program.savedState.SaveState(text), start + "the file is the text that is counted.");
  EXPECT_EQ(program.savedState.SaveState(words), start + "the file is a words file.");
  EXPECT_EQ(program.savedState.SaveState(folder / "new.qlm"), "");
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  CountFolder(folder / "g");
  EXPECT_EQ(program.savedState.SaveState(folder / "g/new.qlm"),
            start + "the file lies in the folder that is counted.");
}

}  // namespace
}  // namespace quillomat
