#include "base/limited_source.h"

#include <algorithm>
#include <string_view>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

[[noreturn]] void Refuse(std::string_view what, std::size_t bytes) {
  throw InputTooLong(std::string(what) + " is longer than " +
                     GroupDigits(static_cast<std::int64_t>(bytes), ",") + " bytes");
}

}  // namespace

std::size_t StartOfSource::Read(std::span<char> buffer) {
  const std::size_t bytes = source_.Read(buffer.first(std::min(buffer.size(), bytesLeft_)));
  bytesLeft_ -= bytes;
  return bytes;
}

std::size_t LimitedSource::Read(std::span<char> buffer) {
  const std::size_t bytes = source_.Read(buffer);
  bytesRead_ += bytes;
  if (bytesRead_ > limits_.bytes) Refuse("it", limits_.bytes);
  std::string_view rest(buffer.data(), bytes);
  while (!rest.empty()) {
    const std::size_t lineEnd = std::min(rest.find_first_of("\r\n"), rest.size());
    lineBytes_ += lineEnd;
    if (lineBytes_ > limits_.lineBytes) Refuse("a line of it", limits_.lineBytes);
    if (lineEnd == rest.size()) break;
    lineBytes_ = 0;
    rest.remove_prefix(lineEnd + 1);
  }
  return bytes;
}

}  // namespace quillomat
