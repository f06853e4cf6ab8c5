// The language of the numbered texts, and where the user's choice of it is kept from one run to the
// next: in the registry, as "EN" or "DE".
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "ui/registry.h"

namespace quillomat {

enum class Language { kEnglish = 0, kGerman = 1 };

inline constexpr std::array<Language, 2> kLanguages = {Language::kEnglish, Language::kGerman};

/// The value under the program's key that holds the language.
inline constexpr std::string_view kLanguageValueName = "Language";

/// German for English, English for any other.
[[nodiscard]] Language OtherLanguage(Language language);

/// "DE" for German, "EN" for any other.
[[nodiscard]] std::string_view LanguageTag(Language language);

/// The language with that tag, in capitals or not.
[[nodiscard]] std::optional<Language> LanguageOfTag(std::string_view tag);

/// The language that the user chose last; English when there is none, or none that we know.
[[nodiscard]] Language ReadLanguage(Registry& registry);

/// Keeps the choice. Returns the status text of SetRegistryValue, in `language`.
std::string WriteLanguage(Registry& registry, Language language);

}  // namespace quillomat
