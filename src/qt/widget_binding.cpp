#include "qt/widget_binding.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "base/utf8.h"
#include "qt/figure_label.h"
#include "qt/link_label.h"
#include "qt/mnemonics.h"
#include "qt/noted_items.h"
#include "qt/second_click.h"
#include "qt/text_conversion.h"
#include "ui/controls.h"

namespace quillomat {
namespace {

class LineBinding final : public WidgetBinding {
 public:
  LineBinding(TextBox& box, QLineEdit& line) : WidgetBinding(box, line), box_(box), line_(line) {
    QObject::connect(&line, &QLineEdit::textChanged,
                     [this](const QString& text) { box_.EnterText(FromQt(OnOneLine(text))); });
    box.Selected.Connect([this] { selects_ = true; });
    line.setMaxLength(std::numeric_limits<int>::max());  // else the toolkit cuts long lists
  }

 private:
  /// A column that is pasted becomes a line of items with blanks between them.
  static QString OnOneLine(QString text) {
    return text.replace(QLatin1String("\r\n"), QLatin1String(" "))
        .replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\r'), QLatin1Char(' '));
  }

  void ShowValue() override {
    const QString text = ToQt(box_.Text());
    const QString shown = line_.text();
    if (shown != text) {
      // Typing goes on where a column was pasted; another text is seen from its start.
      const bool isPasted = OnOneLine(shown) == text;
      const auto caret = isPasted ? OnOneLine(shown.left(line_.cursorPosition())).size() : 0;
      const QSignalBlocker blocker(line_);
      line_.setText(text);
      line_.setCursorPosition(static_cast<int>(caret));
    }
    if (std::exchange(selects_, false)) ShowSelection();
  }

  void ShowSelection() {
    const std::string& text = box_.Text();
    const auto before = [&text](std::size_t characters) {
      return static_cast<int>(ToQt(text.substr(0, BytesOfFirst(text, characters))).size());
    };
    const int begin = before(box_.SelStart());
    line_.setSelection(begin, before(box_.SelStart() + box_.SelLength()) - begin);
  }

  TextBox& box_;
  QLineEdit& line_;
  /// The program has selected a part of the text since it was shown.
  bool selects_ = false;
};

/// A text that grows at its end is appended to, so that showing it costs what was added.
class LinesBinding final : public WidgetBinding {
 public:
  LinesBinding(TextBox& box, QPlainTextEdit& edit)
      : WidgetBinding(box, edit), box_(box), edit_(edit) {
    edit.setUndoRedoEnabled(!edit.isReadOnly());
    QObject::connect(&edit, &QPlainTextEdit::textChanged, [this] { TakeText(); });
  }

 private:
  void TakeText() {
    if (showing_) return;
    shown_ = FromQtLines(edit_.toPlainText());
    box_.EnterText(shown_);
    shownCaret_ = box_.SelStart();
  }

  void ShowValue() override {
    showing_ = true;  // the widget's own parts listen to its signals, so they are not blocked
    const auto shown = qScopeGuard([this] { showing_ = false; });
    const std::string& text = box_.Text();
    const bool changed = text != shown_;
    if (changed) ShowText(text);
    if (changed || box_.SelStart() != shownCaret_) ShowCaret();
  }

  /// What the program shows is not undone; what the user does to it afterwards is.
  void ShowText(const std::string& text) {
    edit_.setUndoRedoEnabled(false);
    if (!shown_.empty() && text.starts_with(shown_)) {
      QTextCursor cursor(edit_.document());
      cursor.movePosition(QTextCursor::End);
      cursor.insertText(ToQtLines(std::string_view(text).substr(shown_.size())));
    } else {
      edit_.setPlainText(ToQtLines(text));
    }
    shown_ = text;
    edit_.setUndoRedoEnabled(!edit_.isReadOnly());
  }

  void ShowCaret() {
    shownCaret_ = box_.SelStart();
    QTextCursor cursor(edit_.document());
    if (box_.SelStart() == box_.Length()) {
      cursor.movePosition(QTextCursor::End);  // a text that grows is not gone through each time
    } else {
      const std::size_t bytes = BytesOfFirst(box_.Text(), box_.SelStart());
      const QString before = ToQtLines(std::string_view(box_.Text()).substr(0, bytes));
      cursor.setPosition(static_cast<int>(before.size()));
    }
    edit_.setTextCursor(cursor);
    edit_.ensureCursorVisible();
  }

