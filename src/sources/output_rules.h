// Which files may not be written, because a count reads them: one rule for lists and states. It is
// judged by the text that was counted, or is to be, whatever the windows name by now, and through
// links.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "system/file_identity.h"

namespace quillomat {

/// What stands for standard input among counted texts. Where the system has such a name it leads to
/// the file that standard input comes from.
inline constexpr const char* kStandardInputPath = "/dev/stdin";

/// Where a count gets its text.
struct CountedText {
  enum class Source : std::uint8_t { kNone, kClipboard, kFile, kFolder, kPaths };

  Source source = Source::kNone;
  /// Of the file or the folder.
  std::string path = {};
  bool withSubfolders = false;
  /// Of files and folders that are counted together.
  std::vector<std::string> paths = {};
  /// The files that a count has read, in order (SortFilesRead), whatever their names; none before
  /// it.
  std::vector<FileIdentity> filesRead = {};
};

/// Puts them in order, each of them once.
void SortFilesRead(std::vector<FileIdentity>& files);

/// The files that were read besides the text; "" for none.
struct FilesRead {
  /// The words files in force, of words to ignore and of count-only words.
  std::array<std::string, 2> wordsFiles;
  /// The state that was restored last.
  std::string state;
  /// The file whose text stands on the clipboard.
  std::string clipboardText;
};

/// What a file is needed for.
enum class NeededAs : std::uint8_t { kText, kPartOfFolder, kWordsFile, kState };

/// Why the file at `path`, which need not exist, may not be written.
[[nodiscard]] std::optional<NeededAs> WhyNotToWrite(const std::string& path,
                                                    const CountedText& text);
[[nodiscard]] std::optional<NeededAs> WhyNotToWrite(const std::string& path,
                                                    const FilesRead& filesRead);
/// Because of either; the text comes first.
[[nodiscard]] std::optional<NeededAs> WhyNotToWrite(const std::string& path,
                                                    const CountedText& text,
                                                    const FilesRead& filesRead);

/// Whether something would be lost that stands in the file. A device exists too, but holds nothing.
[[nodiscard]] bool HoldsSomething(const std::string& path);

}  // namespace quillomat
