#include "sources/counter.h"

#include <new>
#include <utility>
#include <variant>

#include "sources/count_at_work.h"
#include "sources/folder_pass.h"
#include "sources/output_rules.h"
#include "sources/source_check.h"
#include "sources/text_pass.h"

namespace quillomat {
namespace {

/// One count at work.
class Count {
 public:
  Count(const CountRequest& request, CountObserver& observer, const BatchSizes& batches)
      : state_(request, observer), texts_(state_), folders_(state_, texts_, batches) {}

  CountResult Take() {
    CountResult& result = state_.result;
    try {
      const Refusal refusal = Counter::Check(state_.request, result.error, state_.stop);
      if (state_.stop.Stopped()) {
        result.end = CountEnd::kStoppedCounting;
      } else if (refusal != Refusal::kNone) {
        state_.Refuse(refusal);
      } else {
        state_.observer.OnChecked();
        std::visit([this](const auto& source) { Read(source); }, state_.request.source);
      }
    } catch (const RunTimeError& error) {
      state_.Fail(error);
    } catch (const std::bad_alloc&) {
      state_.Fail(RunTimeError(RunTimeErrorNumber::kOutOfMemory));
    }
    result.store.SetListener(nullptr);
    result.store.SetOrderListener(nullptr);
    if (state_.request.orderFigures) result.orderFigures = state_.orderFigures.Figures();
    result.openComment = state_.settings.OpenComment;
    result.uncounted = state_.settings.Uncounted;
    SortFilesRead(result.filesRead);
    return std::move(result);
  }

 private:
  void Read(const TextOfClipboard& source) { texts_.ReadClipboard(source.text); }
  void Read(const TextOfFile& source) {
    ReadSingle(source.path, [&](FileReport& report) { texts_.ReadFile(report); });
  }
  void Read(const TextOfStream& source) {
    ReadSingle(source.name, [&](FileReport& report) { texts_.ReadStream(*source.bytes, report); });
  }
  void Read(const TextOfFolder& source) { folders_.Read(source); }
  void Read(const TextOfPaths& source) { folders_.Read(source); }

  void ReadSingle(const std::string& path, const TextPass::ReadReported& read) {
    CountResult& result = state_.result;
    FileReport report;
    report.path = path;
    texts_.Try(report, read);
    result.files = report.refusal == Refusal::kNone ? 1 : 0;
    state_.progress.filesDone = 1;
    state_.observer.OnFileEnds(report, state_.progress);
    if (report.refusal == Refusal::kReadFailed) {
      state_.Fail(*report.error);
    } else if (report.refusal != Refusal::kNone) {
      state_.Refuse(report.refusal);
      result.error = report.error;
    } else {
      state_.EndScan({.bytes = report.bytesRead, .bytesInAll = report.bytes.value_or(0)});
    }
    result.reports.push_back(std::move(report));
  }

  CountAtWork state_;
  TextPass texts_;
  FolderPass folders_;
};

}  // namespace

Refusal Counter::Check(const CountRequest& request, std::optional<RunTimeError>& error,
                       ScanYield& yield) {
  if (IsSet(request.scan.allowCommentMarkers) && FindMarkerFault(request.scan)) {
    return Refusal::kBadMarkers;
  }
  try {
    return FaultOf(request.source, request.outputPath, yield);
  } catch (const RunTimeError& unreadable) {
    error = unreadable;
    return Refusal::kFolderUnreadable;
  }
}

CountResult Counter::Run() {
  return Count(request_, observer_, batches_).Take();
}

}  // namespace quillomat
