#include "system/names_in_folder.h"

#include <filesystem>
#include <system_error>

#include "system/native_path.h"

namespace quillomat {

namespace fs = std::filesystem;

void GoThroughNames(const std::string& folder,
                    const std::function<bool(const NameInFolder& item)>& take) {
  if (NamesNothing(folder)) return;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().native();
    if (name.starts_with('.')) continue;
    std::error_code unseen;
    const bool isFolder = entry->is_directory(unseen);
    if ((isFolder || entry->is_regular_file(unseen)) && !take({name, isFolder})) return;
  }
}

}  // namespace quillomat
