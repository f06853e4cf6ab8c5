#include "qt/form_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QVariant>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "qt/accessible_names.h"
#include "qt/text_conversion.h"
#include "qt/window_memory.h"
#include "ui/controls.h"

namespace quillomat {
namespace {

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// Whether a widget is of a class that shows controls.
bool ShowsControls(const QWidget& widget) {
  return dynamic_cast<const QAbstractButton*>(&widget) != nullptr ||
         dynamic_cast<const QLineEdit*>(&widget) != nullptr ||
         dynamic_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         dynamic_cast<const QComboBox*>(&widget) != nullptr ||
         dynamic_cast<const QGroupBox*>(&widget) != nullptr ||
         dynamic_cast<const QLabel*>(&widget) != nullptr;
}

int AccessRank(const WidgetBinding* binding) {
  const QVariant rank = binding->Widget().property("accessRank");
  if (rank.isValid()) return rank.toInt();
  return binding->Source().Kind() == ControlKind::kCommandButton ? 1 : 2;
}

/// Where it stands on an area that scrolls, into view.
void ScrollTo(QWidget& widget) {
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(&widget);
  }
}

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* parent) : QWidget(parent), form_(form) {
  if (parent != nullptr) {
    // A plain window would go under its parent where the window manager is told no more.
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  }
}

void FormWindow::BindControls() {
  for (Control* control : form_.Controls()) BindControl(*control);
  CheckWidgets();
  const auto windowChanges = [this] {
    windowChanged_ = true;
    ScheduleShow();
  };
  form_.Changed.Connect(windowChanges);
  form_.Raised.Connect([this, windowChanges] {
    raised_ = true;
    windowChanges();
  });
  form_.FocusMoved.Connect([this] {
    focusMoved_ = true;
    arriving_ = nullptr;  // the program has decided otherwise
    ScheduleShow();
  });
  ScheduleShow();
}

void FormWindow::BindControl(Control& control) {
  auto* widget = findChild<QWidget*>(WidgetNameOf(control));
  std::unique_ptr<WidgetBinding> binding = widget == nullptr ? nullptr : Bind(control, *widget);
  if (binding == nullptr) throw std::logic_error("no widget shows " + control.Name());
  widget->installEventFilter(this);
  if (auto* button = dynamic_cast<QAbstractButton*>(widget)) {
    connect(button, &QAbstractButton::released, this, [this] { AwaitFocus(); });
  }
  const std::size_t index = entries_.size();
  entries_.push_back({std::move(binding)});
  control.Changed.Connect([this, index] {
    entries_[index].changed = true;
    captionsChanged_ = captionsChanged_ || entries_[index].binding->TakesMnemonic();
    ScheduleShow();
  });
}

/// Parts of a widget have names of their own that start with "qt_".
void FormWindow::CheckWidgets() const {
  for (const QWidget* widget : findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_")) || !ShowsControls(*widget))
      continue;
    if (ControlOf(widget) == nullptr) {
      throw std::logic_error("no control belongs to the widget " + FromQt(name));
    }
  }
}

void FormWindow::ScheduleShow() {
  if (scheduled_) return;
  scheduled_ = true;
  QMetaObject::invokeMethod(
      this, [this] { ShowChanges(); }, Qt::QueuedConnection);
}

void FormWindow::ShowChanges() {
  scheduled_ = false;
  if (showing_) return;
  showing_ = true;
  const auto shown = qScopeGuard([this] { showing_ = false; });
  for (Entry& entry : entries_) {
    if (entry.changed) entry.binding->ShowAccess();
  }
  ShowFocus();
  DropFocusOfDisabled();
  for (Entry& entry : entries_) {
    if (!entry.changed) continue;
    entry.changed = false;
    entry.binding->Show();
  }
  ShowOwn();
  const bool renamed = captionsChanged_ || windowChanged_;
  if (captionsChanged_) ShowCaptions();
  if (windowChanged_) ShowWindowState();
  if (renamed) ShowAccessibleNames(*this);
}

/// Commands choose their letters first, since they are what a hand wants to reach at once; a widget
/// says with its property "accessRank" that it comes sooner (0) or later.
void FormWindow::ShowCaptions() {
  captionsChanged_ = false;
  std::vector<WidgetBinding*> bindings;
  for (const Entry& entry : entries_) {
    if (entry.binding->TakesMnemonic()) bindings.push_back(entry.binding.get());
  }
  std::ranges::stable_sort(bindings, {}, AccessRank);
  QList<QString> captions;
  if (ownCaptions.captions) captions = ownCaptions.captions();
  const qsizetype own = captions.size();
  for (const WidgetBinding* binding : bindings) captions.append(binding->Caption());
  const QList<QString> shown = mnemonics_.Assign(captions);
  if (ownCaptions.show) ownCaptions.show(shown.first(own));
  for (std::size_t i = 0; i < bindings.size(); ++i) {
    bindings[i]->SetShownCaption(shown[own + static_cast<qsizetype>(i)]);
  }
}

/// The form's word counts when it has moved the focus, and when no widget has it; but keys never go
/// into what is folded away.
void FormWindow::ShowFocus() {
  const bool lost = focusWidget() == nullptr && arriving_ == nullptr;
  if (!std::exchange(focusMoved_, false) && !lost) return;
  const Control* focused = form_.Focused();
  if (focused == nullptr || !focused->CanTakeFocus()) return;
  comesForFocus_ = raised_ && parentWidget() != nullptr;
  QWidget& widget = WidgetOf(*focused);
  if (widget.isVisibleTo(this)) widget.setFocus(Qt::OtherFocusReason);
}

