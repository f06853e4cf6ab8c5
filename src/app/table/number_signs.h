// The signs that numbers are written with for people.
#pragma once

#include <string>

namespace quillomat {

/// In UTF-8.
struct NumberSigns {
  /// Between groups of three digits; "" for numbers that another program is to read.
  std::string group = ",";
  std::string decimal = ".";
};

}  // namespace quillomat
