#include "qt/few_lines.h"

#include <QTextDocument>
#include <cmath>

namespace quillomat {
namespace {

constexpr int kLines = 4;
constexpr int kFewestLines = 2;

}  // namespace

FewLines::FewLines(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize FewLines::sizeHint() const {
  return {QPlainTextEdit::sizeHint().width(), HeightOf(kLines)};
}

QSize FewLines::minimumSizeHint() const {
  return {QPlainTextEdit::minimumSizeHint().width(), HeightOf(kFewestLines)};
}

int FewLines::HeightOf(int lines) const {
  const double margins = 2 * (document()->documentMargin() + frameWidth());
  return lines * fontMetrics().lineSpacing() + static_cast<int>(std::ceil(margins));
}

}  // namespace quillomat
