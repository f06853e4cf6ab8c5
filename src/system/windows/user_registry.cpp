#include "system/user_registry.h"

#include <memory>
#include <type_traits>
#include <windows.h>

#include "system/windows/wide_text.h"
#include "system/windows/windows_error.h"

namespace quillomat {
namespace {

struct KeyCloser {
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

Key OpenKey(const std::string& keyPath, REGSAM access) {
  HKEY key = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, ToWide(keyPath).c_str(), 0, access, &key);
  return Key(key);
}

bool IsEmpty(const Key& key) {
  DWORD values = 0;
  RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &values,
                   nullptr, nullptr, nullptr, nullptr);
  return values == 0;
}

RegistryKeyOutcome OutcomeOf(DWORD disposition) {
  if (disposition == REG_CREATED_NEW_KEY) return RegistryKeyOutcome::kCreated;
  if (disposition == REG_OPENED_EXISTING_KEY) return RegistryKeyOutcome::kExisted;
  return RegistryKeyOutcome::kOther;
}

}  // namespace

RegistryKeyResult CreateOrOpenUserKey(const std::string& keyPath) {
  std::wstring keyClass = L"0";
  HKEY key = nullptr;
  DWORD disposition = 0;
  const LSTATUS status =
      RegCreateKeyExW(HKEY_CURRENT_USER, ToWide(keyPath).c_str(), 0, keyClass.data(),
                      REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &key, &disposition);
  const Key closer(key);
  if (status != ERROR_SUCCESS) {
    return {RegistryKeyOutcome::kFailed, ErrorText(static_cast<DWORD>(status))};
  }
  return {OutcomeOf(disposition), {}};
}

bool WriteUserValue(const std::string& keyPath, const std::string& name, const std::string& data) {
  const Key key = OpenKey(keyPath, KEY_SET_VALUE);
  if (!key) return false;
  const std::wstring wide = ToWide(data);
  const auto bytes = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(key.get(), ToWide(name).c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(wide.c_str()), bytes) == ERROR_SUCCESS;
}

RegistryReadResult ReadUserValue(const std::string& keyPath, const std::string& name) {
  const Key key = OpenKey(keyPath, KEY_QUERY_VALUE);
  if (!key || IsEmpty(key)) return {RegistryReadOutcome::kKeyNotFoundOrEmpty, {}};
  if (name.empty()) return {RegistryReadOutcome::kNameNotSpecified, {}};
  const std::wstring wideName = ToWide(name);
  DWORD bytes = 0;
  RegGetValueW(key.get(), nullptr, wideName.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &bytes);
  std::wstring data(bytes / sizeof(wchar_t) + 1, L'\0');
  bytes = static_cast<DWORD>(data.size() * sizeof(wchar_t));
  if (RegGetValueW(key.get(), nullptr, wideName.c_str(), RRF_RT_REG_SZ, nullptr, data.data(),
                   &bytes) != ERROR_SUCCESS) {
    return {RegistryReadOutcome::kNameNotFound, {}};
  }
  return {RegistryReadOutcome::kFound, FromWide(data.c_str())};
}

}  // namespace quillomat
