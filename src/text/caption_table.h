// Which numbered text is the caption of which control. Controls go by their whole names, as
// Form::Find takes them. Whoever changes the language sets the captions anew from these tables.
//
// Not in the tables, because other things than the language decide on them:
// - the caption of the main window: the program's title and version;
// - cmdCountWords: text 21 while no count runs, "Stop" in every language while one does;
// - labels that show results.
#pragma once

#include <array>
#include <string_view>

namespace quillomat {

struct ControlCaption {
  std::string_view control;
  int text;
};

/// Of frmMain.
inline constexpr auto kMainFormCaptions = std::to_array<ControlCaption>({
    {"Label1", 19},
    {"Label2", 20},
    {"optOnClipboard", 100},
    {"optInFile", 101},
    {"optFolder", 102},
    {"cmdFile(0)", 103},
    {"cmdFile(1)", 104},
    {"cmdClearFile(0)", 105},
    {"cmdClearFile(1)", 105},
    {"cmdClearFolder", 105},
    {"chkDisableOutputToFile", 106},
    {"cmdFolder", 107},
    {"chkIncludeSubfolders", 108},
    {"lblFileExtensions", 109},
    {"lblInclude", 110},
    {"lblExclude", 111},
    {"cmdListFiles", 112},
    {"chkSuppressWords", 113},
    {"lblCopyrightNotice", 114},
    {"lblOnlineDocumentation", 115},
    {"lblOrvandelSystems", 116},
    {"cmdClearOutput", 117},
    {"cmdCopyToClipboard", 118},
    {"cmdClipboardViewer", 119},
    {"cmdSetParameters", 120},
    {"cmdSaveState", 121},
    {"cmdHelp", 122},
    {"cmdLanguage", 123},
    {"cmdQuit", 124},
    {"fraSource", 125},
    {"fraOutput", 126},
});

/// Tool tips of frmMain, but for chkSuppressWords, whose tool tip goes with its value.
inline constexpr auto kMainFormToolTips = std::to_array<ControlCaption>({
    {"cmdListFiles", 310},
    {"cmdSetParameters", 311},
    {"cmdSaveState", 312},
    {"cmdLanguage", 313},
    {"optOnClipboard", 400},
    {"optInFile", 401},
    {"optFolder", 402},
    {"txbFile(0)", 403},
    {"cmdFile(0)", 404},
    {"cmdClearFile(0)", 405},
    {"lblFilesize", 406},
    {"txbFolder", 407},
    {"cmdFolder", 408},
    {"cmdClearFolder", 409},
    {"chkIncludeSubfolders", 410},
    {"txbFileExtensions(0)", 411},
    {"txbFileExtensions(1)", 412},
    {"cboWordOrder", 413},
    {"cboDisplayFormat", 414},
    {"txbFile(1)", 415},
    {"cmdFile(1)", 416},
    {"cmdClearFile(1)", 417},
    {"chkDisableOutputToFile", 418},
    {"cmdCountWords", 419},
    {"lblTwirler", 420},
    {"txbOutput", 421},
    {"cmdClearOutput", 422},
    {"cmdCopyToClipboard", 423},
    {"cmdClipboardViewer", 424},
    {"cmdHelp", 425},
    {"cmdQuit", 426},
    {"lblOnlineDocumentation", 427},
    {"lblOrvandelSystems", 428},
    {"lblCopyrightNotice", 429},
    {"lblNumberOfWords", 430},
    {"lblNumWordsExcluded", 431},
    {"lblNumOccurrences", 432},
    {"lblTotalNumOccurrences", 433},
});

/// The window frmParams itself.
inline constexpr int kParamsFormCaption = 200;

/// Of frmParams.
inline constexpr auto kParamsFormCaptions = std::to_array<ControlCaption>({
    {"lblOnThisPage", 201},
    {"lblAllowWords", 202},
    {"chkAllowWordsWithHyphens", 203},
    {"chkAllowWordsWithApostrophes", 204},
    {"chkAllowWordsWithUnderscores", 205},
    {"chkAllowWordsWithColons", 206},
    {"chkAllowWordsWithBackslashes", 207},
    {"chkAllowWordsWithForwardslashes", 208},
    {"chkAllowWordsWithParentheses", 209},
    {"chkAllowWordsWithPeriods", 210},
    {"chkAllowWordsWithCommas", 211},
    {"chkAllowWordsWithAtSigns", 212},
    {"chkAllowWordsWithNumerals", 213},
    {"chkCaseSignificant", 214},
    {"chkDropFinalS", 215},
    {"fraIgnoreWords", 216},
    {"chkIgnoreShortWords", 217},
    {"lblShortWordSize", 218},
    {"lblLongWords", 219},
    {"lblLongWordSize", 220},
    {"chkIgnoreInfrequentWords", 221},
    {"lblThresholdFrequency", 222},
    {"chkIgnoreRepetitions", 223},
    {"chkIgnoreRomNum40", 224},
    {"chkIgnoreNoVowelOrY", 225},
    {"chkAllowCommentMarkers", 226},
    {"lblStartComment", 227},
    {"lblEndComment", 228},
    {"lblCommentPair(0)", 229},
    {"lblCommentPair(1)", 230},
    {"cmdSelectWordsFile(0)", 231},
    {"cmdSelectWordsFile(1)", 232},
    {"lblWordsToIgnoreOrCount(0)", 233},
    {"lblWordsToIgnoreOrCount(1)", 234},
    {"cmdClearWordsFile(0)", 235},
    {"cmdClearWordsFile(1)", 235},
    {"cmdClearWordsToIgnoreOrCount(0)", 235},
    {"cmdClearWordsToIgnoreOrCount(1)", 235},
    {"chkOutputWithCommas", 236},
    {"chkUseLog10", 237},
    {"chkWarnOnOverwrite", 238},
    {"chkSaveStateOnQuit", 239},
    {"cmdClearCheckboxes(0)", 240},
    {"cmdClearCheckboxes(1)", 241},
    {"cmdSaveLoadState(0)", 242},
    {"cmdSaveLoadState(1)", 243},
    {"cmdRestoreDefaults", 244},
    {"cmdInitialize", 245},
    {"cmdClose", 246},
});

/// Tool tips of frmParams.
inline constexpr auto kParamsFormToolTips = std::to_array<ControlCaption>({
    {"chkAllowWordsWithHyphens", 450},
    {"chkAllowWordsWithApostrophes", 451},
    {"chkAllowWordsWithUnderscores", 452},
    {"chkAllowWordsWithColons", 453},
    {"chkAllowWordsWithBackslashes", 454},
    {"chkAllowWordsWithForwardslashes", 455},
    {"chkAllowWordsWithParentheses", 456},
    {"chkAllowWordsWithPeriods", 457},
    {"chkAllowWordsWithCommas", 458},
    {"chkAllowWordsWithAtSigns", 459},
    {"chkAllowWordsWithNumerals", 460},
    {"chkCaseSignificant", 461},
    {"chkDropFinalS", 462},
    {"chkIgnoreShortWords", 463},
    {"cboShortWordSize", 464},
    {"cboLongWordSize", 465},
    {"chkIgnoreInfrequentWords", 466},
    {"cboThresholdFrequency", 467},
    {"chkIgnoreRepetitions", 468},
    {"chkIgnoreRomNum40", 469},
    {"chkIgnoreNoVowelOrY", 470},
    {"chkAllowCommentMarkers", 471},
    {"txbStartComment(0)", 472},
    {"txbEndComment(0)", 473},
    {"txbStartComment(1)", 474},
    {"txbEndComment(1)", 475},
    {"cmdSelectWordsFile(0)", 476},
    {"cmdSelectWordsFile(1)", 477},
    {"txbWordsFile(0)", 478},
    {"txbWordsFile(1)", 479},
    {"cmdClearWordsFile(0)", 480},
    {"cmdClearWordsFile(1)", 481},
    {"txbWordsToIgnoreOrCount(0)", 482},
    {"txbWordsToIgnoreOrCount(1)", 483},
    {"cmdClearWordsToIgnoreOrCount(0)", 484},
    {"cmdClearWordsToIgnoreOrCount(1)", 485},
    {"chkOutputWithCommas", 486},
    {"chkUseLog10", 487},
    {"chkWarnOnOverwrite", 488},
    {"chkSaveStateOnQuit", 489},
    {"cmdClearCheckboxes(0)", 490},
    {"cmdClearCheckboxes(1)", 491},
    {"cmdSaveLoadState(0)", 492},
    {"cmdSaveLoadState(1)", 493},
    {"txbStateFile", 494},
    {"cmdRestoreDefaults", 495},
    {"cmdInitialize", 496},
    {"cmdClose", 497},
});

/// The window frmHelp itself.
inline constexpr int kHelpFormCaption = 280;

/// Of frmHelp.
inline constexpr auto kHelpFormCaptions = std::to_array<ControlCaption>({
    {"cmdClose", 281},
});

/// Tool tips of frmHelp.
inline constexpr auto kHelpFormToolTips = std::to_array<ControlCaption>({
    {"txbHelpScreen", 520},
    {"cmdClose", 521},
});

// Texts of the bar that finds a word in the list.
inline constexpr int kFindText = 530;
inline constexpr int kFindNextText = 531;
inline constexpr int kNotFoundText = 532;
inline constexpr int kFindPreviousText = 533;
/// In place of kNotFoundText while the text box holds a part of the list: "%1" stands for the
/// number of its words that it holds, "%2" for the number of all.
inline constexpr int kNotFoundInPartText = 534;

/// Why a display format is of no use now.
inline constexpr int kFormatNotServedText = 540;
/// Answers to what was dropped on the window.
inline constexpr int kManyPathsDroppedText = 541;
inline constexpr int kNoPathDroppedText = 542;

// Texts of the progress bar.
inline constexpr int kProgressText = 550;
inline constexpr int kFileOfFilesText = 551;

}  // namespace quillomat
