// A line of a list taken apart again: a list is text for people and programs, and whoever copies it
// into a spreadsheet wants its columns.
#pragma once

#include <string_view>
#include <vector>

#include "listing/display_format.h"

namespace quillomat {

/// The cells of a line of a list without commas between its columns, header lines included; they
/// point into `line`. Words and numbers hold no blank, the path of a file list may. A file stands
/// in the columns behind its word's: its first cell is empty. A line that is none of the format's
/// (a notice above the list, a part of a line) is one cell.
[[nodiscard]] std::vector<std::string_view> CellsOf(std::string_view line, DisplayFormat format);

}  // namespace quillomat
