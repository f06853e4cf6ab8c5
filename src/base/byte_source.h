// Where bytes come from: a file, a pipe, a text in memory. Read in blocks, front to back, once.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>

namespace quillomat {

class ByteSource {
 public:
  ByteSource() = default;
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;
  ByteSource(ByteSource&&) = delete;
  ByteSource& operator=(ByteSource&&) = delete;
  virtual ~ByteSource() = default;

  /// Fills the front of `buffer` and returns how many bytes it holds now; 0 only at the end (or for
  /// an empty buffer), which stays the end, however often it is asked for. Throws RunTimeError when
  /// the bytes cannot be had.
  virtual std::size_t Read(std::span<char> buffer) = 0;

  /// Whether a Read would not wait: there are bytes, or there will be none. Waits for that, but no
  /// longer than it is told. What never waits is always ready.
  [[nodiscard]] virtual bool IsReady(std::chrono::milliseconds /*longest*/) const { return true; }
};

/// The bytes of a text that outlives the source.
class TextSource final : public ByteSource {
 public:
  explicit TextSource(std::string_view text) : rest_(text) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = std::min(buffer.size(), rest_.size());
    if (bytes > 0) std::memcpy(buffer.data(), rest_.data(), bytes);
    rest_.remove_prefix(bytes);
    return bytes;
  }

 private:
  std::string_view rest_;
};

}  // namespace quillomat
