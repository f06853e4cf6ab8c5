// What the operating system says about files and folders, and does with them: the little that
// file_system.h needs of it. For the files of this folder.
//
// No path here names nothing (see native_path.h). Failures are error codes; an error parameter is
// cleared by success.
#pragma once

#include <cstdint>
#include <string>
#include <system_error>

#include "system/file_system.h"

namespace quillomat {

enum class ItemKind { kNothing, kFile, kFolder };

/// What a path leads to, links followed. A device or a pipe counts as a file.
[[nodiscard]] ItemKind KindOfItem(const std::string& path);

/// In bytes; an error for what has no length.
[[nodiscard]] std::int64_t LengthOfFile(const std::string& path, std::error_code& error);

/// Whether two paths that both lead somewhere lead to the same place; an error when one of them
/// does not.
[[nodiscard]] bool AreSameItem(const std::string& left, const std::string& right,
                               std::error_code& error);

/// As ListFolder, but in no order.
[[nodiscard]] FolderListing ItemsOfFolder(const std::string& path, std::error_code& error);

/// A folder that is there already is no error.
void MakeFolder(const std::string& path, std::error_code& error);
void EnterFolder(const std::string& path, std::error_code& error);

/// The file itself when the path is a link to one; else the path.
[[nodiscard]] std::string BehindLinks(const std::string& path);

/// Puts the file `fresh` in the place of `target`, with the permissions of the latter if it is
/// there.
void MoveFileOver(const std::string& fresh, const std::string& target, std::error_code& error);

/// Never complains.
void RemoveFile(const std::string& path);

}  // namespace quillomat
