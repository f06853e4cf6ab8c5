// Which file an open handle leads to. For the files of this folder.
#pragma once

#include <optional>
#include <windows.h>

#include "system/file_identity.h"

namespace quillomat {

/// Nothing for what is no file or folder of a disk.
[[nodiscard]] inline std::optional<FileIdentity> IdentityOfHandle(HANDLE handle) {
  BY_HANDLE_FILE_INFORMATION facts{};
  if (GetFileInformationByHandle(handle, &facts) == 0) return std::nullopt;
  return FileIdentity{facts.dwVolumeSerialNumber,
                      std::uint64_t{facts.nFileIndexHigh} << 32U | facts.nFileIndexLow};
}

}  // namespace quillomat
