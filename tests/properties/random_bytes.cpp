#include "properties/random_bytes.h"

#include <algorithm>
#include <cstddef>

#include "support/encoded_texts.h"

namespace quillomat::properties {

std::string RandomBytes(Random& random, CharacterSet set) {
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  const auto own = std::ranges::find(kEncodedTexts, set, &EncodedText::set);
  std::string bytes;
  for (std::size_t pieces = below(40); pieces > 0; --pieces) {
    switch (below(own == kEncodedTexts.end() ? 3 : 5)) {
      case 0:
        bytes += static_cast<char>(below(256));
        break;
      case 1:
        bytes += static_cast<char>(0x80 + below(128));
        break;
      case 2:
        bytes += static_cast<char>(' ' + below(95));
        break;
      default: {
        const std::size_t start = below(own->bytes.size());
        bytes += own->bytes.substr(start, 1 + below(9));
      }
    }
  }
  return bytes;
}

}  // namespace quillomat::properties
