// Single values in the registry of the current user, with a status text in the user's language for
// what became of the request.
#pragma once

#include <string>
#include <string_view>

#include "text/language.h"
#include "ui/registry.h"

namespace quillomat {

/// The program's own key.
inline constexpr std::string_view kProgramKeyPath = "Software\\Orvandel Systems\\Quillomat";

/// Writes `data` under `name` into the key, which is created if it is missing. Returns a text that
/// tells what became of the key: it starts with "0 " when the key could be had, else with the
/// system's words for the failure, and then nothing is written. A value that cannot be written into
/// a key that could be had leaves no trace in the text.
std::string SetRegistryValue(Registry& registry, const std::string& keyPath,
                             const std::string& name, const std::string& data, Language language);

struct RegistryValue {
  std::string status;
  std::string data;  // empty unless the status starts with "0 "
};

/// Reads the value. The status starts with "0 " when it is there; one that is there and empty is
/// only "probably" right.
[[nodiscard]] RegistryValue GetRegistryValue(Registry& registry, const std::string& keyPath,
                                             const std::string& name, Language language);

}  // namespace quillomat
