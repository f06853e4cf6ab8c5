// A run in the terminal with streams of the test's own.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "base/text_helpers.h"
#include "cli/command_line.h"
#include "cli/terminal_run.h"
#include "support/chunked_source.h"
#include "support/temporary_folder.h"

namespace quillomat {

class TerminalFixture : public testing::Test {
 protected:
  /// Returns the exit status. What was printed is in `out`, with a line feed for each line end, and
  /// in `err`.
  int Run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "quillomat-cli");
    out.clear();
    std::ostringstream messages;
    const ParsedCommandLine parsed = ParseCommandLine(arguments, messages, messages);
    const int status =
        parsed.exitStatus ? *parsed.exitStatus : RunInTerminal(parsed.options, Streams(messages));
    out = ReplaceAll(out, kPlatformLineBreak, "\n");
    err = messages.str();
    return status;
  }

  TemporaryFolder folder;
  /// What stands ready on standard input.
  std::string input;
  bool inputWasOpened = false;
  bool errIsTerminal = false;
  bool outIsTerminal = false;
  /// Nobody reads standard output any more.
  bool outIsGone = false;
  std::function<int()> interruption = [] { return 0; };
  /// How often it was said that the next interruption may end the program.
  int countsOver = 0;
  std::chrono::milliseconds stepPerLook{0};
  std::string out;
  std::string err;

 private:
  class StringSink final : public ByteSink {
   public:
    explicit StringSink(std::string& target) : target_(target) {}
    void Write(std::string_view bytes) override { target_.append(bytes); }

   private:
    std::string& target_;
  };

  static constexpr std::size_t kChunkBytes = 1000;

  TerminalStreams Streams(std::ostream& messages) {
    return {.openInput =
                [this](ScanYield& /*yield*/) {
                  inputWasOpened = true;
                  return std::make_unique<ChunkedSource>(input, kChunkBytes);
                },
            .print =
                [this](const auto& write) {
                  if (outIsGone) return false;
                  StringSink sink(out);
                  write(sink);
                  return true;
                },
            .err = messages,
            .errIsTerminal = errIsTerminal,
            .outIsTerminal = outIsTerminal,
            .interruption = [this] { return interruption(); },
            .endAtInterruption = [this] { ++countsOver; },
            .clock = [this] { return now_ += stepPerLook; }};
  }

  std::chrono::steady_clock::time_point now_;
};

}  // namespace quillomat
