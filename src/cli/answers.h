// What may be answered to the program's questions on the command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Why `word` is no answer to the question with that title, in words for the user who wrote it;
/// nothing when it is one. Letter case makes no difference.
[[nodiscard]] std::optional<std::string> WhyNoAnswer(std::string_view title, std::string_view word);

}  // namespace quillomat
