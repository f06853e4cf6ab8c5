// Wildcards in file names: "?" stands for one character, "*" for any run of characters.
#pragma once

#include <string_view>

namespace quillomat {

/// Whether the whole `name` fits `pattern`. "*.*" wants a dot.
[[nodiscard]] bool MatchesWildcard(std::string_view name, std::string_view pattern);

}  // namespace quillomat
