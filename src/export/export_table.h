// What is exported: some of the counted words, some of their columns, and what is known of the
// count as a whole. The same for every format.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "listing/display_format.h"
#include "listing/statistics.h"
#include "listing/word_table.h"

namespace quillomat {

/// What a statistic may be; yes and no; several texts.
using FactValue = std::variant<bool, std::int64_t, double, std::string, std::vector<GrowthPoint>,
                               std::vector<std::string>>;

/// One fact of a count: a total, a statistic, a setting.
struct ExportFact {
  std::string name;
  FactValue value;

  bool operator==(const ExportFact&) const = default;
};

struct ExportTable {
  const WordTable& words;
  /// Which words, as alphabetical places of the store, in the order in which they are wanted.
  std::span<const std::int32_t> places;
  /// Not empty. With kFile each word has a row for every file that it occurs in.
  std::vector<WordColumn> columns;
  /// Empty groups are left out.
  std::vector<ExportFact> totals;
  std::vector<ExportFact> statistics;
  std::vector<ExportFact> settings;
  /// That of the places.
  WordOrder order = WordOrder::kByFrequency;
};

/// The statistics that are known, as facts.
[[nodiscard]] std::vector<ExportFact> FactsOf(const Statistics& statistics);

/// The columns that are exported when nobody chooses: all that are known.
[[nodiscard]] std::vector<WordColumn> UsualColumns(bool knowsFiles);

/// Is told now and then how many words are done; false ends the export.
using ExportProgress = std::function<bool(std::size_t)>;

}  // namespace quillomat
