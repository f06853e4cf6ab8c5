#include "sources/counter.h"

#include <cstdint>
#include <functional>
#include <new>
#include <optional>
#include <utility>
#include <variant>

#include "sources/folder_walk.h"
#include "sources/output_rules.h"
#include "sources/read_sources.h"
#include "sources/text_reader.h"
#include "sources/text_test.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

constexpr std::size_t kTextTestBytes = 10'240;
constexpr std::string_view kStandardInput = "-";

/// The path in a list that stands for standard input.
bool IsStandardInput(const TextOfPaths& source, std::string_view path) {
  return source.standardInput != nullptr && path == kStandardInput;
}

TextEncoding EncodingOf(std::string_view head) {
  if (head.starts_with("\xEF\xBB\xBF")) return TextEncoding::kUtf8WithMark;
  if (head.starts_with("\xFF\xFE")) return TextEncoding::kUtf16LittleEndian;
  if (head.starts_with("\xFE\xFF")) return TextEncoding::kUtf16BigEndian;
  return TextEncoding::kUtf8OrWindows1252;
}

/// As they are for a text: the flags are ready.
ScanSettings SettingsFor(const CountRequest& request) {
  ScanSettings settings;
  settings.SetAllowWordsFlags(request.scan);
  settings.BuildExtraWordChars();
  settings.CountOnlyMode = request.lists.HasCountOnlyWords();
  settings.OpenComment = request.openComment;
  return settings;
}

bool IsOverflow(const RunTimeError& error) {
  return error.Number() == static_cast<int>(RunTimeErrorNumber::kOverflow);
}

// What is wrong with a source, as far as it can be seen from outside.

class SourceCheck {
 public:
  explicit SourceCheck(const std::string& outputPath) : outputPath_(outputPath) {}

  Refusal operator()(const TextOfClipboard& source) const {
    if (source.text.empty()) return Refusal::kEmpty;
    return IsText(source.text, kClipboardTestLength) ? Refusal::kNone : Refusal::kNotText;
  }
  Refusal operator()(const TextOfFile& source) const {
    if (source.path.empty()) return Refusal::kNothingNamed;
    if (IsPathSeparator(source.path.back()) || FolderExists(source.path)) return Refusal::kIsFolder;
    const bool isOutput = IsNeeded({CountedText::Source::kFile, source.path});
    return isOutput ? Refusal::kIsOutput : Refusal::kNone;
  }
  Refusal operator()(const TextOfStream& source) const {
    return source.bytes == nullptr ? Refusal::kNothingNamed : Refusal::kNone;
  }
  Refusal operator()(const TextOfFolder& source) const {
    if (FindExtensionFault(source.extensions)) return Refusal::kBadExtensions;
    if (source.path.empty()) return Refusal::kNothingNamed;
    if (!FolderExists(source.path)) return Refusal::kFolderNotFound;
    if (!FolderHasFiles(source.path, "*.*", source.subfolders)) return Refusal::kFolderHasNoFiles;
    return OutputIn(source);
  }
  Refusal operator()(const TextOfPaths& source) const {
    if (FindExtensionFault(source.extensions)) return Refusal::kBadExtensions;
    return source.paths.empty() ? Refusal::kNothingNamed : OutputIn(source);
  }

  [[nodiscard]] Refusal OutputIn(const TextOfFolder& source) const {
    return IsNeeded({CountedText::Source::kFolder, source.path, source.subfolders})
               ? Refusal::kOutputInFolder
               : Refusal::kNone;
  }
  [[nodiscard]] Refusal OutputIn(const TextOfPaths& source) const {
    if (outputPath_.empty()) return Refusal::kNone;
    const auto neededAs = WhyNotToWrite(outputPath_, {.source = CountedText::Source::kPaths,
                                                      .withSubfolders = source.subfolders,
                                                      .paths = source.paths});
    if (!neededAs) return Refusal::kNone;
    return *neededAs == NeededAs::kPartOfFolder ? Refusal::kOutputInFolder : Refusal::kIsOutput;
  }
  template <typename Source>
  [[nodiscard]] Refusal OutputIn(const Source& /*single*/) const {
    return Refusal::kNone;
  }

