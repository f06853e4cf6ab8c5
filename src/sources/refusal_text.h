// What a Refusal is called: in a table, behind the name of a text, and while a run goes on.
#pragma once

#include <optional>
#include <string>

#include "base/run_time_error.h"
#include "sources/count_result.h"

namespace quillomat {

/// In a column of its own, with the error if that says more: "not text", "cannot be opened:
/// Permission denied".
[[nodiscard]] std::string RefusalInColumn(Refusal reason, const std::optional<RunTimeError>& error);

/// Behind the name of a text, with the way out: "is empty; there is nothing to count".
[[nodiscard]] std::string RefusalBehindName(Refusal reason,
                                            const std::optional<RunTimeError>& error);

/// Of a file or folder that a run passes over although it should be read (IsFault): "the folder
/// cannot be read: Permission denied".
[[nodiscard]] std::string RefusalInRun(Refusal reason, const std::optional<RunTimeError>& error);

}  // namespace quillomat
