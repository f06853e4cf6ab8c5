// What a face may write beside the bar of a running count.
#pragma once

#include <string>

#include "app/table/number_signs.h"
#include "text/program_text.h"
#include "ui/progress.h"

namespace quillomat {

/// "310 MB/s, 0:05 left"; "" during the first moments, when nobody can tell.
[[nodiscard]] std::string PaceText(const Progress& progress, const ProgramText& text,
                                   const NumberSigns& signs);

}  // namespace quillomat
