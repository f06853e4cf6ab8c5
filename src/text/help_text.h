// The text of the help window, in English, with CR LF between its lines.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Where the whole manual is.
inline constexpr std::string_view kOnlineDocumentation = "https://quillomat.example/manual";

[[nodiscard]] std::string HelpText();

}  // namespace quillomat
