#include "qt/word_table_model.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

constexpr double kWholePercent = 100;

}  // namespace

WordTableModel::WordTableModel(ResultTable& table, std::function<bool()> isWatched)
    : table_(table), isWatched_(std::move(isWatched)) {
  table_.Changing.Connect([this] { beginResetModel(); });
  table_.Changed.Connect([this] {
    awake_ = isWatched_();
    endResetModel();
  });
}

void WordTableModel::Wake() {
  if (awake_) return;
  beginResetModel();
  awake_ = true;
  endResetModel();
}

void WordTableModel::SetTexts(const ProgramText& text) {
  titles_.clear();
  for (int section = 0; section < kColumns; ++section) {
    titles_.append(ToQt(text.GetText(kFirstColumnText + section)));
  }
  emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
}

/// The first word has the largest figures but for what grows along the ranks.
QString WordTableModel::WidestOf(int section) const {
  const WordRows* rows = Rows();
  if (rows == nullptr || rows->Words().ByFrequency().empty()) return {};
  const WordTable& words = rows->Words();
  WordRow widest = words.RowOf(words.ByFrequency().front());
  widest.rank = words.Words().totals.NumIncludedWords;
  widest.cumulativePercent = kWholePercent;
  widest.length = static_cast<std::size_t>(words.Words().totals.MaxWordLength);
  if (widest.files) {
    const std::size_t files = words.Words().store.Files().FileList().size();
    widest.files = static_cast<std::int32_t>(files);
  }
  return ToQt(CellOf(widest, ColumnOf(section), signs_));
}

int WordTableModel::LongestWord() const {
  const WordRows* rows = Rows();
  return rows == nullptr ? 0 : rows->Words().Words().totals.MaxWordLength;
}

QStringList WordTableModel::TitlesOf(const QList<int>& sections) const {
  QStringList titles;
  for (const int section : sections) titles.append(titles_.value(section));
  return titles;
}

QStringList WordTableModel::CopyOf(int row, const QList<int>& sections) const {
  const NumberSigns signs{.group = "", .decimal = signs_.decimal};
  const WordRow word = Rows()->RowAt(static_cast<std::size_t>(row));
  QStringList cells;
  for (const int section : sections) cells.append(ToQt(CellOf(word, ColumnOf(section), signs)));
  return cells;
}

int WordTableModel::rowCount(const QModelIndex& parent) const {
  const WordRows* rows = parent.isValid() ? nullptr : Rows();
  if (rows == nullptr) return 0;
  return static_cast<int>(std::min<std::size_t>(rows->Size(), std::numeric_limits<int>::max()));
}

int WordTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant WordTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const WordColumn column = ColumnOf(index.column());
  if (role == Qt::TextAlignmentRole) {
    const bool isText = column == WordColumn::kWord;
    return QVariant::fromValue(Qt::AlignVCenter | (isText ? Qt::AlignLeft : Qt::AlignRight));
  }
  if (role != Qt::DisplayRole) return {};
  const WordRow row = Rows()->RowAt(static_cast<std::size_t>(index.row()));
  return ToQt(CellOf(row, column, signs_));
}

QVariant WordTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return titles_.value(section);
  if (role == Qt::InitialSortOrderRole) {
    return StartsWithTheLargest(ColumnOf(section)) ? Qt::DescendingOrder : Qt::AscendingOrder;
  }
  return {};
}

void WordTableModel::sort(int section, Qt::SortOrder order) {
  table_.SetOrder({ColumnOf(section), order == Qt::DescendingOrder});
}

QModelIndexList WordTableModel::match(const QModelIndex& start, int /*role*/, const QVariant& value,
                                      int /*hits*/, Qt::MatchFlags /*flags*/) const {
  const WordRows* rows = Rows();
  if (rows == nullptr) return {};
  const auto from = static_cast<std::size_t>(std::max(0, start.row()));
  const auto found = rows->FindBeginning(FromQt(value.toString()), from);
  if (!found) return {};
  return {index(static_cast<int>(*found), start.column())};
}

}  // namespace quillomat
