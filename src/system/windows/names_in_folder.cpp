#include "system/names_in_folder.h"

#include "system/native_path.h"
#include "system/windows/folder_search.h"
#include "system/windows/wide_text.h"

namespace quillomat {

void GoThroughNames(const std::string& folder,
                    const std::function<bool(const NameInFolder& item)>& take) {
  if (NamesNothing(folder)) return;
  WIN32_FIND_DATAW item{};
  const FolderSearch search = SearchFolder(folder, item);
  if (!search) return;
  do {
    const std::string name = FromWide(item.cFileName);
    const bool isHidden = (item.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    const bool isFolder = (item.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (isHidden || name == "." || name == "..") continue;
    if (!take({name, isFolder})) return;
  } while (FindNextFileW(search.get(), &item) != 0);
}

}  // namespace quillomat
