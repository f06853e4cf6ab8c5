// What a person means who types a path into a box, or pastes one from another program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// The path that is meant by `typed`, from the root on; one that starts at no root lies in
/// `folder`. Blanks round it are dropped, and quotes round it (programs copy a path with them); "~"
/// and what begins with "~/" is in the user's home, and "file:" begins the address of a file, as
/// browsers and file managers copy it. A file or a folder that is really called so comes first. An
/// address without a path stays what it is, and so does one of another machine, but on Windows,
/// which has paths for those. "" stays "".
[[nodiscard]] std::string PathFromTyped(const std::string& folder, std::string_view typed);

/// The path in the address of a file, byte by byte; nothing for any other text, and where
/// PathFromTyped leaves an address what it is.
[[nodiscard]] std::optional<std::string> PathOfAddress(std::string_view text);

}  // namespace quillomat
