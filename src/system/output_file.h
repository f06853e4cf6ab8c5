// A file that is written from its start to its end and then stands there as a whole, or not at all.
//
// What is written goes to a temporary file beside the target (see temporary_file.h). Close flushes
// it to the disk and puts it into the target's place in one step: whoever looks sees the old file
// or the new one. Whatever goes wrong before that - a full disk, a call that throws, an object that
// is destroyed without Close, an end by Ctrl+C - leaves the target as it was, or not there, and
// removes the temporary file. The new file has the owner (where the system allows it), the group
// and the permissions of the old. A link stays a link, and what it leads to is replaced. A file
// with several names (hard links) is replaced under this one; the others keep the old contents. The
// disk must have room for the old and the new file at once.
//
// A pipe, a device, a file in a folder that takes no new ones, or one whose group and permissions
// could not be kept is written in place. There a failure empties what can be emptied, so that no
// part looks like the whole. Standard output is never emptied.
//
// Bytes are collected and written in large blocks, so an error may show only at a later Write or at
// Close: a file is written only when Close has returned.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/byte_sink.h"
#include "system/native_file.h"
#include "system/temporary_file.h"

namespace quillomat {

class OutputFile final : public ByteSink {
 public:
  /// Throws RunTimeError 76 when there is no such folder, 75 when it is itself a folder or stands
  /// on a read-only medium, 70 when it may not be written, 61 when the disk is full.
  explicit OutputFile(const std::string& path);

  /// The program's standard output, from where it stands now. Close does not end it for others.
  [[nodiscard]] static OutputFile StandardOutput();

  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  OutputFile(OutputFile&&) = delete;
  OutputFile& operator=(OutputFile&&) = delete;
  ~OutputFile() override;

  /// Throws RunTimeError 61 when the disk is full, ReaderGone (57) when the reader of a pipe has
  /// gone away, 57 when the device fails. After an error the file is closed; further Writes throw
  /// 57.
  void Write(std::string_view bytes) override;

  /// Writes what is left, closes, puts the file into its place, and throws as Write, or as opening
  /// does, when any of it fails. A second Close does nothing.
  void Close();

 private:
  enum class Kind { kTemporary, kInPlace, kStandardOutput };

  explicit OutputFile(TemporaryFile::Made made, const std::string& path);
  explicit OutputFile(NativeFile standardOutput);
  void WriteThrough(std::string_view bytes);
  void Abandon() noexcept;

  Kind kind_;
  std::string buffer_;                        // had before a file in place is emptied
  std::string path_;                          // as it was given
  std::unique_ptr<TemporaryFile> temporary_;  // null unless of that kind
  NativeFile file_;                           // closed before the temporary file goes
};

/// Throws what an OutputFile of that path would throw at its start, as far as that can be told
/// without writing: a device or a pipe is not touched. All is as it was afterwards.
void CheckWritable(const std::string& path);

}  // namespace quillomat
