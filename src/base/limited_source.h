// Sources that do not go on for ever: a device or a pipe may have no end, and a file no line ends.
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string>

#include "base/byte_source.h"
#include "base/run_time_error.h"

namespace quillomat {

/// The start of `source`, which must outlive it.
class StartOfSource final : public ByteSource {
 public:
  StartOfSource(ByteSource& source, std::size_t bytes) : source_(source), bytesLeft_(bytes) {}

  std::size_t Read(std::span<char> buffer) override;

  /// Whether all of those bytes were read, so that there may be more behind them.
  [[nodiscard]] bool WasCut() const { return bytesLeft_ == 0; }

 private:
  ByteSource& source_;
  std::size_t bytesLeft_;
};

/// A line, or the whole, is longer than what is sensible for such a file.
class InputTooLong final : public RunTimeError {
 public:
  explicit InputTooLong(const std::string& description)
      : RunTimeError(RunTimeErrorNumber::kTypeMismatch, description) {}
};

struct SourceLimits {
  std::size_t lineBytes = std::numeric_limits<std::size_t>::max();
  std::size_t bytes = std::numeric_limits<std::size_t>::max();
};

/// `source`, which must outlive it, as it is. Throws InputTooLong soon after a limit was passed.
class LimitedSource final : public ByteSource {
 public:
  LimitedSource(ByteSource& source, const SourceLimits& limits)
      : source_(source), limits_(limits) {}

  std::size_t Read(std::span<char> buffer) override;

 private:
  ByteSource& source_;
  SourceLimits limits_;
  std::size_t bytesRead_ = 0;
  std::size_t lineBytes_ = 0;  // of the line that has not ended yet
};

}  // namespace quillomat
