// The desktop of a terminal: messages are lines on standard error, questions are answered by the
// command line or by rule without a word, and the clipboard holds the text that was given.
#pragma once

#include <iosfwd>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ui/desktop.h"

namespace quillomat {

class TerminalDesktop final : public Desktop {
 public:
  using Answers = std::vector<std::pair<std::string, std::string>>;

  /// `answers` are titles of boxes and the words on their buttons ("OK", "Yes", a path for an input
  /// box). `err` must outlive the desktop.
  TerminalDesktop(std::ostream& err, Answers answers);

  /// `goesOn`: it is only the start of the text.
  void SetClipboardText(std::string text, bool goesOn = false) {
    clipboard_ = std::move(text);
    clipboardGoesOn_ = goesOn;
  }
  /// Whether a message told of something that went wrong.
  [[nodiscard]] bool ProblemShown() const { return problemShown_; }

  /// The answer of the command line that was Cancel or No last, as it was given there; "" while
  /// there was none.
  [[nodiscard]] const std::string& Denial() const { return denial_; }

  /// A message is printed once, however often it is shown. By rule: OK and Yes where that loses
  /// nothing, so that a script goes on.
  MessageAnswer ShowMessage(const MessageBox& box) override;
  /// By rule: cancelled, since the question is whether to overwrite.
  std::string AskForText(const InputBox& box) override;
  /// There is nobody to choose.
  std::optional<std::string> ChooseFile(const FileDialog& /*dialog*/) override { return {}; }
  std::optional<std::string> BrowseForFolder(const std::string& /*title*/,
                                             const std::string& /*folder*/) override {
    return {};
  }
  std::string DocumentsFolder() override { return {}; }

  std::string ClipboardText() override { return clipboard_; }
  bool ClipboardGoesOn() override { return clipboardGoesOn_; }
  void ClearClipboard() override { clipboard_.clear(); }
  void PutClipboardText(const std::string& text) override { clipboard_ = text; }

  void Repaint() override {}
  void PumpEvents() override {}
  bool OpenWithShell(const std::string& /*documentOrAddress*/,
                     std::function<void()> /*onFailure*/) override {
    return false;
  }
  Registry& UserKeys() override { return registry_; }
  std::string DigitGroupSeparator() override;

 private:
  [[nodiscard]] std::optional<std::string> AnswerTo(const std::string& title) const;
  void PrintMessage(const MessageBox& box);

  std::ostream& err_;
  Answers answers_;
  std::string clipboard_;
  bool clipboardGoesOn_ = false;
  std::set<std::string> printed_;
  std::string denial_;
  bool problemShown_ = false;
  UserRegistry registry_;
  std::optional<std::string> digitGroupSeparator_;  // asked of the system once
};

}  // namespace quillomat
