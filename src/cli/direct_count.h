// A count in the terminal, made with Counter: files, folders, pipes and standard input, each read
// once, as it comes, in constant memory. What the settings are the controls say; what was counted
// becomes the program's, as after a count in the window, and can be listed.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/messages.h"
#include "app/program.h"
#include "cli/command_line.h"
#include "cli/count_watch.h"
#include "cli/input_choice.h"
#include "cli/terminal_streams.h"
#include "sources/count_request.h"
#include "sources/count_result.h"

namespace quillomat {

class DirectCount {
 public:
  /// All must outlive it. The input is none for the clipboard, and has stood FindInputFault.
  DirectCount(Program& program, const Messages& messages, const CommandLine& options,
              const InputChoice& input, const TerminalStreams& streams)
      : program_(program),
        messages_(messages),
        options_(options),
        input_(input),
        streams_(streams) {}

  /// False when there are no words to be listed.
  [[nodiscard]] bool Run();

  /// Why not, naming the text; "" where a message has told of something else.
  [[nodiscard]] const std::string& Fault() const { return fault_; }

 private:
  [[nodiscard]] CountRequest Request(CountWatch& watch);
  [[nodiscard]] bool ExportsFiles() const;
  [[nodiscard]] CountSource Source(CountWatch& watch);
  [[nodiscard]] bool SizeCanBeKnown() const;
  [[nodiscard]] CountWatch::Progress ProgressWanted() const;
  void TellSkipped(const CountWatch& watch) const;
  [[nodiscard]] bool HasWords(const CountResult& result, const CountWatch& watch);
  [[nodiscard]] bool Refuse(Refusal reason, const std::optional<RunTimeError>& error);
  [[nodiscard]] std::string NoFilesText() const;

  Program& program_;
  const Messages& messages_;
  const CommandLine& options_;
  const InputChoice& input_;
  const TerminalStreams& streams_;
  /// What "-" reads; null where it is not read.
  std::unique_ptr<ByteSource> standardInput_;
  std::string fault_;
};

}  // namespace quillomat
