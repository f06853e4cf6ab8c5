#include "app/settings_table.h"

#include <algorithm>

#include "base/character_set.h"
#include "listing/display_format.h"

namespace quillomat {
namespace {

constexpr std::array<std::string_view, 2> kOrderChoices = {"frequency", "alphabetical"};
constexpr std::array<std::string_view, 2> kLetterChoices = {"western", "all"};

std::optional<std::size_t> FindEncoding(std::string_view name) {
  const std::optional<CharacterSet> set = FindCharacterSet(name);
  return set ? std::optional(static_cast<std::size_t>(*set)) : std::nullopt;
}

/// Numbers of program texts.
struct Texts {
  int caption;
  int toolTip;
};

// What the rows are made with: a setting of the panel, by the kind of its control.

constexpr Setting Box(std::string_view control, Texts texts, int initial, Entails entails,
                      SettingOption option = {}) {
  return {.control = control,
          .caption = texts.caption,
          .toolTip = texts.toolTip,
          .initial = initial,
          .entails = entails,
          .option = option};
}

constexpr Setting List(std::string_view control, int toolTip, int index, SettingOption option,
                       std::string_view switchedBy = {}) {
  return {.control = control,
          .toolTip = toolTip,
          .initial = index,
          .entails = Entails::kRelist,
          .switchedBy = switchedBy,
          .option = option};
}

constexpr Setting Text(std::string_view control, int toolTip, std::string_view initial,
                       SettingOption option = {}) {
  return {.control = control,
          .toolTip = toolTip,
          .initial = initial,
          .entails = Entails::kRescan,
          .option = option};
}

constexpr Setting Marker(std::string_view control, int toolTip, std::string_view initial,
                         SettingOption option = {}) {
  Setting setting = Text(control, toolTip, initial, option);
  setting.switchedBy = "chkAllowCommentMarkers";
  return setting;
}

constexpr Setting Path(std::string_view control, int toolTip, SettingOption option = {}) {
  Setting setting = Text(control, toolTip, "", option);
  setting.isPath = true;
  return setting;
}

// What is otherwise with some of them.

constexpr Setting EntailsRescan(Setting setting) {
  setting.entails = Entails::kRescan;
  return setting;
}

constexpr Setting OfFilesAlone(Setting setting) {
  setting.ofFilesAlone = true;
  return setting;
}

constexpr Setting EntailsNothing(Setting setting) {
  setting.entails = Entails::kNothing;
  return setting;
}

constexpr Setting KeptByRestoreDefaults(Setting setting) {
  setting.resetBy = ResetBy::kReinitialize;
  return setting;
}

constexpr Setting OnMainWindow(Setting setting) {
  setting.window = SettingWindow::kMain;
  return KeptByRestoreDefaults(setting);
}

// The options of a terminal.

constexpr SettingOption Switch(OptionGroup group, std::string_view name, std::string_view opposite,
                               std::string_view help) {
  return {.kind = OptionKind::kSwitch,
          .group = group,
          .name = name,
          .opposite = opposite,
          .help = help};
}

constexpr SettingOption Value(OptionKind kind, OptionGroup group, std::string_view name,
                              std::string_view argument, std::string_view help) {
  return {.kind = kind, .group = group, .name = name, .argument = argument, .help = help};
}

constexpr SettingOption Choice(OptionGroup group, std::string_view name, std::string_view argument,
                               std::span<const std::string_view> choices, std::string_view help) {
  return {.kind = OptionKind::kChoice,
          .group = group,
          .name = name,
          .argument = argument,
          .choices = choices,
          .help = help};
}

constexpr SettingOption WithOtherNames(SettingOption option,
                                       std::optional<std::size_t> (*find)(std::string_view)) {
  option.find = find;
  return option;
}

using enum OptionGroup;
using enum OptionKind;
using enum Entails;

// In help, "(on)" tells what holds without the option.
constexpr auto kTable = std::to_array<Setting>({
    Box("chkCaseSignificant", {214, 461}, 0, kRescan,
        Switch(kWhatAWordIs, "--case-sensitive", "--case-insensitive",
               "Words keep the letter case in which they were first met")),
    Box("chkIgnoreShortWords", {217, 463}, 0, kRelist),
    Box("chkIgnoreInfrequentWords", {221, 466}, 0, kRelist),
    Box("chkIgnoreRepetitions", {223, 468}, 1, kRelist,
        Switch(kWordsLeftOut, "--drop-repetitions", "--keep-repetitions",
               "Leave out repetitions of one letter, like aaa (on)")),
    Box("chkIgnoreRomNum40", {224, 469}, 1, kRelist,
        Switch(kWordsLeftOut, "--drop-roman-numerals", "--keep-roman-numerals",
               "Leave out Roman numerals below XL (on)")),
    Box("chkIgnoreNoVowelOrY", {225, 470}, 1, kRelist,
        Switch(kWordsLeftOut, "--drop-vowelless", "--keep-vowelless",
               "Leave out words without a vowel or y (on)")),
    Box("chkAllowWordsWithHyphens", {203, 450}, 1, kRescan,
        Switch(kWhatAWordIs, "--hyphens", "--no-hyphens", "Words may hold hyphens (on)")),
    Box("chkAllowWordsWithApostrophes", {204, 451}, 0, kRescan,
        Switch(kWhatAWordIs, "--apostrophes", "--no-apostrophes", "Words may hold apostrophes")),
    Box("chkAllowWordsWithUnderscores", {205, 452}, 0, kRescan,
        Switch(kWhatAWordIs, "--underscores", "--no-underscores", "Words may hold _")),
    Box("chkAllowWordsWithColons", {206, 453}, 0, kRescan,
        Switch(kWhatAWordIs, "--colons", "--no-colons", "Words may hold :")),
    Box("chkAllowWordsWithBackslashes", {207, 454}, 0, kRescan,
        Switch(kWhatAWordIs, "--backslashes", "--no-backslashes", "Words may hold \\")),
    Box("chkAllowWordsWithForwardslashes", {208, 455}, 0, kRescan,
        Switch(kWhatAWordIs, "--slashes", "--no-slashes", "Words may hold /")),
    Box("chkAllowWordsWithParentheses", {209, 456}, 0, kRescan,
        Switch(kWhatAWordIs, "--parentheses", "--no-parentheses", "Words may hold ( and )")),
    Box("chkAllowWordsWithPeriods", {210, 457}, 0, kRescan,
        Switch(kWhatAWordIs, "--periods", "--no-periods", "Words may hold periods")),
    Box("chkAllowWordsWithCommas", {211, 458}, 0, kRescan,
        Switch(kWhatAWordIs, "--commas", "--no-commas", "Words may hold commas")),
    Box("chkAllowWordsWithAtSigns", {212, 459}, 0, kRescan,
        Switch(kWhatAWordIs, "--at-signs", "--no-at-signs", "Words may hold @")),
    Box("chkAllowWordsWithNumerals", {213, 460}, 0, kRescan,
        Switch(kWhatAWordIs, "--numerals", "--no-numerals", "Words may hold digits")),
    Box("chkDropFinalS", {215, 462}, 0, kRescan,
        Switch(kWhatAWordIs, "--drop-final-s", "--keep-final-s",
               "Drop a final s, unless it is ss or follows a vowel")),
    Box("chkFoldAccents", {250, 499}, 1, kRescan,
        Switch(kWhatAWordIs, "--fold-accents", "--keep-accents",
               "Words that differ in accents are one word (on), or different words; in lists of "
               "words to ignore or to count accents always matter")),
    Box("chkOutputWithCommas", {236, 486}, 0, kNothing,
        Switch(kTheList, "--comma-columns", "--no-comma-columns",
               "Commas between the columns of a list in a file")),
    Box("chkUseLog10", {237, 487}, 1, kNothing,
        Switch(kTheList, "--log10", "--natural-log",
               "Logarithms of Zipf data to base 10 (on), or natural ones")),
    Box("chkAllowCommentMarkers", {226, 471}, 0, kRescan,
        Switch(kWhatAWordIs, "--skip-comments", "--keep-comments",
               "Skip comments: /* ... */ and // unless --comments or a state names others")),
    Box("chkWarnOnOverwrite", {238, 488}, 1, kNothing,
        Switch(kTheList, "--no-overwrite", "--overwrite",
               "Leave an output file that exists as it is (on), or replace it")),
    Box("chkSaveStateOnQuit", {239, 489}, 1, kNothing,
        Switch(kStates, "--save-on-quit", "--no-save-on-quit",
               "For --save-state: the window keeps its settings when it is closed (on)")),
    Marker("txbStartComment(0)", 472, "/*",
           Value(kMarkers, kWhatAWordIs, "--comments", "START,END",
                 "Skip comments from START to END; just START for those to the end of the line. "
                 "May be given twice; no other comments are skipped then")),
    Marker("txbEndComment(0)", 473, "*/"),
    Marker("txbStartComment(1)", 474, "//"),
    Marker("txbEndComment(1)", 475, ""),
    List("cboShortWordSize", 464, 1,
         Value(kNumber, kWordsLeftOut, "--min-length", "N",
               "Leave out words with fewer than N characters, 2 to 9; 1 for none, the default"),
         "chkIgnoreShortWords"),
    List("cboLongWordSize", 465, 3,
         Value(kNumber, kWordsLeftOut, "--max-length", "N",
               "Leave out words with more than N characters: 20, 30, ... 100; 50 if not given")),
    List("cboThresholdFrequency", 467, 0,
         Value(kNumber, kWordsLeftOut, "--min-count", "N",
               "Leave out words that occur fewer than N times, 2 to 9; 1 for none, the default"),
         "chkIgnoreInfrequentWords"),
    EntailsRescan(List("cboLetters", 498, 0,
                       Choice(kWhatAWordIs, "--letters", "WHICH", kLetterChoices,
                              "western: the letters of Western Europe (the default); all: those "
                              "of all languages"))),
    OfFilesAlone(EntailsRescan(
        List("cboEncoding", 505, 0,
             WithOtherNames(Choice(kTheText, "--encoding", "NAME|guess", kCharacterSetNames,
                                   "What the bytes of files are in, like UTF-16, "
                                   "Windows-1250 (Central European), Windows-1251 (Cyrillic) "
                                   "or Shift_JIS (Japanese); guess: for each file; "
                                   "as-found (the default): UTF-8, and lines that are "
                                   "none are Windows-1252"),
                            FindEncoding)))),
    KeptByRestoreDefaults(
        Path("txbWordsFile(0)", 478,
             Value(kText, kWordLists, "--ignore", "FILE", "Leave out the words in a file"))),
    KeptByRestoreDefaults(
        Path("txbWordsFile(1)", 479,
             Value(kText, kWordLists, "--only", "FILE", "Count only the words in a file"))),
    KeptByRestoreDefaults(Text("txbWordsToIgnoreOrCount(0)", 482, "",
                               Value(kList, kWordLists, "--ignore-words", "LIST",
                                     "Leave out these words, with blanks or commas between them; "
                                     "quotes and ; would be part of the words"))),
    KeptByRestoreDefaults(
        Text("txbWordsToIgnoreOrCount(1)", 483, "",
             Value(kList, kWordLists, "--only-words", "LIST", "Count only these words"))),
    KeptByRestoreDefaults(EntailsNothing(
        Text("txbTryIt", 515,
             "Don't skip the caf\u00E9's well-known 3rd edition: XIV, \u0142\u00F3d\u017A, "
             "hmm."))),
    OnMainWindow(Path("txbFolder", 407)),
    OnMainWindow(Path("txbFile(0)", 403)),
    OnMainWindow(Text("txbFileExtensions(0)", 411, "",
                      Value(kList, kTheText, "--only-extensions", "LIST",
                            "Of a folder's files only those with such names, like 'txt md'"))),
    OnMainWindow(Text("txbFileExtensions(1)", 412, "",
                      Value(kList, kTheText, "--not-extensions", "LIST",
                            "Of a folder's files all but those with such names"))),
    OnMainWindow(Path("txbFile(1)", 415,
                      Value(kText, kTheList, "--output", "PATH",
                            "Write the list to a file, not to standard output"))),
    OnMainWindow(Box("chkSuppressWords", {113, 0}, 0, kNothing,
                     Switch(kStates, "--suppress-words", "--show-words",
                            "For --save-state: the window shows no words while it counts"))),
    OnMainWindow(Box("chkDisableOutputToFile", {106, 418}, 0, kNothing,
                     Switch(kTheList, "--disable-output", "--enable-output",
                            "List on standard output, although a state names an output file"))),
    OnMainWindow(Box("chkIncludeSubfolders", {108, 410}, 0, kRescan,
                     Switch(kTheText, "--subfolders", "--no-subfolders",
                            "Of a folder: the folders below it, too"))),
    OnMainWindow(List("cboWordOrder", 413, 0,
                      Choice(kTheList, "--order", "ORDER", kOrderChoices,
                             "frequency (the default) or alphabetical"))),
    OnMainWindow(List("cboDisplayFormat", 414, 0,
                      Choice(kTheList, "--format", "FORMAT", kDisplayFormatNames,
                             "A display format by its name or number, 0 to 13; "
                             "'rank frequency word' if not given"))),
});

}  // namespace

std::span<const Setting> AllSettings() {
  return kTable;
}

const Setting* FindSetting(std::span<const Setting> settings, std::string_view control) {
  const auto found = std::ranges::find(settings, control, &Setting::control);
  return found == settings.end() ? nullptr : &*found;
}

}  // namespace quillomat
