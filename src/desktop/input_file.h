// A file open for reading, from front to back. Closed when it goes out of scope.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "base/byte_source.h"
#include "desktop/native_file.h"

namespace quillomat {

class InputFile final : public ByteSource {
 public:
  /// Throws RunTimeError 53 when there is no such file, 76 when there is not even its folder, 70
  /// when it may not be read, 75 when it is a folder, and others as the system has it.
  explicit InputFile(const std::string& path);

  /// In bytes, when it was opened; 0 for what has no length (a pipe, a device).
  [[nodiscard]] std::int64_t Length() const { return length_; }

  /// As ByteSource::Read; throws RunTimeError 57 when the device fails.
  std::size_t Read(std::span<char> buffer) override;

 private:
  NativeFile file_;
  std::int64_t length_;
};

}  // namespace quillomat
