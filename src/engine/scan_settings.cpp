#include "engine/scan_settings.h"

#include "engine/char_class.h"

namespace quillomat {

void ScanSettings::SetAllowWordsFlags(const ScanChoices& choices) {
  for (std::size_t flag = 0; flag < kAllowFlagCount; ++flag) {
    AllowFlags[flag] = ReadingWordList || IsSet(choices.allowWordsWith[flag]);
  }
  Letters = choices.letters;
}

void ScanSettings::BuildExtraWordChars() {
  ExtraWordChars.clear();
  for (std::size_t flag = 0; flag < kAllowFlagCount; ++flag) {
    if (AllowFlags[flag]) ExtraWordChars.insert(0, kAllowFlagChars[flag]);
  }
}

void ScanSettings::SetCommentMarkers(std::string_view preset, const ScanChoices& choices) {
  if (preset == kHtmlPreset) {
    CommentStart = {"<", "&"};
    CommentEnd = {">", ";"};
  } else if (preset == kCPreset) {
    CommentStart = {"/*", "//"};
    CommentEnd = {"*/", ""};
  } else if (preset == kNoPreset) {
    CommentStart = {};
    CommentEnd = {};
  } else {
    CommentStart = choices.startComment;
    CommentEnd = choices.endComment;
  }
}

void ScanSettings::ClearListCharFlags() {
  ListCharFlags = {};
}

void ScanSettings::NoteListWordChars(std::string_view word) {
  for (std::size_t flag = 0; flag < kAllowFlagCount; ++flag) {
    if (ContainsAnyOf(word, kAllowFlagChars[flag])) ListCharFlags[flag] = true;
  }
  // Numerals of other scripts than ours.
  if (Letters == LetterRule::kAll && ContainsDigit(word)) {
    ListCharFlags[static_cast<std::size_t>(AllowFlag::kNumerals)] = true;
  }
}

}  // namespace quillomat
