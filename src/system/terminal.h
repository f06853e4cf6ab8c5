// The program's side of a terminal: its arguments and standard streams.
#pragma once

#include <string>
#include <vector>

namespace quillomat {

/// While it lives, standard input gives its bytes as they are, and a console takes and shows UTF-8.
/// A standard stream that is closed stays one that fails: no file that is opened later takes its
/// place.
class Terminal {
 public:
  Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  Terminal(Terminal&&) = delete;
  Terminal& operator=(Terminal&&) = delete;
  ~Terminal();  // NOLINT(performance-trivially-destructible): it has nothing to do on POSIX only

 private:
  unsigned inputEncodingBefore_ = 0;
  unsigned outputEncodingBefore_ = 0;
};

enum class StandardStream { kOutput, kError };

/// Whether there is anything that could take what is written to the stream.
[[nodiscard]] bool IsOpen(StandardStream stream);

/// Whether a person sees what goes there, and no file or pipe takes it.
[[nodiscard]] bool IsTerminal(StandardStream stream);

/// Whether what goes there may be coloured: a terminal that understands it, and a person who has
/// not asked for none (NO_COLOR).
[[nodiscard]] bool ShowsColours(StandardStream stream);

/// The arguments of `main` as UTF-8 (plain bytes where paths are those), the program's name first.
[[nodiscard]] std::vector<std::string> ProgramArguments(int argc, const char* const* argv);

}  // namespace quillomat
