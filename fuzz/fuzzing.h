// What the fuzzers share: an invariant that is a crash where it does not hold, and input that comes
// in pieces.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>

#include "base/byte_source.h"

namespace quillomat::fuzzing {

/// libFuzzer keeps the input that ends the program, and `invariant` is read above its report.
inline void Require(bool holds, std::string_view invariant) {
  if (holds) return;
  std::cerr << "does not hold: " << invariant << std::endl;
  std::abort();
}

/// Gives the bytes out in pieces of one size.
class PiecewiseSource final : public ByteSource {
 public:
  PiecewiseSource(std::string_view bytes, std::size_t piece) : rest_(bytes), piece_(piece) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = std::min({buffer.size(), rest_.size(), piece_});
    std::copy_n(rest_.begin(), bytes, buffer.begin());
    rest_.remove_prefix(bytes);
    return bytes;
  }

 private:
  std::string_view rest_;
  std::size_t piece_;
};

/// Takes small numbers and texts off the front of the input; zeros and nothing at its end.
class InputReader {
 public:
  explicit InputReader(std::string_view& rest) : rest_(rest) {}

  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

  int Below(int limit) {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(rest_[0]);
    rest_.remove_prefix(1);
    return byte % limit;
  }

  /// At most so many bytes, as they are.
  std::string_view Bytes(int most) {
    const auto bytes = std::min(static_cast<std::size_t>(Below(most + 1)), rest_.size());
    const std::string_view taken = rest_.substr(0, bytes);
    rest_.remove_prefix(bytes);
    return taken;
  }

 private:
  std::string_view& rest_;
};

}  // namespace quillomat::fuzzing
