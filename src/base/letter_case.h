// Lower case as the program understands it, the same on every machine and in every locale: A-Z, the
// Latin-1 capitals U+00C0-U+00DE except U+00D7 (multiplication sign), and the four capitals S and Z
// with caron, OE and Y with diaeresis. Every other character stays as it is. A lower-cased text has
// as many bytes as the text, each character at its place.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

[[nodiscard]] std::string LowerCase(std::string_view text);

/// As LowerCase, in place.
void MakeLowerCase(std::string& text);

/// Whether the texts are equal when both are lower-cased.
[[nodiscard]] bool EqualIgnoringCase(std::string_view left, std::string_view right);

}  // namespace quillomat
