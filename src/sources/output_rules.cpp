#include "sources/output_rules.h"

#include <algorithm>

#include "system/file_system.h"
#include "system/links.h"

namespace quillomat {
namespace {

std::optional<NeededAs> WhyNotToWriteByPath(const std::string& path, const CountedText& text);

std::optional<NeededAs> WhyNotToWriteForAny(const std::string& path, const CountedText& text) {
  for (const std::string& counted : text.paths) {
    const auto source =
        FolderExists(counted) ? CountedText::Source::kFolder : CountedText::Source::kFile;
    const auto neededAs =
        WhyNotToWriteByPath(path, CountedText{source, counted, text.withSubfolders});
    if (neededAs) return neededAs;
  }
  return std::nullopt;
}

/// By the paths that name the text, as it can be told before anything is read.
std::optional<NeededAs> WhyNotToWriteByPath(const std::string& path, const CountedText& text) {
  switch (text.source) {
    case CountedText::Source::kFile:
      if (IsSameFile(path, text.path)) return NeededAs::kText;
      break;
    case CountedText::Source::kFolder:
      if (LiesInFolder(path, text.path, text.withSubfolders)) return NeededAs::kPartOfFolder;
      break;
    case CountedText::Source::kPaths:
      return WhyNotToWriteForAny(path, text);
    default:
      break;
  }
  return std::nullopt;
}

bool WasRead(const std::string& path, const CountedText& text) {
  if (text.filesRead.empty()) return false;
  const std::optional<FileIdentity> file = IdentityOf(path);
  return file && std::ranges::binary_search(text.filesRead, *file);
}

}  // namespace

void SortFilesRead(std::vector<FileIdentity>& files) {
  std::ranges::sort(files);
  files.erase(std::unique(files.begin(), files.end()), files.end());
}

std::optional<NeededAs> WhyNotToWrite(const std::string& path, const CountedText& text) {
  if (const auto neededAs = WhyNotToWriteByPath(path, text)) return neededAs;
  if (!WasRead(path, text)) return std::nullopt;
  return text.source == CountedText::Source::kFolder ? NeededAs::kPartOfFolder : NeededAs::kText;
}

std::optional<NeededAs> WhyNotToWrite(const std::string& path, const FilesRead& filesRead) {
  const auto isOutput = [&path](const std::string& read) { return IsSameFile(path, read); };
  if (isOutput(filesRead.clipboardText)) return NeededAs::kText;
  if (std::ranges::any_of(filesRead.wordsFiles, isOutput)) return NeededAs::kWordsFile;
  if (isOutput(filesRead.state)) return NeededAs::kState;
  return std::nullopt;
}

std::optional<NeededAs> WhyNotToWrite(const std::string& path, const CountedText& text,
                                      const FilesRead& filesRead) {
  const std::optional<NeededAs> neededAs = WhyNotToWrite(path, text);
  return neededAs ? neededAs : WhyNotToWrite(path, filesRead);
}

bool HoldsSomething(const std::string& path) {
  return FileExists(path) && FileLength(path).has_value();
}

}  // namespace quillomat
