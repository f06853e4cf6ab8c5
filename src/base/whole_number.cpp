#include "base/whole_number.h"

#include <charconv>

namespace quillomat {

std::errc ReadWholeNumber(std::string_view text, std::int32_t& number) {
  std::int32_t read = 0;
  const char* const end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, read);
  if (error != std::errc()) return error;
  if (last != end) return std::errc::invalid_argument;
  number = read;
  return {};
}

}  // namespace quillomat
