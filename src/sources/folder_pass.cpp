#include "sources/folder_pass.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "base/checked_count.h"
#include "sources/source_check.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

constexpr std::string_view kStandardInput = "-";

bool IsStandardInput(const TextOfPaths& source, std::string_view path) {
  return source.standardInput != nullptr && path == kStandardInput;
}

/// The first batches have so many things, as nobody knows yet how many bytes they have.
constexpr std::size_t kFirstItems = 16;
constexpr std::size_t kItemsWorthThreads = 8;
/// The first files are read as they are met, up to so many or so many bytes: before threads were
/// made, they would be done.
constexpr std::int32_t kFilesAtOnce = 16;
constexpr std::int64_t kBytesAtOnce = std::int64_t{128} * 1024;
/// So many batches wait for each thread, so that none has nothing to do while one is joined.
constexpr std::size_t kBatchesPerThread = 2;
constexpr std::chrono::milliseconds kLongestWait{8};

// Comments that are open from file to file are guessed. A wrong guess costs a batch's work, and
// weighs as much as so many right ones.
constexpr int kSurprise = 64;
constexpr int kTooManySurprises = 3 * kSurprise;
constexpr int kFilesNotAhead = 2048;

}  // namespace

void FolderPass::Read(const TextOfFolder& source) {
  ReadMany(1, [&](const FolderVisitor& visitor) { WalkFolder(source, visitor); });
}

void FolderPass::Read(const TextOfPaths& source) {
  standardInput_ = source.standardInput;
  ReadMany(0, [&](const FolderVisitor& visitor) { VisitPaths(source, visitor); });
}

void FolderPass::ReadMany(std::int32_t folders, const Visit& visit) {
  state_.result.folders = folders;
  if (state_.request.countingPass != CountingPass::kNone) {
    if (!CountFiles(visit)) return;
    state_.result.folders = folders;
  }
  state_.BeginScan(state_.settings.CountOnlyMode && state_.request.tallyFiles);
  visit({.onFile = [this](const std::string& path) { Meet(WalkItem::Kind::kFile, path); },
         .onNeverText = [this](const std::string& path) { Meet(WalkItem::Kind::kNeverText, path); },
         .onSubfolder = [this] { Meet(WalkItem::Kind::kSubfolder, {}); },
         .onUnreadableFolder =
             [this](const std::string& path) { Meet(WalkItem::Kind::kUnreadableFolder, path); },
         .stops = [this] { return state_.stop.Yield(); }});
  TakeRest();
  const CountProgress& progress = state_.progress;
  state_.EndScan(
      {progress.filesDone, progress.filesInRun, progress.runBytesRead, progress.bytesInRun});
}

/// False when the count has ended with it.
bool FolderPass::CountFiles(const Visit& visit) {
  CountResult& result = state_.result;
  CountProgress& progress = state_.progress;
  const bool bytes = state_.request.countingPass == CountingPass::kFilesAndBytes;
  const auto countFile = [&](const std::string& path) {
    ++result.files;
    if (bytes) progress.bytesInRun += FileLength(path).value_or(0);
    state_.observer.OnFileCounted(result.files, result.folders);
  };
  visit({.onFile = countFile,
         .onSubfolder = [&] { ++result.folders; },
         .onUnreadableFolder = [](const std::string&) {},
         .stops = [this] { return state_.stop.Yield(); }});
  if (state_.stop.Stopped()) {
    result.end = CountEnd::kStoppedCounting;
    return false;
  }
  progress.filesInRun = std::exchange(result.files, 0);
  std::string outputPath = state_.request.outputPath;
  Refusal refusal = Refusal::kNone;
  if (!state_.observer.GoOn(progress.filesInRun, result.folders, outputPath)) {
    refusal = Refusal::kDeclined;
  } else if (outputPath != state_.request.outputPath) {
    refusal = OutputFaultOf(state_.request.source, outputPath);
  }
  if (refusal != Refusal::kNone) state_.Refuse(refusal);
  return refusal == Refusal::kNone;
}

