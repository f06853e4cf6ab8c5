// A vector that never moves what it holds: it grows by chunks of one size.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace quillomat {

/// `Item` can be made without arguments.
template <typename Item>
class ChunkedVector {
 public:
  [[nodiscard]] std::size_t Size() const { return size_; }

  [[nodiscard]] const Item& operator[](std::size_t index) const {
    return chunks_[index / kChunk][index % kChunk];
  }

  void PushBack(const Item& item) {
    if (size_ == chunks_.size() * kChunk) {
      chunks_.push_back(std::make_unique_for_overwrite<Item[]>(kChunk));
    }
    chunks_[size_ / kChunk][size_ % kChunk] = item;
    ++size_;
  }

  void Clear() {
    chunks_.clear();
    size_ = 0;
  }

 private:
  static constexpr std::size_t kChunk = 4096;

  std::vector<std::unique_ptr<Item[]>> chunks_;
  std::size_t size_ = 0;
};

}  // namespace quillomat
