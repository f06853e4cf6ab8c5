// Completes paths in a box while they are typed.
#pragma once

#include <QLineEdit>

namespace quillomat {

enum class PathKind { kFile, kFolder };

/// The completion belongs to the box and starts reading folders when the box is first used.
void CompletePaths(QLineEdit& box, PathKind kind);

}  // namespace quillomat
