// What came of a count, as one value: how it ended, the words, the files, and what was skipped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/character_set.h"
#include "base/run_time_error.h"
#include "engine/uncounted.h"
#include "engine/word_filters.h"
#include "engine/word_store.h"
#include "listing/frequency_ranking.h"
#include "listing/list_line.h"
#include "listing/order_figures.h"
#include "sources/guessed_sets.h"
#include "sources/line_endings.h"
#include "sources/line_tally.h"
#include "sources/marker_fault.h"
#include "system/file_identity.h"

namespace quillomat {

/// Why something is not read.
enum class Refusal {
  kNone,
  // The request. See FindMarkerFault and FindExtensionFault for the first two.
  kBadMarkers,
  kBadExtensions,
  /// No path, or no stream.
  kNothingNamed,
  kFolderNotFound,
  kFolderHasNoFiles,
  kOutputInFolder,
  /// The observer did not want to go on.
  kDeclined,
  // A single text, or one of many.
  kIsFolder,
  kNotFound,
  kCannotBeOpened,
  kNotText,
  kEmpty,
  /// Its extension says that it is no text (ExtensionFilter::NeverText); nobody has tried.
  kNeverText,
  kIsOutput,
  /// Reading began and failed; the error goes with it. Words read before it count.
  kReadFailed,
  kFolderUnreadable,
};

/// Whether a file or folder that is left out for that reason should have been read: a list without
/// it is not complete. What is no text, be it by its extension, or empty, is left out by design.
[[nodiscard]] bool IsFault(Refusal reason);

/// What the bytes of a text look like. Without a mark each line is judged on its own, unless the
/// text is converted (FileReport::convertedFrom).
enum class TextEncoding { kUtf8OrWindows1252, kUtf8WithMark, kUtf16LittleEndian, kUtf16BigEndian };

/// What became of one file, or of a folder that could not be read.
struct FileReport {
  /// As it was walked to or given; a stream's name.
  std::string path;
  /// kNone for one that was read, if only until a stop.
  Refusal refusal = Refusal::kNone;
  /// Why it could not be opened or read.
  std::optional<RunTimeError> error;
  /// Nothing where it is not known: of a pipe, or a file that is not there.
  std::optional<std::int64_t> bytes;
  /// So many were read.
  std::int64_t bytesRead = 0;
  /// Of a stream: the count was stopped before its end was seen.
  bool wasStopped = false;
  TextEncoding encoding = TextEncoding::kUtf8OrWindows1252;
  /// What it was converted from, as chosen, guessed or told by a mark; kAsFound where it was not.
  CharacterSet convertedFrom = CharacterSet::kAsFound;
  /// Of a file of the disk that was read, if only in part: nothing may be written over it.
  std::optional<FileIdentity> identity;
  /// Judged by the first bytes.
  LineEndingType lineEnds = LineEndingType::kDos;
  /// Of all that was read; only if the request wants reports.
  std::optional<LineEndFigures> lines;
  /// Candidate words, counted or not.
  std::int32_t wordsRead = 0;
  Uncounted uncounted;
};

struct SkippedFile {
  /// A folder's, for kFolderUnreadable.
  std::string path;
  Refusal reason = Refusal::kNone;
  std::optional<RunTimeError> error;
};

/// Files of folders or of a list of paths that were left out by design.
struct LeftOut {
  /// By what is in them: no text, or empty.
  std::int64_t byContents = 0;
  /// By their extensions, of which there are these, in lower case.
  std::int64_t byExtension = 0;
  std::set<std::string> extensions;

  void Add(const SkippedFile& file);
  [[nodiscard]] std::int64_t InAll() const { return byContents + byExtension; }
  /// Why, for people: "no text or empty, .jpg, .pdf". The first is in their language.
  [[nodiscard]] std::string Reasons(std::string_view noTextOrEmpty) const;
};

enum class CountEnd {
  kComplete,
  /// The observer asked for it while text was read; the words found until then are there.
  kStopped,
  /// The observer asked for it in the counting pass, or before.
  kStoppedCounting,
  /// Nothing was read, see `refusal`.
  kRefused,
  /// See `error`.
  kFailed,
};

/// How far a count came that was stopped while text was read. What is not known is 0: how many
/// files there are without a counting pass, the size of a pipe, anything of the clipboard.
struct CountReach {
  /// Files that were begun when the stop came, read, if only in part, or left out; of so many in
  /// all.
  std::int32_t files = 0;
  std::int32_t filesInAll = 0;
  /// That were read; the last of them may not be counted.
  std::int64_t bytes = 0;
  std::int64_t bytesInAll = 0;

  bool operator==(const CountReach&) const = default;
};

struct CountResult {
  /// So many skipped files are kept.
  static constexpr std::size_t kMaxSkipped = 1000;

  CountEnd end = CountEnd::kComplete;
  /// Of one that ended with kStopped.
  std::optional<CountReach> stoppedAfter;
  Refusal refusal = Refusal::kNone;
  std::optional<RunTimeError> error;

  WordStore store;
  WordTotals totals;
  FrequencyRanking ranking;
  /// Candidate words read, counted or not.
  std::int32_t wordsRead = 0;
  bool countOnlyMode = false;
  /// Of the words that were counted; only if the request wants them.
  std::optional<OrderFigures> orderFigures;

  /// Files that were read, and folders visited, the chosen one included. After a stop in the
  /// counting pass those that were met.
  std::int32_t files = 0;
  std::int32_t folders = 0;
  /// Every file that was met and every folder that could not be read, in their order; only if the
  /// request wants them, and for a single one.
  std::vector<FileReport> reports;
  /// The files of the disk that were read, if only in part; as CountedText::filesRead.
  std::vector<FileIdentity> filesRead;
  /// What was left out of a folder or a list of paths although it should have been read (IsFault):
  /// the first kMaxSkipped, and how many in all.
  std::vector<SkippedFile> skipped;
  std::int64_t skippedInAll = 0;
  LeftOut leftOut;

  /// What was met and not counted.
  Uncounted uncounted;
  /// The first file of a folder or a list of paths with bytes that could not be decoded; "" where
  /// there is none.
  std::string firstNotDecoded;
  GuessedSets guessed;

  /// The open comment that the last text has left behind.
  int openComment = -1;

  /// Works out which words are listed, the totals and the ranking, on so many threads if there are
  /// many words. May be called again with other filters. With count-only words every one that was
  /// found is listed.
  void Rank(const FilterChoices& filters, std::size_t threads = 1);

  /// What the listing wants. Rank comes first.
  [[nodiscard]] CountedWords Counted() const { return {store, ranking, totals}; }
};

}  // namespace quillomat
