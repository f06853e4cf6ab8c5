// A file open for writing, from its start: created, or emptied if it is there.
//
// Bytes are collected and written in large blocks, so an error may show only at a later Write or at
// Close: a file is written only when Close has returned. After a failure nothing is left that looks
// whole: the file is emptied (where it can be), and so is one that is destroyed without Close. With
// Partial::kKeep it keeps instead what had been written. Standard output is never emptied.
#pragma once

#include <string>
#include <string_view>

#include "system/native_file.h"

namespace quillomat {

/// The line end of text files here: "\r\n" on Windows, "\n" elsewhere.
[[nodiscard]] std::string_view PlatformLineEnd();

class OutputFile {
 public:
  enum class Partial { kEmpty, kKeep };

  /// Throws RunTimeError 76 when there is no such folder, 75 when it is itself a folder or stands
  /// on a read-only medium, 70 when it may not be written, 61 when the disk is full.
  explicit OutputFile(const std::string& path, Partial partial = Partial::kEmpty);

  /// The program's standard output, from where it stands now. Close does not end it for others.
  [[nodiscard]] static OutputFile StandardOutput();

  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  OutputFile(OutputFile&&) = delete;
  OutputFile& operator=(OutputFile&&) = delete;
  ~OutputFile();

  /// Throws RunTimeError 61 when the disk is full, 57 when the reader of a pipe has gone away or
  /// the device fails. After an error the file is closed; further Writes throw 57.
  void Write(std::string_view bytes);

  /// Writes what is left, closes, and throws as Write when any of it fails. A second Close does
  /// nothing.
  void Close();

 private:
  OutputFile(NativeFile file, std::string path, Partial partial);
  void WriteThrough(std::string_view bytes);
  void Abandon() noexcept;

  NativeFile file_;
  std::string path_;  // empty for standard output
  Partial partial_;
  std::string buffer_;
};

}  // namespace quillomat
