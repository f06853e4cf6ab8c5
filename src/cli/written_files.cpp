#include "cli/written_files.h"

#include "base/text_helpers.h"

namespace quillomat {

void WrittenFiles::Add(std::string_view path) {
  names_.append(names_.empty() ? "" : ", ").append(path);
  streams_.setLastWords("Interrupted: written are " + names_ + ", and nothing else" +
                        std::string(kPlatformLineBreak));
}

}  // namespace quillomat
