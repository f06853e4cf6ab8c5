#include "ui/controls.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"
#include "base/utf8.h"
#include "ui/form.h"

namespace quillomat {
namespace {

bool AcceptsHand(const Control& control) {
  return control.Enabled() && control.Visible();
}

/// Moves the focus to `control`, as a click does, and carries the click out if it counts: what
/// happens on losing the focus may have disabled the control.
void TakeClick(Control& control, const std::function<void()>& action) {
  if (!AcceptsHand(control)) return;
  control.Owner().CarryOutClick([&] {
    control.Owner().SetFocus(control);
    if (AcceptsHand(control)) action();
  });
}

}  // namespace

void TextBox::SetText(std::string text) {
  SetSelStart(0);
  selLength_ = 0;
  if (text_ == text) return;
  text_ = std::move(text);
  length_ = CharacterCount(text_);
  Changed.Fire();
  Change.Fire();
}

void TextBox::EnterText(std::string text) {
  if (text_ == text) return;
  SetText(std::move(text));
  Entered.Fire();
}

void TextBox::AppendText(std::string_view text) {
  if (text.empty()) return;
  length_ += CharacterCount(text);
  text_.append(text);
  Changed.Fire();
  Change.Fire();
}

void TextBox::SetSelStart(std::size_t selStart) {
  Assign(selStart_, std::min(selStart, length_));
}

void TextBox::Select(std::size_t selStart, std::size_t length) {
  SetSelStart(selStart);
  selLength_ = std::min(length, length_ - selStart_);
  Selected.Fire();
  Changed.Fire();
}

void CheckBox::SetValue(CheckState value) {
  if (Assign(value_, value)) Click.Fire();
}

void CheckBox::PerformClick() {
  TakeClick(*this, [this] { SetChecked(value_ == CheckState::kUnchecked); });
}

void OptionButton::SetValue(bool value) {
  if (value) {
    for (Control* control : Owner().Controls()) {
      auto* other = control->As<OptionButton>();
      if (other != nullptr && other != this && other->group_ == group_) other->SetValue(false);
    }
  }
  if (Assign(value_, value) && value) Click.Fire();
}

void OptionButton::PerformClick() {
  TakeClick(*this, [this] { SetValue(true); });
}

void ComboBox::AddItem(std::string item) {
  items_.push_back(std::move(item));
  Changed.Fire();
}

void ComboBox::SetItem(int listIndex, std::string item) {
  Assign(items_[static_cast<std::size_t>(listIndex)], std::move(item));
}

std::string ComboBox::ItemNote(int listIndex) const {
  const auto place = static_cast<std::size_t>(listIndex);
  return place < notes_.size() ? notes_[place] : std::string();
}

void ComboBox::Clear() {
  if (items_.empty()) return;
  items_.clear();
  notes_.clear();
  listIndex_ = -1;
  Changed.Fire();
}

void ComboBox::SetListIndex(int listIndex) {
  const bool isItem = listIndex >= 0 && std::cmp_less(listIndex, items_.size());
  if (listIndex != -1 && !isItem) throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue);
  if (Assign(listIndex_, listIndex)) Click.Fire();
}

void ComboBox::PerformChoice(int listIndex) {
  TakeClick(*this, [this, listIndex] { SetListIndex(listIndex); });
}

std::string ComboBox::ReasonAgainst(int listIndex) const {
  return reasonAgainst_ ? reasonAgainst_(listIndex) : std::string();
}

std::string ComboBox::Text() const {
  return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

void Label::SetCaption(std::string caption) {
  textBytes_.reset();
  CaptionedControl::SetCaption(std::move(caption));
}

void Label::SetCaption(std::string_view text, std::string_view justifiedFigure) {
  textBytes_ = text.size();
  CaptionedControl::SetCaption(std::string(text).append(justifiedFigure));
}

std::string_view Label::CaptionText() const {
  return std::string_view(Caption()).substr(0, textBytes_.value_or(Caption().size()));
}

std::string_view Label::Figure() const {
  std::string_view figure = std::string_view(Caption()).substr(CaptionText().size());
  figure.remove_prefix(std::min(figure.find_first_not_of(' '), figure.size()));
  return figure;
}

void Label::PerformClick() {
  if (AcceptsHand(*this)) Click.Fire();
}

void Label::PerformDoubleClick() {
  if (AcceptsHand(*this)) DoubleClick.Fire();
}

void CommandButton::PerformClick() {
  TakeClick(*this, [this] { Click.Fire(); });
}

}  // namespace quillomat
