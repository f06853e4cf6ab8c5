// A window: a name, a caption, the controls that are its members, and which of them has the focus.
#pragma once

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
  /// Nothing happens when `control` has the focus already or cannot take it now. A handler of
  /// LostFocus that moves the focus itself has the last word.
  void SetFocus(Control& control);
  /// Takes the focus away, as when the user goes on in another window: LostFocus of the control
  /// that had it.
  void LoseFocus();
  /// Null while no control has the focus.
  [[nodiscard]] Control* Focused() const { return focused_; }

  /// Caption, visibility or state has changed.
  Event<> Changed;
  /// Show was called: a face brings the window to the front.
  Event<> Raised;
  /// The user asks to close the window. What happens then is its handlers' affair; a face closes
  /// nothing by itself.
  Event<> CloseRequested;
  /// Focused() has changed; a face moves the real focus.
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
};

}  // namespace quillomat