void FolderPass::VisitPaths(const TextOfPaths& source, const FolderVisitor& visitor) {
  for (const std::string& path : source.paths) {
    if (!IsStandardInput(source, path) && FolderExists(path)) {
      visitor.onSubfolder();
      WalkFolder({path, source.subfolders, source.extensions}, visitor);
    } else {
      visitor.onFile(path);
    }
    if (visitor.stops()) return;
  }
}

void FolderPass::Meet(WalkItem::Kind kind, const std::string& path) {
  if (state_.stop.Stopped()) return;  // a batch can end with it while the walk enters a folder
  WalkItem item;
  item.kind = kind;
  item.report.path = path;
  if (kind == WalkItem::Kind::kFile && standardInput_ != nullptr && path == kStandardInput) {
    item.kind = WalkItem::Kind::kStandardInput;
  }
  if (!texts_.UsesThreads() || IsAmongFirst()) return Take(item, 0);
  if (item.kind == WalkItem::Kind::kFile && filesNotAhead_ > 0) {
    --filesNotAhead_;
  } else {
    item.forThreads = item.kind == WalkItem::Kind::kFile;
  }
  met_.items.push_back(std::move(item));
  if (met_.items.size() >= ItemsOfBatch()) return Submit();
  if (kind == WalkItem::Kind::kSubfolder) KeepBusy();
}

bool FolderPass::IsAmongFirst() const {
  return !pool_ && met_.items.empty() && state_.progress.filesDone < kFilesAtOnce &&
         bytesOfFiles_ < kBytesAtOnce;
}

/// As files go, of as many bytes as a batch is to have.
std::size_t FolderPass::ItemsOfBatch() const {
  const std::int64_t files = state_.result.files;
  if (files == 0) return std::min(kFirstItems, batches_.items);
  const auto usualBytes = static_cast<std::size_t>(bytesOfFiles_ / files);
  return std::clamp<std::size_t>(batches_.bytes / (usualBytes + 1), 1, batches_.items);
}

/// A walk can be slow: between two folders it is seen to that nothing waits for it.
void FolderPass::KeepBusy() {
  while (pool_ && pool_->Batches() > 0 && pool_->WaitForFirst(std::chrono::milliseconds::zero())) {
    TakeFirstBatch();
    if (state_.stop.Stopped()) return;
  }
  const bool idle = pool_ ? pool_->Batches() == 0 : met_.items.size() >= kItemsWorthThreads;
  if (idle) Submit();
}

/// Hands over what was met, once there is room for it.
void FolderPass::Submit() {
  if (!pool_) {
    const bool tallied = state_.result.store.Files().IsOn();
    pool_.emplace(state_.settings, state_.request, batches_.bytes,
                  tallied || state_.request.orderFigures ? PieceScanner::Counts::kByPiece
                                                         : PieceScanner::Counts::kTogether);
    joiners_.resize(state_.request.threads);
  }
  while (pool_->Batches() >= kBatchesPerThread * pool_->Threads() && !state_.stop.Stopped()) {
    TakeFirstBatch();
  }
  if (state_.stop.Stopped()) return;
  met_.openComment = state_.settings.OpenComment;
  pool_->Submit(std::exchange(met_, {}));
}

void FolderPass::TakeFirstBatch() {
  while (!pool_->WaitForFirst(kLongestWait)) {
    if (state_.stop.YieldForMany()) return;
  }
  FileBatch batch = pool_->TakeFirst();
  for (WalkItem& item : batch.items) {
    Take(item, batch.scanner);
    if (state_.stop.YieldForMany()) break;
  }
  CountOwed(joiners_[batch.scanner]);
}

/// Behind the end of the walk. One file is not worth threads.
void FolderPass::TakeRest() {
  if (!pool_ && met_.items.size() <= 1) {
    for (WalkItem& item : met_.items) {
      Take(item, 0);
      static_cast<void>(state_.stop.YieldForMany());
    }
    return;
  }
  Submit();
  while (pool_->Batches() > 0 && !state_.stop.Stopped()) TakeFirstBatch();
  pool_.reset();
}

