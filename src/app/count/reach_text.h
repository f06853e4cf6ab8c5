// How far a count came that was stopped, for people.
#pragma once

#include <string>

#include "app/table/number_signs.h"
#include "sources/count_result.h"
#include "text/program_text.h"

namespace quillomat {

/// "Stopped at file 50 of 300", or what is known, in the current language; without a full stop.
[[nodiscard]] std::string ReachText(const CountReach& reach, const ProgramText& text,
                                    const NumberSigns& signs);

}  // namespace quillomat
