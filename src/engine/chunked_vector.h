// A vector for millions of items: once it is large it grows by chunks, so that growing copies
// nothing and needs no room for all items twice. A chunk is as large as the pages of memory that
// the program may have got for large blocks (system/large_pages.h).
#pragma once

#include <algorithm>
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

  /// Takes the place of all items: room for `size` others, which are not there before MakeItems was
  /// called for every one of ChunksOf(size) chunks.
  void MakeRoom(std::size_t size) {
    chunks_.clear();
    chunks_.resize(ChunksOf(size));
    size_ = size;
  }
  [[nodiscard]] static std::size_t ChunksOf(std::size_t size) {
    return (size + kChunk - 1) / kChunk;
  }
  /// Has `make` make every item of a chunk, by its index, in order. Several threads may do so for
  /// different chunks.
  template <typename Make>
  void MakeItems(std::size_t chunk, Make make) {
    const std::size_t first = chunk * kChunk;
    const std::size_t end = std::min(first + kChunk, size_);
    chunks_[chunk].reserve(size_ > kChunk ? kChunk : size_);
    for (std::size_t index = first; index < end; ++index) chunks_[chunk].push_back(make(index));
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
