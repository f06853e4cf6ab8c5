// Finds the words in a run of letters of a script that is written without blanks between words:
// Han, kana, Thai, Lao, Khmer, Burmese. Where a word ends only a dictionary knows, and that is the
// system's (system/system_segmenter.h); what is scanned gets it handed in.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace quillomat {

/// For one thread.
class RunSegmenter {
 public:
  RunSegmenter() = default;
  RunSegmenter(const RunSegmenter&) = delete;
  RunSegmenter& operator=(const RunSegmenter&) = delete;
  RunSegmenter(RunSegmenter&&) = delete;
  RunSegmenter& operator=(RunSegmenter&&) = delete;
  virtual ~RunSegmenter() = default;

  /// Appends the places (in bytes) within `run`, well-formed UTF-8, at which a word begins behind
  /// another, in their order: each between two characters, neither at the start nor at the end.
  /// False where it cannot find words in it, and nothing is appended. It depends on the run alone.
  [[nodiscard]] virtual bool FindCuts(std::string_view run, std::vector<std::size_t>& cuts) = 0;
};

/// Makes one, for any thread; null where there is none.
using SegmenterMaker = std::unique_ptr<RunSegmenter> (*)();

}  // namespace quillomat
