// Boxes that hold a path: the dialogs that fill them, and what becomes of a path that is typed.
#pragma once

#include <optional>
#include <string>

#include "app/count/run_context.h"

namespace quillomat {

/// Asks for a file for a box. The dialog opens in the folder of the box's path, else in the folder
/// used last, else in the user's documents. The box is left as it is.
[[nodiscard]] std::optional<std::string> ChooseFileFor(const TextBox& box, FileDialog dialog,
                                                       const RunContext& context);

/// The same for a folder.
[[nodiscard]] std::optional<std::string> ChooseFolderFor(const TextBox& box,
                                                         const std::string& title,
                                                         const RunContext& context);

/// A path that starts at no root becomes a full one, in the folder used last, else in the user's
/// documents: the program's current folder means nothing to the user. To be called when the box is
/// left.
void CompletePathIn(TextBox& box, const RunContext& context);

/// The user has chosen or named this file or folder: the next dialog opens in the folder where it
/// lies, unless that is a root.
void RememberFolderOf(const std::string& path, const RunContext& context);

}  // namespace quillomat
