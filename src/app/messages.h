// What the program tells and asks the user in message boxes, and the texts and numbers in them. How
// grave a message is goes with it as a value: a face without boxes decides by that.
#pragma once

#include <cstdint>
#include <string>

#include "app/table/number_signs.h"
#include "system/locale_info.h"
#include "text/program_text.h"
#include "ui/desktop.h"

namespace quillomat {

class Messages {
 public:
  /// Both must outlive it.
  Messages(Desktop& desktop, const ProgramText& text) : desktop_(desktop), text_(text) {}

  /// Tells the user something, with an OK button.
  void Tell(std::string text, std::string title,
            MessageIcon icon = MessageIcon::kInformation) const;

  /// Tells what the user should know of; the work goes on all the same.
  void Warn(std::string text, std::string title) const;

  /// Tells why an input is refused, or what went wrong.
  void Refuse(std::string text, std::string title) const;

  /// Asks and waits for the answer.
  [[nodiscard]] MessageAnswer Ask(std::string text, std::string title,
                                  MessageButtons buttons = MessageButtons::kYesNo) const;
  /// Asks whether to keep what is lost with No.
  [[nodiscard]] MessageAnswer AskToKeep(std::string text, std::string title) const;

  /// The numbered text in the language of the program.
  [[nodiscard]] std::string Text(int number) const { return text_.GetText(number); }
  [[nodiscard]] const ProgramText& Texts() const { return text_; }
  /// The program's, for a message that has no title of its own.
  [[nodiscard]] std::string ProgramTitle() const;

  /// What stands between groups of three digits in the user's locale.
  [[nodiscard]] std::string DigitGroupSeparator() const { return desktop_.DigitGroupSeparator(); }
  /// How numbers with decimals are written there.
  [[nodiscard]] NumberSigns Signs() const;
  /// `number` with the digit grouping of the user's locale.
  [[nodiscard]] std::string Grouped(std::int64_t number) const;

 private:
  Desktop& desktop_;
  const ProgramText& text_;
  const std::string decimalSign_ = DecimalSign();  // asked of the system once
};

}  // namespace quillomat
