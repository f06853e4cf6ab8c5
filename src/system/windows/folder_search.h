// The entries of a folder, as the system tells them.
#pragma once

#include <memory>
#include <string>
#include <windows.h>

#include "system/windows/system_path.h"

namespace quillomat {

struct SearchCloser {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};
/// FindNextFileW takes it on.
using FolderSearch = std::unique_ptr<HANDLE, SearchCloser>;

/// With the first entry in `item`; empty when there is none, for the reason of GetLastError.
inline FolderSearch SearchFolder(const std::string& path, WIN32_FIND_DATAW& item) {
  std::wstring pattern = SystemPath(path);
  if (!pattern.ends_with(L'\\')) pattern += L'\\';
  pattern += L'*';
  const HANDLE search = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &item,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  return FolderSearch(search == INVALID_HANDLE_VALUE ? nullptr : search);
}

}  // namespace quillomat