void FolderPass::Take(WalkItem& item, std::size_t scanner) {
  switch (item.kind) {
    case WalkItem::Kind::kFile:
    case WalkItem::Kind::kStandardInput:
      return TakeFile(item, scanner);
    case WalkItem::Kind::kSubfolder:
      ++state_.result.folders;
      return;
    case WalkItem::Kind::kNeverText:
      if (state_.request.keepReports) item.report.bytes = FileLength(item.report.path);
      return LeaveOut(item, Refusal::kNeverText);
    case WalkItem::Kind::kUnreadableFolder:
      return LeaveOut(item, Refusal::kFolderUnreadable);
  }
}

/// Of what nobody tries to read.
void FolderPass::LeaveOut(WalkItem& item, Refusal reason) {
  item.report.refusal = reason;
  Skip({item.report.path, reason, {}});
  Keep(item.report);
}

void FolderPass::TakeFile(WalkItem& item, std::size_t scanner) {
  CountProgress& progress = state_.progress;
  FileReport& report = item.report;
  state_.observer.OnFileMet(report.path, progress);
  const std::int64_t bytesBefore = progress.runBytesRead;
  state_.result.store.Files().SetFileBeingScanned(report.path);
  const bool joins = PrepareJoin(item, scanner);
  texts_.Try(report, [&](FileReport&) { ReadFile(item, scanner, joins); });
  std::string& firstNotDecoded = state_.result.firstNotDecoded;
  if (report.uncounted.bytesNotDecoded > 0 && firstNotDecoded.empty()) {
    firstNotDecoded = report.path;
  }
  ++progress.filesDone;
  progress.bytesRead = 0;
  progress.bytesInFile = 0;
  progress.bytesWithLongLineEnds = 0;
  if (report.refusal == Refusal::kNone) {
    ++state_.result.files;
    bytesOfFiles_ += report.bytesRead;
  } else {
    if (progress.bytesInRun > 0) {
      progress.runBytesRead = bytesBefore + FileLength(report.path).value_or(report.bytesRead);
    }
    Skip({report.path, report.refusal, report.error});
  }
  state_.observer.OnFileEnds(report, progress);
  Keep(report);
}

void FolderPass::Keep(FileReport& report) {
  if (state_.request.keepReports) state_.result.reports.push_back(std::move(report));
}

/// Whether the file can be joined. Before one that cannot, or with which a count begins, the counts
/// of other files come: they are no part of this one's figures.
bool FolderPass::PrepareJoin(const WalkItem& item, std::size_t scanner) {
  if (item.state != WalkItem::State::kScanned) return false;
  const bool joins = CanJoin(item, scanner);
  const bool beginsCount = item.bytesTogether > 0;
  if (!joins || beginsCount) CountOwed(joiners_[scanner]);
  return joins;
}

void FolderPass::ReadFile(WalkItem& item, std::size_t scanner, bool joins) {
  if (item.kind == WalkItem::Kind::kStandardInput) {
    return texts_.ReadStream(*standardInput_, item.report);
  }
  switch (item.state) {
    case WalkItem::State::kLeftAlone:
      return texts_.ReadFile(item.report);
    case WalkItem::State::kOpened:
      return texts_.ReadFile(*item.file, item.report);
    case WalkItem::State::kRefused:
      return;  // as the report says
    case WalkItem::State::kScanned:
      break;
  }
  if (joins) return Join(item, joiners_[scanner]);
  pool_->ForgetWords(scanner);
  joiners_[scanner].LeaveOut();
  item.LeaveAlone();
  texts_.ReadFile(item.report);
}

