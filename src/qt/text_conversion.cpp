#include "qt/text_conversion.h"

namespace quillomat {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

QString ToQtLines(std::string_view text) {
  return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string FromQtLines(const QString& text) {
  return FromQt(QString(text).replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

}  // namespace quillomat
