#include "desktop/shell.h"

// The second needs the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "desktop/windows/wide_text.h"

namespace quillomat {
namespace {

// ShellExecute reports failure by a value up to this one.
constexpr INT_PTR kLastShellError = 32;

}  // namespace

bool OpenWithShell(const std::string& documentOrAddress) {
  const HINSTANCE result = ShellExecuteW(nullptr, nullptr, ToWide(documentOrAddress).c_str(),
                                         nullptr, L"C:\\", SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastShellError;
}

}  // namespace quillomat
