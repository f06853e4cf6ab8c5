// The program's standard input, as bytes.
#pragma once

#include <cstddef>
#include <cstdio>
#include <span>

#include "base/byte_source.h"
#include "base/run_time_error.h"

namespace quillomat {

class StandardInput final : public ByteSource {
 public:
  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = std::fread(buffer.data(), 1, buffer.size(), stdin);
    if (bytes == 0 && std::ferror(stdin) != 0) throw RunTimeError(RunTimeErrorNumber::kDeviceIo);
    return bytes;
  }
};

}  // namespace quillomat
