// One control and the widget that shows it: values go both ways.
//
// The control leads. What the user does to the widget is passed to the control, whose handlers may
// decide otherwise; Show then makes the widget agree with the control.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>

#include "ui/control.h"

namespace quillomat {

class WidgetBinding {
 public:
  WidgetBinding(const WidgetBinding&) = delete;
  WidgetBinding& operator=(const WidgetBinding&) = delete;
  WidgetBinding(WidgetBinding&&) = delete;
  WidgetBinding& operator=(WidgetBinding&&) = delete;
  virtual ~WidgetBinding() = default;

  [[nodiscard]] Control& Source() const { return control_; }
  [[nodiscard]] QWidget& Widget() const { return widget_; }

  /// Lets the widget take the focus, if the control can; done for all before the focus moves.
  void ShowAccess();
  /// Makes the widget agree with the control.
  void Show();

  /// The caption, of a control that has one.
  [[nodiscard]] QString Caption() const;
  /// How the caption is written on the widget, with its mnemonic.
  void SetShownCaption(const QString& caption);
  /// Whether an underlined letter may lead to the control.
  [[nodiscard]] bool TakesMnemonic() const;

 protected:
  WidgetBinding(Control& control, QWidget& widget) : control_(control), widget_(widget) {}

  virtual void ShowValue() = 0;
  [[nodiscard]] virtual bool IsShown() const;

 private:
  Control& control_;
  QWidget& widget_;
};

/// Null when a control of that kind cannot be shown by that widget.
[[nodiscard]] std::unique_ptr<WidgetBinding> Bind(Control& control, QWidget& widget);

/// "txbFile(0)" is the widget "txbFile_0".
[[nodiscard]] QString WidgetNameOf(const Control& control);

}  // namespace quillomat
