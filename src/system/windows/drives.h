// The drives of the machine.
#pragma once

#include <string>

namespace quillomat {

/// "C:", say: the first drive, by letter, that is neither removable nor elsewhere in the network;
/// "" when there is none.
[[nodiscard]] std::string FirstFixedDrive();

}  // namespace quillomat
