// A source that gives its bytes in pieces of a chosen size, as pipes and disks do, and can fail
// when they are at an end.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "base/byte_source.h"
#include "base/run_time_error.h"

namespace quillomat {

class ChunkedSource final : public ByteSource {
 public:
  ChunkedSource(std::string bytes, std::size_t chunkBytes)
      : bytes_(std::move(bytes)), chunkBytes_(chunkBytes) {}

  /// From now on the end of the bytes is an error.
  void FailAtTheEnd(RunTimeErrorNumber error) { errorAtEnd_ = error; }

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = std::min({chunkBytes_, buffer.size(), bytes_.size() - given_});
    if (bytes == 0 && errorAtEnd_) throw RunTimeError(*errorAtEnd_);
    if (bytes > 0) std::memcpy(buffer.data(), bytes_.data() + given_, bytes);
    given_ += bytes;
    return bytes;
  }

 private:
  std::string bytes_;
  std::size_t chunkBytes_;
  std::size_t given_ = 0;
  std::optional<RunTimeErrorNumber> errorAtEnd_;
};

}  // namespace quillomat
