// Bytes that a source has at hand before it is asked for them: read ahead, or made of others.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace quillomat {

class BytesAhead {
 public:
  [[nodiscard]] bool IsEmpty() const { return start_ == bytes_.size(); }
  [[nodiscard]] std::size_t NumBytes() const { return bytes_.size() - start_; }

  /// Leaves out those in front, as many as there are or `most`; returns how many.
  std::size_t Skip(std::size_t most) {
    const std::size_t bytes = std::min(most, NumBytes());
    start_ += bytes;
    return bytes;
  }

  /// Gives out those in front, as many as there are or as `buffer` takes; returns how many.
  std::size_t GiveOut(std::span<char> buffer) {
    const std::size_t bytes = std::min(buffer.size(), NumBytes());
    if (bytes > 0) std::memcpy(buffer.data(), bytes_.data() + start_, bytes);
    start_ += bytes;
    return bytes;
  }

  /// To be filled anew.
  [[nodiscard]] std::string& Emptied() {
    bytes_.clear();
    start_ = 0;
    return bytes_;
  }

  /// These, which were the last to be given out, come next.
  void PutBack(std::string_view bytes) {
    bytes_.replace(0, start_, bytes);
    start_ = 0;
  }

  /// The next `bytes` bytes, or fewer where `read` has no more: it is called for what is missing,
  /// as long as `goesOn`, fills the front of a buffer and returns how many bytes it holds then.
  /// What it throws is passed on. The view is good until something changes.
  template <typename Read, typename GoesOn>
  [[nodiscard]] std::string_view Ahead(std::size_t bytes, Read read, GoesOn goesOn) {
    bytes_.erase(0, start_);
    start_ = 0;
    while (bytes_.size() < bytes && goesOn() && ReadMore(bytes, read)) {
    }
    return std::string_view(bytes_).substr(0, bytes);
  }

 private:
  template <typename Read>
  bool ReadMore(std::size_t bytes, Read& read) {
    const std::size_t before = bytes_.size();
    bytes_.resize(bytes);
    std::size_t bytesRead = 0;
    try {
      bytesRead = read(std::span(bytes_).subspan(before));
    } catch (...) {
      bytes_.resize(before);
      throw;
    }
    bytes_.resize(before + bytesRead);
    return bytesRead > 0;
  }

  /// Not yet given out from start_ on.
  std::string bytes_;
  std::size_t start_ = 0;
};

}  // namespace quillomat
