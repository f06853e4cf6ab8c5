#include "text/registry_value.h"

#include <utility>

namespace quillomat {
namespace {

struct StatusText {
  std::string_view english;
  std::string_view german;

  [[nodiscard]] std::string In(Language language) const {
    return std::string(language == Language::kGerman ? german : english);
  }
};

constexpr StatusText kNoKey{"Unable to create (or find) key.",
                            "Nicht imstande, Schlüssel zu verursachen (oder finden)."};
constexpr StatusText kKeyCreated{"0 New key created.", "0 Neuer Schlüssel verursacht."};
constexpr StatusText kKeyExisted{"0 Key already exists.", "0 Schlüssel besteht bereits."};
constexpr StatusText kKeyAnomaly{"0 Key anomaly.", "0 Schlüsselanomalie."};

constexpr StatusText kRead{"0 OK", "0 OK"};
constexpr StatusText kReadEmpty{"0 OK probably", "0 OK wahrscheinlich"};
constexpr StatusText kKeyNotFound{"1 Key not found or is empty.",
                                  "1 Schlüssel nicht gefunden oder ist leer."};
constexpr StatusText kNameNotSpecified{"2 Name not specified.", "2 Name nicht spezifiziert."};
constexpr StatusText kNameNotFound{"3 Name not found.", "3 Name nicht gefunden."};

StatusText StatusOf(const RegistryReadResult& result) {
  switch (result.outcome) {
    case RegistryReadOutcome::kFound:
      return result.data.empty() ? kReadEmpty : kRead;
    case RegistryReadOutcome::kNameNotSpecified:
      return kNameNotSpecified;
    case RegistryReadOutcome::kNameNotFound:
      return kNameNotFound;
    case RegistryReadOutcome::kKeyNotFoundOrEmpty:
      break;
  }
  return kKeyNotFound;
}

StatusText StatusOf(RegistryKeyOutcome outcome) {
  switch (outcome) {
    case RegistryKeyOutcome::kCreated:
      return kKeyCreated;
    case RegistryKeyOutcome::kExisted:
      return kKeyExisted;
    case RegistryKeyOutcome::kFailed:
      return kNoKey;
    case RegistryKeyOutcome::kOther:
      break;
  }
  return kKeyAnomaly;
}

}  // namespace

std::string SetRegistryValue(Registry& registry, const std::string& keyPath,
                             const std::string& name, const std::string& data, Language language) {
  const RegistryKeyResult key = registry.CreateOrOpenKey(keyPath);
  std::string status = StatusOf(key.outcome).In(language);
  if (key.outcome == RegistryKeyOutcome::kFailed) return key.errorText + " " + status;
  registry.WriteValue(keyPath, name, data);
  return status;
}

RegistryValue GetRegistryValue(Registry& registry, const std::string& keyPath,
                               const std::string& name, Language language) {
  RegistryReadResult result = registry.ReadValue(keyPath, name);
  return {StatusOf(result).In(language), std::move(result.data)};
}

}  // namespace quillomat
