// A label that shows as much of its text as there is room for, in as many lines as its height has,
// with dots at the end of what is cut; the tip then shows all of it. A screen reader reads the
// whole text. It asks for the height of one line only.
#pragma once

#include <QLabel>
#include <QStringList>

namespace quillomat {

class ElidedLabel final : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  /// So much and no more is wanted of a row, whatever is shown, and less is taken. Without it the
  /// label takes all that it is given, and wants nothing.
  void SetWantedWidth(int width);
  [[nodiscard]] int WantedWidth() const { return wantedWidth_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  [[nodiscard]] bool IsCut() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QStringList ShownLines() const;

  int wantedWidth_ = 0;
};

}  // namespace quillomat