/// Otherwise the toolkit would hand the focus of a widget that is disabled to a neighbour, and keys
/// would go there.
void FormWindow::DropFocusOfDisabled() {
  QWidget* focused = focusWidget();
  const Control* control = focused == nullptr ? nullptr : ControlOf(focused);
  if (control != nullptr && !(control->Enabled() && control->Visible())) focused->clearFocus();
}

void FormWindow::ShowWindowState() {
  windowChanged_ = false;
  setWindowTitle(ToShown(form_.Caption()));
  const bool minimized = form_.State() == WindowState::kMinimized;
  if (minimized != isMinimized()) {
    setWindowState(windowState().setFlag(Qt::WindowMinimized, minimized));
  }
  if (form_.Visible() && !isVisible()) PlaceOverParent();
  setVisible(form_.Visible());
  if (raised_ && form_.Visible()) {
    raise();
    activateWindow();
    // The user must see to which control the window has come up.
    if (std::exchange(comesForFocus_, false)) setAttribute(Qt::WA_KeyboardFocusChange);
  }
  raised_ = false;
}

/// A window that has no place yet: what the desktop chooses may lie half off the screen.
void FormWindow::PlaceOverParent() {
  if (parentWidget() == nullptr || testAttribute(Qt::WA_Moved)) return;
  move(PlaceOver(parentWidget()->frameGeometry(), size(), screen()->availableGeometry()));
}

QWidget& FormWindow::WidgetOf(const Control& control) const {
  const auto found = std::ranges::find_if(
      entries_, [&](const Entry& entry) { return &entry.binding->Source() == &control; });
  if (found == entries_.end()) throw std::logic_error(control.Name() + " is not of this window");
  return found->binding->Widget();
}

Control* FormWindow::ControlOf(const QObject* widget) const {
  const auto found = std::ranges::find_if(
      entries_, [&](const Entry& entry) { return &entry.binding->Widget() == widget; });
  return found == entries_.end() ? nullptr : &found->binding->Source();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  form_.CloseRequested.Fire();
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && !showing_) {
    form_.SetState(isMinimized() ? WindowState::kMinimized : WindowState::kNormal);
  }
  QWidget::changeEvent(event);
}

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && onActivated) onActivated();
  return QWidget::event(event);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event) && !event->isAutoRepeat()) {
    auto* button = dynamic_cast<QPushButton*>(focusWidget());
    if (button != nullptr) return button->click();
    if (onEnter) return onEnter();
  }
  if (event->key() == Qt::Key_Escape && onEscape) return onEscape();
  if (event->key() == Qt::Key_F1 && onHelp) return onHelp();
  QWidget::keyPressEvent(event);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  Control* control = ControlOf(watched);
  if (control == nullptr) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::FocusIn) {
    const bool byMouse = static_cast<QFocusEvent&>(*event).reason() == Qt::MouseFocusReason;
    if (!byMouse) ScrollTo(WidgetOf(*control));
    if (!showing_) {
      arriving_ = control;
      AwaitFocus();
    }
  }
  if (event->type() == QEvent::Wheel && control->Kind() == ControlKind::kComboBox &&
      !WidgetOf(*control).hasFocus()) {
    event->ignore();  // what it stands on scrolls
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    if (OnKey(*control, static_cast<QKeyEvent&>(*event))) return true;
  }
  if (control->Kind() == ControlKind::kLabel && OnLabelEvent(*control, *event)) return true;
  return QWidget::eventFilter(watched, event);
}

/// Later: a handler may open a box, which the toolkit does not expect while it moves the focus.
void FormWindow::AwaitFocus() {
  QMetaObject::invokeMethod(
      this, [this] { TakeFocus(); }, Qt::QueuedConnection);
}

/// Not in the middle of a click or of a choice from a drop-down, which the box of a handler would
/// swallow: both end with another call.
void FormWindow::TakeFocus() {
  if (arriving_ == nullptr || QApplication::activePopupWidget() != nullptr) return;
  const QWidget& widget = WidgetOf(*arriving_);
  const auto* button = dynamic_cast<const QAbstractButton*>(&widget);
  if (button != nullptr && button->isDown()) return;
  Control* control = std::exchange(arriving_, nullptr);
  if (widget.hasFocus()) form_.SetFocus(*control);
}

/// True when the key is used up.
bool FormWindow::OnKey(Control& control, const QKeyEvent& key) {
  if (key.key() == Qt::Key_F1 && control.Kind() == ControlKind::kCommandButton) {
    control.KeyDown.Fire(kF1Key);
    return control.KeyDown.IsHeard();  // else the window's own help
  } else if (IsEnter(key)) {
    control.KeyDown.Fire(kEnterKey);
  }
  return false;
}

/// A click is a press and a release of the left button over the same label; of a double click the
/// second release is none.
bool FormWindow::OnLabelEvent(Control& control, const QEvent& event) {
  const QEvent::Type type = event.type();
  const bool isMouse = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                       type == QEvent::MouseButtonDblClick;
  if (!isMouse) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  if (mouse.button() != Qt::LeftButton) return false;
  const bool wasPressed = std::exchange(pressedLabel_, nullptr) == &control;
  if (type == QEvent::MouseButtonPress) {
    pressedLabel_ = &control;
  } else if (type == QEvent::MouseButtonDblClick) {
    control.As<Label>()->PerformDoubleClick();
  } else if (wasPressed && WidgetOf(control).rect().contains(mouse.position().toPoint())) {
    control.As<Label>()->PerformClick();
  }
  return type != QEvent::MouseButtonPress;
}

}  // namespace quillomat
