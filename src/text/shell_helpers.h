// What is handed to the operating system's shell: web addresses and documents.
#pragma once

#include <string>

#include "ui/desktop.h"

namespace quillomat {

/// Opens a web address; tells the user when the shell refuses, or later that it could not. The
/// desktop outlives what it opens, as far as it calls back.
void LaunchBrowser(Desktop& desktop, const std::string& address);

/// Opens a document with the application that belongs to it. False when the shell refuses. If
/// `reportErrors` is set the user is told, also of a failure that shows later.
bool OpenDocument(Desktop& desktop, const std::string& path, bool reportErrors);

/// The program that shows the clipboard: the first that exists in the places where systems had one,
/// or "".
[[nodiscard]] std::string FindClipboardViewer();

}  // namespace quillomat
