// One case for the comparison of the program's engine with the literal one: choices, word lists,
// texts and a way to list the result. It can be made at random, made smaller, and printed as code.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "base/run_segmenter.h"
#include "reference/literal_choices.h"

namespace quillomat::properties {

/// A piece of text, as a source would hand it over.
struct CaseText {
  /// "HTML", "C", "" for no markers, anything else for the user's own.
  std::string markers;
  /// The file that the lines come from; used when a folder is counted.
  std::string path;
  /// The lines are one text without any trimming, as from the clipboard.
  bool whole = false;
  std::vector<std::string> lines;
};

/// What cuts scripts without blanks into words.
enum class Segmenter : std::uint8_t { kNone, kMadeUp, kOfTheSystem };

struct CountCase {
  reference::LiteralChoices choices;
  Segmenter segmenter = Segmenter::kNone;
  /// Words files, 0 words to ignore, 1 count-only words; none when there are no lines.
  std::array<std::vector<std::string>, 2> wordsFiles;
  std::vector<CaseText> texts;
  int order = 0;
  int format = 0;
  std::int32_t numFiles = 1;
  std::int32_t numFolders = 1;
};

/// Of the case: what makes it, or null.
[[nodiscard]] SegmenterMaker MakerOf(Segmenter segmenter);

using Random = std::mt19937_64;

[[nodiscard]] CountCase RandomCase(Random& random);

/// The case as code that makes it, to be pasted into a test.
[[nodiscard]] std::string AsCode(const CountCase& countCase);

/// Cases that are each a little simpler than `countCase`.
[[nodiscard]] std::vector<CountCase> SimplerCases(const CountCase& countCase);

}  // namespace quillomat::properties
