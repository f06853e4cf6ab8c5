// A regular expression made ready to look at very many words. With the library itself a look costs
// a tenth of a microsecond less than through the toolkit, which locks the expression and asks for
// memory every time; where the library is hidden in the toolkit, it has to do.
#pragma once

#include <QRegularExpression>
#include <variant>

#include "app/table/row_filter.h"

namespace quillomat {

/// Of an expression that is valid, for words in UTF-8. The fault is that it is too large.
[[nodiscard]] std::variant<Matcher, ExpressionFault> MatcherOf(
    const QRegularExpression& expression);

}  // namespace quillomat
