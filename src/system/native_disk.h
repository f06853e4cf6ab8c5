// What the operating system says about files and folders, and does with them: the little that
// file_system.h needs of it. For the files of this folder.
//
// No path here names nothing (see native_path.h). Failures are error codes; an error parameter is
// cleared by success.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

#include "system/file_identity.h"
#include "system/file_system.h"

namespace quillomat {

enum class ItemKind { kNothing, kFile, kFolder };

/// What a path leads to, links followed. A device or a pipe counts as a file.
[[nodiscard]] ItemKind KindOfItem(const std::string& path);

/// In bytes; an error for what has no length.
[[nodiscard]] std::int64_t LengthOfFile(const std::string& path, std::error_code& error);

/// Of the file or folder that a path leads to, links followed; nothing when it leads nowhere.
[[nodiscard]] std::optional<FileIdentity> IdentityOfItem(const std::string& path);

/// As ListFolder, but in no order.
[[nodiscard]] FolderListing ItemsOfFolder(const std::string& path, std::error_code& error);

/// A folder that is there already is no error.
void MakeFolder(const std::string& path, std::error_code& error);
/// A new one into which nobody else may look; an error when something is there already.
void MakePrivateFolder(const std::string& path, std::error_code& error);
void EnterFolder(const std::string& path, std::error_code& error);

/// Where the path leads to when it is a link, or a link to a link, whether there is something or
/// not; else the path. Nothing when it cannot be told, or is none that could be replaced: the name
/// that the system gives to an open file.
[[nodiscard]] std::optional<std::string> BehindLinks(const std::string& path);

/// Puts the file `fresh` in the place of `target`.
void MoveFileOver(const std::string& fresh, const std::string& target, std::error_code& error);

/// Asks the disk to keep that a file of that name stands there, where it does not by itself.
void KeepName(const std::string& path);

// Neither complains.
void RemoveFile(const std::string& path);
/// With all that is in it.
void RemoveFolder(const std::string& path);

}  // namespace quillomat
