// What of a words file, or of a typed list, could not be read as it was meant, in words for the
// user: a list without the words that its file names would be a riddle.
#pragma once

#include <string>
#include <string_view>

#include "app/messages.h"
#include "engine/letter_rule.h"
#include "engine/uncounted.h"

namespace quillomat {

/// A sentence each for letters that the western rule leaves out, for lines that were not UTF-8 and
/// for bytes that could not be decoded, with the way out; "" where nothing was lost. `path` is that
/// of the file.
[[nodiscard]] std::string ListLossText(const Uncounted& lost, const std::string& path,
                                       const Messages& messages);

/// The same of the cleaned text of a typed list, which is called `list`: "" where all its letters
/// are letters by the rule that is in force.
[[nodiscard]] std::string TypedLossText(std::string_view cleaned, LetterRule letters,
                                        const std::string& list, const Messages& messages);

}  // namespace quillomat
