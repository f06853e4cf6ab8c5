// A vector for millions of items: once it is large it grows by chunks, so that growing copies
// nothing and needs no room for all items twice. A chunk is as large as the pages of memory that
// the program may have got for large blocks (system/large_pages.h).
#pragma once

#include <cstddef>
#include <memory_resource>
#include <utility>
#include <vector>

namespace quillomat {

template <typename Item>
class ChunkedVector {
 public:
  [[nodiscard]] std::size_t Size() const { return size_; }

  [[nodiscard]] const Item& operator[](std::size_t index) const {
    return chunks_[index / kChunk][index % kChunk];
  }

  /// Makes the item where it is to stand. Others may move.
  template <typename... Arguments>
  void EmplaceBack(Arguments&&... arguments) {
    if (size_ == chunks_.size() * kChunk) AddChunk();
    chunks_.back().emplace_back(std::forward<Arguments>(arguments)...);
    ++size_;
  }

  void Clear() {
    chunks_.clear();
    size_ = 0;
  }

 private:
  static constexpr std::size_t kChunkBytes = std::size_t{2} * 1024 * 1024;
  static constexpr std::size_t kChunk = kChunkBytes / sizeof(Item);

  /// The first grows as vectors do, as most are small.
  void AddChunk() {
    std::pmr::vector<Item> chunk;
    if (size_ > 0) chunk.reserve(kChunk);
    chunks_.push_back(std::move(chunk));
  }

  std::vector<std::pmr::vector<Item>> chunks_;
  std::size_t size_ = 0;
};

}  // namespace quillomat