  TextBox& box_;
  QPlainTextEdit& edit_;
  std::string shown_;
  std::optional<std::size_t> shownCaret_;
  bool showing_ = false;
};

class CheckBinding final : public WidgetBinding {
 public:
  CheckBinding(CheckBox& box, QCheckBox& widget)
      : WidgetBinding(box, widget), box_(box), widget_(widget) {
    QObject::connect(&widget, &QCheckBox::clicked, [this] {
      box_.PerformClick();
      Show();
    });
  }

 private:
  void ShowValue() override {
    const QSignalBlocker blocker(widget_);
    const bool grayed = box_.Value() == CheckState::kGrayed;
    widget_.setTristate(grayed);
    if (grayed) {
      widget_.setCheckState(Qt::PartiallyChecked);
    } else {
      widget_.setChecked(box_.IsChecked());
    }
  }

  CheckBox& box_;
  QCheckBox& widget_;
};

class OptionBinding final : public WidgetBinding {
 public:
  OptionBinding(OptionButton& option, QRadioButton& widget)
      : WidgetBinding(option, widget), option_(option), widget_(widget) {
    QObject::connect(&widget, &QRadioButton::clicked, [this] {
      option_.PerformClick();
      Show();
    });
  }

 private:
  void ShowValue() override {
    const QSignalBlocker blocker(widget_);
    // While one of a group is on, the toolkit does not let it be switched off.
    widget_.setAutoExclusive(false);
    widget_.setChecked(option_.Value());
    widget_.setAutoExclusive(true);
  }

  OptionButton& option_;
  QRadioButton& widget_;
};

/// What is of no use now is greyed in the drop-down, and its tip says why. Without the drop-down
/// the keyboard reaches every item, and the program answers.
class ComboBinding final : public QObject, public WidgetBinding {
 public:
  ComboBinding(ComboBox& combo, QComboBox& widget)
      : WidgetBinding(combo, widget), combo_(combo), widget_(widget) {
    widget.setFocusPolicy(Qt::StrongFocus);  // the wheel alone does not bring the keyboard here
    widget.view()->installEventFilter(this);
    QObject::connect(&widget, &QComboBox::activated, [this](int index) {
      combo_.PerformChoice(index);
      Show();
    });
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) GreyItems(true);
    if (event->type() == QEvent::Hide) GreyItems(false);
    if (event->type() == QEvent::FontChange && notes_ != nullptr) notes_->FitList();
    return QObject::eventFilter(watched, event);
  }

 private:
  void GreyItems(bool open) {
    auto* model = qobject_cast<QStandardItemModel*>(widget_.model());
    for (int i = 0; model != nullptr && i < model->rowCount(); ++i) {
      const QString reason = ToQt(combo_.ReasonAgainst(i));
      model->item(i)->setEnabled(!open || reason.isEmpty());
      model->item(i)->setToolTip(reason);
    }
  }

  void ShowNotes() {
    bool changed = false;
    for (int i = 0; i < widget_.count(); ++i) {
      const QString note = ToQt(combo_.ItemNote(i));
      if (notes_ == nullptr && note.isEmpty()) continue;
      if (notes_ == nullptr) notes_ = new NotedItems(widget_);
      if (notes_->SetNote(i, note)) changed = true;
    }
    if (changed) notes_->FitList();
  }

  void ShowValue() override {
    const QSignalBlocker blocker(widget_);
    const auto items = combo_.Items();
    if (static_cast<std::size_t>(widget_.count()) != items.size()) {
      widget_.clear();
      for (const std::string& item : items) widget_.addItem(ToQt(item));
    }
    for (int i = 0; i < widget_.count(); ++i) {
      const QString item = ToQt(items[static_cast<std::size_t>(i)]);
      if (widget_.itemText(i) != item) widget_.setItemText(i, item);  // in another language now
    }
    ShowNotes();
    widget_.setCurrentIndex(combo_.ListIndex());
  }

  ComboBox& combo_;
  QComboBox& widget_;
  /// A child of the widget; null where no item has a note.
  NotedItems* notes_ = nullptr;
};

class LabelBinding final : public WidgetBinding {
 public:
  LabelBinding(Label& label, QLabel& widget) : WidgetBinding(label, widget), label_(label) {
    widget.setTextFormat(Qt::PlainText);
    auto* link = dynamic_cast<LinkLabel*>(&widget);
    if (link != nullptr) link->onPress = [&label] { label.PerformClick(); };
  }

