// A label that is a link: the keyboard reaches it and is seen there, Enter and Space follow it as a
// click does, and a screen reader calls it a link.
#pragma once

#include <QLabel>
#include <functional>

namespace quillomat {

class LinkLabel final : public QLabel {
 public:
  explicit LinkLabel(QWidget* parent = nullptr);

  /// Follows the link, by the keyboard or for a screen reader. Clicks are told by whoever watches
  /// the mouse.
  std::function<void()> onPress;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillomat
