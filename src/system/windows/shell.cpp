#include "system/shell.h"

// The second needs the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "system/file_system.h"
#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

// ShellExecute reports failure by a value up to this one.
constexpr INT_PTR kLastShellError = 32;

}  // namespace

/// The result tells of every failure.
bool OpenWithShell(const std::string& documentOrAddress, std::function<void()> /*onFailure*/) {
  // A path is made whole first: the shell would look for it from its own working folder on.
  const bool isPath = FileExists(documentOrAddress) || FolderExists(documentOrAddress);
  const std::string target = isPath ? AbsolutePath(documentOrAddress) : documentOrAddress;
  const HINSTANCE result =
      ShellExecuteW(nullptr, nullptr, ToWide(target).c_str(), nullptr, L"C:\\", SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastShellError;
}

}  // namespace quillomat
