// A desktop for tests: answers from a script, and remembers what it was asked.
//
// A box with an OK button alone needs no script. Every other question takes the first answer
// scripted for its title, else the next answer scripted for any title. A question without an
// answer, or with an answer that its buttons do not offer, fails the test and throws
// UnscriptedQuestion.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "ui/desktop.h"

namespace quillomat {

class UnscriptedQuestion : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// A registry in memory.
class MemoryRegistry final : public Registry {
 public:
  RegistryKeyResult CreateOrOpenKey(const std::string& keyPath) override;
  bool WriteValue(const std::string& keyPath, const std::string& name,
                  const std::string& data) override;
  RegistryReadResult ReadValue(const std::string& keyPath, const std::string& name) override;

  /// From now on CreateOrOpenKey says this instead of doing its work; no value ends that.
  void ForceKeyResult(std::optional<RegistryKeyResult> result) {
    forcedResult_ = std::move(result);
  }
  /// From now on writing fails, or works again.
  void FailWrites(bool fail) { writesFail_ = fail; }

  using Values = std::map<std::string, std::string>;
  [[nodiscard]] const std::map<std::string, Values>& Keys() const { return keys_; }

 private:
  std::map<std::string, Values> keys_;
  std::optional<RegistryKeyResult> forcedResult_;
  bool writesFail_ = false;
};

class ScriptedDesktop final : public Desktop {
 public:
  // The script.

  void Answer(MessageAnswer answer) { answers_.push_back({std::nullopt, answer}); }
  void Answer(std::string title, MessageAnswer answer) {
    answers_.push_back({std::move(title), answer});
  }
  /// For AskForText; "" is Cancel.
  void AnswerText(std::string text) { textAnswers_.push_back(std::move(text)); }
  /// For ChooseFile and BrowseForFolder; nothing is Cancel.
  void AnswerFile(std::optional<std::string> path) { fileAnswers_.push_back(std::move(path)); }
  void AnswerFolder(std::optional<std::string> path) { folderAnswers_.push_back(std::move(path)); }
  void SetDocumentsFolder(std::string folder) { documentsFolder_ = std::move(folder); }
  /// Runs the action inside the n-th PumpEvents, counted from 1 and from the desktop's beginning.
  void AtPump(int number, std::function<void()> action);
  /// Runs the action when a message with that title is shown, before it is answered.
  void AtMessage(std::string title, std::function<void()> action);

  void SetClipboard(std::string text) { clipboard_ = std::move(text); }
  /// From now on the clipboard throws RunTimeError 7 when it is read, or works again.
  void FailClipboardRead(bool fail) { clipboardReadFails_ = fail; }
  void FailClipboardWrite(bool fail) { clipboardWriteFails_ = fail; }
  void RefuseShell(bool refuse) { shellRefuses_ = refuse; }
  void SetDigitGroupSeparator(std::string separator) { separator_ = std::move(separator); }

  // What was asked, in order.

  [[nodiscard]] const std::vector<MessageBox>& Messages() const { return messages_; }
  [[nodiscard]] const std::vector<InputBox>& InputBoxes() const { return inputBoxes_; }
  [[nodiscard]] const std::vector<FileDialog>& FileDialogs() const { return fileDialogs_; }
  [[nodiscard]] const std::vector<std::string>& FolderBrowses() const { return folderBrowses_; }
  /// Where the folder browsers opened.
  [[nodiscard]] const std::vector<std::string>& BrowsesAt() const { return browsesAt_; }
  /// The titles of all of these together.
  [[nodiscard]] const std::vector<std::string>& Titles() const { return titles_; }
  [[nodiscard]] const std::vector<std::string>& Opened() const { return opened_; }
  /// The shell tells that what was opened last could not be shown.
  void FailLastOpening() {
    if (openingFails_) openingFails_();
  }
  [[nodiscard]] const std::optional<std::string>& Clipboard() const { return clipboard_; }
  [[nodiscard]] int Repaints() const { return repaints_; }
  [[nodiscard]] int Pumps() const { return pumps_; }
  [[nodiscard]] MemoryRegistry& Memory() { return registry_; }
  /// How many scripted answers nobody has asked for.
  [[nodiscard]] std::size_t UnusedAnswers() const;
  /// Forgets what was asked so far; the script stands.
  void ForgetQuestions();

  // Desktop.

  MessageAnswer ShowMessage(const MessageBox& box) override;
  std::string AskForText(const InputBox& box) override;
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  std::optional<std::string> BrowseForFolder(const std::string& title,
                                             const std::string& folder) override;
  std::string DocumentsFolder() override { return documentsFolder_; }
  std::string ClipboardText() override;
  void ClearClipboard() override;
  void PutClipboardText(const std::string& text) override;
  void Repaint() override { ++repaints_; }
  void PumpEvents() override;
  bool OpenWithShell(const std::string& documentOrAddress,
                     std::function<void()> onFailure) override;
  Registry& UserKeys() override { return registry_; }
  std::string DigitGroupSeparator() override { return separator_; }

 private:
  struct ScriptedAnswer {
    std::optional<std::string> title;
    MessageAnswer answer;
  };
  struct ScriptedAction {
    std::string title;
    std::function<void()> action;
  };

  [[nodiscard]] std::optional<MessageAnswer> TakeAnswer(const std::string& title);

  std::deque<ScriptedAnswer> answers_;
  std::deque<std::string> textAnswers_;
  std::deque<std::optional<std::string>> fileAnswers_;
  std::deque<std::optional<std::string>> folderAnswers_;
  std::multimap<int, std::function<void()>> pumpActions_;
  std::vector<ScriptedAction> messageActions_;

  std::vector<MessageBox> messages_;
  std::vector<InputBox> inputBoxes_;
  std::vector<FileDialog> fileDialogs_;
  std::vector<std::string> folderBrowses_;
  std::vector<std::string> browsesAt_;
  std::vector<std::string> titles_;
  std::vector<std::string> opened_;
  std::function<void()> openingFails_;

  std::optional<std::string> clipboard_;
  bool clipboardReadFails_ = false;
  bool clipboardWriteFails_ = false;
  bool shellRefuses_ = false;
  std::string separator_ = ",";
  std::string documentsFolder_;
  MemoryRegistry registry_;
  int repaints_ = 0;
  int pumps_ = 0;
};

/// How a failed expectation shows a box.
void PrintTo(const MessageBox& box, std::ostream* out);

}  // namespace quillomat
