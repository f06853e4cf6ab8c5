// What an export of the program's counted words is made of, for every face: which words and which
// columns, and the totals and settings that go with them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/count/in_force.h"
#include "app/list/current_words.h"
#include "app/table/row_filter.h"
#include "export/export_table.h"
#include "listing/display_format.h"
#include "listing/word_table.h"
#include "sources/output_rules.h"

namespace quillomat {

struct ExportWish {
  /// Not empty.
  std::vector<WordColumn> columns;
  WordOrder order = WordOrder::kByFrequency;
  /// So many of them at most.
  std::optional<std::size_t> first = {};
  /// Only these.
  std::optional<FilteredWords> among = {};
};

/// Whether the words are those of the whole text ("complete"), and if not, what is missing: how
/// much was skipped, how far a count came that was stopped.
[[nodiscard]] std::vector<ExportFact> CompletenessOf(const CurrentWords& words);

/// Whether a column is known only where it was counted which files a word occurs in.
[[nodiscard]] bool NeedsFiles(WordColumn column);

/// Why a file may not be exported to: it is read by the count.
[[nodiscard]] std::optional<NeededAs> WhyNotToExport(const std::string& path,
                                                     const CurrentWords& words,
                                                     const InForce& inForce);

class ResultExport {
 public:
  /// The words outlive it, and do not change meanwhile.
  ResultExport(const CurrentWords& words, const ExportWish& wish);
  ResultExport(const ResultExport&) = delete;
  ResultExport& operator=(const ResultExport&) = delete;
  ResultExport(ResultExport&&) = delete;
  ResultExport& operator=(ResultExport&&) = delete;
  ~ResultExport() = default;

  [[nodiscard]] const ExportTable& Table() const { return table_; }

 private:
  WordTable words_;
  std::vector<std::int32_t> places_;
  ExportTable table_;
};

}  // namespace quillomat
