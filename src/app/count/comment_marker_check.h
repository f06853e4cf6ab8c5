// The check of the user's comment markers before a count that is to use them.
#pragma once

#include "app/count/run_context.h"

namespace quillomat {

/// Tells the user about the first fault; true when there is none.
[[nodiscard]] bool CheckCommentMarkers(const RunContext& context);

}  // namespace quillomat
