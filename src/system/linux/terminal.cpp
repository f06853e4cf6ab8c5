#include "system/terminal.h"

namespace quillomat {

// Streams are bytes here, and the terminal says itself which encoding it shows.
Terminal::Terminal() = default;

Terminal::~Terminal() = default;

std::vector<std::string> ProgramArguments(int argc, const char* const* argv) {
  return {argv, argv + argc};
}

}  // namespace quillomat
