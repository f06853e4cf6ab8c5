#include "system/output_file.h"

#include <cstddef>
#include <utility>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = 65'536;

}  // namespace

OutputFile::OutputFile(const std::string& path, Partial partial)
    : OutputFile(NativeFile::OpenForWriting(path), path, partial) {}

OutputFile::OutputFile(NativeFile file, std::string path, Partial partial)
    : file_(std::move(file)), path_(std::move(path)), partial_(partial) {
  buffer_.reserve(kBlockBytes);
}

OutputFile OutputFile::StandardOutput() {
  return {NativeFile::StandardOutput(), {}, Partial::kKeep};
}

OutputFile::~OutputFile() {
  if (file_.IsOpen()) Abandon();
}

void OutputFile::Write(std::string_view bytes) {
  if (!file_.IsOpen()) throw RunTimeError(RunTimeErrorNumber::kDeviceIo);
  if (buffer_.size() + bytes.size() > kBlockBytes) {
    WriteThrough(buffer_);
    buffer_.clear();
  }
  if (bytes.size() >= kBlockBytes) {
    WriteThrough(bytes);
  } else {
    buffer_.append(bytes);
  }
}

void OutputFile::Close() {
  if (!file_.IsOpen()) return;
  WriteThrough(buffer_);
  buffer_.clear();
  try {
    file_.Close();
  } catch (...) {
    Abandon();
    throw;
  }
}

void OutputFile::WriteThrough(std::string_view bytes) {
  try {
    file_.Write(bytes);
  } catch (...) {
    Abandon();
    throw;
  }
}

/// Also when the file could not be closed properly: then it is opened once more, to be emptied.
void OutputFile::Abandon() noexcept {
  buffer_.clear();
  try {
    const bool empty = partial_ == Partial::kEmpty;
    if (file_.IsOpen()) {
      if (empty) file_.Empty();
      file_.Close();
    } else if (empty) {
      NativeFile::OpenForWriting(path_).Close();
    }
  } catch (...) {  // NOLINT(bugprone-empty-catch): the first error is the one to tell
  }
}

}  // namespace quillomat
