// The mark that turns while the program works. The program shows a sign of blocks that changes with
// every step of its work, far too fast to look at; shown is a calm ring that turns as long as the
// sign changes.
#pragma once

#include <QElapsedTimer>
#include <QLabel>

namespace quillomat {

class BusyMark final : public QLabel {
 public:
  explicit BusyMark(QWidget* parent = nullptr);

  /// Whether the program's sign is on.
  [[nodiscard]] bool IsOn() const { return !text().trimmed().isEmpty(); }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QElapsedTimer sinceStart_;
};

}  // namespace quillomat
