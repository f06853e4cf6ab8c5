// What the user is told when an output file is refused.
#pragma once

#include "sources/output_rules.h"
#include "ui/desktop.h"

namespace quillomat {

[[nodiscard]] MessageBox OutputRefusal(NeededAs neededAs);

}  // namespace quillomat
