// Where bytes come from: a file, a pipe, a text in memory. Read in blocks, front to back, once.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

namespace quillomat {

/// Bytes that lie still. Several threads may read them at the same time, each where it wants.
class PlacedBytes {
 public:
  PlacedBytes() = default;
  PlacedBytes(const PlacedBytes&) = delete;
  PlacedBytes& operator=(const PlacedBytes&) = delete;
  PlacedBytes(PlacedBytes&&) = delete;
  PlacedBytes& operator=(PlacedBytes&&) = delete;
  virtual ~PlacedBytes() = default;

  /// Fills the front of `buffer` with the bytes from `place` on, and returns how many they are; 0
  /// only where there are none (or for an empty buffer). Throws as ByteSource::Read does.
  [[nodiscard]] virtual std::size_t ReadAt(std::int64_t place, std::span<char> buffer) const = 0;
};

/// What is left of a source: the bytes from `begin` to `end`, as far as anybody knows.
struct PlacedRest {
  const PlacedBytes& bytes;
  std::int64_t begin = 0;
  std::int64_t end = 0;
};

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

  /// What is left to be read, where it lies still; nothing where it does not, or is changed on its
  /// way.
  [[nodiscard]] virtual std::optional<PlacedRest> Rest() const { return std::nullopt; }
  /// Passes over the next bytes of Rest().
  virtual void Skip(std::int64_t /*bytes*/) {}
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
