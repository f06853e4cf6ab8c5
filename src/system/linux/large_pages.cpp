#include "system/large_pages.h"

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

namespace quillomat {
namespace {

constexpr std::size_t kLargePage = std::size_t{2} * 1024 * 1024;

/// How far `address` is from the next large page.
std::size_t BytesToLargePage(const std::byte* address) {
  return (kLargePage - reinterpret_cast<std::uintptr_t>(address) % kLargePage) % kLargePage;
}

/// Blocks of at least one large page are mapped so that they start with one; all others come from
/// the heap. What is smaller than a page at the end of a block stays in small ones.
class LargePages final : public std::pmr::memory_resource {
  static bool IsLarge(std::size_t bytes, std::size_t alignment) {
    return bytes >= kLargePage && alignment <= kLargePage;
  }

  void* do_allocate(std::size_t bytes, std::size_t alignment) override {
    if (!IsLarge(bytes, alignment)) return heap_.allocate(bytes, alignment);
    const std::size_t withSpare = bytes + kLargePage;
    void* const mapped =
        mmap(nullptr, withSpare, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) throw std::bad_alloc();
    auto* const start = static_cast<std::byte*>(mapped);
    const std::size_t before = BytesToLargePage(start);
    if (before > 0) munmap(start, before);
    std::byte* const block = start + before;
    Release(block + bytes, kLargePage - before);
    // Where the system has none, small pages will do.
    (void)madvise(block, bytes, MADV_HUGEPAGE);
    return block;
  }

  void do_deallocate(void* block, std::size_t bytes, std::size_t alignment) override {
    if (!IsLarge(bytes, alignment)) return heap_.deallocate(block, bytes, alignment);
    munmap(block, bytes);
  }

  [[nodiscard]] bool do_is_equal(const memory_resource& other) const noexcept override {
    return this == &other;
  }

  /// Of the `bytes` from `from` on, the whole pages.
  static void Release(std::byte* from, std::size_t bytes) {
    static const auto kPage = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t rest = (kPage - reinterpret_cast<std::uintptr_t>(from) % kPage) % kPage;
    if (bytes > rest) munmap(from + rest, bytes - rest);
  }

  std::pmr::memory_resource& heap_ = *std::pmr::new_delete_resource();
};

}  // namespace

std::pmr::memory_resource& LargePageMemory() {
  static LargePages memory;
  return memory;
}

}  // namespace quillomat
