// What the walk through a folder or a list of paths has met, some of it together: so much that it
// is worth handing over to a thread. The thread opens, judges and scans the files; who joins the
// batches goes through them in the order of the walk.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/parallel/piece_scanner.h"
#include "engine/scan_settings.h"
#include "sources/count_request.h"
#include "sources/count_result.h"
#include "system/input_file.h"

namespace quillomat {

struct WalkItem {
  enum class Kind { kFile, kStandardInput, kNeverText, kSubfolder, kUnreadableFolder };
  /// What a thread has made of a file. What it cannot read as it should is left alone, so that it
  /// is read, and fails, in its turn.
  enum class State {
    kLeftAlone,
    /// A pipe or a device, whose bytes may be read only once; see `file`.
    kOpened,
    /// The report says why.
    kRefused,
    /// The report says what it is, and `count` which words are in it.
    kScanned,
  };

  /// Forgets what a thread has made of the file.
  void LeaveAlone();
  /// Whether it has bytes that no thread has scanned ahead.
  [[nodiscard]] bool IsReadLater() const {
    const bool hasBytes = kind == Kind::kFile || kind == Kind::kStandardInput;
    return hasBytes && (state == State::kLeftAlone || state == State::kOpened);
  }

  Kind kind = Kind::kFile;
  /// Its path is there from the start.
  FileReport report;
  /// A thread may take it.
  bool forThreads = false;

  State state = State::kLeftAlone;
  std::unique_ptr<InputFile> file;
  std::int64_t bytes = 0;
  PieceCount count;
  /// Of the first of those that are counted together: how many bytes all of them have.
  std::int64_t bytesTogether = 0;
  /// Of those that are counted together it is the one with the counts.
  bool isLastTogether = false;
};

struct FileBatch {
  std::vector<WalkItem> items;
  /// What is likely to be ScanSettings::OpenComment in front of it.
  int openComment = -1;
  /// Who has scanned it.
  std::size_t scanner = 0;
};

/// For one thread.
class FileScanner {
 public:
  /// Everything outlives the scanner. The settings' flags are ready. A batch is to have about
  /// `batchBytes`. The files of a batch that follow each other are counted together, if that is
  /// wanted.
  FileScanner(const ScanSettings& settings, const CountRequest& request,
              const std::atomic<bool>& stop, std::size_t batchBytes, PieceScanner::Counts counts)
      : settings_(settings),
        request_(request),
        stop_(stop),
        batchBytes_(batchBytes),
        counts_(counts),
        scanner_(settings, request.scan, request.lists, stop, request.orderFigures) {}

  /// Takes the items that are for threads, until it has scanned enough. Returns how many items
  /// there are before the next that was not taken; `openComment` and `bytes` say what is open
  /// there, and how many bytes were scanned.
  std::size_t Take(std::vector<WalkItem>& items, int& openComment, std::size_t& bytes);

  /// Numbers the words anew. May be called by another thread, and is heeded soon.
  void ForgetWords() { scanner_.ForgetWordsSoon(); }

 private:
  /// Files that are kept open in a batch.
  static constexpr int kMostOpened = 8;

  /// Files that are counted together, as far as they are taken: items that were scanned, and such
  /// between them as have no bytes.
  struct Run {
    WalkItem* first = nullptr;
    WalkItem* last = nullptr;
  };

  void Try(WalkItem& item, int& openComment);
  void EndRun();
  void GiveUpRun();
  void TakeFile(WalkItem& item, int& openComment);
  void TakeOpened(WalkItem& item);
  void Scan(WalkItem& item, int& openComment);
  void Read(InputFile& file, std::size_t atLeast, std::size_t atMost);
  [[nodiscard]] std::string_view Lines(FileReport& report);
  void TallyLines(FileReport& report) const;

  ScanSettings settings_;
  const CountRequest& request_;
  const std::atomic<bool>& stop_;
  std::size_t batchBytes_;
  PieceScanner::Counts counts_;
  PieceScanner scanner_;
  Run run_;
  int opened_ = 0;
  /// The bytes of a file, and room for one more.
  std::vector<char> memory_;
  std::size_t bytesRead_ = 0;
  std::string converted_;
};

}  // namespace quillomat
