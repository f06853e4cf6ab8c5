#include "sources/marker_fault.h"

#include "base/utf8.h"
#include "engine/char_class.h"

namespace quillomat {
namespace {

bool CouldBePartOfWord(const std::string& marker, const ScanSettings& settings,
                       LetterRule letters) {
  const bool numerals = settings.AllowFlags[static_cast<std::size_t>(AllowFlag::kNumerals)];
  return !marker.empty() && CountWordChars(marker, 1, numerals, settings.ExtraWordChars, letters) ==
                                CharacterCount(marker);
}

}  // namespace

std::optional<MarkerFault> FindMarkerFault(const ScanChoices& choices) {
  using Kind = MarkerFault::Kind;
  if (choices.startComment[0].empty()) return MarkerFault{Kind::kNoStart, {}};
  for (std::size_t pair = 0; pair < 2; ++pair) {
    if (choices.startComment[pair].empty() && !choices.endComment[pair].empty()) {
      return MarkerFault{Kind::kEndWithoutStart, {}};
    }
  }
  for (std::size_t pair = 0; pair < 2; ++pair) {
    const std::string& start = choices.startComment[pair];
    if (!start.empty() && start == choices.endComment[pair]) return MarkerFault{Kind::kSame, {}};
  }
  ScanSettings settings;
  settings.SetAllowWordsFlags(choices);
  settings.BuildExtraWordChars();
  for (const std::string& marker : choices.startComment) {
    if (CouldBePartOfWord(marker, settings, choices.letters))
      return MarkerFault{Kind::kPartOfWord, marker};
  }
  return std::nullopt;
}

}  // namespace quillomat
