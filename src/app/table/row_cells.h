// The cells of a row of the table as text, for people: numbers as the user's locale writes them.
#pragma once

#include <optional>
#include <string>

#include "app/table/number_signs.h"
#include "app/table/word_rows.h"
#include "listing/word_table.h"
#include "sources/count_result.h"
#include "text/program_text.h"

namespace quillomat {

/// How many words are shown and how often they occur ("37 words, 1,204 instances"), in the current
/// language; and how far the count came, if it was stopped.
[[nodiscard]] std::string TotalsOf(const WordRows& rows, const std::optional<CountReach>& stopped,
                                   const ProgramText& text, const NumberSigns& signs);

/// "" for a number that is not known.
[[nodiscard]] std::string CellOf(const WordRow& row, WordColumn column, const NumberSigns& signs);

}  // namespace quillomat
