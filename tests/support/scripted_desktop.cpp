#include "support/scripted_desktop.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

[[noreturn]] void FailUnscripted(const std::string& question) {
  ADD_FAILURE() << "No answer is scripted for " << question;
  throw UnscriptedQuestion("No answer is scripted for " + question);
}

bool Offers(MessageButtons buttons, MessageAnswer answer) {
  switch (buttons) {
    case MessageButtons::kOk:
      return answer == MessageAnswer::kOk;
    case MessageButtons::kOkCancel:
      return answer == MessageAnswer::kOk || answer == MessageAnswer::kCancel;
    case MessageButtons::kYesNo:
      return answer == MessageAnswer::kYes || answer == MessageAnswer::kNo;
    case MessageButtons::kYesNoCancel:
      return answer != MessageAnswer::kOk;
  }
  return false;
}

template <class Value>
Value TakeFront(std::deque<Value>& script, const std::string& question) {
  if (script.empty()) FailUnscripted(question);
  Value value = std::move(script.front());
  script.pop_front();
  return value;
}

}  // namespace

RegistryKeyResult MemoryRegistry::CreateOrOpenKey(const std::string& keyPath) {
  if (forcedResult_) return *forcedResult_;
  const bool isNew = keys_.try_emplace(keyPath).second;
  return {isNew ? RegistryKeyOutcome::kCreated : RegistryKeyOutcome::kExisted, {}};
}

bool MemoryRegistry::WriteValue(const std::string& keyPath, const std::string& name,
                                const std::string& data) {
  const auto key = keys_.find(keyPath);
  if (writesFail_ || key == keys_.end()) return false;
  key->second[name] = data;
  return true;
}

RegistryReadResult MemoryRegistry::ReadValue(const std::string& keyPath, const std::string& name) {
  const auto key = keys_.find(keyPath);
  if (key == keys_.end() || key->second.empty()) {
    return {RegistryReadOutcome::kKeyNotFoundOrEmpty, {}};
  }
  if (name.empty()) return {RegistryReadOutcome::kNameNotSpecified, {}};
  const auto value = key->second.find(name);
  if (value == key->second.end()) return {RegistryReadOutcome::kNameNotFound, {}};
  return {RegistryReadOutcome::kFound, value->second};
}

void ScriptedDesktop::AtPump(int number, std::function<void()> action) {
  pumpActions_.emplace(number, std::move(action));
}

void ScriptedDesktop::AtMessage(std::string title, std::function<void()> action) {
  messageActions_.push_back({std::move(title), std::move(action)});
}

std::size_t ScriptedDesktop::UnusedAnswers() const {
  return answers_.size() + textAnswers_.size() + fileAnswers_.size() + folderAnswers_.size();
}

void ScriptedDesktop::ForgetQuestions() {
  messages_.clear();
  inputBoxes_.clear();
  fileDialogs_.clear();
  folderBrowses_.clear();
  titles_.clear();
  opened_.clear();
}

std::optional<MessageAnswer> ScriptedDesktop::TakeAnswer(const std::string& title) {
  auto found = std::ranges::find_if(
      answers_, [&](const ScriptedAnswer& scripted) { return scripted.title == title; });
  if (found == answers_.end()) {
    found = std::ranges::find_if(answers_,
                                 [](const ScriptedAnswer& scripted) { return !scripted.title; });
  }
  if (found == answers_.end()) return std::nullopt;
  const MessageAnswer answer = found->answer;
  answers_.erase(found);
  return answer;
}

MessageAnswer ScriptedDesktop::ShowMessage(const MessageBox& box) {
  messages_.push_back(box);
  titles_.push_back(box.title);
  const std::vector<ScriptedAction> actions = messageActions_;
  for (const ScriptedAction& scripted : actions) {
    if (scripted.title == box.title) scripted.action();
  }
  if (box.buttons == MessageButtons::kOk) return MessageAnswer::kOk;
  const std::optional<MessageAnswer> answer = TakeAnswer(box.title);
  if (!answer || !Offers(box.buttons, *answer)) {
    FailUnscripted("the message \"" + box.title + "\": " + box.text);
  }
  return *answer;
}

std::string ScriptedDesktop::AskForText(const InputBox& box) {
  inputBoxes_.push_back(box);
  titles_.push_back(box.title);
  return TakeFront(textAnswers_, "the input box \"" + box.title + "\"");
}

std::optional<std::string> ScriptedDesktop::ChooseFile(const FileDialog& dialog) {
  fileDialogs_.push_back(dialog);
  titles_.push_back(dialog.title);
  return TakeFront(fileAnswers_, "the file dialog \"" + dialog.title + "\"");
}

std::optional<std::string> ScriptedDesktop::BrowseForFolder(const std::string& title,
                                                            const std::string& folder) {
  folderBrowses_.push_back(title);
  browsesAt_.push_back(folder);
  titles_.push_back(title);
  return TakeFront(folderAnswers_, "the folder browser \"" + title + "\"");
}

std::string ScriptedDesktop::ClipboardText() {
  if (clipboardReadFails_) throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
  return clipboard_.value_or("");
}

void ScriptedDesktop::ClearClipboard() {
  if (clipboardWriteFails_) throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
  clipboard_.reset();
}

void ScriptedDesktop::PutClipboardText(const std::string& text) {
  if (clipboardWriteFails_) throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
  clipboard_ = text;
}

void ScriptedDesktop::PumpEvents() {
  ++pumps_;
  const auto [first, last] = pumpActions_.equal_range(pumps_);
  std::vector<std::function<void()>> actions;
  for (auto action = first; action != last; ++action) actions.push_back(action->second);
  for (const auto& action : actions) action();
}

bool ScriptedDesktop::OpenWithShell(const std::string& documentOrAddress,
                                    std::function<void()> onFailure) {
  opened_.push_back(documentOrAddress);
  openingFails_ = std::move(onFailure);
  return !shellRefuses_;
}

void PrintTo(const MessageBox& box, std::ostream* out) {
  *out << "message \"" << box.title << "\": \"" << box.text << "\" (icon "
       << static_cast<int>(box.icon) << ", buttons " << static_cast<int>(box.buttons) << ")";
}

}  // namespace quillomat
