#include "system/native_path.h"

namespace quillomat {

bool NamesNothing(std::string_view path) {
  return path.empty() || path.find('\0') != std::string_view::npos;
}

}  // namespace quillomat
