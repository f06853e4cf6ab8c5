// Completes paths in a box while they are typed.
#pragma once

#include <QLineEdit>

namespace quillomat {

enum class PathKind { kFile, kFolder };

/// Paths are offered when the typing pauses; none any more once Return was pressed or the box was
/// left.
void CompletePaths(QLineEdit& box, PathKind kind);

}  // namespace quillomat
