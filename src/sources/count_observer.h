// Who is told how a count gets on, and asked whether it goes on: the window, a progress bar, or
// nobody. All of it has a default that does nothing, so an observer overrides what it cares for.
//
// The order of events: OnChecked; with a counting pass OnFileCounted for every file, then GoOn;
// OnScanBegins; then for each text OnFileMet, and either OnSkipped or OnFileBegins, OnProgress as
// its bytes are read, and at last OnFileEnds. OnNewWord and the stop question come in between. A
// single text that is refused ends the count before OnScanBegins. Of a file that has gone or
// changed before all of its words were counted, OnSkipped is told later.
//
// Everything is called by the thread that runs the count. A RunTimeError thrown by an observer is
// one of the text that is being read.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "engine/word_scanner.h"
#include "engine/word_store.h"
#include "sources/count_result.h"

namespace quillomat {

/// How far a count is. The bytes are those that were read, some of which may not be scanned yet.
struct CountProgress {
  // The text that is being read. Not told of those that are read in an instant
  // (kInstantBytes).
  std::int64_t bytesRead = 0;
  /// 0 where it is not known: a pipe.
  std::int64_t bytesInFile = 0;
  /// The bytes of the lines that were scanned, decoded, with two for every line end, whichever it
  /// is.
  std::int64_t bytesWithLongLineEnds = 0;

  // The run. The whole is 0 while it is not known: without a counting pass.
  std::int32_t filesDone = 0;
  std::int32_t filesInRun = 0;
  /// With those of files that were left out, where bytesInRun is known.
  std::int64_t runBytesRead = 0;
  /// With CountingPass::kFilesAndBytes only.
  std::int64_t bytesInRun = 0;

  static constexpr std::int64_t kInstantBytes = 10'240;
};

/// A text that is read now.
struct FileBegins {
  std::string_view path;
  /// 0 where it is not known.
  std::int64_t bytes = 0;
  LineEndingType lineEnds = LineEndingType::kDos;
  TextEncoding encoding = TextEncoding::kUtf8OrWindows1252;
};

class CountObserver : public ScanYield, public NewWordListener {
 public:
  /// The stop question, asked after every word, or by YieldFor after as many as CallsLeft allows.
  /// True when the count is to stop.
  bool Yield() override { return false; }
  [[nodiscard]] std::uint32_t CallsLeft() const override {
    return std::numeric_limits<std::uint32_t>::max();
  }

  void OnNewWord(std::string_view /*word*/, std::int32_t /*numDifferentWords*/) override {}

  /// The request has stood its checks; now the files are counted, or the text is looked at.
  virtual void OnChecked() {}
  /// Numbers so far, this file included.
  virtual void OnFileCounted(std::int32_t /*files*/, std::int32_t /*folders*/) {}
  /// Whether so many files shall be read. `outputPath` is the request's, and may be changed.
  [[nodiscard]] virtual bool GoOn(std::int32_t /*files*/, std::int32_t /*folders*/,
                                  std::string& /*outputPath*/) {
    return true;
  }
  /// Text is scanned from now on, into an empty store.
  virtual void OnScanBegins() {}
  /// The next text of a folder or a list of paths. Whatever is known of it (with several threads it
  /// may have been scanned ahead) is told afterwards.
  virtual void OnFileMet(const std::string& /*path*/, const CountProgress& /*progress*/) {}
  virtual void OnFileBegins(const FileBegins& /*file*/) {}
  virtual void OnProgress(const CountProgress& /*progress*/) {}
  /// Also told of a text that was refused.
  virtual void OnFileEnds(const FileReport& /*report*/, const CountProgress& /*progress*/) {}
  /// Something of a folder or a list of paths is left out.
  virtual void OnSkipped(const SkippedFile& /*skipped*/) {}
};

}  // namespace quillomat
