#include <QStringView>
#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "base/utf8.h"
#include "qt/text_conversion.h"
#include "qt/word_expression.h"

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

std::variant<Matcher, ExpressionFault> MatcherOf(const QRegularExpression& expression) {
  expression.optimize();
  return [expression](std::string_view text) { return Matches(expression, text); };
}

}  // namespace quillomat
