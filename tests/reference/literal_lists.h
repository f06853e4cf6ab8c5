// Lists of words as the user gives them, typed or in a file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "reference/literal_rules.h"
#include "reference/literal_text.h"

namespace quillomat::reference {

/// Entries 1 to `count`; index 0 holds no word.
struct WordList {
  std::vector<Characters> entries = std::vector<Characters>(1);
  std::int32_t count = 0;

  void Add(std::string_view word);
  [[nodiscard]] std::vector<std::string> Words() const;
};

/// Whether `word` stands in entries first to first + count - 1. `sorted` says that the entries are
/// in the order of their keys, and lets the search end early.
[[nodiscard]] bool IsInList(const Characters& word, const std::vector<Characters>& list,
                            std::int32_t first, std::int32_t count, bool sorted,
                            const std::function<Characters(const Characters&)>& keyOf = SortKeyOf);

/// SplitList's result when the items do not fit.
inline constexpr std::int32_t kItemsDoNotFit = 65535;

/// Puts the items of `text` into `array` from index 0 on and returns their number. Separators that
/// follow each other make no empty items. An array with indices 0 to n takes n items.
[[nodiscard]] std::int32_t SplitList(const Characters& text, char32_t separator,
                                     std::vector<Characters>& array);

}  // namespace quillomat::reference
