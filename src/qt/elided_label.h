// A label of one line that shows as much of its text as there is room for, with dots at the end of
// what is cut; the tip then shows all of it. A screen reader reads the whole text.
#pragma once

#include <QLabel>

namespace quillomat {

class ElidedLabel final : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QString ShownText() const;
};

}  // namespace quillomat
