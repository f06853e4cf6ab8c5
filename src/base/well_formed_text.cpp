#include "base/well_formed_text.h"

#include <cstddef>

#include "base/utf8.h"

namespace quillomat {

std::string WellFormedText(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string wellFormed;
  for (;;) {
    const std::size_t bytes = WellFormedUtf8Bytes(text);
    wellFormed.append(text.substr(0, bytes));
    if (bytes == text.size()) return wellFormed;
    AppendCharacter(wellFormed, kReplacement);
    text.remove_prefix(bytes + 1);
  }
}

}  // namespace quillomat
