// Text on its way to a terminal, which takes some characters for commands.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// `text` with what a terminal would act on, or could not show, in a form that can be read: "\x1B"
/// for a control character or a byte that is no UTF-8, "\u202E" for the rest of them and for those
/// that turn the direction of writing. Tabs and line ends stay.
[[nodiscard]] std::string EscapedForTerminal(std::string_view text);

}  // namespace quillomat
