// What a count has met and not counted, told on a terminal: nothing is lost without a word.
#pragma once

#include <ostream>
#include <string_view>

#include "app/messages.h"
#include "engine/uncounted.h"

namespace quillomat {

/// A line for each kind that there is. `firstNotDecoded` is the file, of several, in which bytes
/// could not be decoded first; "" where there is only one text.
void TellUncounted(const Uncounted& uncounted, const Messages& messages, std::ostream& err,
                   std::string_view firstNotDecoded = {});

/// `names` are the encodings in which texts were read because it was guessed so; a line where there
/// is one.
void TellGuessed(std::string_view names, std::ostream& err);

}  // namespace quillomat
