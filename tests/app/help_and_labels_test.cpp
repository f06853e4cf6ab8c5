// The help window and the keys that open it, the labels that can be clicked, and the shell.
#include <gmock/gmock.h>

#include "support/program_fixture.h"
#include "text/shell_helpers.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class HelpAndLabels : public ProgramFixture {
 protected:
  HelpForm& Help() { return program.frmHelp; }
};

TEST_F(HelpAndLabels, HelpCommandShowsTheWindowAndCloseHidesIt) {
  Main().Show();
  Main().cmdHelp.PerformClick();
  EXPECT_TRUE(Help().Visible());
  Main().SetFocus(Main().cmdHelp);
  Help().cmdClose.PerformClick();
  EXPECT_FALSE(Help().Visible());
  EXPECT_EQ(Main().Focused(), &Main().cmdFolder);
}

TEST_F(HelpAndLabels, ClosingTheHelpWindowKeepsItsText) {
  Main().cmdHelp.PerformClick();
  const std::string text = Help().txbHelpScreen.Text();
  Help().CloseRequested.Fire();
  EXPECT_FALSE(Help().Visible());
  Main().cmdHelp.PerformClick();
  EXPECT_TRUE(Help().Visible());
  EXPECT_EQ(Help().txbHelpScreen.Text(), text);
}

TEST_F(HelpAndLabels, F1OpensTheHelpWindowFromFourCommands) {
  for (CommandButton* command :
       {&Main().cmdHelp, &Main().cmdFile[0], &Main().cmdFile[1], &Main().cmdCountWords}) {
    SCOPED_TRACE(command->Name());
    Help().Hide();
    command->KeyDown.Fire(kF1Key + 1);
    EXPECT_FALSE(Help().Visible());
    command->KeyDown.Fire(kF1Key);
    EXPECT_TRUE(Help().Visible());
  }
  Help().SetState(WindowState::kMinimized);
  Main().cmdCountWords.KeyDown.Fire(kF1Key);
  EXPECT_EQ(Help().State(), WindowState::kNormal);
}

TEST_F(HelpAndLabels, PanelThatIsClosedByItsFrameLeavesItsBoxes) {
  Panel().Show();
  Panel().SetFocus(Panel().txbStartComment[0]);
  Panel().txbStartComment[0].EnterText(" # ");
  Panel().CloseRequested.Fire();
  EXPECT_FALSE(Panel().Visible());
  EXPECT_EQ(Panel().txbStartComment[0].Text(), "#");
}

TEST_F(HelpAndLabels, HelpTextSaysWhatItMust) {
  for (const char* passage :
       {"This software scans a file, a set of files, or  text on the clipboard, and counts the "
        "number of occurrences of the different words. It will also count just words in a given "
        "list.  The text can be in a language other than English. The words which are found and "
        "displayed can be ordered alphabetically or by frequency.  \r\n",
        "https://quillomat.example/manual", "This help window may be resized for easier reading.",
        "that is, it cannot contain any bytes with ASCII values less than 32 except for 9 (tab), "
        "10 (line-feed) and 13 (carriage-return).",
        "normally something beyond 30,000 characters, so (in the case of a large file) only about "
        "1000 to 2000 words can appear in the list.",
        "(except that if a word is included in both the count-only words and the words-to-ignore "
        "then it will be counted).",
        "(i) the words found plus their frequencies and the number of files in which they occur "
        "and (ii) the words found plus a list of the files in which they occur.",
        "An output file can be written as comma-delimited so that it can be read by other "
        "software."}) {
    EXPECT_THAT(Help().txbHelpScreen.Text(), HasSubstr(passage));
  }
}

