#include "qt/fixed_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

namespace quillomat {
namespace {

/// What most systems have one of; any other family of one width comes after them.
QStringList Families() {
  QStringList families = {QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Noto Sans Mono"),
                          QStringLiteral("Liberation Mono"),  QStringLiteral("Cascadia Mono"),
                          QStringLiteral("Consolas"),         QStringLiteral("Courier New")};
  for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
    if (QFontDatabase::isFixedPitch(family)) families.append(family);
  }
  return families;
}

}  // namespace

QFont FixedPitchFont(const QFont& wish) {
  if (QFontInfo(wish).fixedPitch()) return wish;
  QFont font = wish;
  font.setStyleName(QString());
  for (const QString& family : Families()) {
    font.setFamilies({family});
    if (QFontInfo(font).fixedPitch()) return font;
  }
  return wish;
}

QFont ListFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setStyleHint(QFont::Monospace);
  return FixedPitchFont(font);
}

}  // namespace quillomat
