#include "cli/count_watch.h"

#include <chrono>

namespace quillomat {
namespace {

constexpr auto kLong = std::chrono::seconds(1);

}  // namespace

CountWatch::CountWatch(const TerminalStreams& streams, Progress progress, const InputChoice& input)
    : streams_(streams), input_(input) {
  if (progress == Progress::kNever) return;
  const auto patience = progress == Progress::kAlways ? ProgressLine::Duration::zero()
                                                      : ProgressLine::Duration(kLong);
  line_.emplace(streams_, patience);
}

void CountWatch::Look() {
  callsLeft_ = kCallsPerLook;
  stopped_ = stopped_ || streams_.interruption() != 0;
}

BytesDone CountWatch::BytesOf(const CountProgress& progress) const {
  const bool singleFile = input_.kind == InputChoice::Kind::kFile;
  return {progress.runBytesRead, singleFile ? progress.bytesInFile : progress.bytesInRun};
}

void CountWatch::OnProgress(const CountProgress& progress) {
  if (line_) line_->Show(BytesOf(progress));
}

void CountWatch::OnFileEnds(const FileReport& /*report*/, const CountProgress& progress) {
  if (line_) line_->Show(BytesOf(progress));
}

void CountWatch::OnSkipped(const SkippedFile& skipped) {
  if (!IsFault(skipped.reason) && !input_.IsNamed(skipped.path)) {
    leftOut_.Add(skipped);
    return;
  }
  ++skippedInAll_;
  if (skipped_.size() < CountResult::kMaxSkipped) skipped_.push_back(skipped);
}

}  // namespace quillomat
