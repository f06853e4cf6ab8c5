#include "text/filled_text.h"

#include <cstddef>

namespace quillomat {

std::string Filled(std::string_view pattern, std::span<const std::string> values) {
  std::string text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const bool isPlace = pattern[i] == '%' && i + 1 < pattern.size() && pattern[i + 1] >= '1' &&
                         static_cast<std::size_t>(pattern[i + 1] - '1') < values.size();
    if (!isPlace) {
      text.push_back(pattern[i]);
      continue;
    }
    ++i;
    text.append(values[static_cast<std::size_t>(pattern[i] - '1')]);
  }
  return text;
}

std::string Filled(std::string_view pattern, std::initializer_list<std::string> values) {
  return Filled(pattern, std::span(values.begin(), values.size()));
}

}  // namespace quillomat
