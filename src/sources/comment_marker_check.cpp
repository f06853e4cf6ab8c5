#include "sources/comment_marker_check.h"

#include <string>

#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/char_class.h"
#include "sources/panel_choices.h"

namespace quillomat {
namespace {

constexpr std::string_view kTitle = "Error";

/// The message about the markers' emptiness or sameness, or "".
std::string FaultOfMarkers(const ScanChoices& choices) {
  const std::string lineBreak(kCrLf);
  const std::string checkThemAndDisallow =
      lineBreak + lineBreak + "Check the comment markers in the 'Set parameters' panel" +
      lineBreak + "and perhaps disallow comment markers.";
  if (choices.startComment[0].empty()) {
    return "If comment markers are allowed then at least one" + lineBreak +
           "start-comment marker must be non-empty." + checkThemAndDisallow;
  }
  for (std::size_t pair = 0; pair < 2; ++pair) {
    if (choices.startComment[pair].empty() && !choices.endComment[pair].empty()) {
      return "Cannot have an empty start-comment marker" + lineBreak +
             "with a non-empty end-comment marker." + checkThemAndDisallow;
    }
  }
  for (std::size_t pair = 0; pair < 2; ++pair) {
    const std::string& start = choices.startComment[pair];
    if (!start.empty() && start == choices.endComment[pair]) {
      return "Start-comment and end-comment markers must be different." + lineBreak + lineBreak +
             "Check the comment markers in the 'Set parameters' panel.";
    }
  }
  return {};
}

bool CouldBePartOfWord(const std::string& marker, const ScanSettings& settings) {
  const bool numerals = settings.AllowFlags[static_cast<std::size_t>(AllowFlag::kNumerals)];
  return !marker.empty() &&
         CountWordChars(marker, 1, numerals, settings.ExtraWordChars) == CharacterCount(marker);
}

/// The message about a marker that the scanner could take for part of a word, or "".
std::string FaultOfWordCharacters(const ScanChoices& choices, ScanSettings& settings) {
  const bool readingWordList = settings.ReadingWordList;
  settings.ReadingWordList = false;
  settings.SetAllowWordsFlags(choices);
  settings.BuildExtraWordChars();
  settings.ReadingWordList = readingWordList;
  const std::string lineBreak(kCrLf);
  for (const std::string& marker : choices.startComment) {
    if (!CouldBePartOfWord(marker, settings)) continue;
    return "The way the parameters are set the start-comment marker" + lineBreak + "\"" + marker +
           "\" could be part of a word." + lineBreak + lineBreak +
           "Check the start-comment markers in the 'Set parameters' panel and" + lineBreak +
           "perhaps disallow comment markers or restrict allowable words.";
  }
  return {};
}

}  // namespace

bool CheckCommentMarkers(const RunContext& context) {
  const ScanChoices choices = ReadScanChoices(context.frmParams);
  std::string fault = FaultOfMarkers(choices);
  if (fault.empty()) fault = FaultOfWordCharacters(choices, context.state.settings);
  if (fault.empty()) return true;
  Refuse(context, fault, std::string(kTitle));
  return false;
}

}  // namespace quillomat
