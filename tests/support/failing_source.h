// A file that can be read in part only.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "base/byte_source.h"
#include "base/run_time_error.h"

namespace quillomat {

/// Gives a text, and then fails.
class FailingSource final : public ByteSource {
 public:
  explicit FailingSource(std::string_view text) : source_(text) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = source_.Read(buffer);
    if (bytes == 0) throw RunTimeError(RunTimeErrorNumber::kDeviceIo);
    return bytes;
  }

 private:
  TextSource source_;
};

}  // namespace quillomat
