// What all controls of a window have in common.
//
// A control is a plain object and a member of its window; a face (Qt, terminal, test) shows it and
// passes on what the user does. All behaviour of the program is written against these objects. A
// control registers itself with its window when it is made, and stays where it is for the window's
// whole life. Everything runs on one thread.
//
// Setters are cheap: they store, and tell those who listen when the value is a new one; nothing is
// painted before Desktop::Repaint.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/event.h"

namespace quillomat {

class Form;

enum class ControlKind {
  kTextBox,
  kCheckBox,
  kOptionButton,
  kComboBox,
  kLabel,
  kCommandButton,
  kFrame
};

// Virtual key codes, of the keys that matter to controls.
inline constexpr int kF1Key = 112;
inline constexpr int kEnterKey = 13;

/// A control's name in its window: "cmdQuit", or with an index for an element of a control array.
struct ControlName {
  ControlName(const char* plainName) : base(plainName) {}
  ControlName(const char* arrayName, int elementIndex) : base(arrayName), index(elementIndex) {}

  std::string base;
  std::optional<int> index;
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  Control(Control&&) = delete;
  Control& operator=(Control&&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] ControlKind Kind() const { return kind_; }
  [[nodiscard]] Form& Owner() const { return owner_; }

  /// The whole name: "cmdQuit", "txbFile(0)".
  [[nodiscard]] const std::string& Name() const { return name_; }
  /// The name without an index: "cmdQuit", "txbFile".
  [[nodiscard]] const std::string& BaseName() const { return baseName_; }
  [[nodiscard]] std::optional<int> Index() const { return index_; }

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled); }

  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Assign(visible_, visible); }

  [[nodiscard]] const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(std::string toolTip) { Assign(toolTip_, std::move(toolTip)); }

  /// Whether the keyboard focus may be put here now: neither label nor frame, enabled and visible.
  [[nodiscard]] bool CanTakeFocus() const;

  /// This control as a `Kind`, or null when it is of another kind: `control.As<TextBox>()`.
  template <class Kind>
  [[nodiscard]] Kind* As() {
    return kind_ == Kind::kKind ? static_cast<Kind*>(this) : nullptr;
  }
  template <class Kind>
  [[nodiscard]] const Kind* As() const {
    return kind_ == Kind::kKind ? static_cast<const Kind*>(this) : nullptr;
  }

  /// A property has changed; for a face, to show it at the next repaint.
  Event<> Changed;
  /// Fired by Form::SetFocus.
  Event<> GotFocus;
  Event<> LostFocus;
  /// A key went down here, told by its virtual key code.
  Event<int> KeyDown;

 protected:
  Control(Form& owner, ControlName name, ControlKind kind);

  /// Stores a property; when it is a new value, fires Changed and returns true.
  template <class Value>
  bool Assign(Value& property, Value value) {
    if (property == value) return false;
    property = std::move(value);
    Changed.Fire();
    return true;
  }

 private:
  Form& owner_;
  ControlKind kind_;
  std::string baseName_;
  std::optional<int> index_;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  std::string toolTip_;
};

}  // namespace quillomat
