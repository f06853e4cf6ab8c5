#include "cli/written_files.h"

#include "base/text_helpers.h"

namespace quillomat {

std::string LineOfWrittenFiles(std::span<const std::string> paths) {
  std::string line = "Interrupted. Written by then: ";
  for (const std::string& path : paths) line.append(&path == paths.data() ? "" : ", ").append(path);
  return line.append(kPlatformLineBreak);
}

}  // namespace quillomat
