// UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

[[nodiscard]] std::wstring ToWide(std::string_view utf8);
[[nodiscard]] std::string FromWide(std::wstring_view wide);

}  // namespace quillomat
