// What comes of a case, in words that can be compared and read: everything that the rules say about
// results, and nothing about how they were reached.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "properties/count_case.h"
#include "sources/batch_sizes.h"
#include "sources/count_request.h"

namespace quillomat::properties {

/// What the outcome tells of the order of words: the words themselves, or what Counter makes of it,
/// how many are different until each; or nothing, as other ways of counting are open then.
enum class Told { kOrder, kGrowth, kNoOrder };

/// Ends an outcome in the midst of the count, where a word is met too often in one file.
inline constexpr std::string_view kOverflow = "Overflow";

/// How the engine is given its text.
enum class Reading { kByLines, kInBlocks, kInParts, kOnThreads };

/// By the program's own engine and listing.
[[nodiscard]] std::string OutcomeOfProgram(const CountCase& countCase, Reading reading);

/// How Counter is given the texts, which stand in files at their paths.
struct FilesInTurn {
  CountSource source;
  std::size_t threads = 1;
  /// kGrowth or kNoOrder.
  Told told = Told::kGrowth;
  BatchSizes batches = {};
  /// The count is stopped behind the file at that path; "" where it is not.
  std::string stopBehind = {};
  /// Is told what the observer of the count was told, in which order, and how far the count came.
  std::string* events = nullptr;
};

/// By the program's counter. The texts are in the order in which it reads their files.
[[nodiscard]] std::string OutcomeOfCounter(const CountCase& countCase, const FilesInTurn& files);

/// As the panel's choices are for a scan.
[[nodiscard]] ScanChoices ScanChoicesOf(const reference::LiteralChoices& from);
/// With the case's segmenter.
[[nodiscard]] ScanChoices ScanChoicesOf(const CountCase& from);
/// And for the list.
[[nodiscard]] FilterChoices FilterChoicesOf(const reference::LiteralChoices& from);

/// By the literal engine.
[[nodiscard]] std::string OutcomeOfReference(const CountCase& countCase, Told told = Told::kOrder);

}  // namespace quillomat::properties
