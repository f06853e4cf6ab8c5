#include "system/terminal.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <memory>
// The second needs the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "system/environment.h"
#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

struct LocalMemoryFreer {
  void operator()(wchar_t** memory) const { LocalFree(memory); }
};

HANDLE HandleOf(StandardStream stream) {
  return GetStdHandle(stream == StandardStream::kOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

}  // namespace

// Without a console the encodings are 0, and setting them does nothing.
Terminal::Terminal()
    : inputEncodingBefore_(GetConsoleCP()), outputEncodingBefore_(GetConsoleOutputCP()) {
  _setmode(_fileno(stdin), _O_BINARY);
  SetConsoleCP(CP_UTF8);
  SetConsoleOutputCP(CP_UTF8);
}

Terminal::~Terminal() {
  SetConsoleCP(inputEncodingBefore_);
  SetConsoleOutputCP(outputEncodingBefore_);
}

bool IsOpen(StandardStream stream) {
  HANDLE const handle = HandleOf(stream);
  return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

bool IsTerminal(StandardStream stream) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

// A console has to be told to.
bool ShowsColours(StandardStream stream) {
  DWORD mode = 0;
  HANDLE const console = HandleOf(stream);
  return GetConsoleMode(console, &mode) != 0 && !EnvironmentVariable("NO_COLOR") &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

// Those of `main` have lost every character that the system's old encoding does not know.
std::vector<std::string> ProgramArguments(int argc, const char* const* argv) {
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalMemoryFreer> wide(
      CommandLineToArgvW(GetCommandLineW(), &count));
  if (!wide) return {argv, argv + argc};
  std::vector<std::string> arguments;
  for (int i = 0; i < count; ++i) arguments.push_back(FromWide(wide.get()[i]));
  return arguments;
}

}  // namespace quillomat
