#include "system/output_file.h"

#include <cstddef>
#include <utility>

#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/last_words.h"
#include "system/native_disk.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = 65'536;

std::string EmptyBlock() {
  std::string block;
  block.reserve(kBlockBytes);
  return block;
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : OutputFile(TemporaryFile::For(path), path) {}

OutputFile::OutputFile(TemporaryFile::Made made, const std::string& path)
    : kind_(made.file ? Kind::kTemporary : Kind::kInPlace),
      buffer_(EmptyBlock()),
      path_(path),
      temporary_(std::move(made.temporary)),
      file_(made.file ? *std::move(made.file) : NativeFile::OpenForWriting(path)) {}

OutputFile::OutputFile(NativeFile standardOutput)
    : kind_(Kind::kStandardOutput), buffer_(EmptyBlock()), file_(std::move(standardOutput)) {}

OutputFile OutputFile::StandardOutput() {
  return OutputFile(NativeFile::StandardOutput());
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
    if (kind_ != Kind::kStandardOutput) file_.Flush();
    file_.Close();
    if (temporary_) temporary_->TakeItsPlace();
    if (kind_ == Kind::kInPlace) WordsOfWrittenFile(path_).TakeTheirPlace();
  } catch (...) {
    Abandon();
    throw;
  }
  temporary_.reset();
}

void OutputFile::WriteThrough(std::string_view bytes) {
  try {
    file_.Write(bytes);
  } catch (...) {
    Abandon();
    throw;
  }
}

void OutputFile::Abandon() noexcept {
  buffer_.clear();
  try {
    if (file_.IsOpen()) {
      if (kind_ == Kind::kInPlace) file_.Empty();
      file_.Close();
    }
  } catch (...) {  // NOLINT(bugprone-empty-catch): the first error is the one to tell
  }
  temporary_.reset();
}

void CheckWritable(const std::string& path) {
  if (TemporaryFile::For(path).temporary) return;
  if (FileExists(path)) {
    if (FileLength(path)) static_cast<void>(NativeFile::OpenForChanges(path));
    return;
  }
  // A folder, or a place where no file can be made: the system tells why. Made all the same, it
  // goes.
  static_cast<void>(NativeFile::OpenForWriting(path));
  RemoveFile(BehindLinks(path).value_or(path));
}

}  // namespace quillomat
