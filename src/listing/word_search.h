// Looks for a word in the part of a list that somebody does not see.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "listing/display_format.h"
#include "listing/list_line.h"

namespace quillomat {

struct FoundBelow {
  /// The alphabetical place of the word itself, else of the first one in the list that holds what
  /// was looked for.
  std::int32_t place = 0;
  bool isTheWord = false;
};

/// Looks among the words that stand behind the first `shown` ones of the list in that order. `key`
/// is what is looked for, folded as the words' keys are. Looks at every word once.
[[nodiscard]] std::optional<FoundBelow> FindBelow(const CountedWords& words, WordOrder order,
                                                  std::int32_t shown, std::string_view key);

}  // namespace quillomat
