// The whole program on a scripted desktop: what a person does with the windows, as a test writes
// it.
//
// The clock stands still unless a test says otherwise, so events are pumped only where the program
// asks for it; with EveryYieldPumps each yield pumps, and AtPump counts the words that are scanned.
#pragma once

#include <chrono>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/program.h"
#include "base/text_helpers.h"
#include "support/scripted_desktop.h"
#include "support/temporary_folder.h"

namespace quillomat {

class ProgramFixture : public testing::Test {
 protected:
  ProgramFixture() : program(desktop, [this] { return Now(); }) {
    EXPECT_TRUE(program.Start({.userSettings = false, .window = false}));
    desktop.ForgetQuestions();
  }

  void EveryYieldPumps() { stepPerLook_ = std::chrono::seconds(1); }

  MainForm& Main() { return program.frmMain; }
  ParamsForm& Panel() { return program.frmParams; }
  const RunState& State() { return program.State(); }
  const CurrentWords& Words() { return program.Words(); }

  void Count() { Main().cmdCountWords.PerformClick(); }

  void CountClipboard(const std::string& text) {
    desktop.SetClipboard(text);
    Main().optOnClipboard.SetValue(true);
    Count();
  }

  void CountFile(const std::string& path) {
    Main().optInFile.SetValue(true);
    Main().txbFile[0].SetText(path);
    Count();
  }

  void CountFolder(const std::string& path) {
    Main().optFolder.SetValue(true);
    Main().txbFolder.SetText(path);
    Count();
  }

  /// Types words into a box of the panel and leaves it.
  void TypeWords(WordListKind kind, const std::string& words) {
    TextBox& box = Panel().txbWordsToIgnoreOrCount[static_cast<std::size_t>(kind)];
    box.SetText(words);
    box.LostFocus.Fire();
  }

  /// Chooses the format "word", so that a list is easy to compare.
  void ListWordsOnly() { Main().cboDisplayFormat.SetListIndex(8); }

  [[nodiscard]] const std::string& Output() { return Main().txbOutput.Text(); }

  /// The words of the store in alphabetical order with their counts: "cat*2 dog".
  [[nodiscard]] std::string StoredWords() {
    std::string words;
    for (std::int32_t i = 1; i <= Words().store.NumDifferentWords(); ++i) {
      const WordRec& record = Words().store.At(i);
      if (!words.empty()) words += ' ';
      words += record.Word;
      if (record.Count > 1) words += "*" + std::to_string(record.Count);
    }
    return words;
  }

  /// The only message since the questions were last forgotten.
  [[nodiscard]] MessageBox OnlyMessage() {
    if (desktop.Messages().size() != 1) {
      ADD_FAILURE() << desktop.Messages().size() << " messages were shown";
      return {};
    }
    return desktop.Messages().front();
  }

  void ExpectMessage(const MessageBox& box, const std::string& text, const std::string& title,
                     MessageIcon icon, MessageButtons buttons = MessageButtons::kOk) {
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.buttons, buttons);
  }

  TemporaryFolder folder;
  ScriptedDesktop desktop;

 private:
  EventPump::TimePoint Now() {
    now_ += stepPerLook_;
    return now_;
  }

  std::chrono::nanoseconds stepPerLook_{0};
  EventPump::TimePoint now_{};

 protected:
  Program program;
};

}  // namespace quillomat
