#include "listing/output_rules.h"

#include <algorithm>

#include "system/file_system.h"
#include "system/links.h"

namespace quillomat {

std::optional<NeededAs> WhyNotToWrite(const std::string& path, const CountedText& text) {
  switch (text.source) {
    case CountedText::Source::kFile:
      if (IsSameFile(path, text.path)) return NeededAs::kText;
      break;
    case CountedText::Source::kFolder:
      if (LiesInFolder(path, text.path, text.withSubfolders)) return NeededAs::kPartOfFolder;
      break;
    default:
      break;
  }
  return std::nullopt;
}

std::optional<NeededAs> WhyNotToWrite(const std::string& path, const FilesRead& filesRead) {
  const auto isOutput = [&path](const std::string& read) { return IsSameFile(path, read); };
  if (isOutput(filesRead.clipboardText)) return NeededAs::kText;
  if (std::ranges::any_of(filesRead.wordsFiles, isOutput)) return NeededAs::kWordsFile;
  if (isOutput(filesRead.state)) return NeededAs::kState;
  return std::nullopt;
}

MessageBox OutputRefusal(NeededAs neededAs) {
  MessageBox box{"", "Invalid output file", MessageIcon::kExclamation};
  switch (neededAs) {
    case NeededAs::kText:
      box.text = "The output file cannot be the same as the input file.";
      box.title = "Error";
      break;
    case NeededAs::kPartOfFolder:
      box.text = "The output file cannot be in the folder or a subfolder.";
      break;
    case NeededAs::kWordsFile:
      box.text = "The output file cannot be the same as a words file.";
      break;
    case NeededAs::kState:
      box.text = "The output file cannot be the same as the state file that was loaded.";
      break;
  }
  return box;
}

}  // namespace quillomat
