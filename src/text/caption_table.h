// Which numbered text is the caption of which control. Controls go by their whole names, as
// Form::Find takes them. Whoever changes the language sets the captions anew from these tables.
//
// The settings' own captions and tool tips stand with the settings (app/settings_table.h).
//
// Not in the tables either, because other things than the language decide on them:
// - the caption of the main window: the program's title and version;
// - cmdCountWords and the cmdExport of frmExport: text 21 and text 738 while nothing runs that they
//   stop, "Stop" in every language while something does;
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
    {"cmdDismissNotice", 723},
    {"cmdExport", 719},
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
    {"cmdNotice(0)", 724},
    {"cmdNotice(1)", 724},
    {"cmdDismissNotice", 720},
    {"cmdExport", 725},
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
    {"lblEncoding", 260},
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
    {"cmdCommonWords", 802},
    {"lblWordsToIgnoreOrCount(0)", 233},
    {"lblWordsToIgnoreOrCount(1)", 234},
    {"cmdClearWordsFile(0)", 235},
    {"cmdClearWordsFile(1)", 235},
    {"cmdClearWordsToIgnoreOrCount(0)", 235},
    {"cmdClearWordsToIgnoreOrCount(1)", 235},
    {"lblTryIt", 270},
    {"lblTried", 271},
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
/// The first items of cboEncoding; the others are names.
inline constexpr std::array<int, 2> kEncodingTexts = {261, 262};
/// Which languages the first of the others is for, and so on.
inline constexpr int kFirstEncodingNoteText = 950;

/// The items of the main window's cboWordOrder and the export window's cboOrder, in the order of
/// WordOrder.
inline constexpr std::array<int, 2> kOrderTexts = {870, 871};

