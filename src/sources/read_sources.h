// Sources around a source: one whose head can be looked at before it is read, one that counts, and
// one that lets the program live while it waits for a pipe.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <span>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "engine/word_scanner.h"
#include "system/input_file.h"

namespace quillomat {

class HeadedSource final : public ByteSource {
 public:
  explicit HeadedSource(ByteSource& source) : source_(source) {}

  /// The next `bytes` bytes, or all that are left if they are fewer, which stay to be read. The
  /// view is good until the next call. What the source throws is thrown when the bytes before it
  /// have been given out.
  [[nodiscard]] std::string_view Ahead(std::size_t bytes);

  std::size_t Read(std::span<char> buffer) override;

  /// These, which were the last to be read, come next.
  void PutBack(std::string_view bytes);

 private:
  ByteSource& source_;
  /// Read ahead, and not yet given out from aheadStart_ on.
  std::string ahead_;
  std::size_t aheadStart_ = 0;
  bool ended_ = false;
  std::exception_ptr error_;
};

class CountingSource final : public ByteSource {
 public:
  explicit CountingSource(ByteSource& source) : source_(source) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = source_.Read(buffer);
    bytesRead_ += static_cast<std::int64_t>(bytes);
    return bytes;
  }
  [[nodiscard]] std::int64_t BytesRead() const { return bytesRead_; }

 private:
  ByteSource& source_;
  std::int64_t bytesRead_ = 0;
};

/// While nothing comes it yields; a stop is the end of the bytes.
class PatientSource final : public ByteSource {
 public:
  PatientSource(InputFile& file, ScanYield& yield) : file_(file), yield_(yield) {}

  std::size_t Read(std::span<char> buffer) override {
    while (!file_.IsReady(kLongestWait)) {
      if (yield_.YieldFor(yield_.CallsLeft())) return 0;
    }
    return file_.Read(buffer);
  }

 private:
  static constexpr std::chrono::milliseconds kLongestWait{8};

  InputFile& file_;
  ScanYield& yield_;
};

}  // namespace quillomat
