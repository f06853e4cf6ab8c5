// What tells one content of a file from another: whoever has read a file learns by it whether it
// has been changed since, however quickly.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace quillomat {

struct ContentMark {
  std::int64_t bytes = 0;
  /// Of the first kMostMarkedBytes; good for as long as the program runs.
  std::size_t hash = 0;

  bool operator==(const ContentMark&) const = default;
};

/// A change behind so many bytes is seen by the length alone.
inline constexpr std::int64_t kMostMarkedBytes = std::int64_t{16} * 1024 * 1024;

/// Nothing for what has no length (a pipe, which can be read only once), is not there or cannot be
/// read.
[[nodiscard]] std::optional<ContentMark> ContentMarkOf(const std::string& path);

}  // namespace quillomat
