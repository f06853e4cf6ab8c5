// A row that breaks into several where it would not fit, as words break into lines: so a window's
// commands and boxes are never cut, whatever the language, the font and the width. The height
// follows from the width.
//
// What grows by its size policy (a box to type into, a spacer) takes the width that is left in its
// row; what follows a spacer stands at the end, in rows of its own too. What may grow in height
// gets the row's height, all else stands in its middle. What can be shrunk at will (the policy
// Maximum) makes the window no wider than it must be, and has a row that it is alone in to itself.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace quillomat {

class FlowLayout final : public QLayout {
 public:
  explicit FlowLayout(QWidget* parent = nullptr) : QLayout(parent) {}
  FlowLayout(const FlowLayout&) = delete;
  FlowLayout& operator=(const FlowLayout&) = delete;
  FlowLayout(FlowLayout&&) = delete;
  FlowLayout& operator=(FlowLayout&&) = delete;
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize minimumSize() const override;
  [[nodiscard]] QSize sizeHint() const override;
  void setGeometry(const QRect& place) override;

 private:
  struct Row {
    std::vector<QLayoutItem*> items;
    /// Of the items as they are before what is left is given out, with the gaps between them.
    int width = 0;
    /// A spacer in an earlier row pushes this one to the end.
    bool atEnd = false;
  };

  /// Between items, and between rows.
  [[nodiscard]] int Gap() const;
  [[nodiscard]] std::vector<Row> RowsOf(int width) const;
  /// Places a row, or only measures it; returns its height.
  [[nodiscard]] int PlaceRow(const Row& row, const QRect& place, bool onlyMeasure) const;
  [[nodiscard]] int PlaceAll(const QRect& place, bool onlyMeasure) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace quillomat