/// Whether the file was scanned as it should have been.
bool FolderPass::CanJoin(const WalkItem& item, std::size_t scanner) {
  const PieceCount& count = item.count;
  // A counter that overflows does so at its place.
  constexpr std::int64_t kMostWords = std::numeric_limits<std::int32_t>::max();
  if (item.bytesTogether > kMostWords - state_.result.wordsRead) return false;
  if (count.looksForComments && count.openBefore != state_.settings.OpenComment) {
    surprises_ += kSurprise;
    if (surprises_ > kTooManySurprises) {
      filesNotAhead_ = kFilesNotAhead;
      surprises_ = kTooManySurprises - kSurprise;
    }
    return false;
  }
  if (surprises_ > 0) --surprises_;
  return joiners_[scanner].CanJoin(count, state_.result.store);
}

/// If it fails on the way, the joiner knows.
void FolderPass::Join(WalkItem& item, PieceJoiner& joiner) {
  const PieceCount& count = item.count;
  const std::int64_t bytes = std::exchange(item.report.bytesRead, 0);
  joiner.LeaveOut();
  const auto identity = std::exchange(item.report.identity, std::nullopt);
  texts_.Begin(item.report, item.bytes);
  item.report.identity = identity;
  texts_.NoteBytes(bytes, item.report);
  if (texts_.IsTold()) texts_.NoteLines(count.bytesWithLongLineEnds);
  AddChecked(state_.result.wordsRead, count.wordsRead);
  joiner.Join(count, state_.result.store);
  if (count.countsTogether) {
    owed_.push_back({item.report.path, state_.result.reports.size(), identity, bytes,
                     count.wordsRead, count.newWordBytes.size(), count.openBefore});
  }
  if (item.isLastTogether) owed_.clear();
  state_.settings.Uncounted += count.uncounted;
  if (count.looksForComments) state_.settings.OpenComment = count.openComment;
}

bool FolderPass::Owed::IsThatOf(const WalkItem& item) const {
  return item.state == WalkItem::State::kScanned && item.report.identity == identity &&
         item.report.bytesRead == bytes && item.count.wordsRead == wordsRead;
}

/// Where files that are counted together cannot be joined to the last, those that were are read
/// once more, for their counts alone.
void FolderPass::CountOwed(PieceJoiner& joiner) {
  const auto owed = std::exchange(owed_, {});
  if (owed.empty()) return;
  const std::atomic<bool> stop = false;
  FileScanner scanner(state_.settings, state_.request, stop, 1, PieceScanner::Counts::kByPiece);
  PieceJoiner again;
  for (const Owed& file : owed) {
    std::vector<WalkItem> items(1);
    items[0].report.path = file.path;
    items[0].forThreads = true;
    int openComment = file.openBefore;
    std::size_t bytes = 0;
    static_cast<void>(scanner.Take(items, openComment, bytes));
    if (file.IsThatOf(items[0])) {
      again.Join(items[0].count, state_.result.store);
      joiner.TakeBackOwed(file.newWords, state_.result.store);
    } else {
      scanner.ForgetWords();
      joiner.KeepOwed(file.newWords);
      TakeBack(file);
    }
  }
}

/// Of a file that has gone or changed before its words were counted, only those that were new in it
/// are, once each: it was read in part.
void FolderPass::TakeBack(const Owed& file) {
  CountResult& result = state_.result;
  const SkippedFile skipped{file.path, Refusal::kReadFailed,
                            RunTimeError(RunTimeErrorNumber::kFileNotFound,
                                         "the file has gone or changed while it was counted, so "
                                         "its words are counted in part")};
  const auto wordsCounted = static_cast<std::int32_t>(file.newWords);
  result.wordsRead -= file.wordsRead - wordsCounted;
  --result.files;
  if (state_.request.keepReports) {
    FileReport& report = result.reports.at(file.report);
    report.refusal = skipped.reason;
    report.error = skipped.error;
    report.wordsRead = wordsCounted;
  }
  Skip(skipped);
}

void FolderPass::Skip(const SkippedFile& skipped) {
  CountResult& result = state_.result;
  if (!IsFault(skipped.reason)) {
    result.leftOut.Add(skipped);
  } else if (++result.skippedInAll; result.skipped.size() < CountResult::kMaxSkipped) {
    result.skipped.push_back(skipped);
  }
  state_.observer.OnSkipped(skipped);
}

}  // namespace quillomat
