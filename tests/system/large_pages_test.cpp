#include "system/large_pages.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <memory_resource>
#include <numeric>
#include <vector>

namespace quillomat {
namespace {

constexpr std::size_t kLargePage = std::size_t{2} * 1024 * 1024;

TEST(LargePageMemory, BlocksOfAllSizesCanBeWrittenToTheirEnds) {
  for (const std::size_t bytes : {std::size_t{1}, std::size_t{4096}, kLargePage - 1, kLargePage,
                                  kLargePage + 1, 3 * kLargePage - 4096, 3 * kLargePage + 5}) {
    void* const block = LargePageMemory().allocate(bytes);
    std::memset(block, 0x5A, bytes);
    EXPECT_EQ(static_cast<const unsigned char*>(block)[bytes - 1], 0x5A) << bytes;
    LargePageMemory().deallocate(block, bytes);
  }
}

TEST(LargePageMemory, BlocksAreAlignedAsAsked) {
  for (const std::size_t alignment : {std::size_t{16}, std::size_t{64}, std::size_t{4096}}) {
    for (const std::size_t bytes : {std::size_t{64}, 2 * kLargePage}) {
      void* const block = LargePageMemory().allocate(bytes, alignment);
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignment, 0U);
      LargePageMemory().deallocate(block, bytes, alignment);
    }
  }
}

TEST(LargePageMemory, BlocksThatAreThereTogetherDoNotShareMemory) {
  std::vector<std::pmr::vector<std::size_t>> blocks;
  for (std::size_t i = 0; i < 4; ++i) {
    blocks.emplace_back(300'000, &LargePageMemory());
    std::iota(blocks.back().begin(), blocks.back().end(), i);
  }
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    for (std::size_t k = 0; k < blocks[i].size(); ++k) ASSERT_EQ(blocks[i][k], i + k);
  }
}

}  // namespace
}  // namespace quillomat
