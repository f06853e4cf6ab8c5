#include "qt/expression.h"

#include <QRegularExpression>

#include "qt/text_conversion.h"

namespace quillomat {

std::variant<Matcher, ExpressionFault> ReadExpression(std::string_view expression) {
  const QRegularExpression read(
      ToQt(expression),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  if (!read.isValid()) return ExpressionFault{FromQt(read.errorString())};
  read.optimize();
  return [read](std::string_view text) { return read.match(ToQt(text)).hasMatch(); };
}

}  // namespace quillomat
