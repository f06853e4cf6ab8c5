#include "system/user_registry.h"

#include "base/letter_case.h"
#include "system/key_file.h"
#include "system/settings_folder.h"

namespace quillomat {
namespace {

std::string FileNameOf(const std::string& keyPath) {
  return LowerCase(keyPath.substr(keyPath.rfind('\\') + 1)) + ".conf";
}

KeyFile KeyFileOf(const std::string& keyPath) {
  return KeyFile(PathInSettings(FileNameOf(keyPath), std::string(kSettingsFolderName)));
}

}  // namespace

RegistryKeyResult CreateOrOpenUserKey(const std::string& keyPath) {
  const KeyFile file(SettingsFilePath(FileNameOf(keyPath), std::string(kSettingsFolderName)));
  return file.CreateOrOpen();
}

bool WriteUserValue(const std::string& keyPath, const std::string& name, const std::string& data) {
  const KeyFile file = KeyFileOf(keyPath);
  return file.Exists() && file.Write(name, data);
}

RegistryReadResult ReadUserValue(const std::string& keyPath, const std::string& name) {
  const KeyFile file = KeyFileOf(keyPath);
  if (file.IsEmpty()) return {RegistryReadOutcome::kKeyNotFoundOrEmpty, {}};
  if (name.empty()) return {RegistryReadOutcome::kNameNotSpecified, {}};
  std::optional<std::string> value = file.Read(name);
  if (!value) return {RegistryReadOutcome::kNameNotFound, {}};
  return {RegistryReadOutcome::kFound, *std::move(value)};
}

}  // namespace quillomat
