// Files and folders: what is there, how long it is, what a folder holds. Paths as in paths.h.
//
// Questions never throw: what cannot be seen is not there. An empty path, or one with a NUL in it,
// names nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "system/file_identity.h"
#include "system/paths.h"

namespace quillomat {

/// Whether something that is not a folder is there (links are followed).
[[nodiscard]] bool FileExists(const std::string& path);
[[nodiscard]] bool FolderExists(const std::string& path);

/// In bytes; nothing when there is no such file, or it has no length (a folder, a device).
[[nodiscard]] std::optional<std::int64_t> FileLength(const std::string& path);

/// Whether both paths lead to one file; where one of them leads nowhere, whether they are spelled
/// the same (SamePath).
[[nodiscard]] bool IsSameFile(const std::string& left, const std::string& right);

/// Of the file or folder that the path leads to; nothing when it leads nowhere.
[[nodiscard]] std::optional<FileIdentity> IdentityOf(const std::string& path);

struct FolderListing {
  std::vector<std::string> files;       // names of regular files and of links to such
  std::vector<std::string> subfolders;  // names of folders; links to folders are left out
};

/// What a folder holds, each list in order of names without letter case, ties by code point.
/// Devices, pipes, sockets and links that lead nowhere are left out. Throws RunTimeError 70 for a
/// folder that may not be read, 76 for one that is not there.
[[nodiscard]] FolderListing ListFolder(const std::string& path);

/// Makes a folder in one that exists; one that is there already is fine. Throws RunTimeError 76,
/// 75, 70 or 61.
void CreateFolder(const std::string& path);

/// Throws RunTimeError 76 or 70.
void SetCurrentFolder(const std::string& path);
/// The root of the current drive: "/", or "\".
[[nodiscard]] std::string RootFolder();

/// To be called when a program starts: an empty drive is then a drive without files, and not worth
/// a box of the system's own.
void LetDrivesBeEmpty();

/// Replaces the file's contents at once, as an OutputFile that is written and closed does.
void ReplaceContents(const std::string& path, std::string_view contents);

/// The folder of the running program.
[[nodiscard]] std::string ProgramFolder();

/// The path, which counts from the program's folder unless it starts at a root: the current folder
/// changes while the program runs.
[[nodiscard]] std::string FromProgramFolderOn(const std::string& path);

/// The folder of the program text and the common-word lists: the environment variable
/// QUILLOMAT_DATA if it is set (FromProgramFolderOn), else the program's folder if they are there,
/// else
/// ../share/quillomat beside it, else the data folder of the sources if this build may be run from
/// them; the program's folder if they are nowhere.
[[nodiscard]] std::string DataFolder();

}  // namespace quillomat
