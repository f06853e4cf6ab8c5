// The program's numbered texts in English and German, and which of the two languages is current.
// Loaded once at start-up; until then, and for a number that has no text, GetText says "".
#pragma once

#include <memory_resource>
#include <string>

#include "base/byte_source.h"
#include "text/language.h"
#include "text/text_table.h"
#include "ui/desktop.h"

namespace quillomat {

// Texts with a role of their own. Captions and tool tips: see caption_table.h.
inline constexpr int kProgramTitleText = 1;
inline constexpr int kProgramDescriptionText = 2;
inline constexpr int kMakerAddressText = 14;

class ProgramText {
 public:
  /// The texts are kept in `memory`, which must outlive this object.
  explicit ProgramText(std::pmr::memory_resource* memory = std::pmr::get_default_resource())
      : texts_(memory) {}

  /// Loads the file of that name from the program's data folder. When that fails, the user is told
  /// why, the result is false, and the caller must end the program.
  [[nodiscard]] bool LoadProgramText(const std::string& fileName, Desktop& desktop);

  /// Load the texts from a file or from any bytes. Return how many texts were read, each language
  /// counted, or a code of load_result.h; after a failure the texts are those from before. Throw
  /// nothing.
  [[nodiscard]] int LoadFile(const std::string& path);
  [[nodiscard]] int Load(ByteSource& source);

  /// The text with that number in the current language, or "".
  [[nodiscard]] std::string GetText(int number) const;

  [[nodiscard]] Language CurrentLanguage() const { return language_; }
  void SetLanguage(Language language) { language_ = language; }

  /// Switches to the other language and keeps the choice in the registry. Returns the status text
  /// of SetRegistryValue; the language is switched whatever it says.
  std::string ToggleLanguage(Registry& registry);

 private:
  TextTable texts_;
  Language language_ = Language::kEnglish;
};

}  // namespace quillomat
