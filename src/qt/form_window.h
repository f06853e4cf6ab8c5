// A window on the screen that shows a form: every control has the widget of its name.
//
// What changes in the controls is shown by ShowChanges, which runs by itself when the program has
// nothing else to do; long work calls it through Desktop::Repaint. What the user does goes to the
// controls at once, but for the focus, which follows when the toolkit is done with moving it.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "qt/mnemonics.h"
#include "qt/widget_binding.h"
#include "ui/form.h"

namespace quillomat {

class FormWindow : public QWidget {
 public:
  /// `form` must outlive the window.
  /// A window with a parent stays above it.
  explicit FormWindow(Form& form, QWidget* parent = nullptr);

  /// Binds the controls to the child widgets of their names. Throws std::logic_error that names
  /// the control without a widget, or the widget without a control.
  void BindControls();

  /// Shows what has changed since it was last called.
  void ShowChanges();

  [[nodiscard]] Form& Source() const { return form_; }
  /// The widget of a control of this window.
  [[nodiscard]] QWidget& WidgetOf(const Control& control) const;

  /// What the Enter and the Escape key do where the control with the focus does not use them.
  std::function<void()> onEnter;
  std::function<void()> onEscape;
  /// What F1 does where it is not a command's own.
  std::function<void()> onHelp;
  /// The user has come to this window.
  std::function<void()> onActivated;

 protected:
  /// Captions that are no control's. They choose their letters before all others.
  struct OwnCaptions {
    std::function<QList<QString>()> captions;
    std::function<void(const QList<QString>& shown)> show;
  };
  OwnCaptions ownCaptions;

  /// Shows what is not a control's own, but follows from controls; called behind their changes.
  virtual void ShowOwn() {}

  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    std::unique_ptr<WidgetBinding> binding;
    bool changed = true;
  };

  void BindControl(Control& control);
  void CheckWidgets() const;
  void ScheduleShow();
  void ShowCaptions();
  void ShowFocus();
  void ShowWindowState();
  void PlaceOverParent();
  void AwaitFocus();
  void TakeFocus();
  void DropFocusOfDisabled();
  [[nodiscard]] bool OnKey(Control& control, const QKeyEvent& key);
  [[nodiscard]] bool OnLabelEvent(Control& control, const QEvent& event);
  [[nodiscard]] Control* ControlOf(const QObject* widget) const;

  Form& form_;
  std::vector<Entry> entries_;
  Mnemonics mnemonics_;
  bool scheduled_ = false;
  bool showing_ = false;
  bool windowChanged_ = true;
  bool captionsChanged_ = true;
  bool focusMoved_ = false;
  /// Where the user has put the keyboard, as long as the form has not been told; null for nowhere.
  Control* arriving_ = nullptr;
  bool raised_ = false;
  /// The window is raised for the control that has got the focus.
  bool comesForFocus_ = false;
  /// Where the left mouse button went down; null elsewhere.
  const Control* pressedLabel_ = nullptr;
};

}  // namespace quillomat
