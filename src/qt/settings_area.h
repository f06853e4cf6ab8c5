// The part of a window that holds settings: it scrolls from top to bottom where the window is too
// low for it, and is never narrower than what it holds, unless the whole screen is. With the size
// policy "Maximum" it is never higher either.
#pragma once

#include <QScrollArea>

namespace quillomat {

class SettingsArea final : public QScrollArea {
 public:
  explicit SettingsArea(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int BarWidth() const;
};

}  // namespace quillomat
