// The numbered texts of a program-text file, and how such a file is read. One text is one line:
//
//   21 EN Count word frequencies
//   21 DE Worthäufigkeiten ermitteln
//
// docs/program-text.md describes the format.
#pragma once

#include <cstddef>
#include <map>
#include <memory_resource>
#include <string>
#include <utility>

#include "base/byte_source.h"
#include "text/language.h"

namespace quillomat {

inline constexpr int kLargestTextNumber = 32767;
/// In characters; a line break inside a text is two.
inline constexpr std::size_t kLongestText = 1024;
/// In bytes, comments and all.
inline constexpr std::size_t kLargestProgramText = std::size_t{1} << 20U;

using TextKey = std::pair<int, Language>;
using TextTable = std::pmr::map<TextKey, std::pmr::string>;

/// Adds the texts of a program-text file to `texts`, which is empty. Returns how many they are, or
/// a code of load_result.h for the first fault in the file; the table is of no use then. A number
/// that lacks a language is a fault that shows at the end of the file, and tells where the number
/// stands. Passes on what the source throws, and std::bad_alloc.
[[nodiscard]] int ReadTextTable(ByteSource& source, TextTable& texts);

}  // namespace quillomat
