#include "cli/terminal_desktop.h"

#include <gtest/gtest.h>
#include <sstream>

namespace quillomat {
namespace {

MessageBox Question(MessageButtons buttons) {
  return {"Shall\r\nwe?", "Relist?", MessageIcon::kQuestion, buttons, MessageSeverity::kQuestion};
}

TEST(TerminalDesktop, MessageIsOneLineAndPrintedOnce) {
  std::ostringstream err;
  TerminalDesktop desktop(err, {});
  for (int time = 0; time < 2; ++time) {
    desktop.ShowMessage({"It is\r\n\r\nnot text.", "Invalid", MessageIcon::kInformation});
  }
  EXPECT_EQ(err.str(), "Invalid: It is not text.\n");
  EXPECT_FALSE(desktop.ProblemShown());
}

TEST(TerminalDesktop, MessageWithoutTitleBearsTheProgramsName) {
  std::ostringstream err;
  TerminalDesktop desktop(err, {});
  desktop.ShowMessage(
      {"No text.", "", MessageIcon::kCritical, MessageButtons::kOk, MessageSeverity::kError});
  EXPECT_EQ(err.str(), "Quillomat: No text.\n");
  EXPECT_TRUE(desktop.ProblemShown());
}

TEST(TerminalDesktop, OnlyAnErrorIsAProblemWhateverTheTitleAndTheIconAre) {
  using enum MessageSeverity;
  for (const MessageSeverity severity : {kAdvice, kWarning, kError}) {
    std::ostringstream err;
    TerminalDesktop desktop(err, {});
    desktop.ShowMessage(
        {"Mac lines.", "Warning", MessageIcon::kExclamation, MessageButtons::kOk, severity});
    EXPECT_EQ(err.str(), "Warning: Mac lines.\n");
    EXPECT_EQ(desktop.ProblemShown(), severity == kError);
  }
}

TEST(TerminalDesktop, QuestionsAreAnsweredSoThatAScriptGoesOn) {
  std::ostringstream err;
  TerminalDesktop desktop(err, {});
  EXPECT_EQ(desktop.ShowMessage(Question(MessageButtons::kYesNo)), MessageAnswer::kYes);
  EXPECT_EQ(desktop.ShowMessage(Question(MessageButtons::kYesNoCancel)), MessageAnswer::kYes);
  EXPECT_EQ(desktop.ShowMessage(Question(MessageButtons::kOkCancel)), MessageAnswer::kOk);
  EXPECT_FALSE(desktop.ProblemShown());
}

TEST(TerminalDesktop, AnswersOfTheCommandLineComeFirst) {
  std::ostringstream err;
  TerminalDesktop desktop(err, {{"Relist?", "no"}});
  EXPECT_EQ(desktop.Denial(), "");
  EXPECT_EQ(desktop.ShowMessage(Question(MessageButtons::kYesNo)), MessageAnswer::kNo);
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(desktop.Denial(), "Relist?=no");
}

TEST(TerminalDesktop, NothingIsOverwrittenUnlessTheCommandLineSaysSo) {
  const InputBox box{"The output file exists.", "Overwrite?", "list.txt"};
  std::ostringstream err;
  TerminalDesktop careful(err, {});
  EXPECT_EQ(careful.AskForText(box), "");
  EXPECT_TRUE(careful.ProblemShown());
  EXPECT_NE(err.str().find("list.txt"), std::string::npos);
  TerminalDesktop bold(err, {{"The output file exists.", "OK"}});
  EXPECT_EQ(bold.AskForText(box), "list.txt");
  TerminalDesktop other(err, {{"The output file exists.", "other.txt"}});
  EXPECT_EQ(other.AskForText(box), "other.txt");
}

}  // namespace
}  // namespace quillomat
