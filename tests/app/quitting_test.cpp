// The end of the program: what is saved, what is told, and that nothing stops it.
#include <filesystem>
#include <gmock/gmock.h>

#include "app/state_lines.h"
#include "support/colliding_words.h"
#include "support/program_fixture.h"
#include "support/user_home.h"

namespace quillomat {
namespace {

class Quitting : public ProgramFixture {
 protected:
  Quitting() {
    program.UseSettingsFolder();
    program.Ended.Connect([this] { ++ends; });
  }

  [[nodiscard]] bool SuppressedNextTime() {
    Program next(desktop);
    EXPECT_TRUE(next.Start({.userSettings = true, .window = false}));
    return next.frmMain.chkSuppressWords.IsChecked();
  }

  [[nodiscard]] static std::string TextThatFillsTheBox() {
    std::string text;
    for (int i = 0; i < 8'000; ++i) {
      for (int rest = i + 1; rest > 0; rest /= 26) text += static_cast<char>('a' + rest % 26);
      text += "ab ";
    }
    return text;
  }

  UserHome home;
  int ends = 0;
};

TEST_F(Quitting, SavesTheStateEvenThoughNothingWasCounted) {
  Main().cmdQuit.PerformClick();
  EXPECT_EQ(ContentsOf(home.SettingsFile()), FileOfLines(InitialLines()));
  EXPECT_THAT(desktop.Titles(), testing::IsEmpty());
  EXPECT_TRUE(program.HasEnded());
  EXPECT_EQ(ends, 1);
}

TEST_F(Quitting, ForgetsThatALargeTextHasSuppressedTheDisplayOfWords) {
  CountFile(folder.Write("many.txt", TextThatFillsTheBox()));
  ASSERT_TRUE(Main().chkSuppressWords.IsChecked()) << "the box would not hold them";
  Main().cmdQuit.PerformClick();
  EXPECT_FALSE(SuppressedNextTime());
}

TEST_F(Quitting, SessionWhoseEndIsCalledOffLeavesTheBoxesAsTheyStand) {
  CountFile(folder.Write("many.txt", TextThatFillsTheBox()));
  ASSERT_TRUE(Main().chkSuppressWords.IsChecked());
  const std::string output = Output();
  program.KeepSettings();
  EXPECT_FALSE(SuppressedNextTime());
  EXPECT_TRUE(Main().chkSuppressWords.IsChecked()) << "the user sees it on";
  EXPECT_EQ(Output(), output);
  program.KeepSettings();
  EXPECT_FALSE(SuppressedNextTime()) << "it is still no choice of the user's";
}

TEST_F(Quitting, SessionThatEndsWhileAWordsFileIsReadKeepsNoBoxesOfTheReading) {
  EveryYieldPumps();
  std::string words;
  for (int i = 0; i < 3000; ++i) words += "ox\r\n";
  bool isKept = true;
  desktop.AtPump(desktop.Pumps() + 3, [&] {
    EXPECT_TRUE(Main().chkSuppressWords.IsChecked()) << "as the reading needs it";
    program.KeepSettings();
    isKept = std::filesystem::exists(home.SettingsFile());
  });
  desktop.AnswerFile(folder.Write("w.txt", words));
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_FALSE(isKept);
}

TEST_F(Quitting, KeepsTheUsersOwnWishToSuppressWords) {
  Main().chkSuppressWords.PerformClick();
  CountFile(folder.Write("a.txt", "cat"));
  Main().cmdQuit.PerformClick();
  EXPECT_TRUE(SuppressedNextTime());
}

TEST_F(Quitting, SessionThatEndsLeavesTheSettingsSavedWithoutAWord) {
  program.KeepSettings();
  EXPECT_EQ(ContentsOf(home.SettingsFile()), FileOfLines(InitialLines()));
  EXPECT_FALSE(program.HasEnded()) << "the user may yet cancel that";
  std::filesystem::remove(home.SettingsFile());
  Panel().chkSaveStateOnQuit.SetChecked(false);
  program.KeepSettings();
  EXPECT_FALSE(std::filesystem::exists(home.SettingsFile()));
  Panel().chkSaveStateOnQuit.SetChecked(true);
  std::filesystem::create_directories(home.SettingsFile());
  program.KeepSettings();
  EXPECT_THAT(desktop.Titles(), testing::IsEmpty()) << "nobody may be asked anything";
}

TEST_F(Quitting, SavesNothingWhenTheUserDoesNotWishIt) {
  Panel().chkSaveStateOnQuit.SetChecked(false);
  Main().cmdQuit.PerformClick();
  EXPECT_FALSE(std::filesystem::exists(home.SettingsFile()));
  EXPECT_TRUE(program.HasEnded());
}

TEST_F(Quitting, SavesNothingWhenTheBoxIsHalfChecked) {
  Panel().chkSaveStateOnQuit.SetValue(CheckState::kGrayed);
  Main().cmdQuit.PerformClick();
  EXPECT_FALSE(std::filesystem::exists(home.SettingsFile()));
}

TEST_F(Quitting, GoesOnWhenTheStateCannotBeSaved) {
  std::filesystem::create_directories(home.SettingsFile());
  Main().cmdQuit.PerformClick();
  const MessageBox box = OnlyMessage();
  EXPECT_TRUE(box.text.starts_with("Error when attempting to save state: ")) << box.text;
  EXPECT_EQ(box.title, "Error");
  EXPECT_EQ(box.icon, MessageIcon::kExclamation);
  EXPECT_EQ(box.buttons, MessageButtons::kOk);
  EXPECT_EQ(ends, 1);
}

TEST_F(Quitting, ClosingTheWindowIsTheSame) {
  Main().CloseRequested.Fire();
  EXPECT_EQ(ContentsOf(home.SettingsFile()), FileOfLines(InitialLines()));
  EXPECT_EQ(ends, 1);
  Main().CloseRequested.Fire();
  EXPECT_EQ(ends, 1) << "it ends once";
}

TEST_F(Quitting, WhileAWordsFileIsReadTellsNothingMore) {
  EveryYieldPumps();
  std::string words;
  for (int i = 0; i < 3000; ++i) words += "ox\r\n";
  desktop.AtPump(desktop.Pumps() + 3, [&] { Main().CloseRequested.Fire(); });
  desktop.AnswerFile(folder.Write("w.txt", words));
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_EQ(ends, 1);
  EXPECT_THAT(desktop.Titles(), testing::ElementsAre("Specify file containing words to ignore"));
}

TEST_F(Quitting, AtTheQuestionAboutManyFilesCountsNone) {
  const std::string texts = folder.Make("t");
  static_cast<void>(folder.Write("t/a.txt", "cat"));
  static_cast<void>(folder.Write("t/b.txt", "dog"));
  desktop.AtMessage("Multiple files/folders", [&] { Main().CloseRequested.Fire(); });
  desktop.Answer(MessageAnswer::kOk);
  CountFolder(texts);
  EXPECT_EQ(ends, 1);
  EXPECT_THAT(desktop.Titles(), testing::ElementsAre("Multiple files/folders"));
  EXPECT_EQ(StoredWords(), "");
}

TEST_F(Quitting, AtTheQuestionAboutAStoppedCountListsNothing) {
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 3, [&] { Main().cmdCountWords.PerformClick(); });
  desktop.AtMessage("Counting interrupted", [&] { Main().CloseRequested.Fire(); });
  desktop.Answer(MessageAnswer::kYes);
  CountClipboard("cat dog emu fox");
  EXPECT_EQ(ends, 1);
  EXPECT_THAT(Output(), testing::EndsWith("words found."));
}

TEST_F(Quitting, WhileAnInterruptedListIsRelistedTellsNothingMore) {
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 4, [&] { Main().cmdCountWords.PerformClick(); });
  desktop.Answer(MessageAnswer::kYes);
  CountClipboard("cat dog emu fox gnu hen");
  desktop.ForgetQuestions();
  desktop.AtPump(desktop.Pumps() + 1, [&] { Main().CloseRequested.Fire(); });
  Main().cboWordOrder.PerformChoice(1);
  EXPECT_EQ(ends, 1);
  EXPECT_THAT(desktop.Titles(), testing::IsEmpty());
}

