// The lines of some bytes, read in pieces of a chosen size.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/line_decoder.h"
#include "support/chunked_source.h"

namespace quillomat {

inline constexpr std::size_t kDiskBlock = 65'536;

[[nodiscard]] inline std::vector<std::string> LinesOf(std::string bytes,
                                                      std::size_t chunkBytes = kDiskBlock) {
  ChunkedSource source(std::move(bytes), chunkBytes);
  LineDecoder decoder(source);
  std::vector<std::string> lines;
  while (const std::optional<std::string_view> line = decoder.NextLine()) lines.emplace_back(*line);
  return lines;
}

[[nodiscard]] inline std::string TextOf(std::string bytes, std::size_t chunkBytes = kDiskBlock) {
  ChunkedSource source(std::move(bytes), chunkBytes);
  return DecodeText(source);
}

}  // namespace quillomat
