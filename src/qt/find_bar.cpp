#include "qt/find_bar.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

#include "qt/flow_layout.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {

FindBar::FindBar(QPlainTextEdit& list, TellBelow tellBelow, IsBusy isBusy)
    : list_(list), tellBelow_(std::move(tellBelow)), isBusy_(std::move(isBusy)) {
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  auto* row = new FlowLayout;
  lines->addLayout(row);
  for (QWidget* part : {static_cast<QWidget*>(&label_), static_cast<QWidget*>(&word_),
                        static_cast<QWidget*>(&previous_), static_cast<QWidget*>(&next_),
                        static_cast<QWidget*>(&place_)}) {
    row->addWidget(part);
  }
  // In a line of its own: beside the commands a long one would become a narrow column.
  lines->addWidget(&outcome_);
  outcome_.setWordWrap(true);
  outcome_.hide();
  word_.setClearButtonEnabled(true);
  word_.setMinimumWidth(120);
  label_.setBuddy(&word_);
  connect(&word_, &QLineEdit::textEdited, this, [this] { Find(false, true); });
  connect(&list_, &QPlainTextEdit::textChanged, this, [this] { Forget(); });
  connect(&previous_, &QPushButton::clicked, this, [this] { Find(true, false); });
  connect(&next_, &QPushButton::clicked, this, [this] { Find(false, false); });
  hide();
}

void FindBar::SetTexts(const ProgramText& text) {
  label_.setText(ToQt(text.GetText(kFindText)));
  next_.setText(ToQt(text.GetText(kFindNextText)));
  previous_.setText(ToQt(text.GetText(kFindPreviousText)));
  next_.setToolTip(QStringLiteral("F3"));
  previous_.setToolTip(QKeySequence(Qt::SHIFT | Qt::Key_F3).toString(QKeySequence::NativeText));
  placeOfPlaces_ = ToQt(text.GetText(kPlaceOfPlacesText));
  notFoundText_ = ToQt(text.GetText(kNotFoundText));
  word_.setAccessibleName(label_.text());
  Forget();
}

void FindBar::Open() {
  show();
  const QString selected = list_.textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar(QChar::ParagraphSeparator))) {
    word_.setText(selected);
    Find(false, true);
  }
  word_.selectAll();
  word_.setFocus(Qt::ShortcutFocusReason);
}

void FindBar::FindAgain(bool backward) {
  if (word_.text().isEmpty()) return Open();
  show();
  Find(backward, false);
}

/// Goes round at the end of the text. `fromHere`: what is selected may stay found, as the user goes
/// on typing.
void FindBar::Find(bool backward, bool fromHere) {
  Forget();
  if (word_.text().isEmpty()) return ShowNoPlace();
  QTextCursor start = list_.textCursor();
  if (fromHere) start.setPosition(start.selectionStart());
  const QTextCursor found = FoundFrom(start, backward);
  const QString below = tellBelow_(word_.text());
  if (found.isNull()) {
    ShowNoPlace();
    ShowOutcome(below.isEmpty() ? notFoundText_ : below);
    return announce(outcome_);
  }
  list_.setTextCursor(found);
  list_.ensureCursorVisible();
  ShowPlace(found);
  ShowOutcome(below);
  if (!fromHere) announce(place_);  // whoever types hears the letters
}

QTextCursor FindBar::FoundFrom(QTextCursor start, bool backward) const {
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  const QTextCursor found = list_.document()->find(word_.text(), start, flags);
  if (!found.isNull()) return found;
  start.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
  return list_.document()->find(word_.text(), start, flags);
}

/// The places do not overlap, as the search goes on behind the one that it has found.
void FindBar::ShowPlace(const QTextCursor& found) {
  const QString text = list_.document()->toRawText();
  const QString& word = word_.text();
  int places = 0;
  int place = 0;
  for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
       at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive)) {
    ++places;
    if (at <= found.selectionStart()) place = places;
  }
  place_.setText(placeOfPlaces_.arg(place).arg(places));
}

/// Nothing in the text bears the mark of a hit that is none any more.
void FindBar::ShowNoPlace() {
  QTextCursor cursor = list_.textCursor();
  cursor.setPosition(cursor.selectionStart());
  list_.setTextCursor(cursor);
}

/// What was said is of another text, or of something else that was looked for.
void FindBar::Forget() {
  place_.clear();
  ShowOutcome({});
}

void FindBar::ShowOutcome(const QString& outcome) {
  outcome_.setText(outcome);
  outcome_.setVisible(!outcome.isEmpty());
}

void FindBar::Close() {
  hide();
  list_.setFocus(Qt::OtherFocusReason);
}

/// The keys are the bar's own, and Enter starts no count; but what is at work is stopped.
void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return isBusy_() ? QWidget::keyPressEvent(event) : Close();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    return Find(event->modifiers().testFlag(Qt::ShiftModifier), false);
  }
  QWidget::keyPressEvent(event);
}

}  // namespace quillomat
