// The desktop's shell: opens documents and addresses with the application that belongs to them.
#pragma once

#include <string>

namespace quillomat {

/// Hands a document's path or an address ("https://...") to the shell and returns without waiting
/// for the application. False when the document is not there, or there is no shell to hand it to.
[[nodiscard]] bool OpenWithShell(const std::string& documentOrAddress);

}  // namespace quillomat
