#include "cli/terminal_desktop.h"

#include <algorithm>
#include <ostream>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "cli/standard_output.h"
#include "system/locale_info.h"

namespace quillomat {
namespace {

MessageAnswer AnswerByRule(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kYesNo:
    case MessageButtons::kYesNoCancel:
      return MessageAnswer::kYes;
    default:
      return MessageAnswer::kOk;
  }
}

MessageAnswer AnswerOfWord(const std::string& word, MessageButtons buttons) {
  const std::string lower = LowerCase(word);
  const bool yesNo = buttons != MessageButtons::kOk && buttons != MessageButtons::kOkCancel;
  const bool cancel = buttons != MessageButtons::kOk && buttons != MessageButtons::kYesNo;
  if (lower == "yes" && yesNo) return MessageAnswer::kYes;
  if (lower == "no" && yesNo) return MessageAnswer::kNo;
  if (lower == "cancel" && cancel) return MessageAnswer::kCancel;
  return AnswerByRule(buttons);
}

}  // namespace

TerminalDesktop::TerminalDesktop(std::ostream& err, Answers answers)
    : err_(err), answers_(std::move(answers)) {}

std::optional<std::string> TerminalDesktop::AnswerTo(const std::string& title) const {
  const auto found = std::find_if(answers_.begin(), answers_.end(),
                                  [&](const auto& answer) { return answer.first == title; });
  if (found == answers_.end()) return std::nullopt;
  return found->second;
}

void TerminalDesktop::PrintMessage(const MessageBox& box) {
  const std::string head = (box.title.empty() ? "Quillomat" : box.title) + ": ";
  const std::string text = OnOneLine(box.text) + '\n';
  if (!printed_.insert(head + text).second) return;
  if (box.severity == MessageSeverity::kError) {
    err_ << Headed{MessageTone::kError, head} << text;
  } else if (box.severity == MessageSeverity::kWarning) {
    err_ << Headed{MessageTone::kWarning, head} << text;
  } else {
    err_ << head << text;
  }
}

MessageAnswer TerminalDesktop::ShowMessage(const MessageBox& box) {
  const bool question = box.severity == MessageSeverity::kQuestion;
  if (box.severity == MessageSeverity::kError) problemShown_ = true;
  const std::optional<std::string> word = AnswerTo(box.title);
  if (!question) PrintMessage(box);
  if (!word) return AnswerByRule(box.buttons);
  const MessageAnswer answer = AnswerOfWord(*word, box.buttons);
  if (question && (answer == MessageAnswer::kCancel || answer == MessageAnswer::kNo)) {
    denial_ = box.title + "=" + *word;
  }
  return answer;
}

std::string TerminalDesktop::AskForText(const InputBox& box) {
  std::string word = AnswerTo(box.title).value_or("cancel");
  const std::string lower = LowerCase(word);
  if (lower == "ok") return box.defaultAnswer;
  if (lower != "cancel") return word;
  err_ << Headed{MessageTone::kError, box.title + ": "} << OnOneLine(box.defaultAnswer)
       << " is left as it is (--overwrite replaces it, as does --answer '" << box.title
       << "=OK')\n";
  problemShown_ = true;
  return {};
}

std::string TerminalDesktop::DigitGroupSeparator() {
  if (!digitGroupSeparator_) digitGroupSeparator_ = quillomat::DigitGroupSeparator();
  return *digitGroupSeparator_;
}

}  // namespace quillomat
