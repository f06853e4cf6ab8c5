// The registry of the current user: a place for single values that belong to no settings file.
#pragma once

#include <string>

#include "system/user_registry.h"

namespace quillomat {

class Registry {
 public:
  Registry() = default;
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;
  Registry(Registry&&) = delete;
  Registry& operator=(Registry&&) = delete;
  virtual ~Registry() = default;

  /// Creates the key or opens the one that is there. `keyPath` has its parts separated by
  /// backslashes. Never throws: a failure is an outcome.
  virtual RegistryKeyResult CreateOrOpenKey(const std::string& keyPath) = 0;

  /// Writes a text value into a key that exists. False when that fails.
  virtual bool WriteValue(const std::string& keyPath, const std::string& name,
                          const std::string& data) = 0;

  virtual RegistryReadResult ReadValue(const std::string& keyPath, const std::string& name) = 0;
};

/// The real one: the system's registry, or the key file that stands for it.
class UserRegistry final : public Registry {
 public:
  RegistryKeyResult CreateOrOpenKey(const std::string& keyPath) override;
  bool WriteValue(const std::string& keyPath, const std::string& name,
                  const std::string& data) override;
  RegistryReadResult ReadValue(const std::string& keyPath, const std::string& name) override;
};

}  // namespace quillomat
