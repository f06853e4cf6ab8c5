// What a scan goes by: the user's choices, and the plain values that are worked out from them
// before text is scanned.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/check_state.h"
#include "base/run_segmenter.h"
#include "engine/letter_rule.h"
#include "engine/uncounted.h"

namespace quillomat {

// The names of the comment markers' presets, spelled exactly so.
inline constexpr std::string_view kHtmlPreset = "HTML";
inline constexpr std::string_view kCPreset = "C";
inline constexpr std::string_view kNoPreset{};
/// The user's own markers, as any other name.
inline constexpr std::string_view kUserPreset = "user";

/// The classes of characters that the user may allow inside words.
enum class AllowFlag {
  kHyphen,
  kApostrophe,
  kUnderscore,
  kColon,
  kBackslash,
  kForwardSlash,
  kParentheses,
  kPeriod,
  kComma,
  kAtSign,
  kNumerals,
};
inline constexpr std::size_t kAllowFlagCount = 11;

/// The characters of each class, in the order of AllowFlag.
inline constexpr std::array<std::string_view, kAllowFlagCount> kAllowFlagChars = {
    "-", "'", "_", ":", "\\", "/", "()", ".", ",", "@", "0123456789"};

using AllowFlagSet = std::array<bool, kAllowFlagCount>;

/// The user's choices that bear on scanning, as the check boxes and marker boxes of the parameters
/// panel stand when a count starts.
struct ScanChoices {
  std::array<CheckState, kAllowFlagCount> allowWordsWith{};
  CheckState caseSignificant = CheckState::kUnchecked;
  CheckState dropFinalS = CheckState::kUnchecked;
  CheckState allowCommentMarkers = CheckState::kUnchecked;
  std::array<std::string, 2> startComment;
  std::array<std::string, 2> endComment;
  LetterRule letters = LetterRule::kWestern;
  /// Of all letters, those of scripts without blanks are cut by it; null leaves them whole.
  SegmenterMaker makeSegmenter = nullptr;
  CheckState foldAccents = CheckState::kChecked;

  /// What makes two words the same.
  [[nodiscard]] KeyRule Keys() const { return {letters, !IsSet(foldAccents)}; }
  [[nodiscard]] CheckState AllowWith(AllowFlag flag) const {
    return allowWordsWith[static_cast<std::size_t>(flag)];
  }
};

/// The values that the scanner reads. They keep what they were last given: a procedure below
/// changes just what it says, and `OpenComment` is changed by the scanner alone.
struct ScanSettings {
  AllowFlagSet AllowFlags{};
  LetterRule Letters = LetterRule::kWestern;
  /// Which classes occurred in the words of a words file.
  AllowFlagSet ListCharFlags{};
  /// The characters that AllowFlags admits. Only membership matters.
  std::string ExtraWordChars;
  std::array<std::string, 2> CommentStart;
  /// An empty end marker: the comment runs to the end of the line.
  std::array<std::string, 2> CommentEnd;
  /// -1 outside comments, else the marker pair (0 or 1) whose end is awaited. Survives lines, files
  /// and changes of the markers.
  int OpenComment = -1;
  /// Comment markers are in force for the text being scanned; worked out anew for each text.
  bool UseCommentMarkers = false;
  /// The markers were chosen from the file's kind: they are in force whatever the user chose.
  bool ForceCommentMarkers = false;
  /// The text is a words file, not text to count.
  bool ReadingWordList = false;
  /// Only listed words are counted.
  bool CountOnlyMode = false;
  /// What was met under these settings and not counted; who scans adds to it.
  quillomat::Uncounted Uncounted;

  /// All flags for a words file, else those that the user checked; and the letters.
  void SetAllowWordsFlags(const ScanChoices& choices);
  /// ExtraWordChars from AllowFlags.
  void BuildExtraWordChars();
  /// Loads both marker pairs of a preset; any other name is for the user's own.
  void SetCommentMarkers(std::string_view preset, const ScanChoices& choices);
  void ClearListCharFlags();
  /// Sets the flag of every class of which `word` holds a character.
  void NoteListWordChars(std::string_view word);
};

}  // namespace quillomat
