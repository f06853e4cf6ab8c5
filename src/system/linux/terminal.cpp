#include "system/terminal.h"

#include <fcntl.h>
#include <unistd.h>

#include "system/environment.h"

namespace quillomat {
namespace {

int DescriptorOf(StandardStream stream) {
  return stream == StandardStream::kOutput ? STDOUT_FILENO : STDERR_FILENO;
}

}  // namespace

// Streams are bytes here, and the terminal says itself which encoding it shows.
Terminal::Terminal() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) != -1) continue;
    // Takes the lowest number that is free, which is the stream's; the wrong way round it fails.
    static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
}

Terminal::~Terminal() = default;

bool IsOpen(StandardStream stream) {
  const int flags = fcntl(DescriptorOf(stream), F_GETFL);
  return flags != -1 && (flags & O_ACCMODE) != O_RDONLY;
}

bool IsTerminal(StandardStream stream) {
  return isatty(DescriptorOf(stream)) == 1;
}

bool ShowsColours(StandardStream stream) {
  return IsTerminal(stream) && !EnvironmentVariable("NO_COLOR") &&
         EnvironmentVariable("TERM").value_or("dumb") != "dumb";
}

std::vector<std::string> ProgramArguments(int argc, const char* const* argv) {
  return {argv, argv + argc};
}

}  // namespace quillomat
