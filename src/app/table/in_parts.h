// Work on a long row of things, on all cores.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace quillomat {

/// From `begin` up to, but without, `end`.
struct Part {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// 0 to `size` in parts of about one size, one for each core; a short row is one part, none is
/// none.
[[nodiscard]] std::vector<Part> PartsOf(std::size_t size);

/// Does `work` for every part, at the same time, and waits until all is done. Passes on what it
/// throws.
void ForEachPart(const std::vector<Part>& parts,
                 const std::function<void(const Part& part, std::size_t number)>& work);

}  // namespace quillomat
