// What the user is told when an output file is refused.
#pragma once

#include "app/messages.h"
#include "sources/output_rules.h"

namespace quillomat {

void RefuseOutputFile(const Messages& messages, NeededAs neededAs);

}  // namespace quillomat
