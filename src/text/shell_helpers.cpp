#include "text/shell_helpers.h"

#include <functional>
#include <string_view>

#include "base/text_helpers.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

void TellBrowserFailed(Desktop& desktop, const std::string& detail) {
  desktop.ShowMessage(
      {"Error launching web browser. Please make sure that your web browser is correctly installed "
       "and configured" +
           detail,
       "Cannot launch web browser", MessageIcon::kExclamation, MessageButtons::kOk,
       MessageSeverity::kError});
}

void TellNotOpened(Desktop& desktop, const std::string& path) {
  desktop.ShowMessage({"Error opening file " + path + "." + std::string(kCrLf) +
                           "Perhaps the file extension is incorrect.",
                       "Error", MessageIcon::kExclamation, MessageButtons::kOk,
                       MessageSeverity::kError});
}

}  // namespace

void LaunchBrowser(Desktop& desktop, const std::string& address) {
  // Later the user may not know any more which one it was.
  const auto tellLater = [&desktop, address] {
    TellBrowserFailed(desktop, std::string(kCrLf) + address);
  };
  if (!desktop.OpenWithShell(address, tellLater)) TellBrowserFailed(desktop, "");
}

bool OpenDocument(Desktop& desktop, const std::string& path, bool reportErrors) {
  std::function<void()> tell;
  if (reportErrors) tell = [&desktop, path] { TellNotOpened(desktop, path); };
  const bool opened = desktop.OpenWithShell(path, tell);
  if (!opened && tell) tell();
  return opened;
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
