#include "qt/expression.h"

#include <QRegularExpression>
#include <QStringView>
#include <algorithm>
#include <array>

#include "base/utf8.h"
#include "qt/text_conversion.h"

namespace quillomat {
namespace {

constexpr std::size_t kShortText = 64;

/// Most words are short and plain: to make a string of each would cost as much as to look at it.
bool Matches(const QRegularExpression& expression, std::string_view text) {
  if (text.size() > kShortText || !IsAscii(text)) return expression.match(ToQt(text)).hasMatch();
  std::array<char16_t, kShortText> units;  // NOLINT(cppcoreguidelines-pro-type-member-init): speed
  std::ranges::copy(text, units.begin());
  return expression.match(QStringView(units.data(), static_cast<qsizetype>(text.size())))
      .hasMatch();
}

}  // namespace

std::variant<Matcher, ExpressionFault> ReadExpression(std::string_view expression) {
  const QRegularExpression read(
      ToQt(expression),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  if (!read.isValid()) return ExpressionFault{FromQt(read.errorString())};
  read.optimize();
  return [read](std::string_view text) { return Matches(read, text); };
}

}  // namespace quillomat