 private:
  [[nodiscard]] bool IsNeeded(const CountedText& text) const {
    return !outputPath_.empty() && WhyNotToWrite(outputPath_, text).has_value();
  }

  const std::string& outputPath_;
};

/// Asks the observer whether to stop, and remembers that it said so.
class StopQuestion final : public ScanYield {
 public:
  explicit StopQuestion(CountObserver& observer) : observer_(observer) {}

  bool Yield() override {
    stopped_ = observer_.Yield() || stopped_;
    return stopped_;
  }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return observer_.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override {
    stopped_ = observer_.YieldFor(calls) || stopped_;
    return stopped_;
  }

  /// Without asking anew.
  [[nodiscard]] bool Stopped() const { return stopped_; }

 private:
  CountObserver& observer_;
  bool stopped_ = false;
};

/// One count at work.
class Count {
 public:
  Count(const CountRequest& request, CountObserver& observer)
      : request_(request),
        observer_(observer),
        stop_(observer),
        settings_(SettingsFor(request)),
        reader_({settings_, result_.store, result_.wordsRead}, request.scan, request.lists,
                request.threads, stop_) {
    result_.countOnlyMode = settings_.CountOnlyMode;
  }

  CountResult Take() {
    try {
      const Refusal refusal = Counter::Check(request_, result_.error);
      if (refusal != Refusal::kNone) {
        Refuse(refusal);
      } else {
        observer_.OnChecked();
        std::visit([this](const auto& source) { Read(source); }, request_.source);
      }
    } catch (const RunTimeError& error) {
      Fail(error);
    } catch (const std::bad_alloc&) {
      Fail(RunTimeError(RunTimeErrorNumber::kOutOfMemory));
    }
    result_.store.SetListener(nullptr);
    result_.openComment = settings_.OpenComment;
    SortFilesRead(result_.filesRead);
    return std::move(result_);
  }

 private:
  // The kinds of source.

  void Read(const TextOfClipboard& source) {
    LoadMarkersFor({}, request_.scan, settings_);
    BeginScan(false);
    reader_.ReadPiece(source.text);
    EndScan();
  }
  void Read(const TextOfFile& source) {
    ReadSingle(source.path, [&](FileReport& report) { ReadFile(source.path, report); });
  }
  void Read(const TextOfStream& source) {
    ReadSingle(source.name, [&](FileReport& report) { ReadStream(*source.bytes, report); });
  }
  void Read(const TextOfFolder& source) {
    ReadMany(1, [&](const FolderVisitor& visitor) { WalkFolder(source, visitor); });
  }
  void Read(const TextOfPaths& source) {
    standardInput_ = source.standardInput;
    ReadMany(0, [&](const FolderVisitor& visitor) { VisitPaths(source, visitor); });
  }

  // One text.

  using ReadReported = std::function<void(FileReport&)>;

  void ReadSingle(const std::string& path, const ReadReported& read) {
    FileReport report;
    report.path = path;
    Try(report, read);
    result_.files = report.refusal == Refusal::kNone ? 1 : 0;
    progress_.filesDone = 1;
    observer_.OnFileEnds(report, progress_);
    if (report.refusal == Refusal::kReadFailed) {
      Fail(*report.error);
    } else if (report.refusal != Refusal::kNone) {
      Refuse(report.refusal);
      result_.error = report.error;
    } else {
      EndScan();
    }
    result_.reports.push_back(std::move(report));
  }

  /// What fails while a text is read is a matter of that text, but for an overflow.
  void Try(FileReport& report, const ReadReported& read) {
    try {
      read(report);
    } catch (const RunTimeError& error) {
      if (IsOverflow(error)) throw;
      report.refusal = Refusal::kReadFailed;
      report.error = error;
    } catch (const std::bad_alloc&) {
      report.refusal = Refusal::kReadFailed;
      report.error = RunTimeError(RunTimeErrorNumber::kOutOfMemory);
    }
    if (report.identity) result_.filesRead.push_back(*report.identity);
  }

