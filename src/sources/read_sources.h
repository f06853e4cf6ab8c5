// Sources around a source: one whose head can be looked at before it is read, one that counts, and
// one that lets the program live while it waits for a pipe.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "base/bytes_ahead.h"
#include "engine/word_scanner.h"
#include "system/input_file.h"

namespace quillomat {

class HeadedSource final : public ByteSource {
 public:
  explicit HeadedSource(ByteSource& source) : source_(source) {}

  /// The next `bytes` bytes, or all that are left if they are fewer, which stay to be read. The
  /// view is good until the next call. What the source throws is thrown when the bytes before it
  /// have been given out.
  [[nodiscard]] std::string_view Ahead(std::size_t bytes) {
    return Ahead(bytes, [] { return true; });
  }
  /// The same, but where some have come no more are waited for than `longest` each time.
  [[nodiscard]] std::string_view Ahead(std::size_t bytes, std::chrono::milliseconds longest) {
    return Ahead(bytes, [&] { return ahead_.IsEmpty() || source_.IsReady(longest); });
  }
  /// Whether all of the source has been read, if not given out.
  [[nodiscard]] bool HasEnded() const { return ended_; }

  std::size_t Read(std::span<char> buffer) override;
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return !ahead_.IsEmpty() || ended_ || source_.IsReady(longest);
  }

  /// These, which were the last to be read, come next.
  void PutBack(std::string_view bytes) { ahead_.PutBack(bytes); }

 private:
  [[nodiscard]] std::string_view Ahead(std::size_t bytes, const std::function<bool()>& goesOn);

  std::size_t ReadSource(std::span<char> buffer);

  ByteSource& source_;
  BytesAhead ahead_;
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
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return source_.IsReady(longest);
  }
  [[nodiscard]] std::optional<PlacedRest> Rest() const override { return source_.Rest(); }
  void Skip(std::int64_t bytes) override {
    source_.Skip(bytes);
    bytesRead_ += bytes;
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
  /// A stop makes it ready.
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override;

 private:
  static constexpr std::chrono::milliseconds kLongestWait{8};

  InputFile& file_;
  ScanYield& yield_;
};

}  // namespace quillomat
