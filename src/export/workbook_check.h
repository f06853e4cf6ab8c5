// Whether a workbook was written as a whole. The library that makes it gathers each part in a file
// of its own, and does not notice when a disk has no room for all of that.
#pragma once

#include "base/byte_source.h"

namespace quillomat {

/// Whether every part of the archive is there to its last end tag, and the archive goes on to its
/// table of contents. Throws what the source throws.
[[nodiscard]] bool IsWholeWorkbook(ByteSource& archive);

}  // namespace quillomat
