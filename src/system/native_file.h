// An open file of the operating system: the little that input_file.h and output_file.h need of it.
// Errors are RunTimeErrors (see system_error.h). A closed or moved-from file may only be destroyed,
// assigned to and asked IsOpen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillomat {

class NativeFile {
 public:
  /// Opens what is no folder. Never waits: a pipe that nobody writes to is at its end.
  [[nodiscard]] static NativeFile OpenForReading(const std::string& path);
  /// Creates the file, or empties it.
  [[nodiscard]] static NativeFile OpenForWriting(const std::string& path);
  /// A second handle to the program's standard output, which closing this one leaves open.
  [[nodiscard]] static NativeFile StandardOutput();

  NativeFile(const NativeFile&) = delete;
  NativeFile& operator=(const NativeFile&) = delete;
  NativeFile(NativeFile&& other) noexcept;
  NativeFile& operator=(NativeFile&& other) noexcept;
  /// Closes without a word.
  ~NativeFile();

  [[nodiscard]] bool IsOpen() const { return handle_ != kClosed; }

  /// In bytes; 0 for what has no length.
  [[nodiscard]] std::int64_t Length() const;

  /// At least one byte unless at the end, or `buffer` is empty.
  [[nodiscard]] std::size_t Read(std::span<char> buffer) const;

  /// Writes all of `bytes`. A pipe without a reader is an error (57), never the end of the program.
  void Write(std::string_view bytes) const;

  /// Cuts the file to no bytes, if it is of a kind that can be cut.
  void Empty() const noexcept;

  /// Throws when the system reports that bytes have been lost. Closed in any case.
  void Close();

 private:
  static constexpr std::intptr_t kClosed = -1;

  explicit NativeFile(std::intptr_t handle) : handle_(handle) {}

  std::intptr_t handle_;  // a file descriptor, or a HANDLE
};

}  // namespace quillomat
