// How much of a folder or a list of paths is handed over to a thread at once.
#pragma once

#include <cstddef>

namespace quillomat {

/// No matter of what comes of a count, only of how soon.
struct BatchSizes {
  /// A batch has about so many bytes. Handing them over costs next to nothing beside scanning them.
  std::size_t bytes = std::size_t{2048} * 1024;
  /// It is full with so many things that were met, however few bytes they have.
  std::size_t items = 128;
};

}  // namespace quillomat
