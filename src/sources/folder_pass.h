// The reading of a folder or a list of paths: the walk through it, and its files one after the
// other in the order of the walk. On several threads they are scanned ahead, and joined in that
// order, with everything as with one: first spellings, comments that are open from file to file,
// tallies by file, what is skipped, and what the observer is told.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/parallel/piece_scanner.h"
#include "sources/batch_sizes.h"
#include "sources/count_at_work.h"
#include "sources/count_request.h"
#include "sources/file_batch.h"
#include "sources/file_pool.h"
#include "sources/folder_walk.h"
#include "sources/text_pass.h"

namespace quillomat {

class FolderPass {
 public:
  /// Both outlive the pass.
  FolderPass(CountAtWork& state, TextPass& texts, const BatchSizes& batches)
      : state_(state), texts_(texts), batches_(batches) {}

  void Read(const TextOfFolder& source);
  void Read(const TextOfPaths& source);

 private:
  using Visit = std::function<void(const FolderVisitor&)>;

  /// A file that was joined while its counts are still to come.
  struct Owed {
    [[nodiscard]] bool IsThatOf(const WalkItem& item) const;

    std::string path;
    /// In CountResult::reports, if they are kept.
    std::size_t report = 0;
    std::optional<FileIdentity> identity;
    std::int64_t bytes = 0;
    std::int32_t wordsRead = 0;
    std::size_t newWords = 0;
    int openBefore = -1;
  };

  void ReadMany(std::int32_t folders, const Visit& visit);
  [[nodiscard]] bool CountFiles(const Visit& visit);
  void VisitPaths(const TextOfPaths& source, const FolderVisitor& visitor);

  // What the walk meets, to be taken in its order.
  void Meet(WalkItem::Kind kind, const std::string& path);
  [[nodiscard]] bool IsAmongFirst() const;
  [[nodiscard]] std::size_t ItemsOfBatch() const;
  void KeepBusy();
  void Submit();
  void TakeFirstBatch();
  void TakeRest();

  void Take(WalkItem& item, std::size_t scanner);
  void LeaveOut(WalkItem& item, Refusal reason);
  void TakeFile(WalkItem& item, std::size_t scanner);
  [[nodiscard]] bool PrepareJoin(const WalkItem& item, std::size_t scanner);
  void ReadFile(WalkItem& item, std::size_t scanner, bool joins);
  [[nodiscard]] bool CanJoin(const WalkItem& item, std::size_t scanner);
  void Join(WalkItem& item, PieceJoiner& joiner);
  void CountOwed(PieceJoiner& joiner);
  void TakeBack(const Owed& file);
  void Skip(const SkippedFile& skipped);
  void Keep(FileReport& report);

  CountAtWork& state_;
  TextPass& texts_;
  BatchSizes batches_;
  /// What "-" reads in a list of paths; null for other sources.
  ByteSource* standardInput_ = nullptr;
  /// Of those that were read.
  std::int64_t bytesOfFiles_ = 0;

  // On several threads.
  /// What was met and not handed over yet.
  FileBatch met_;
  std::optional<FilePool> pool_;
  /// By the number of the pool's scanner.
  std::vector<PieceJoiner> joiners_;
  /// Of those that are counted together.
  std::vector<Owed> owed_;
  /// How often it was not foreseen of late which comment is open in front of a batch.
  int surprises_ = 0;
  /// So many files are not scanned ahead, as there were too many surprises.
  int filesNotAhead_ = 0;
};

}  // namespace quillomat