TEST_F(Quitting, InAListThatFillsTheBoxTellsNothingMore) {
  std::string text;
  for (std::size_t i = 0; i < 9'000; ++i) text.append("wo").append(InLetters(i, 3)).append("rd ");
  Main().cboDisplayFormat.SetListIndex(8);
  CountClipboard(text);
  ASSERT_TRUE(program.Output().IsFull());
  desktop.ForgetQuestions();
  EveryYieldPumps();
  desktop.AtPump(desktop.Pumps() + 8'900, [&] { Main().CloseRequested.Fire(); });
  Main().cboWordOrder.PerformChoice(1);
  EXPECT_EQ(ends, 1);
  EXPECT_THAT(desktop.Titles(), testing::IsEmpty());
}

TEST_F(Quitting, AtTheQuestionWhetherToRelistListsNothing) {
  CountClipboard("cat");
  Main().txbFile[1].SetText(folder / "list.txt");
  Main().chkDisableOutputToFile.SetChecked(true);
  desktop.AtMessage("Relist?", [&] { Main().CloseRequested.Fire(); });
  desktop.Answer(MessageAnswer::kYes);
  Main().chkDisableOutputToFile.PerformClick();
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(std::filesystem::exists(folder / "list.txt"));
}

TEST_F(Quitting, DuringACountStopsItFirstAndAsksNothing) {
  EveryYieldPumps();
  bool endedInsideTheRun = false;
  desktop.AtPump(desktop.Pumps() + 3, [&] {
    Main().CloseRequested.Fire();
    endedInsideTheRun = program.HasEnded();
  });
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "word ";
  CountClipboard(text);
  EXPECT_FALSE(endedInsideTheRun);
  EXPECT_EQ(ends, 1);
  EXPECT_THAT(desktop.Titles(), testing::IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(home.SettingsFile()));
}

}  // namespace
}  // namespace quillomat
