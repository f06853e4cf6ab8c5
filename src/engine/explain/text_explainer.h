// Says of every piece of a text what becomes of it when the text is counted: which words are found
// in it, and what is left out by which rule.
//
// It asks the rules themselves: the scanner shows its tokens, and the lists, the store and the
// filters decide as in a count. The candidates that are counted are therefore the words of a count
// of the same text, in the same order.
#pragma once

#include <string_view>
#include <vector>

#include "engine/explain/candidate.h"
#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "engine/word_list.h"

namespace quillomat {

struct Explanation {
  std::vector<Candidate> candidates;
  /// As Uncounted has it.
  bool runsLeftWhole = false;
};

/// `text` is well-formed UTF-8, and scanned as a text of the clipboard is: in one piece, with the
/// user's own markers if comments are to be skipped, and outside a comment at its start.
/// Frequencies are those within it. Memory and time grow with the text alone.
[[nodiscard]] Explanation ExplainText(std::string_view text, const ScanChoices& choices,
                                      const FilterChoices& filters, const WordLists& lists);

/// The same of a text that is scanned as that of a file is: line by line, with a comment carried on
/// from one to the next.
[[nodiscard]] Explanation ExplainLines(std::string_view text, const ScanChoices& choices,
                                       const FilterChoices& filters, const WordLists& lists);

}  // namespace quillomat
