#include "system/native_file.h"

#include <utility>

#include "base/run_time_error.h"

namespace quillomat {

NativeFile::NativeFile(NativeFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kClosed)) {}

NativeFile& NativeFile::operator=(NativeFile&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

NativeFile::~NativeFile() {
  if (!IsOpen()) return;
  try {
    Close();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): whoever cares calls Close
  }
}

}  // namespace quillomat
