// Small values of the current user, kept under a key: the system's registry where there is one,
// else a key file in the settings folder (see key_file.h) that bears the name of the key's last
// part.
#pragma once

#include <string>

#include "system/registry_result.h"

namespace quillomat {

/// Creates the key under the current user, or opens the one that is there. `keyPath` is
/// "Software\\...", parts separated by backslashes.
[[nodiscard]] RegistryKeyResult CreateOrOpenUserKey(const std::string& keyPath);

/// Writes a text (UTF-8) under `name` into a key that exists. False when it cannot be written.
[[nodiscard]] bool WriteUserValue(const std::string& keyPath, const std::string& name,
                                  const std::string& data);

[[nodiscard]] RegistryReadResult ReadUserValue(const std::string& keyPath, const std::string& name);

}  // namespace quillomat
