#include "app/messages.h"

#include <utility>

#include "base/digit_groups.h"
#include "base/text_helpers.h"

namespace quillomat {

void Messages::Tell(std::string text, std::string title, MessageIcon icon) const {
  desktop_.ShowMessage(
      {std::move(text), std::move(title), icon, MessageButtons::kOk, MessageSeverity::kAdvice});
}

void Messages::Warn(std::string text, std::string title) const {
  desktop_.ShowMessage({std::move(text), std::move(title), MessageIcon::kExclamation,
                        MessageButtons::kOk, MessageSeverity::kWarning});
}

void Messages::Refuse(std::string text, std::string title) const {
  desktop_.ShowMessage({std::move(text), std::move(title), MessageIcon::kExclamation,
                        MessageButtons::kOk, MessageSeverity::kError});
}

MessageAnswer Messages::Ask(std::string text, std::string title, MessageButtons buttons) const {
  return desktop_.ShowMessage({std::move(text), std::move(title), MessageIcon::kQuestion, buttons,
                               MessageSeverity::kQuestion});
}

MessageAnswer Messages::AskToKeep(std::string text, std::string title) const {
  return desktop_.ShowMessage({std::move(text), std::move(title), MessageIcon::kQuestion,
                               MessageButtons::kYesNo, MessageSeverity::kQuestion, true});
}

std::string Messages::ProgramTitle() const {
  return Text(kProgramTitleText);
}

NumberSigns Messages::Signs() const {
  // The desktop's sign need not be of the locale whose decimals these are.
  return {.group = GroupSignBeside(decimalSign_, DigitGroupSeparator()), .decimal = decimalSign_};
}

std::string Messages::Grouped(std::int64_t number) const {
  return GroupDigits(number, DigitGroupSeparator());
}

}  // namespace quillomat
