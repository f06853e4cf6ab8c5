#include "text/language.h"

#include "base/letter_case.h"
#include "text/registry_value.h"

namespace quillomat {

Language OtherLanguage(Language language) {
  return language == Language::kEnglish ? Language::kGerman : Language::kEnglish;
}

std::string_view LanguageTag(Language language) {
  return language == Language::kGerman ? "DE" : "EN";
}

std::optional<Language> LanguageOfTag(std::string_view tag) {
  for (const Language language : kLanguages) {
    if (EqualIgnoringCase(tag, LanguageTag(language))) return language;
  }
  return std::nullopt;
}

Language ReadLanguage(Registry& registry) {
  const RegistryValue value = GetRegistryValue(registry, std::string(kProgramKeyPath),
                                               std::string(kLanguageValueName), Language::kEnglish);
  return LanguageOfTag(value.data).value_or(Language::kEnglish);
}

std::string WriteLanguage(Registry& registry, Language language) {
  return SetRegistryValue(registry, std::string(kProgramKeyPath), std::string(kLanguageValueName),
                          std::string(LanguageTag(language)), language);
}

}  // namespace quillomat