  void ReadFile(const std::string& path, FileReport& report) {
    std::optional<InputFile> file;
    try {
      file.emplace(path);
    } catch (const RunTimeError& error) {
      report.refusal = FileExists(path) ? Refusal::kCannotBeOpened : Refusal::kNotFound;
      report.error = error;
      return;
    }
    if (file->Length() == 0) {
      PatientSource source(*file, stop_);
      return ReadStream(source, report);
    }
    const std::string_view head = file->Ahead(HeadBytes(kTextTestBytes));
    if (!Begin(report, head, file->Length())) return;
    report.identity = file->Identity();
    ReadText(*file, file->Length() >= TextReader::kBytesWorthThreads, report);
  }

  /// What has no length, or has not told it.
  void ReadStream(ByteSource& source, FileReport& report) {
    HeadedSource text(source);
    const std::string_view head = text.Ahead(HeadBytes(kTextTestBytes));
    if (head.empty() && !stop_.Stopped()) {
      report.refusal = Refusal::kEmpty;
      return;
    }
    if (!Begin(report, head, 0)) return;
    constexpr auto kWorthThreads = static_cast<std::size_t>(TextReader::kBytesWorthThreads);
    ReadText(text, reader_.UsesThreads() && text.Ahead(kWorthThreads).size() == kWorthThreads,
             report);
  }

  /// False when the bytes that start with `head` are no text.
  bool Begin(FileReport& report, std::string_view head, std::int64_t bytes) {
    report.lineEnds = LineEndingTypeOf(head, kTextTestBytes);
    report.encoding = EncodingOf(head);
    if (report.lineEnds == LineEndingType::kNotText) {
      report.refusal = Refusal::kNotText;
      return false;
    }
    LoadMarkersFor(report.path, request_.scan, settings_);
    if (!scanning_) BeginScan(false);
    progress_.bytesInFile = bytes;
    observer_.OnFileBegins({report.path, bytes, report.lineEnds, report.encoding});
    return true;
  }

  void ReadText(ByteSource& source, bool worthThreads, FileReport& report) {
    CountingSource text(source);
    TextReader::OnBytes onBytes;
    const std::int64_t runBytesBefore = progress_.runBytesRead;
    const auto noteBytes = [&] {
      progress_.bytesRead = text.BytesRead();
      progress_.runBytesRead = runBytesBefore + text.BytesRead();
      report.bytesRead = text.BytesRead();
    };
    if (progress_.bytesInFile == 0 || progress_.bytesInFile > CountProgress::kInstantBytes) {
      onBytes = [&](std::int64_t bytes) {
        noteBytes();
        progress_.bytesWithLongLineEnds += bytes;
        observer_.OnProgress(progress_);
      };
    }
    if (worthThreads && reader_.UsesThreads()) {
      reader_.ReadLinesOnThreads(text, onBytes);
    } else {
      reader_.ReadLines(text, onBytes);
    }
    noteBytes();
  }

  // Many files.

  using Visit = std::function<void(const FolderVisitor&)>;

  void ReadMany(std::int32_t folders, const Visit& visit) {
    result_.folders = folders;
    if (request_.countingPass != CountingPass::kNone) {
      if (!CountFiles(visit)) return;
      result_.folders = folders;
    }
    BeginScan(settings_.CountOnlyMode && request_.tallyFiles);
    visit({.onFile = [this](const std::string& path) { TakeFile(path); },
           .onSubfolder = [this] { ++result_.folders; },
           .onUnreadableFolder =
               [this](const std::string& path) {
                 Skip({path, Refusal::kFolderUnreadable, {}});
               },
           .stops = [this] { return stop_.Yield(); }});
    EndScan();
  }

