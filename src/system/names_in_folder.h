// What a folder offers to a person who looks for a name in it.
#pragma once

#include <functional>
#include <string>

namespace quillomat {

struct NameInFolder {
  /// UTF-8 on Windows and plain bytes elsewhere.
  std::string name;
  bool isFolder = false;
};

/// Shows files and folders, and links to such, to `take`, one by one and in no order, until it
/// returns false. What is hidden, a device or a pipe is left out. A folder that cannot be read has
/// none; what `take` throws is passed on.
void GoThroughNames(const std::string& folder,
                    const std::function<bool(const NameInFolder& item)>& take);

}  // namespace quillomat
