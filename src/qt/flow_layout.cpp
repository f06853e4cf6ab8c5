#include "qt/flow_layout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace quillomat {
namespace {

bool Grows(const QLayoutItem& item) {
  return item.expandingDirections().testFlag(Qt::Horizontal);
}

/// What an item needs in a row: one that grows its least width, any other the width it wants.
int WidthOf(const QLayoutItem& item) {
  return Grows(item) ? item.minimumSize().width() : item.sizeHint().width();
}

/// What shrinks asks for no more of the window than its least width.
bool Shrinks(const QLayoutItem& item) {
  const QWidget* widget = item.widget();
  return widget != nullptr && widget->sizePolicy().horizontalPolicy() == QSizePolicy::Maximum;
}

/// By way of its item, what shrinks would be no wider than it wants.
void Place(QLayoutItem& item, const QRect& place) {
  if (Shrinks(item)) return item.widget()->setGeometry(place);
  item.setGeometry(place);
}

int LeastWidthOf(const QLayoutItem& item) {
  return Shrinks(item) ? item.minimumSize().width() : WidthOf(item);
}

int HeightOf(const QLayoutItem& item, int width) {
  const int wanted =
      item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
  return std::max(wanted, item.minimumSize().height());
}

/// A spacer that pushes what follows it to the end of the row.
bool IsSpring(QLayoutItem* item) {
  return item->spacerItem() != nullptr && Grows(*item);
}

bool IsHidden(QLayoutItem& item) {
  return item.isEmpty() && item.spacerItem() == nullptr;
}

bool GrowsInHeight(QLayoutItem& item) {
  const QWidget* widget = item.widget();
  return widget == nullptr || (static_cast<unsigned>(widget->sizePolicy().verticalPolicy()) &
                               QSizePolicy::GrowFlag) != 0;
}

}  // namespace

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
  invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto place = items_.begin() + index;
  QLayoutItem* item = place->release();
  items_.erase(place);
  invalidate();
  return item;
}

int FlowLayout::Gap() const {
  if (spacing() >= 0) return spacing();
  const QWidget* widget = parentWidget();
  return widget == nullptr
             ? 0
             : widget->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, widget);
}

std::vector<FlowLayout::Row> FlowLayout::RowsOf(int width) const {
  std::vector<Row> rows;
  bool afterSpring = false;
  for (const auto& item : items_) {
    if (IsHidden(*item)) continue;
    const int needed = WidthOf(*item);
    const bool fits = !rows.empty() && rows.back().width + Gap() + needed <= width;
    if (!fits) rows.emplace_back();
    Row& row = rows.back();
    row.atEnd = row.atEnd || (row.items.empty() && afterSpring);
    afterSpring = afterSpring || IsSpring(item.get());
    row.width += needed + (row.items.empty() ? 0 : Gap());
    row.items.push_back(item.get());
  }
  return rows;
}

int FlowLayout::PlaceRow(const Row& row, const QRect& place, bool onlyMeasure) const {
  auto growing = static_cast<int>(
      std::ranges::count_if(row.items, [](const QLayoutItem* item) { return Grows(*item); }));
  const bool hasAll = row.items.size() == 1 && Shrinks(*row.items.front());
  int left = hasAll ? 0 : std::max(place.width() - row.width, 0);
  std::vector<int> widths;
  int height = 0;
  for (const QLayoutItem* item : row.items) {
    int width = hasAll ? place.width() : std::min(WidthOf(*item), place.width());
    if (Grows(*item)) {
      const int share = left / std::max(growing, 1);
      --growing;
      width += share;
      left -= share;
    }
    widths.push_back(width);
    height = std::max(height, HeightOf(*item, width));
  }
  if (onlyMeasure) return height;
  int x = place.x() + (row.atEnd ? left : 0);
  for (std::size_t i = 0; i < row.items.size(); ++i) {
    QLayoutItem& item = *row.items[i];
    const int itemHeight = GrowsInHeight(item) ? height : HeightOf(item, widths[i]);
    const QRect itemPlace(x, place.y() + (height - itemHeight) / 2, widths[i], itemHeight);
    Place(item, QStyle::visualRect(parentWidget()->layoutDirection(), place, itemPlace));
    x += widths[i] + Gap();
  }
  return height;
}

int FlowLayout::PlaceAll(const QRect& place, bool onlyMeasure) const {
  const QMargins margins = contentsMargins();
  QRect inside = place.marginsRemoved(margins);
  int y = inside.y();
  for (const Row& row : RowsOf(inside.width())) {
    if (y > inside.y()) y += Gap();
    y += PlaceRow(row, QRect(inside.x(), y, inside.width(), 0), onlyMeasure);
  }
  return y - place.y() + margins.bottom();
}

int FlowLayout::heightForWidth(int width) const {
  return PlaceAll(QRect(0, 0, width, 0), true);
}

QSize FlowLayout::minimumSize() const {
  QSize size(0, 0);
  for (const auto& item : items_) {
    if (item->isEmpty()) continue;
    size = size.expandedTo(QSize(LeastWidthOf(*item), item->minimumSize().height()));
  }
  return size.grownBy(contentsMargins());
}

/// What all need to stand in one row.
QSize FlowLayout::sizeHint() const {
  QSize size(-Gap(), 0);  // there is one gap less than items
  for (const auto& item : items_) {
    if (IsHidden(*item)) continue;
    size = QSize(size.width() + Gap() + WidthOf(*item),
                 std::max(size.height(), item->sizeHint().height()));
  }
  size.setWidth(std::max(size.width(), 0));
  return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  static_cast<void>(PlaceAll(place, false));
}

}  // namespace quillomat