/// Tool tips of frmParams.
inline constexpr auto kParamsFormToolTips = std::to_array<ControlCaption>({
    {"cmdSelectWordsFile(0)", 476},
    {"cmdSelectWordsFile(1)", 477},
    {"cmdCommonWords", 803},
    {"cmdClearWordsFile(0)", 480},
    {"cmdClearWordsFile(1)", 481},
    {"cmdClearWordsToIgnoreOrCount(0)", 484},
    {"cmdClearWordsToIgnoreOrCount(1)", 485},
    {"cmdClearCheckboxes(0)", 490},
    {"cmdClearCheckboxes(1)", 491},
    {"cmdSaveLoadState(0)", 492},
    {"cmdSaveLoadState(1)", 493},
    {"txbTried", 516},
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

/// The window frmExport itself.
inline constexpr int kExportFormCaption = 730;

/// Of frmExport.
inline constexpr auto kExportFormCaptions = std::to_array<ControlCaption>({
    {"lblFile", 731},
    {"cmdChooseFile", 732},
    {"lblFormat", 733},
    {"lblOrder", 734},
    {"lblFirst", 735},
    {"chkFiltered", 736},
    {"fraColumns", 737},
    {"cmdClose", 739},
    {"chkColumn(0)", 630},
    {"chkColumn(1)", 631},
    {"chkColumn(2)", 632},
    {"chkColumn(3)", 633},
    {"chkColumn(4)", 634},
    {"chkColumn(5)", 635},
    {"chkColumn(6)", 636},
    {"chkColumn(7)", 747},
    {"chkColumn(8)", 748},
    {"lblFilesUnknown", 749},
});

/// Tool tips of frmExport.
inline constexpr auto kExportFormToolTips = std::to_array<ControlCaption>({
    {"txbFile", 770},
    {"cmdChooseFile", 771},
    {"cboFormat", 772},
    {"cboOrder", 773},
    {"txbFirst", 774},
    {"chkFiltered", 775},
    {"cmdExport", 776},
    {"cmdClose", 777},
    {"chkColumn(0)", 780},
    {"chkColumn(1)", 781},
    {"chkColumn(2)", 782},
    {"chkColumn(3)", 783},
    {"chkColumn(4)", 784},
    {"chkColumn(5)", 785},
    {"chkColumn(6)", 786},
    {"chkColumn(7)", 787},
    {"chkColumn(8)", 788},
});

// What frmExport says.
inline constexpr int kExportCommandText = 738;
inline constexpr int kNothingToExportText = 750;
inline constexpr int kNoExportFileText = 751;
inline constexpr int kNoExportFolderText = 752;
inline constexpr int kExportIsFolderText = 766;
inline constexpr int kExportIsTextText = 753;
inline constexpr int kExportIsWordsFileText = 754;
inline constexpr int kExportIsStateText = 755;
inline constexpr int kNoColumnChosenText = 756;
inline constexpr int kFirstWordsFaultText = 757;
inline constexpr int kExportFailedText = 758;
inline constexpr int kExportDoneText = 759;
inline constexpr int kExportStoppedText = 760;
inline constexpr int kExportProgressText = 761;
/// The question about a file that exists, and its title.
inline constexpr int kOverwriteExportText = 762;
inline constexpr int kExportFileExistsText = 763;
/// The same as kExportFailedText and kExportStoppedText where there was no file before.
inline constexpr int kNothingExportedText = 764;
inline constexpr int kExportStoppedAtNothingText = 765;

// Texts of the bar that finds a word in the list.
inline constexpr int kFindText = 530;
inline constexpr int kFindNextText = 531;
inline constexpr int kNotFoundText = 532;
inline constexpr int kFindPreviousText = 533;
/// In place of kNotFoundText where the list goes on below the text box and holds the word, or one
/// with it in it: "%1" stands for its rank, "%2" for its frequency, "%3" for the word.
inline constexpr int kFoundBelowText = 534;
inline constexpr int kSimilarFoundBelowText = 535;
/// Which of the places found, and of how many.
inline constexpr int kPlaceOfPlacesText = 536;

/// Why a display format is of no use now.
inline constexpr int kFormatNotServedText = 540;
/// Answers to what was dropped on the window.
inline constexpr int kManyPathsDroppedText = 541;
inline constexpr int kNoPathDroppedText = 542;

// Texts of the progress bar.
inline constexpr int kProgressText = 550;
inline constexpr int kFileOfFilesText = 551;
/// "%1" stands for what is read in a second, "%2" for the time that is left.
inline constexpr int kPaceText = 552;
inline constexpr int kAlmostDoneText = 553;

// The button that folds the settings away.
inline constexpr int kHideSettingsText = 560;
inline constexpr int kShowSettingsText = 561;

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
inline constexpr int kNoTableYetText = 643;
inline constexpr int kTableGaveWayText = 644;
inline constexpr int kAllFilteredOutText = 645;
inline constexpr int kShowAllWordsText = 646;
/// "%1" stands for the title of a column.
inline constexpr int kSortByText = 642;

// The statistics of a result.
inline constexpr int kStatisticsViewText = 650;
/// Of the first StatisticName, and so on; in the last "%1" stands for a number, and one has a text
/// of its own.
inline constexpr int kFirstStatisticText = 651;
inline constexpr int kWordsAfterOneInstanceText = 666;
inline constexpr int kOrderFiguresText = 670;
inline constexpr int kOrderFiguresTipText = 671;
inline constexpr int kStatisticsNameText = 672;
inline constexpr int kFigureColumnText = 673;
inline constexpr int kValueColumnText = 674;

// What became of the words of a text that is explained.
/// Of the first CandidateFate, and so on.
inline constexpr int kFirstFateText = 900;
/// "%1" stands for the characters, "%2" for the reason.
inline constexpr int kCutAtText = 903;
/// Of the first CandidateReason behind kNone, and so on; "%1" stands for a number.
inline constexpr int kFirstReasonText = 905;
inline constexpr int kTrimmedText = 925;
inline constexpr int kLostFinalSText = 926;
inline constexpr int kSpelledAsBeforeText = 927;
/// What is tried on the panel: "%1" stands for the words of the first CandidateFate, and so on.
inline constexpr int kFirstTriedText = 930;
inline constexpr int kMarkersRefusedText = 933;
inline constexpr int kNothingTriedText = 934;

// The line above the list, and what its commands are called.
inline constexpr int kFilesSkippedText = 700;
inline constexpr int kFileSkippedText = 701;
inline constexpr int kListOfFileText = 702;
inline constexpr int kListOfFolderText = 703;
inline constexpr int kListOfClipboardText = 704;
inline constexpr int kSettingsChangedText = 705;
inline constexpr int kOnlyWordsCountedText = 706;
inline constexpr int kOnlyWordCountedText = 707;
inline constexpr int kNoCountOnlyWordText = 743;
inline constexpr int kPartShownText = 708;
/// "%1" stands for words files.
inline constexpr int kListsReadAgainText = 744;
inline constexpr int kWordsToIgnoreText = 709;
inline constexpr int kWordToIgnoreText = 710;
inline constexpr int kLettersNotCountedText = 711;
inline constexpr int kLetterNotCountedText = 712;
inline constexpr int kRunsLeftWholeText = 713;
inline constexpr int kWordsGoneText = 714;
inline constexpr int kFilesLeftOutText = 740;
inline constexpr int kFileLeftOutText = 741;
inline constexpr int kNoTextOrEmptyText = 742;
inline constexpr int kBytesNotDecodedText = 726;
inline constexpr int kByteNotDecodedText = 727;
/// Of a folder: "%2" stands for the first such file.
inline constexpr int kBytesNotDecodedInText = 745;
inline constexpr int kByteNotDecodedInText = 746;
inline constexpr int kLinesNotUtf8Text = 728;
inline constexpr int kGuessedText = 797;
inline constexpr int kLineNotUtf8Text = 729;
inline constexpr int kWhichText = 715;
inline constexpr int kCountAgainText = 716;
inline constexpr int kChangeText = 717;
inline constexpr int kCountThemText = 718;
inline constexpr int kExportText = 719;
inline constexpr int kDismissNoticeText = 720;
/// Where its commands have no room and stand in a menu.
inline constexpr int kNoticeCommandsText = 724;
/// What the list of skipped files is called, and its last line when not all are known by name.
inline constexpr int kSkippedTitleText = 721;
inline constexpr int kMoreSkippedText = 722;

// Of a words file, "%2" stands for its path.
/// Letters that the western rule leaves out.
inline constexpr int kListLettersNotReadText = 800;
inline constexpr int kListLetterNotReadText = 801;
/// Bytes that are none of its encoding.
inline constexpr int kListBytesNotDecodedText = 805;
inline constexpr int kListByteNotDecodedText = 806;
inline constexpr int kListLinesNotUtf8Text = 807;
inline constexpr int kListLineNotUtf8Text = 808;
/// "%1" stands for the kind of list.
inline constexpr int kTypedNotUtf8Text = 804;
/// Letters that the western rule leaves out; "%2" stands for the kind of list.
inline constexpr int kTypedLettersNotUsedText = 798;
inline constexpr int kTypedLetterNotUsedText = 799;
/// The languages of the lists of common words, from this number on (app/count/common_words.h).
inline constexpr int kFirstLanguageText = 810;

// The view of the files of a count.
inline constexpr int kFilesViewText = 830;
/// In the order of FileColumn.
inline constexpr int kFirstFileColumnText = 831;
/// For a screen reader.
inline constexpr int kFilesNameText = 850;
inline constexpr int kNoLineEndsText = 841;
inline constexpr int kMixedLineEndsText = 842;
inline constexpr int kFileIsNoTextText = 843;
inline constexpr int kFileIsEmptyText = 844;
inline constexpr int kFileNotFoundText = 845;
inline constexpr int kFileNotOpenedText = 846;
inline constexpr int kFileReadFailedText = 847;
inline constexpr int kFolderUnreadableText = 848;
inline constexpr int kFileReadInPartText = 849;
inline constexpr int kFileIsNeverTextText = 851;
inline constexpr int kFileIsOutputText = 854;
inline constexpr int kFileIsFolderText = 855;
/// Below the path of an output file.
inline constexpr int kFileIsReadOnlyText = 856;
inline constexpr int kNoFilesYetText = 852;
inline constexpr int kClipboardHasNoFilesText = 853;

// A count that was stopped: how far it came ("%1" of "%2"), and what that means.
inline constexpr int kStoppedAtFileText = 860;
inline constexpr int kStoppedAfterBytesText = 861;
inline constexpr int kStoppedBeforeTheEndText = 862;
/// "%1" stands for one of the three.
inline constexpr int kListNotCompleteText = 863;
inline constexpr int kPartOfTextText = 864;
inline constexpr int kOrderFiguresMissingText = 865;

}  // namespace quillomat
