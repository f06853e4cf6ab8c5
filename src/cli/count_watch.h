// Looks on while the terminal counts: shows the progress, keeps what is to be told afterwards, and
// stops the count when the user has interrupted it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/input_choice.h"
#include "cli/progress_line.h"
#include "cli/terminal_streams.h"
#include "sources/count_observer.h"

namespace quillomat {

class CountWatch final : public CountObserver {
 public:
  /// When the progress is shown.
  enum class Progress {
    kNever,
    kWhenLong,
    kAlways,
  };

  /// `streams` and `input` must outlive it.
  CountWatch(const TerminalStreams& streams, Progress progress, const InputChoice& input);

  bool Yield() override {
    if (--callsLeft_ == 0) Look();
    return stopped_;
  }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return callsLeft_; }
  bool YieldFor(std::uint32_t calls) override {
    callsLeft_ -= calls - 1;
    return Yield();
  }

  /// Who is asked when the files of a folder have been counted.
  void SetQuestion(std::function<bool(std::int32_t files)> question) {
    question_ = std::move(question);
  }

  [[nodiscard]] bool GoOn(std::int32_t files, std::int32_t /*folders*/,
                          std::string& /*outputPath*/) override {
    return !question_ || question_(files);
  }
  void OnProgress(const CountProgress& progress) override;
  void OnFileEnds(const FileReport& report, const CountProgress& progress) override;
  void OnSkipped(const SkippedFile& skipped) override;

  /// Takes the progress off the terminal.
  void EndProgress() { line_.reset(); }

  /// What was skipped and is worth telling: what should have been read, and of what was named
  /// everything. The first of it, and how many in all.
  [[nodiscard]] const std::vector<SkippedFile>& Skipped() const { return skipped_; }
  [[nodiscard]] std::int64_t SkippedInAll() const { return skippedInAll_; }
  /// Of the files that were not named.
  [[nodiscard]] const LeftOut& FilesLeftOut() const { return leftOut_; }

 private:
  /// Words between two looks: some hundred microseconds.
  static constexpr std::uint32_t kCallsPerLook = 4096;

  void Look();
  [[nodiscard]] BytesDone BytesOf(const CountProgress& progress) const;

  const TerminalStreams& streams_;
  const InputChoice& input_;
  std::function<bool(std::int32_t files)> question_;
  std::optional<ProgressLine> line_;
  std::vector<SkippedFile> skipped_;
  std::int64_t skippedInAll_ = 0;
  LeftOut leftOut_;
  std::uint32_t callsLeft_ = kCallsPerLook;
  bool stopped_ = false;
};

}  // namespace quillomat
