#include "ui/registry.h"

namespace quillomat {

RegistryKeyResult UserRegistry::CreateOrOpenKey(const std::string& keyPath) {
  return CreateOrOpenUserKey(keyPath);
}

bool UserRegistry::WriteValue(const std::string& keyPath, const std::string& name,
                              const std::string& data) {
  return WriteUserValue(keyPath, name, data);
}

RegistryReadResult UserRegistry::ReadValue(const std::string& keyPath, const std::string& name) {
  return ReadUserValue(keyPath, name);
}

}  // namespace quillomat
