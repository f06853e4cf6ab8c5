// A file open for reading, from front to back. Closed when it goes out of scope.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/byte_source.h"
#include "base/bytes_ahead.h"
#include "system/file_identity.h"
#include "system/native_file.h"

namespace quillomat {

class InputFile final : public ByteSource, private PlacedBytes {
 public:
  /// Throws RunTimeError 53 when there is no such file, 76 when there is not even its folder, 70
  /// when it may not be read, 75 when it is a folder, and others as the system has it.
  explicit InputFile(const std::string& path);

  /// The program's standard input, from where it stands now.
  [[nodiscard]] static InputFile StandardInput() { return InputFile(NativeFile::StandardInput()); }

  /// In bytes, when it was opened; 0 for what has no length (a pipe, a device).
  [[nodiscard]] std::int64_t Length() const { return length_; }

  /// Whether a reader who has met the end earlier lacks bytes: the file was cut, or a disk has
  /// given no more. False of a file that is made up as it is read.
  [[nodiscard]] bool LengthWasPromised() const {
    return file_.Length() != length_ || file_.IsStored();
  }

  /// Nothing where the system does not tell.
  [[nodiscard]] std::optional<FileIdentity> Identity() const { return file_.Identity(); }

  /// See NativeFile::IsReady.
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return !ahead_.IsEmpty() || ended_ || file_.IsReady(longest);
  }

  /// Of a pipe of which nothing was read yet: whether nobody has opened it for writing. Always
  /// false where the system has no answer.
  [[nodiscard]] bool AwaitsWriter();

  /// As ByteSource::Read; throws RunTimeError 57 when the device fails.
  std::size_t Read(std::span<char> buffer) override;

  /// Of a file that was opened by its path and has a length.
  [[nodiscard]] std::optional<PlacedRest> Rest() const override;
  void Skip(std::int64_t bytes) override;

  /// The next `bytes` bytes, or all that are left if they are fewer, which stay to be read. The
  /// view is good until the next call. Throws as Read does.
  [[nodiscard]] std::string_view Ahead(std::size_t bytes);

 private:
  explicit InputFile(NativeFile file) : file_(std::move(file)), length_(file_.Length()) {}

  std::size_t ReadFile(std::span<char> buffer);
  [[nodiscard]] std::size_t ReadAt(std::int64_t place, std::span<char> buffer) const override {
    return file_.ReadAt(place, buffer);
  }

  NativeFile file_;
  std::int64_t length_;
  /// Nobody else moves the place in it.
  bool isPlaced_ = false;
  /// So many bytes have been read from the file, or skipped.
  std::int64_t bytesRead_ = 0;
  bool ended_ = false;
  BytesAhead ahead_;
};

}  // namespace quillomat
