// What a count has met and not counted, told on a terminal: nothing is lost without a word.
#pragma once

#include <ostream>

#include "app/messages.h"
#include "engine/uncounted.h"

namespace quillomat {

/// A line for each kind that there is.
void TellUncounted(const Uncounted& uncounted, const Messages& messages, std::ostream& err);

}  // namespace quillomat
