// A label of the summary: its text at the left, its number at the right, so that the numbers of
// several labels stand in a column. Text that is too long for the width breaks into lines.
#pragma once

#include <QLabel>
#include <QString>

namespace quillomat {

class FigureLabel final : public QLabel {
 public:
  explicit FigureLabel(QWidget* parent = nullptr);

  /// `figure` may be "".
  void Show(const QString& caption, const QString& figure);
  [[nodiscard]] QString Figure() const { return figure_; }

  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Of the number and the gap before it.
  [[nodiscard]] int FigureWidth() const;

  QString figure_;
};

}  // namespace quillomat