  /// False when the count has ended with it.
  bool CountFiles(const Visit& visit) {
    const bool bytes = request_.countingPass == CountingPass::kFilesAndBytes;
    const auto countFile = [this, bytes](const std::string& path) {
      ++result_.files;
      if (bytes) progress_.bytesInRun += FileLength(path).value_or(0);
      observer_.OnFileCounted(result_.files, result_.folders);
    };
    visit({.onFile = countFile,
           .onSubfolder = [this] { ++result_.folders; },
           .onUnreadableFolder = [](const std::string&) {},
           .stops = [this] { return stop_.Yield(); }});
    if (stop_.Stopped()) {
      result_.end = CountEnd::kStoppedCounting;
      return false;
    }
    progress_.filesInRun = std::exchange(result_.files, 0);
    std::string outputPath = request_.outputPath;
    if (!observer_.GoOn(progress_.filesInRun, result_.folders, outputPath)) {
      Refuse(Refusal::kDeclined);
      return false;
    }
    if (outputPath == request_.outputPath) return true;
    const SourceCheck check(outputPath);
    const Refusal refusal = std::visit(
        [&check](const auto& source) { return check.OutputIn(source); }, request_.source);
    if (refusal != Refusal::kNone) Refuse(refusal);
    return refusal == Refusal::kNone;
  }

  void VisitPaths(const TextOfPaths& source, const FolderVisitor& visitor) {
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

  void TakeFile(const std::string& path) {
    observer_.OnFileMet(path, progress_);
    const std::int64_t bytesBefore = progress_.runBytesRead;
    FileReport report;
    report.path = path;
    result_.store.Files().SetFileBeingScanned(path);
    Try(report, [&](FileReport& read) {
      if (standardInput_ != nullptr && path == kStandardInput) {
        ReadStream(*standardInput_, read);
      } else {
        ReadFile(path, read);
      }
    });
    ++progress_.filesDone;
    progress_.bytesRead = 0;
    progress_.bytesInFile = 0;
    progress_.bytesWithLongLineEnds = 0;
    if (report.refusal == Refusal::kNone) {
      ++result_.files;
    } else {
      if (progress_.bytesInRun > 0) {
        progress_.runBytesRead = bytesBefore + FileLength(path).value_or(report.bytesRead);
      }
      Skip({path, report.refusal, report.error});
    }
    observer_.OnFileEnds(report, progress_);
    if (request_.keepReports) result_.reports.push_back(std::move(report));
  }

  void Skip(const SkippedFile& skipped) {
    if (!IsFault(skipped.reason)) {
      ++result_.leftOut;
    } else if (++result_.skippedInAll; result_.skipped.size() < CountResult::kMaxSkipped) {
      result_.skipped.push_back(skipped);
    }
    observer_.OnSkipped(skipped);
  }

  // Beginning and end.

  void BeginScan(bool tallyFiles) {
    scanning_ = true;
    result_.store.Files().Reset(tallyFiles);
    result_.store.SetListener(&observer_);
    observer_.OnScanBegins();
  }
  void EndScan() {
    if (stop_.Stopped()) result_.end = CountEnd::kStopped;
  }
  void Refuse(Refusal refusal) {
    result_.end = CountEnd::kRefused;
    result_.refusal = refusal;
  }
  void Fail(const RunTimeError& error) {
    result_.end = CountEnd::kFailed;
    result_.error = error;
  }

  const CountRequest& request_;
  CountObserver& observer_;
  StopQuestion stop_;
  CountResult result_;
  ScanSettings settings_;
  TextReader reader_;
  CountProgress progress_;
  /// What "-" reads in a list of paths; null for other sources.
  ByteSource* standardInput_ = nullptr;
  bool scanning_ = false;
};

}  // namespace

Refusal Counter::Check(const CountRequest& request, std::optional<RunTimeError>& error) {
  if (IsSet(request.scan.allowCommentMarkers) && FindMarkerFault(request.scan)) {
    return Refusal::kBadMarkers;
  }
  try {
    return std::visit(SourceCheck(request.outputPath), request.source);
  } catch (const RunTimeError& unreadable) {
    error = unreadable;
    return Refusal::kFolderUnreadable;
  }
}

CountResult Counter::Run() {
  return Count(request_, observer_).Take();
}

}  // namespace quillomat
