#include "qt/expression.h"

#include <QRegularExpression>

#include "qt/text_conversion.h"
#include "qt/word_expression.h"

namespace quillomat {

/// The toolkit says what is wrong, in the user's language.
std::variant<Matcher, ExpressionFault> ReadExpression(std::string_view expression) {
  const QRegularExpression read(
      ToQt(expression),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  if (!read.isValid()) return ExpressionFault{FromQt(read.errorString())};
  return MatcherOf(read);
}

}  // namespace quillomat