TEST_F(HelpAndLabels, LabelsOpenTheAddresses) {
  Main().lblOrvandelSystems.Click.Fire();
  Main().lblOnlineDocumentation.Click.Fire();
  EXPECT_THAT(desktop.Opened(),
              ElementsAre("https://quillomat.example/", "https://quillomat.example/manual"));
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(HelpAndLabels, BrowserThatCannotBeLaunchedIsTold) {
  desktop.RefuseShell(true);
  Main().lblOrvandelSystems.Click.Fire();
  ExpectMessage(OnlyMessage(),
                "Error launching web browser. Please make sure that your web browser is correctly "
                "installed and configured",
                "Cannot launch web browser", MessageIcon::kExclamation);
}

TEST_F(HelpAndLabels, BrowserThatFailsLaterIsToldWithTheAddress) {
  Main().lblOnlineDocumentation.Click.Fire();
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  desktop.FailLastOpening();
  ExpectMessage(OnlyMessage(),
                "Error launching web browser. Please make sure that your web browser is correctly "
                "installed and configured\r\nhttps://quillomat.example/manual",
                "Cannot launch web browser", MessageIcon::kExclamation);
}

TEST_F(HelpAndLabels, DocumentThatCannotBeShownIsToldIfTheCallerWantsThat) {
  EXPECT_TRUE(OpenDocument(desktop, "/manual.pdf", false));
  desktop.FailLastOpening();
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(OpenDocument(desktop, "/manual.pdf", true));
  desktop.FailLastOpening();
  ExpectMessage(OnlyMessage(),
                "Error opening file /manual.pdf.\r\nPerhaps the file extension is incorrect.",
                "Error", MessageIcon::kExclamation);
}

TEST_F(HelpAndLabels, DoubleClickOnTheCopyrightNoticeTellsTheBuild) {
  Main().lblCopyrightNotice.DoubleClick.Fire();
  ExpectMessage(OnlyMessage(), "70708", "", MessageIcon::kNone);
}

TEST_F(HelpAndLabels, LabelsShowWhileTheOutputIsEmpty) {
  const std::vector<Label*> labels = {&Main().lblCopyrightNotice, &Main().lblOrvandelSystems,
                                      &Main().lblOnlineDocumentation};
  for (const Label* label : labels) EXPECT_TRUE(label->Visible()) << label->Name();
  CountClipboard("cat");
  for (const Label* label : labels) EXPECT_FALSE(label->Visible()) << label->Name();
  Main().cmdClearOutput.PerformClick();
  for (const Label* label : labels) EXPECT_TRUE(label->Visible()) << label->Name();
}

TEST_F(HelpAndLabels, LabelsGoForAnyTextOfTheOutputAndComeBackWithoutOne) {
  static_cast<void>(folder.Make("texts"));
  static_cast<void>(folder.Write("texts/a.txt", "cat\n"));
  Main().txbFolder.SetText(folder / "texts");
  Main().cmdListFiles.PerformClick();
  EXPECT_NE(Output(), "");
  EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
  Main().optOnClipboard.SetValue(true);  // clears the output
  EXPECT_EQ(Output(), "");
  EXPECT_TRUE(Main().lblCopyrightNotice.Visible());
  Main().txbOutput.SetText("typed by the user");
  EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
}

TEST_F(HelpAndLabels, LabelsComeBackWhenARunLeavesTheOutputEmpty) {
  CountClipboard("cat");
  EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
  CountFile(folder / "none.txt");
  EXPECT_EQ(Output(), "");
  EXPECT_TRUE(Main().lblCopyrightNotice.Visible());
}

TEST_F(HelpAndLabels, HelpThatWasClosedWhileMinimizedComesBack) {
  Main().cmdHelp.PerformClick();
  Help().SetState(WindowState::kMinimized);
  Help().CloseRequested.Fire();
  Main().cmdCountWords.KeyDown.Fire(kF1Key);
  EXPECT_TRUE(Help().Visible());
  EXPECT_EQ(Help().State(), WindowState::kNormal);
}

TEST_F(HelpAndLabels, ClipboardViewerIsOpenedWithoutAReportOfErrors) {
  MainForm main;
  ProgramParts parts({main, Panel(), Help(), program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  parts.controls.SetClipboardViewer("/viewer");
  parts.mainWindow.Connect();
  main.cmdClipboardViewer.PerformClick();
  EXPECT_THAT(desktop.Opened(), ElementsAre("/viewer"));
  desktop.RefuseShell(true);
  main.cmdClipboardViewer.PerformClick();
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

}  // namespace
}  // namespace quillomat
