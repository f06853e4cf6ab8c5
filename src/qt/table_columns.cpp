#include "qt/table_columns.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

#include "qt/text_conversion.h"

namespace quillomat {
namespace {

constexpr int kWordSection = static_cast<int>(WordColumn::kWord);
constexpr int kFilesSection = static_cast<int>(WordColumn::kFiles);
// The column of words has room for the longest one, but for no less and no more than these.
const char* const kShortestWord = "character";
const char* const kLongWord = "incomprehensibility";

std::size_t IndexOf(int section) {
  return static_cast<std::size_t>(section);
}

}  // namespace

TableColumns::TableColumns(QTableView& view, const WordTableModel& model)
    : view_(view), model_(model) {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    QAction& action = actions_[IndexOf(section)];
    action.setCheckable(true);
    action.setChecked(WordTableModel::ColumnOf(section) != WordColumn::kLength);
    action.setEnabled(section != kWordSection);
    connect(&action, &QAction::toggled, this, [this] { Arrange(); });
  }
  connect(view_.horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int section, int /*before*/, int width) {
            if (changing_ || width == 0) return;
            widths_[IndexOf(section)] = width;
            drawnByUser_ = true;
          });
}

void TableColumns::Arrange() {
  const QScopedValueRollback changing(changing_, true);
  ShowWanted();
  if (!drawnByUser_) Fit();
}

void TableColumns::FollowContents(bool filesKnown) {
  filesKnown_ = filesKnown;
  Arrange();
}

int TableColumns::WidthOfWords() const {
  const QFontMetrics letters = view_.fontMetrics();
  return std::clamp(model_.LongestWord() * letters.averageCharWidth(),
                    letters.horizontalAdvance(QLatin1String(kShortestWord)),
                    letters.horizontalAdvance(QLatin1String(kLongWord)));
}

int TableColumns::LeastWidth(int section) const {
  const QFontMetrics letters = view_.fontMetrics();
  const int widest = section == kWordSection ? WidthOfWords()
                                             : letters.horizontalAdvance(model_.WidestOf(section));
  const int margins = letters.averageCharWidth() +
                      2 * view_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view_);
  return std::max(widest + margins, view_.horizontalHeader()->sectionSizeHint(section));
}

void TableColumns::Fit() {
  int others = 0;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    widths_[IndexOf(section)] = LeastWidth(section);
    if (section == kWordSection || view_.isColumnHidden(section)) continue;
    others += widths_[IndexOf(section)];
    view_.setColumnWidth(section, widths_[IndexOf(section)]);
  }
  int& word = widths_[IndexOf(kWordSection)];
  word = std::max(view_.viewport()->width() - others, word);
  view_.setColumnWidth(kWordSection, word);
}

bool TableColumns::IsKnown(int section) const {
  return section != kFilesSection || filesKnown_;
}

void TableColumns::ShowWanted() {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    view_.setColumnHidden(section, !IsKnown(section) || !actions_[IndexOf(section)].isChecked());
  }
}

QStringList TableColumns::Wanted() const {
  QStringList names;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    if (!actions_[IndexOf(section)].isChecked()) continue;
    names.append(ToQt(NameOf(WordTableModel::ColumnOf(section))));
  }
  return names;
}

void TableColumns::SetWanted(const QStringList& names) {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    const bool wanted = names.contains(ToQt(NameOf(WordTableModel::ColumnOf(section))));
    actions_[IndexOf(section)].setChecked(wanted || section == kWordSection);
  }
}

QStringList TableColumns::Widths() const {
  QStringList widths;
  if (!drawnByUser_) return widths;
  for (const int width : widths_) widths.append(QString::number(width));
  return widths;
}

void TableColumns::SetWidths(const QStringList& widths) {
  constexpr int kNarrowest = 20;
  constexpr int kWidest = 2000;
  if (widths.size() != WordTableModel::kColumns) return;
  const QScopedValueRollback changing(changing_, true);
  drawnByUser_ = true;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    const int width = std::clamp(widths[section].toInt(), kNarrowest, kWidest);
    widths_[IndexOf(section)] = width;
    view_.setColumnWidth(section, width);
  }
}

QList<int> TableColumns::Shown() const {
  QList<int> sections;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    if (!view_.isColumnHidden(section)) sections.append(section);
  }
  return sections;
}

void TableColumns::AddTo(QMenu& menu) {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    if (!IsKnown(section)) continue;
    QAction& action = actions_[IndexOf(section)];
    action.setText(model_.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
    menu.addAction(&action);
  }
}

}  // namespace quillomat
