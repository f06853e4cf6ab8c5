// All settings of the program in one table. The controls hold the values; the table says what there
// is to know about each: where its caption and tool tip stand, its default, what a change of it
// entails, and how it is given in a terminal. Whoever adds a setting adds a control (src/ui), its
// texts (data/), a row here, and gets from it: the default, "Restore defaults", "Clear checkboxes",
// what a click does, captions, the terminal's option with its help, and a place in state files.
//
// The rows stand in the order in which the settings are put to their defaults. Two other orders are
// fixed apart from it: kClearingOrder, and the state file's (state_file.h).
//
// Not here: the three buttons that choose the source, which are one value together.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace quillomat {

enum class SettingWindow : std::uint8_t { kMain, kPanel };

/// What puts a setting to its default.
enum class ResetBy : std::uint8_t {
  /// "Restore defaults", and everything that does more.
  kRestoreDefaults,
  /// Only "Reinitialize": paths, typed lists, and the main window.
  kReinitialize,
};

/// What a change entails for the words that are counted.
enum class Entails : std::uint8_t {
  kNothing,
  /// They can be listed anew as they are.
  kRelist,
  /// The text must be read anew.
  kRescan,
};

/// What stands behind an option of the terminal.
enum class OptionKind : std::uint8_t {
  /// The setting has none of its own.
  kNone,
  /// A check box: the option checks it, its opposite unchecks it.
  kSwitch,
  /// A number of a list of numbers; with a check box beside it (switchedBy), 1 unchecks that.
  kNumber,
  /// An item of a list, by one of `choices` in any letter case, or by its number from 0 on.
  kChoice,
  kText,
  /// Words or extensions with blanks or commas between them.
  kList,
  /// A pair of comment markers, "START,END" or just "START"; the option may be given for each pair.
  kMarkers,
};

/// The headings under which a terminal's help lists options, in this order.
enum class OptionGroup : std::uint8_t {
  kTheText,
  kTheList,
  kWhatAWordIs,
  kWordsLeftOut,
  kWordLists,
  kStates,
};

struct SettingOption {
  OptionKind kind = OptionKind::kNone;
  OptionGroup group = OptionGroup::kStates;
  /// With its hyphens: "--numerals".
  std::string_view name{};
  /// Of a switch: what unchecks the box.
  std::string_view opposite{};
  /// What help calls the value.
  std::string_view argument{};
  /// Of a choice: what may be given for the items of the list, in their order.
  std::span<const std::string_view> choices{};
  /// Of a choice whose items go by other names, too: the item of a name. Null where there are none.
  std::optional<std::size_t> (*find)(std::string_view name) = nullptr;
  std::string_view help{};
};

struct Setting {
  SettingWindow window = SettingWindow::kPanel;
  /// The control's whole name.
  std::string_view control;
  /// Numbers of program texts. 0: the control has none, or one that goes with its value.
  int caption = 0;
  int toolTip = 0;
  /// Of a check box 0 or 1, of a list an index, of a text box its text.
  std::variant<int, std::string_view> initial = 0;
  ResetBy resetBy = ResetBy::kRestoreDefaults;
  Entails entails = Entails::kNothing;
  /// It is about files, of text or of words, and means nothing for text of the clipboard.
  bool ofFilesAlone = false;
  /// The text is a path: a state file keeps it whatever characters it is made of.
  bool isPath = false;
  /// The check box without which the setting has no effect.
  std::string_view switchedBy{};
  SettingOption option{};
};

[[nodiscard]] std::span<const Setting> AllSettings();

/// The setting of the control of that name, or null.
[[nodiscard]] const Setting* FindSetting(std::span<const Setting> settings,
                                         std::string_view control);

/// The order in which "Clear checkboxes" and "Set checkboxes" go through the panel's boxes. A box
/// that is not named here follows at the end.
inline constexpr auto kClearingOrder =
    std::to_array<std::string_view>({"chkAllowWordsWithHyphens",
                                     "chkAllowWordsWithApostrophes",
                                     "chkAllowWordsWithUnderscores",
                                     "chkAllowWordsWithColons",
                                     "chkAllowWordsWithBackslashes",
                                     "chkAllowWordsWithForwardslashes",
                                     "chkAllowWordsWithParentheses",
                                     "chkAllowWordsWithPeriods",
                                     "chkAllowWordsWithCommas",
                                     "chkAllowWordsWithAtSigns",
                                     "chkAllowWordsWithNumerals",
                                     "chkCaseSignificant",
                                     "chkDropFinalS",
                                     "chkIgnoreInfrequentWords",
                                     "chkIgnoreRepetitions",
                                     "chkIgnoreRomNum40",
                                     "chkIgnoreNoVowelOrY",
                                     "chkIgnoreShortWords",
                                     "chkOutputWithCommas",
                                     "chkUseLog10",
                                     "chkAllowCommentMarkers",
                                     "chkWarnOnOverwrite",
                                     "chkSaveStateOnQuit",
                                     "chkFoldAccents"});

}  // namespace quillomat
