// A text box of a few lines: as high as they are, whatever the letters' size; more of them scroll.
// The Tab key goes on from it.
#pragma once

#include <QPlainTextEdit>

namespace quillomat {

class FewLines final : public QPlainTextEdit {
 public:
  explicit FewLines(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 private:
  [[nodiscard]] int HeightOf(int lines) const;
};

}  // namespace quillomat
