// A window: a name, a caption, the controls that are its members, and which of them has the focus.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/event.h"

namespace quillomat {

class Control;

enum class WindowState { kNormal, kMinimized };

class Form {
 public:
  Form(std::string name, std::string caption);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  Form(Form&&) = delete;
  Form& operator=(Form&&) = delete;
  virtual ~Form() = default;

  [[nodiscard]] const std::string& Name() const { return name_; }

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  [[nodiscard]] bool Visible() const { return visible_; }
  /// Shows the window without waiting for it to be closed; one that is shown comes to the front.
  /// A minimized window stays minimized.
  void Show();
  void Hide();

  [[nodiscard]] WindowState State() const { return state_; }
  void SetState(WindowState state);

  /// The window's controls in the order in which they are declared.
  [[nodiscard]] std::span<Control* const> Controls() const { return controls_; }
  /// The control of that name ("cmdQuit", "txbFile(0)" or "txbFile[0]"), or null.
  [[nodiscard]] Control* Find(std::string_view name) const;

  /// Moves the keyboard focus: LostFocus of the control that had it, then GotFocus of `control`.
  /// Neither is fired when `control` has the focus already, and nothing happens when it cannot take
  /// it now. A handler of LostFocus that moves the focus itself has the last word.
  void SetFocus(Control& control);
  /// Takes the focus away, as when the user goes on in another window: LostFocus of the control
  /// that had it.
  void LoseFocus();
  /// Null while no control has the focus.
  [[nodiscard]] Control* Focused() const { return focused_; }

  /// Carries out a click on one of the controls, and then what AfterClick has put off.
  void CarryOutClick(const std::function<void()>& click);
  [[nodiscard]] bool IsInClick() const { return clicks_ > 0; }
  /// Does `action` now or, during a click, when that has been carried out. For a question that
  /// comes up when a box is left: the click that leaves it may be the answer.
  void AfterClick(std::function<void()> action);
  /// What was put off comes to nothing: the click has put something else into the boxes.
  void ForgetAfterClick() { afterClick_.clear(); }

  /// Caption, visibility or state has changed.
  Event<> Changed;
  /// Show was called: a face brings the window to the front.
  Event<> Raised;
  /// The user asks to close the window. What happens then is its handlers' affair; a face closes
  /// nothing by itself.
  Event<> CloseRequested;
  /// SetFocus has put the focus on Focused(); a face moves the real one there, wherever it was.
  Event<> FocusMoved;

 private:
  friend class Control;
  void Register(Control& control);

  std::string name_;
  std::string caption_;
  bool visible_ = false;
  WindowState state_ = WindowState::kNormal;
  std::vector<Control*> controls_;
  Control* focused_ = nullptr;
  int clicks_ = 0;
  std::vector<std::function<void()>> afterClick_;
};

}  // namespace quillomat
