// An open file of the operating system: the little that input_file.h and output_file.h need of it.
// Errors are RunTimeErrors (see system_error.h). A closed or moved-from file may only be destroyed,
// assigned to and asked IsOpen.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/run_time_error.h"
#include "system/file_identity.h"

namespace quillomat {

/// Nobody reads any more what goes into a pipe.
class ReaderGone final : public RunTimeError {
 public:
  ReaderGone() : RunTimeError(RunTimeErrorNumber::kDeviceIo) {}
};

class NativeFile {
 public:
  /// Opens what is no folder. Never waits: a pipe that nobody writes to is at its end.
  [[nodiscard]] static NativeFile OpenForReading(const std::string& path);
  /// Creates the file, or empties it.
  [[nodiscard]] static NativeFile OpenForWriting(const std::string& path);
  /// Opens a file that is there for writing, and leaves it as it is.
  [[nodiscard]] static NativeFile OpenForChanges(const std::string& path);
  /// Makes a file at `path`, where nothing must be, that can take the place of `target`: with the
  /// owner, the group and the permissions of that one if it is there. Nothing when `target` is none
  /// that can be replaced (a device, a pipe, a folder, what may not be written) or `path` cannot be
  /// made there or not be made like it; then there is no such file. Throws when the disk is full or
  /// fails.
  [[nodiscard]] static std::optional<NativeFile> CreateInPlaceOf(const std::string& target,
                                                                 const std::string& path);
  /// A second handle to the program's standard output, which closing this one leaves open.
  [[nodiscard]] static NativeFile StandardOutput();
  /// The same of standard input.
  [[nodiscard]] static NativeFile StandardInput();

  NativeFile(const NativeFile&) = delete;
  NativeFile& operator=(const NativeFile&) = delete;
  NativeFile(NativeFile&& other) noexcept;
  NativeFile& operator=(NativeFile&& other) noexcept;
  /// Closes without a word.
  ~NativeFile();

  [[nodiscard]] bool IsOpen() const { return handle_ != kClosed; }

  /// In bytes; 0 for what has no length.
  [[nodiscard]] std::int64_t Length() const;

  /// Whether its bytes are kept on a disk, as far as the system tells. The length of a file that is
  /// made up as it is read, like those in which the kernel tells of itself, promises nothing.
  [[nodiscard]] bool IsStored() const;

  /// Nothing where the system does not tell.
  [[nodiscard]] std::optional<FileIdentity> Identity() const;

  /// Whether a Read would not wait: bytes have come, or there will be none. Waits for that, but no
  /// longer than it is told. A pipe is not ready before somebody has opened it for writing. Where
  /// the system has no answer, a file is ready.
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const;

  /// At least one byte unless at the end, or `buffer` is empty.
  [[nodiscard]] std::size_t Read(std::span<char> buffer) const;
  /// The same of the bytes from `place` on, of a file with a length; several threads may do so at
  /// the same time. Where Read goes on behind it is not said.
  [[nodiscard]] std::size_t ReadAt(std::int64_t place, std::span<char> buffer) const;
  /// As Read, but nothing where Read would wait, if the system can tell.
  [[nodiscard]] std::optional<std::size_t> ReadAtHand(std::span<char> buffer) const;

  /// Writes all of `bytes`. A pipe without a reader is an error (ReaderGone), never the end of the
  /// program.
  void Write(std::string_view bytes) const;

  /// Cuts the file to no bytes, if it is of a kind that can be cut.
  void Empty() const noexcept;

  /// Waits until all that was written is on the disk, where there is one.
  void Flush() const;

  /// Throws when the system reports that bytes have been lost. Closed in any case.
  void Close();

 private:
  static constexpr std::intptr_t kClosed = -1;

  explicit NativeFile(std::intptr_t handle) : handle_(handle) {}

  std::intptr_t handle_;  // a file descriptor, or a HANDLE
};

}  // namespace quillomat
