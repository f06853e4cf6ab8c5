#include "ui/form.h"

#include <algorithm>
#include <utility>

#include "ui/control.h"

namespace quillomat {

Form::Form(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

void Form::SetCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  Changed.Fire();
}

void Form::Show() {
  if (!visible_) {
    visible_ = true;
    Changed.Fire();
  }
  Raised.Fire();
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  Changed.Fire();
}

void Form::SetState(WindowState state) {
  if (state_ == state) return;
  state_ = state;
  Changed.Fire();
}

Control* Form::Find(std::string_view name) const {
  std::string wanted(name);
  if (wanted.ends_with(']')) {
    std::ranges::replace(wanted, '[', '(');
    wanted.back() = ')';
  }
  const auto found = std::ranges::find(controls_, wanted, &Control::Name);
  return found == controls_.end() ? nullptr : *found;
}

void Form::SetFocus(Control& control) {
  if (!control.CanTakeFocus()) return;
  if (focused_ == &control) return FocusMoved.Fire();
  Control* const before = std::exchange(focused_, &control);
  if (before != nullptr) before->LostFocus.Fire();
  if (focused_ != &control) return;
  if (!control.CanTakeFocus()) {  // it can no more
    focused_ = nullptr;
    return;
  }
  control.GotFocus.Fire();
  FocusMoved.Fire();
}

void Form::CarryOutClick(const std::function<void()>& click) {
  ++clicks_;
  try {
    click();
  } catch (...) {
    // What it has put off must not wait for another click.
    if (--clicks_ == 0) afterClick_.clear();
    throw;
  }
  if (--clicks_ > 0) return;
  for (const auto& action : std::exchange(afterClick_, {})) action();
}

void Form::AfterClick(std::function<void()> action) {
  if (!IsInClick()) return action();
  afterClick_.push_back(std::move(action));
}

void Form::LoseFocus() {
  Control* const before = std::exchange(focused_, nullptr);
  if (before != nullptr) before->LostFocus.Fire();
}

void Form::Register(Control& control) {
  controls_.push_back(&control);
}

}  // namespace quillomat
