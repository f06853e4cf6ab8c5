// Which file a file is, whatever its names: it has the same identity by each of them, as long as it
// exists.
#pragma once

#include <compare>
#include <cstdint>

namespace quillomat {

struct FileIdentity {
  std::uint64_t disk = 0;
  /// Among the files of the disk.
  std::uint64_t number = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): the linter takes what the compiler writes for ours
  friend auto operator<=>(const FileIdentity&, const FileIdentity&) = default;
};

}  // namespace quillomat
