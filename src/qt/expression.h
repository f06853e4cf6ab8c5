// Regular expressions as the toolkit understands them.
#pragma once

#include <string_view>
#include <variant>

#include "app/table/row_filter.h"

namespace quillomat {

/// An ExpressionReader (app/table/row_filter.h).
[[nodiscard]] std::variant<Matcher, ExpressionFault> ReadExpression(std::string_view expression);

}  // namespace quillomat
