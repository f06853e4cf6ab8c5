#include "sources/wildcard.h"

#include <cstddef>

#include "base/utf8.h"

namespace quillomat {

bool MatchesWildcard(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  // Where the last "*" may still take in one more character.
  std::size_t starEnd = std::string_view::npos;
  std::size_t retry = 0;
  while (n < name.size()) {
    const std::size_t bytes = CharacterAt(name, n).bytes;
    if (p < pattern.size() && pattern[p] == '*') {
      starEnd = ++p;
      retry = n;
    } else if (p < pattern.size() && pattern[p] == '?') {
      ++p;
      n += bytes;
    } else if (pattern.substr(p).starts_with(name.substr(n, bytes))) {
      p += bytes;
      n += bytes;
    } else if (starEnd != std::string_view::npos) {
      retry += CharacterAt(name, retry).bytes;
      n = retry;
      p = starEnd;
    } else {
      return false;
    }
  }
  return pattern.substr(p).find_first_not_of('*') == std::string_view::npos;
}

}  // namespace quillomat
