#include "system/large_pages.h"

namespace quillomat {

/// Here only programs with a privilege of their own get large pages.
std::pmr::memory_resource& LargePageMemory() {
  return *std::pmr::new_delete_resource();
}

}  // namespace quillomat
