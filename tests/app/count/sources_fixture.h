// What the tests of the text sources share: what is seen on the window while a count runs, and
// whether the window is at work or idle.
#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "support/program_fixture.h"

namespace quillomat {

class SourcesFixture : public ProgramFixture {
 protected:
  /// From now on every text of the output box is remembered.
  void WatchOutput() {
    Main().txbOutput.Change.Connect([this] { shown_.push_back(Output()); });
  }
  /// Every text that stood in the output box, in order.
  [[nodiscard]] const std::vector<std::string>& Shown() const { return shown_; }
  /// Whether the output box showed a text with `part` in it at any time.
  [[nodiscard]] bool WasShown(const std::string& part) const {
    return std::ranges::any_of(shown_, [&](const std::string& text) { return Has(text, part); });
  }
  [[nodiscard]] static bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }

  /// Counts a folder of several files without an output file: OK to the question about one, then
  /// none is chosen.
  void CountFolderWithoutOutputFile(const std::string& path) {
    desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
    desktop.AnswerFile(std::nullopt);
    CountFolder(path);
  }

  void IncludeSubfolders() { Main().chkIncludeSubfolders.SetChecked(true); }

  /// Types into one of the boxes of file extensions and leaves it.
  void TypeExtensions(std::size_t box, const std::string& text) {
    Main().txbFileExtensions[box].SetText(text);
    Main().txbFileExtensions[box].LostFocus.Fire();
  }
  void TypeOnly(const std::string& text) { TypeExtensions(0, text); }
  void TypeNot(const std::string& text) { TypeExtensions(1, text); }

  /// Lists the files that a count of the folder would read.
  void ListFiles(const std::string& path) {
    Main().optFolder.SetValue(true);
    Main().txbFolder.SetText(path);
    Main().cmdListFiles.PerformClick();
  }

  void AllowComments(const std::string& start, const std::string& end) {
    Panel().chkAllowCommentMarkers.SetChecked(true);
    Panel().txbStartComment[0].SetText(start);
    Panel().txbEndComment[0].SetText(end);
    Panel().txbStartComment[1].SetText("");
    Panel().txbEndComment[1].SetText("");
  }

  void ExpectIdle() {
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Count word frequencies");
    EXPECT_TRUE(Main().cmdCountWords.Enabled());
    EXPECT_EQ(Main().lblTwirler.Caption(), " ");
    for (const Control* control : DisabledWhileRunning()) {
      EXPECT_TRUE(control->Enabled()) << control->Name();
    }
    for (const Label* label : {&Main().lblNumOccurrences, &Main().lblTotalNumOccurrences}) {
      EXPECT_EQ(label->FontName(), "Arial") << label->Name();
      EXPECT_FALSE(label->Caption().starts_with("[")) << label->Name();
    }
    EXPECT_EQ(program.State().Phase(), RunPhase::kIdle);
    EXPECT_FALSE(program.State().Busy());
  }

  void ExpectRunning() {
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
    EXPECT_TRUE(Main().cmdCountWords.Enabled());
    for (const Control* control : DisabledWhileRunning()) {
      EXPECT_FALSE(control->Enabled()) << control->Name();
    }
  }

 private:
  [[nodiscard]] std::vector<const Control*> DisabledWhileRunning() {
    MainForm& main = Main();
    return {&main.optOnClipboard,
            &main.optInFile,
            &main.optFolder,
            &main.cmdFile[0],
            &main.cmdFile[1],
            &main.txbFile[0],
            &main.txbFile[1],
            &main.cmdClearFile[0],
            &main.cmdClearFile[1],
            &main.cmdFolder,
            &main.txbFolder,
            &main.cmdClearFolder,
            &main.chkIncludeSubfolders,
            &main.txbFileExtensions[0],
            &main.txbFileExtensions[1],
            &main.cmdListFiles,
            &main.chkDisableOutputToFile,
            &main.cboWordOrder,
            &main.cboDisplayFormat,
            &main.cmdHelp,
            &main.cmdSetParameters,
            &main.cmdClearOutput,
            &main.cmdSaveState};
  }

  std::vector<std::string> shown_;
};

}  // namespace quillomat
