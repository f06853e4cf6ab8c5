#include "qt/table_columns.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

#include "qt/text_conversion.h"

namespace quillomat {
namespace {

constexpr int kWordSection = static_cast<int>(WordColumn::kWord);
constexpr int kFilesSection = static_cast<int>(WordColumn::kFiles);
// What fills a column.
const char* const kUsualNumber = "1,000,000";
const char* const kUsualWord = "incomprehensibility";
const char* const kShortestWord = "character";

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

void TableColumns::SetFilesKnown(bool known) {
  if (known == filesKnown_) return;
  filesKnown_ = known;
  Arrange();
}

int TableColumns::UsualWidth(int section) const {
  const QFontMetrics letters = view_.fontMetrics();
  const QString usual = QLatin1String(section == kWordSection ? kShortestWord : kUsualNumber);
  const int contents = letters.horizontalAdvance(usual) + letters.averageCharWidth();
  return std::max(contents, view_.horizontalHeader()->sectionSizeHint(section));
}

void TableColumns::Fit() {
  int others = 0;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    widths_[IndexOf(section)] = UsualWidth(section);
    if (section == kWordSection || view_.isColumnHidden(section)) continue;
    others += widths_[IndexOf(section)];
    view_.setColumnWidth(section, widths_[IndexOf(section)]);
  }
  const int largest = view_.fontMetrics().horizontalAdvance(QLatin1String(kUsualWord)) * 2;
  int& word = widths_[IndexOf(kWordSection)];
  word = std::clamp(view_.viewport()->width() - others, word, std::max(word, largest));
  view_.setColumnWidth(kWordSection, word);
}

void TableColumns::ShowWanted() {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    const bool known = section != kFilesSection || filesKnown_;
    view_.setColumnHidden(section, !known || !actions_[IndexOf(section)].isChecked());
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
    QAction& action = actions_[IndexOf(section)];
    action.setText(model_.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
    menu.addAction(&action);
  }
}

}  // namespace quillomat
