// Finds what the user looks for in the output text box: by the rule by which the list takes words
// for the same, as the filter of the table does.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "engine/letter_rule.h"

namespace quillomat {

/// From `begin` up to, but not including, `end`: bytes of a text.
struct TextPlace {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const TextPlace&) const = default;
};

/// Where `text` holds what is wanted, from its start to its end; the places do not overlap. Where
/// the list takes "Müller" for "mueller", both "mül" and "muel" have a place in each of the two; a
/// place holds whole characters, with the marks behind them.
[[nodiscard]] std::vector<TextPlace> PlacesIn(std::string_view text, std::string_view wanted,
                                              KeyRule rule);

}  // namespace quillomat