 private:
  void ShowValue() override {
    if (auto* summary = dynamic_cast<FigureLabel*>(&Widget())) {
      summary->Show(ToShown(label_.CaptionText()), ToShown(label_.Figure()));
    } else if (!TakesMnemonic()) {
      SetShownCaption(ToShownLines(label_.Caption()));
    }
  }

  /// A bar made of characters is not for the screen, which has a real one.
  [[nodiscard]] bool IsShown() const override {
    return label_.Visible() && !label_.ShownProgress();
  }

  Label& label_;
};

class CommandBinding final : public WidgetBinding {
 public:
  CommandBinding(CommandButton& command, QPushButton& widget)
      : WidgetBinding(command, widget), secondClick_(command, widget) {
    QObject::connect(&widget, &QPushButton::clicked, [&command] { command.PerformClick(); });
  }

 private:
  void ShowValue() override {}

  SecondClick secondClick_;
};

class FrameBinding final : public WidgetBinding {
 public:
  FrameBinding(Frame& frame, QGroupBox& box) : WidgetBinding(frame, box) {}

 private:
  void ShowValue() override { SetShownCaption(WithoutMnemonic(Caption().trimmed())); }
};

template <class Binding, class Kind, class Widget>
std::unique_ptr<WidgetBinding> BindAs(Control& control, QWidget& widget) {
  auto* source = control.As<Kind>();
  auto* shown = dynamic_cast<Widget*>(&widget);
  if (source == nullptr || shown == nullptr) return nullptr;
  return std::make_unique<Binding>(*source, *shown);
}

}  // namespace

void WidgetBinding::ShowAccess() {
  if (IsShown()) widget_.setVisible(true);
  if (control_.Enabled()) widget_.setEnabled(true);
}

void WidgetBinding::Show() {
  ShowValue();
  widget_.setVisible(IsShown());
  widget_.setEnabled(control_.Enabled());
  const QString toolTip = ToShown(control_.ToolTip());
  if (toolTip != widget_.toolTip()) widget_.setToolTip(toolTip);
  // Screen readers are told of every description that is set, the same one, too.
  if (toolTip != widget_.accessibleDescription()) widget_.setAccessibleDescription(toolTip);
}

bool WidgetBinding::IsShown() const {
  return control_.Visible();
}

QString WidgetBinding::Caption() const {
  const auto* captioned = dynamic_cast<const CaptionedControl*>(&control_);
  return captioned == nullptr ? QString() : ToQt(captioned->Caption());
}

void WidgetBinding::SetShownCaption(const QString& caption) {
  if (auto* button = dynamic_cast<QAbstractButton*>(&widget_)) {
    if (button->text() != caption) button->setText(caption);
  } else if (auto* label = dynamic_cast<QLabel*>(&widget_)) {
    if (label->text() != caption) label->setText(caption);
  } else if (auto* box = dynamic_cast<QGroupBox*>(&widget_)) {
    if (box->title() != caption) box->setTitle(caption);
  }
}

bool WidgetBinding::TakesMnemonic() const {
  if (dynamic_cast<const QAbstractButton*>(&widget_) != nullptr) return true;
  const auto* label = dynamic_cast<const QLabel*>(&widget_);
  return label != nullptr && label->buddy() != nullptr;
}

std::unique_ptr<WidgetBinding> Bind(Control& control, QWidget& widget) {
  switch (control.Kind()) {
    case ControlKind::kTextBox:
      if (auto line = BindAs<LineBinding, TextBox, QLineEdit>(control, widget)) return line;
      return BindAs<LinesBinding, TextBox, QPlainTextEdit>(control, widget);
    case ControlKind::kCheckBox:
      return BindAs<CheckBinding, CheckBox, QCheckBox>(control, widget);
    case ControlKind::kOptionButton:
      return BindAs<OptionBinding, OptionButton, QRadioButton>(control, widget);
    case ControlKind::kComboBox:
      return BindAs<ComboBinding, ComboBox, QComboBox>(control, widget);
    case ControlKind::kLabel:
      return BindAs<LabelBinding, Label, QLabel>(control, widget);
    case ControlKind::kCommandButton:
      return BindAs<CommandBinding, CommandButton, QPushButton>(control, widget);
    case ControlKind::kFrame:
      return BindAs<FrameBinding, Frame, QGroupBox>(control, widget);
  }
  return nullptr;
}

QString WidgetNameOf(const Control& control) {
  QString name = ToQt(control.BaseName());
  if (control.Index()) name += QLatin1Char('_') + QString::number(*control.Index());
  return name;
}

}  // namespace quillomat
