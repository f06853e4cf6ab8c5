// The desktop's shell: opens documents and addresses with the application that belongs to them.
#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// Hands a document's path or an address ("https://...") to the shell and returns without waiting
/// for the application. False when the document is not there, or there is no shell to hand it to.
///
/// Where the shell is a command that tells of failure only when it ends, `onFailure` is called
/// then, from another thread; never after a false, and not for an application that was at work for
/// long before it ended. It may be called as long as the process lives, and must not throw.
[[nodiscard]] bool OpenWithShell(const std::string& documentOrAddress,
                                 std::function<void()> onFailure = {});

}  // namespace quillomat
