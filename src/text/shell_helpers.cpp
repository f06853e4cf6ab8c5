#include "text/shell_helpers.h"

#include <string_view>

#include "base/text_helpers.h"
#include "system/file_system.h"

namespace quillomat {

void LaunchBrowser(Desktop& desktop, const std::string& address) {
  if (desktop.OpenWithShell(address)) return;
  desktop.ShowMessage(
      {"Error launching web browser. Please make sure that your web browser is correctly installed "
       "and configured",
       "Cannot launch web browser", MessageIcon::kExclamation, MessageButtons::kOk,
       MessageSeverity::kError});
}

bool OpenDocument(Desktop& desktop, const std::string& path, bool reportErrors) {
  if (desktop.OpenWithShell(path)) return true;
  if (reportErrors) {
    desktop.ShowMessage({"Error opening file " + path + "." + std::string(kCrLf) +
                             "Perhaps the file extension is incorrect.",
                         "Error", MessageIcon::kExclamation, MessageButtons::kOk,
                         MessageSeverity::kError});
  }
  return false;
}

std::string FindClipboardViewer() {
  for (const char drive : std::string_view("CDE")) {
    for (const std::string_view place :
         {R"(:\windows\clipbrd.exe)", R"(:\windows\system32\clipbrd.exe)"}) {
      std::string path = std::string(1, drive).append(place);
      if (FileExists(path)) return path;
    }
  }
  return {};
}

}  // namespace quillomat
