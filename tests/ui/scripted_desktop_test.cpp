#include "support/scripted_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;

const MessageBox kQuestion{"Really?", "Relist?", MessageIcon::kQuestion, MessageButtons::kYesNo};
const MessageBox kNotice{"Done.", "Save state", MessageIcon::kInformation, MessageButtons::kOk};

TEST(SplitFileFilterTest, DropsTheBlanksAroundTheBar) {
  EXPECT_THAT(SplitFileFilter("QLM state files (*.qlm) | *.qlm"),
              ElementsAre(FileFilter{"QLM state files (*.qlm)", "*.qlm"}));
}

TEST(SplitFileFilterTest, TakesSeveralPairs) {
  EXPECT_THAT(SplitFileFilter("Text|*.txt|All|*.*"),
              ElementsAre(FileFilter{"Text", "*.txt"}, FileFilter{"All", "*.*"}));
  EXPECT_THAT(SplitFileFilter("Anything"), ElementsAre(FileFilter{"Anything", "*"}));
  EXPECT_THAT(SplitFileFilter(""), ElementsAre());
}

TEST(ScriptedDesktopTest, RemembersWhatWasShown) {
  ScriptedDesktop desktop;
  desktop.Answer(MessageAnswer::kYes);
  EXPECT_EQ(desktop.ShowMessage(kNotice), MessageAnswer::kOk);
  EXPECT_EQ(desktop.ShowMessage(kQuestion), MessageAnswer::kYes);
  EXPECT_THAT(desktop.Messages(), ElementsAre(kNotice, kQuestion));
  EXPECT_THAT(desktop.Titles(), ElementsAre("Save state", "Relist?"));
}

TEST(ScriptedDesktopTest, AnswersByTitleComeFirst) {
  ScriptedDesktop desktop;
  desktop.Answer(MessageAnswer::kNo);
  desktop.Answer("Relist?", MessageAnswer::kYes);
  EXPECT_EQ(desktop.UnusedAnswers(), 2U);
  EXPECT_EQ(desktop.ShowMessage(kQuestion), MessageAnswer::kYes);
  EXPECT_EQ(desktop.ShowMessage(kQuestion), MessageAnswer::kNo);
  EXPECT_EQ(desktop.UnusedAnswers(), 0U);
}

FileDialog DialogTitled(const std::string& title) {
  FileDialog dialog;
  dialog.title = title;
  return dialog;
}

/// Runs the action, which asks what no script answers.
template <class Action>
void AskUnscripted(Action action) {
  try {
    action();
  } catch (const UnscriptedQuestion&) {
  }
}

TEST(ScriptedDesktopTest, UnscriptedQuestionFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(AskUnscripted([] { ScriptedDesktop().ShowMessage(kQuestion); }),
                          "the message \"Relist?\": Really?");
  EXPECT_NONFATAL_FAILURE(AskUnscripted([] {
                            ScriptedDesktop().AskForText({"Path", "", ""});
                          }),
                          "the input box \"Path\"");
  EXPECT_NONFATAL_FAILURE(AskUnscripted([] { (void)ScriptedDesktop().ChooseFile({}); }),
                          "the file dialog");
  EXPECT_NONFATAL_FAILURE(AskUnscripted([] { (void)ScriptedDesktop().BrowseForFolder("x", ""); }),
                          "the folder browser \"x\"");
}

TEST(ScriptedDesktopTest, AnswerThatIsNotOfferedFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(AskUnscripted([] {
                            ScriptedDesktop desktop;
                            desktop.Answer(MessageAnswer::kCancel);
                            desktop.ShowMessage(kQuestion);
                          }),
                          "the message \"Relist?\"");
}

