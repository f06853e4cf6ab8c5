// The text that an interruption leaves on standard error (see interruption.h). For the files of
// this folder.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// What is to be said when one file more has been written.
class WordsOfWrittenFile {
 public:
  /// Makes them: what can fail, fails here. `path` is what was asked for.
  explicit WordsOfWrittenFile(std::string path);

  /// From now on they are the last words, in one step. Where an end by a signal must not come
  /// between the file and its words, it has to wait (see UnfinishedFile::HoldTheEnd).
  void TakeTheirPlace() noexcept;

 private:
  std::string path_;
  /// Null where nobody is told. Owned by the process.
  const std::string* words_ = nullptr;
};

/// May be called by a signal handler.
[[nodiscard]] std::string_view LastWords() noexcept;

}  // namespace quillomat
