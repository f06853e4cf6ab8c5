// What becomes of a request to the registry, or to the key file that stands for it.
#pragma once

#include <string>

namespace quillomat {

enum class RegistryKeyOutcome { kFailed, kCreated, kExisted, kOther };

struct RegistryKeyResult {
  RegistryKeyOutcome outcome = RegistryKeyOutcome::kFailed;
  std::string errorText;  // the system's words for a failure, else empty
};

enum class RegistryReadOutcome { kFound, kKeyNotFoundOrEmpty, kNameNotSpecified, kNameNotFound };

struct RegistryReadResult {
  RegistryReadOutcome outcome = RegistryReadOutcome::kKeyNotFoundOrEmpty;
  std::string data;  // empty unless found
};

}  // namespace quillomat
