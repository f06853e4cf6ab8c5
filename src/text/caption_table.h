// Which numbered text is the caption of which control. Controls go by their whole names, as
// Form::Find takes them. Whoever changes the language sets the captions anew from these tables.
//
// The settings' own captions and tool tips stand with the settings (app/settings_table.h).
//
// Not in the tables either, because other things than the language decide on them:
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
    {"cmdFolder", 107},
    {"lblFileExtensions", 109},
    {"lblInclude", 110},
    {"lblExclude", 111},
    {"cmdListFiles", 112},
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

/// Tool tips of frmMain.
inline constexpr auto kMainFormToolTips = std::to_array<ControlCaption>({
    {"cmdListFiles", 310},
    {"cmdSetParameters", 311},
    {"cmdSaveState", 312},
    {"cmdLanguage", 313},
    {"optOnClipboard", 400},
    {"optInFile", 401},
    {"optFolder", 402},
    {"cmdFile(0)", 404},
    {"cmdClearFile(0)", 405},
    {"lblFilesize", 406},
    {"cmdFolder", 408},
    {"cmdClearFolder", 409},
    {"cmdFile(1)", 416},
    {"cmdClearFile(1)", 417},
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
    {"lblLetters", 247},
    {"fraIgnoreWords", 216},
    {"lblShortWordSize", 218},
    {"lblLongWords", 219},
    {"lblLongWordSize", 220},
    {"lblThresholdFrequency", 222},
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
    {"cmdClearCheckboxes(0)", 240},
    {"cmdClearCheckboxes(1)", 241},
    {"cmdSaveLoadState(0)", 242},
    {"cmdSaveLoadState(1)", 243},
    {"cmdRestoreDefaults", 244},
    {"cmdInitialize", 245},
    {"cmdClose", 246},
});

/// The items of cboLetters.
inline constexpr std::array<int, 2> kLetterTexts = {248, 249};

/// Tool tips of frmParams.
inline constexpr auto kParamsFormToolTips = std::to_array<ControlCaption>({
    {"cmdSelectWordsFile(0)", 476},
    {"cmdSelectWordsFile(1)", 477},
    {"cmdClearWordsFile(0)", 480},
    {"cmdClearWordsFile(1)", 481},
    {"cmdClearWordsToIgnoreOrCount(0)", 484},
    {"cmdClearWordsToIgnoreOrCount(1)", 485},
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

// The views of a result: their titles, and the table of words.
inline constexpr int kTextViewText = 600;
inline constexpr int kTableViewText = 601;
inline constexpr int kShowWordsText = 610;
inline constexpr int kAllWordsText = 611;
inline constexpr int kFilterKindNameText = 612;
/// Of the first of six FilterKinds, and so on.
inline constexpr int kFirstFilterKindText = 613;
// "%1" stands for the number, or for what is wrong.
inline constexpr int kOneWordText = 620;
inline constexpr int kWordsText = 621;
inline constexpr int kOneInstanceText = 622;
inline constexpr int kInstancesText = 623;
inline constexpr int kExpressionFaultText = 624;
/// Of the first of eight columns, and so on.
inline constexpr int kFirstColumnText = 630;
inline constexpr int kTableNameText = 640;
inline constexpr int kCopyRowsText = 641;
/// "%1" stands for the title of a column.
inline constexpr int kSortByText = 642;

// The statistics of a result.
inline constexpr int kStatisticsViewText = 650;
/// Of the first StatisticName, and so on; in the last "%1" stands for a number.
inline constexpr int kFirstStatisticText = 651;
inline constexpr int kOrderFiguresText = 670;
inline constexpr int kOrderFiguresTipText = 671;
inline constexpr int kStatisticsNameText = 672;
inline constexpr int kFigureColumnText = 673;
inline constexpr int kValueColumnText = 674;

}  // namespace quillomat
