#include "qt/find_bar.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "app/program.h"
#include "base/utf8.h"
#include "qt/flow_layout.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {

FindBar::FindBar(QPlainTextEdit& list, const Program& program) : list_(list), program_(program) {
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
  const std::vector<Place> places = Places();
  const QString below = ToQt(program_.FoundBelowText(FromQt(word_.text())));
  if (places.empty()) {
    ShowNoPlace();
    ShowOutcome(below.isEmpty() ? notFoundText_ : below);
    return announce(outcome_);
  }
  const QTextCursor here = list_.textCursor();
  const int start = fromHere || backward ? here.selectionStart() : here.selectionEnd();
  // The first place that does not begin before it, or the one in front of that.
  auto found = std::ranges::lower_bound(places, start, {}, &Place::begin);
  if (backward) found = std::prev(found == places.begin() ? places.end() : found);
  if (found == places.end()) found = places.begin();
  ShowPlace(*found);
  place_.setText(placeOfPlaces_.arg(found - places.begin() + 1).arg(places.size()));
  ShowOutcome(below);
  if (!fromHere) announce(place_);  // whoever types hears the letters
}

/// All of them, by the rule of the list.
std::vector<FindBar::Place> FindBar::Places() const {
  const std::string text = FromQt(list_.toPlainText());
  std::vector<Place> places;
  std::size_t byte = 0;
  int units = 0;
  const auto unitsBefore = [&](std::size_t end) {
    for (; byte < end; byte += CharacterAt(text, byte).bytes) {
      units += QChar::requiresSurrogates(CharacterAt(text, byte).codePoint) ? 2 : 1;
    }
    return units;
  };
  for (const TextPlace& place : program_.PlacesIn(text, FromQt(word_.text()))) {
    const int begin = unitsBefore(place.begin);
    places.push_back({begin, unitsBefore(place.end)});
  }
  return places;
}

void FindBar::ShowPlace(const Place& place) {
  QTextCursor cursor = list_.textCursor();
  cursor.setPosition(place.begin);
  cursor.setPosition(place.end, QTextCursor::KeepAnchor);
  list_.setTextCursor(cursor);
  list_.ensureCursorVisible();
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
  if (event->key() == Qt::Key_Escape)
    return program_.State().Busy() ? QWidget::keyPressEvent(event) : Close();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    return Find(event->modifiers().testFlag(Qt::ShiftModifier), false);
  }
  QWidget::keyPressEvent(event);
}

}  // namespace quillomat
