// A text that lies still, as a file of the disk does.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

#include "base/byte_source.h"
#include "base/run_time_error.h"

namespace quillomat {

/// Outlived by its text. Bytes from `fails` on cannot be read; the first `told` were there when it
/// was opened.
class PlacedText final : public ByteSource, private PlacedBytes {
 public:
  explicit PlacedText(std::string_view text) : PlacedText(text, text.size() + 1) {}
  PlacedText(std::string_view text, std::size_t fails) : PlacedText(text, fails, text.size()) {}
  PlacedText(std::string_view text, std::size_t fails, std::size_t told)
      : text_(text), fails_(fails), told_(told) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = ReadAt(place_, buffer);
    place_ += static_cast<std::int64_t>(bytes);
    return bytes;
  }
  [[nodiscard]] std::optional<PlacedRest> Rest() const override {
    return PlacedRest{*this, place_, static_cast<std::int64_t>(told_)};
  }
  void Skip(std::int64_t bytes) override { place_ += bytes; }

 private:
  [[nodiscard]] std::size_t ReadAt(std::int64_t place, std::span<char> buffer) const override {
    const auto start = static_cast<std::size_t>(place);
    if (start >= fails_) throw RunTimeError(RunTimeErrorNumber::kDeviceIo);
    const std::string_view rest = text_.substr(std::min(start, text_.size()));
    const std::size_t bytes = std::min({buffer.size(), rest.size(), fails_ - start});
    if (bytes > 0) std::memcpy(buffer.data(), rest.data(), bytes);
    return bytes;
  }

  std::string_view text_;
  std::size_t fails_;
  std::size_t told_;
  std::int64_t place_ = 0;
};

}  // namespace quillomat