TEST(ScriptedDesktopTest, DialogsAreAnsweredInOrder) {
  ScriptedDesktop desktop;
  desktop.AnswerText("typed");
  desktop.AnswerFile("/tmp/a.txt");
  desktop.AnswerFile(std::nullopt);
  desktop.AnswerFolder("/tmp");
  EXPECT_EQ(desktop.AskForText({"Path", "Where?", "here"}), "typed");
  EXPECT_EQ(desktop.ChooseFile(DialogTitled("Open")), "/tmp/a.txt");
  EXPECT_EQ(desktop.ChooseFile(DialogTitled("Again")), std::nullopt);
  EXPECT_EQ(desktop.BrowseForFolder("Select Folder", ""), "/tmp");
  EXPECT_THAT(desktop.Titles(), ElementsAre("Path", "Open", "Again", "Select Folder"));
  EXPECT_EQ(desktop.InputBoxes().front().defaultAnswer, "here");
  desktop.ForgetQuestions();
  EXPECT_THAT(desktop.Titles(), ElementsAre());
}

TEST(ScriptedDesktopTest, ClipboardHoldsTextAndCanFail) {
  ScriptedDesktop desktop;
  EXPECT_EQ(desktop.ClipboardText(), "");
  desktop.PutClipboardText("text");
  EXPECT_EQ(desktop.ClipboardText(), "text");
  desktop.ClearClipboard();
  EXPECT_EQ(desktop.Clipboard(), std::nullopt);
  desktop.FailClipboardRead(true);
  EXPECT_THROW((void)desktop.ClipboardText(), RunTimeError);
  desktop.FailClipboardWrite(true);
  EXPECT_THROW(desktop.PutClipboardText("x"), RunTimeError);
}

TEST(ScriptedDesktopTest, ActsAtTheScriptedPump) {
  ScriptedDesktop desktop;
  std::vector<int> pumps;
  desktop.AtPump(2, [&] { pumps.push_back(desktop.Pumps()); });
  desktop.AtPump(3, [&] { pumps.push_back(desktop.Pumps()); });
  for (int i = 0; i < 4; ++i) desktop.PumpEvents();
  EXPECT_THAT(pumps, ElementsAre(2, 3));
}

TEST(ScriptedDesktopTest, ActsAtTheScriptedMessage) {
  ScriptedDesktop desktop;
  int actions = 0;
  desktop.AtMessage(
      "Relist?", [&] { desktop.Answer(++actions > 1 ? MessageAnswer::kNo : MessageAnswer::kYes); });
  EXPECT_EQ(desktop.ShowMessage(kQuestion), MessageAnswer::kYes);
  EXPECT_EQ(desktop.ShowMessage(kQuestion), MessageAnswer::kNo);
}

TEST(ScriptedDesktopTest, ShellAndLocaleSayWhatTheyAreTold) {
  ScriptedDesktop desktop;
  EXPECT_TRUE(desktop.OpenWithShell("a", {}));
  desktop.RefuseShell(true);
  EXPECT_FALSE(desktop.OpenWithShell("b", {}));
  EXPECT_THAT(desktop.Opened(), ElementsAre("a", "b"));
  EXPECT_EQ(desktop.DigitGroupSeparator(), ",");
  desktop.SetDigitGroupSeparator(".");
  EXPECT_EQ(desktop.DigitGroupSeparator(), ".");
}

TEST(MemoryRegistryTest, BehavesAsARegistry) {
  MemoryRegistry registry;
  EXPECT_EQ(registry.ReadValue("K", "N").outcome, RegistryReadOutcome::kKeyNotFoundOrEmpty);
  EXPECT_FALSE(registry.WriteValue("K", "N", "1"));
  EXPECT_EQ(registry.CreateOrOpenKey("K").outcome, RegistryKeyOutcome::kCreated);
  EXPECT_EQ(registry.CreateOrOpenKey("K").outcome, RegistryKeyOutcome::kExisted);
  EXPECT_TRUE(registry.WriteValue("K", "N", "1"));
  EXPECT_EQ(registry.ReadValue("K", "N").data, "1");
  EXPECT_EQ(registry.ReadValue("K", "M").outcome, RegistryReadOutcome::kNameNotFound);
  EXPECT_EQ(registry.ReadValue("K", "").outcome, RegistryReadOutcome::kNameNotSpecified);
  registry.FailWrites(true);
  EXPECT_FALSE(registry.WriteValue("K", "N", "2"));
  registry.ForceKeyResult(RegistryKeyResult{RegistryKeyOutcome::kFailed, "no"});
  EXPECT_EQ(registry.CreateOrOpenKey("K").errorText, "no");
}

}  // namespace
}  // namespace quillomat
