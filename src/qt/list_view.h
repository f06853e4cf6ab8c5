// The text box that shows the list: letters of one width whose size can be changed, and copies
// that keep their columns.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <utility>
#include <vector>

#include "qt/list_table.h"

namespace quillomat {

class ListView : public QPlainTextEdit {
 public:
  explicit ListView(QWidget* parent = nullptr);

  /// Steps of one point above the system's size; from kSmallestZoom to kLargestZoom.
  [[nodiscard]] int Zoom() const { return zoom_; }
  /// A step out of range is the nearest one.
  void SetZoom(int zoom);
  /// What else follows a change of it.
  std::function<void(int zoom)> onZoom;

  [[nodiscard]] QSize minimumSizeHint() const override;

  /// Asked for the cells whenever something is copied; without it there are none.
  void SetCells(CellSource cells) { cells_ = std::move(cells); }

  static constexpr int kSmallestZoom = -5;
  static constexpr int kLargestZoom = 30;

 protected:
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  qreal usualSize_;
  int zoom_ = 0;
  [[nodiscard]] std::vector<CopiedLine> SelectedLines() const;

  CellSource cells_;
};

}  // namespace quillomat
