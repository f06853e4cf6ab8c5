// What is handed to the operating system's shell: web addresses and documents.
#pragma once

#include <string>

#include "ui/desktop.h"

namespace quillomat {

/// Opens a web address; tells the user when the shell refuses.
void LaunchBrowser(Desktop& desktop, const std::string& address);

/// Opens a document with the application that belongs to it. False when the shell refuses; then the
/// user is told if `reportErrors` is set.
bool OpenDocument(Desktop& desktop, const std::string& path, bool reportErrors);

/// The program that shows the clipboard: the first that exists in the places where systems had one,
/// or "".
[[nodiscard]] std::string FindClipboardViewer();

}  // namespace quillomat
