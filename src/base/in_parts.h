// Work on a long row of things, on several cores.
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

/// To start a thread costs as much as to look at some thousand words.
inline constexpr std::size_t kSmallestPart = 20'000;

/// As many as the machine has cores, but not more than such work gains from.
[[nodiscard]] std::size_t UsualParts();

/// 0 to `size` in parts of about one size, at most `most` of them; none is smaller than `smallest`
/// but for a short row, which is one part. Nothing is no part.
[[nodiscard]] std::vector<Part> PartsOf(std::size_t size, std::size_t most = UsualParts(),
                                        std::size_t smallest = kSmallestPart);

/// Does `work` for every part, at the same time, and waits until all is done. Passes on what it
/// throws.
void ForEachPart(const std::vector<Part>& parts,
                 const std::function<void(const Part& part, std::size_t number)>& work);

}  // namespace quillomat
