#include "qt/table_page.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>

#include "base/text_helpers.h"
#include "qt/expression.h"
#include "qt/flow_layout.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

constexpr int kFilterKinds = static_cast<int>(FilterKind::kExpression) + 1;
constexpr int kShortestBox = 120;
constexpr std::chrono::milliseconds kPause{600};

}  // namespace

TablePage::TablePage(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      signs_(program.Signs()),
      table_(program.Words(), ReadExpression),
      view_(table_) {
  PlaceParts();
  view_.Model().SetSigns(signs_);
  for (int kind = 0; kind < kFilterKinds; ++kind) kind_.addItem(QString());
  words_.setClearButtonEnabled(true);
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, [this] { announce(totals_); });
  connect(&words_, &QLineEdit::textChanged, this, [this] { TakeFilter(); });
  connect(&kind_, &QComboBox::currentIndexChanged, this, [this] { TakeFilter(); });
  table_.Changed.Connect([this] {
    if (isVisible()) ShowTotals();
  });
  program.BecameIdle.Connect([this] { ShowHint(); });
}

void TablePage::PlaceParts() {
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  auto* row = new FlowLayout;
  lines->addLayout(row);
  for (QWidget* part : std::array<QWidget*, 4>{&label_, &words_, &kind_, &totals_}) {
    row->addWidget(part);
  }
  lines->addWidget(&view_, 1);
  auto* middle = new QVBoxLayout(view_.viewport());
  middle->addStretch();
  middle->addWidget(&hint_);
  middle->addWidget(&showAll_, 0, Qt::AlignHCenter);
  middle->addStretch();
  connect(&showAll_, &QPushButton::clicked, this, [this] {
    words_.clear();
    view_.setFocus(Qt::OtherFocusReason);
  });
  hint_.setAlignment(Qt::AlignCenter);
  hint_.setWordWrap(true);
  words_.setMinimumWidth(kShortestBox);
  kind_.setSizeAdjustPolicy(QComboBox::AdjustToContents);  // in every language
  label_.setBuddy(&words_);
  setFocusProxy(&view_);
  setTabOrder(&words_, &kind_);
  setTabOrder(&kind_, &view_);
}

void TablePage::SetTexts(const ProgramText& text) {
  label_.setText(ToQt(text.GetText(kShowWordsText)));
  words_.setAccessibleName(label_.text());
  words_.setPlaceholderText(ToQt(text.GetText(kAllWordsText)));
  kind_.setAccessibleName(ToQt(text.GetText(kFilterKindNameText)));
  for (int kind = 0; kind < kFilterKinds; ++kind) {
    kind_.setItemText(kind, ToQt(text.GetText(kFirstFilterKindText + kind)));
  }
  view_.SetTexts(text);
  table_.TellFaultAgain();
  showAll_.setText(ToQt(text.GetText(kShowAllWordsText)));
  ShowTotals();
}

void TablePage::Find() {
  words_.selectAll();
  words_.setFocus(Qt::ShortcutFocusReason);
}

void TablePage::TakeFilter() {
  table_.SetFilter({static_cast<FilterKind>(kind_.currentIndex()), FromQt(words_.text())});
  ShowTotals();
  pause_.start();
  if (!table_.Fault().empty()) return;
  // Who sees all words again keeps the one that was chosen among some in view.
  if (!words_.text().isEmpty()) view_.GoToFirst();
}

void TablePage::ShowTotals() {
  totals_.setText(TotalsText());
  KeepRoomForTotals();
  ShowHint();
}

/// Nothing moves while a filter is typed: the totals of all words are the widest, and what is wrong
/// with a filter has to do with the same room, or a usual one.
void TablePage::KeepRoomForTotals() {
  constexpr int kUsualLetters = 40;
  if (!table_.Fault().empty()) return;
  const QFontMetrics letters = totals_.fontMetrics();
  const int width = std::max(letters.horizontalAdvance(totals_.text()) + 1,
                             kUsualLetters * letters.averageCharWidth());
  const bool ofAllWords = words_.text().isEmpty();
  totals_.SetWantedWidth(ofAllWords ? width : std::max(width, totals_.WantedWidth()));
}

void TablePage::ShowHint() {
  const WordRows* rows = table_.Rows();
  const QString text = program_.State().Busy() ? QString() : HintText(rows);
  hint_.setText(text);
  hint_.setVisible(!text.isEmpty());
  showAll_.setVisible(!text.isEmpty() && rows != nullptr);
}

/// "" where there are words to be seen, or none in the list.
QString TablePage::HintText(const WordRows* rows) const {
  const ProgramText& text = program_.Text();
  if (rows == nullptr) {
    return ToQt(text.GetText(program_.Words().gaveWay ? kTableGaveWayText : kNoTableYetText));
  }
  const std::int32_t words = program_.Words().totals.NumIncludedWords;
  if (rows->Size() > 0 || words == 0) return {};
  return ToQt(Filled(text.GetText(kAllFilteredOutText),
                     {GroupDigits(words, signs_.group), table_.FilterInForce().text}));
}

QString TablePage::TotalsText() {
  if (!table_.Fault().empty()) {
    return ToQt(program_.Text().GetText(kExpressionFaultText)).arg(ToQt(table_.Fault()));
  }
  const WordRows* rows = table_.Rows();
  return rows == nullptr
             ? QString()
             : ToQt(TotalsOf(*rows, program_.Words().stoppedAfter, program_.Text(), signs_));
}

/// While no count runs the keys of the filter are its own.
void TablePage::keyPressEvent(QKeyEvent* event) {
  if (!words_.hasFocus()) return QWidget::keyPressEvent(event);
  switch (event->key()) {
    case Qt::Key_Escape:
      if (program_.State().Busy()) return QWidget::keyPressEvent(event);  // it stops the count
      if (words_.text().isEmpty()) return view_.Enter();
      return words_.clear();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      return view_.Enter();
    default:
      return QWidget::keyPressEvent(event);
  }
}

void TablePage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowTotals();
}

}  // namespace quillomat
