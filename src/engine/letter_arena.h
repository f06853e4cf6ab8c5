// Where the store keeps the letters of its words: in large blocks, one text behind the other. Texts
// stay where they are until the arena is cleared or destroyed; it can be moved with them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace quillomat {

class LetterArena {
 public:
  /// A copy of `text`, and of `behind` directly behind it, that lasts.
  const char* Keep(std::string_view text, std::string_view behind = {}) {
    const std::size_t bytes = text.size() + behind.size();
    if (bytes > left_) AddBlock(bytes);
    char* const kept = next_;
    if (!text.empty()) std::memcpy(kept, text.data(), text.size());
    if (!behind.empty()) std::memcpy(kept + text.size(), behind.data(), behind.size());
    next_ += bytes;
    left_ -= bytes;
    return kept;
  }

  void Clear() {
    blocks_.clear();
    next_ = nullptr;
    left_ = 0;
  }

  /// Forgets all texts, and keeps a block for others.
  void Reuse() {
    if (blocks_.size() != 1) return Clear();
    left_ += static_cast<std::size_t>(next_ - blocks_.front().get());
    next_ = blocks_.front().get();
  }

 private:
  static constexpr std::size_t kFirstBlock = std::size_t{4} * 1024;
  static constexpr std::size_t kLargestBlock = std::size_t{1024} * 1024;

  /// Each block is twice as large as the one before it, up to a limit.
  void AddBlock(std::size_t atLeast) {
    constexpr std::size_t kMostDoublings = 8;
    const std::size_t doublings = std::min(blocks_.size(), kMostDoublings);
    const std::size_t usual = std::min(kFirstBlock << doublings, kLargestBlock);
    left_ = std::max(usual, atLeast);
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(left_));
    next_ = blocks_.back().get();
  }

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace quillomat
