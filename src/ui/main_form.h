// The main window's controls. Their captions here are the English ones; those that are numbered
// texts are set at start-up.
#pragma once

#include <array>

#include "ui/controls.h"
#include "ui/form.h"

namespace quillomat {

class MainForm final : public Form {
 public:
  MainForm();

  // Where the text comes from.
  Frame fraSource{*this, "fraSource", "Text to be counted"};
  OptionButton optOnClipboard{*this, "optOnClipboard", "Clipboard"};
  OptionButton optInFile{*this, "optInFile", "Single file"};
  OptionButton optFolder{*this, "optFolder", "Folder"};

  // Files: 0 the input file, 1 the output file.
  std::array<TextBox, 2> txbFile{TextBox{*this, {"txbFile", 0}}, TextBox{*this, {"txbFile", 1}}};
  std::array<CommandButton, 2> cmdFile{CommandButton{*this, {"cmdFile", 0}, "Input file"},
                                       CommandButton{*this, {"cmdFile", 1}, "Output file"}};
  std::array<CommandButton, 2> cmdClearFile{CommandButton{*this, {"cmdClearFile", 0}, "Clear"},
                                            CommandButton{*this, {"cmdClearFile", 1}, "Clear"}};
  Label lblFilesize{*this, "lblFilesize"};
  CheckBox chkDisableOutputToFile{*this, "chkDisableOutputToFile", "Disable output to file"};

  // The folder, and which of its files: extensions 0 included, 1 excluded.
  TextBox txbFolder{*this, "txbFolder"};
  CommandButton cmdFolder{*this, "cmdFolder", "Select folder"};
  CommandButton cmdClearFolder{*this, "cmdClearFolder", "Clear"};
  CheckBox chkIncludeSubfolders{*this, "chkIncludeSubfolders", "Include subfolders"};
  Label lblFileExtensions{*this, "lblFileExtensions", "File extensions"};
  Label lblInclude{*this, "lblInclude", "Only:"};
  Label lblExclude{*this, "lblExclude", "Not:"};
  std::array<TextBox, 2> txbFileExtensions{TextBox{*this, {"txbFileExtensions", 0}},
                                           TextBox{*this, {"txbFileExtensions", 1}}};
  CommandButton cmdListFiles{*this, "cmdListFiles", "List files to be scanned"};

  // Counting and listing.
  Frame fraOutput{*this, "fraOutput", "List"};
  CommandButton cmdCountWords{*this, "cmdCountWords", "Count word frequencies"};
  ComboBox cboWordOrder{*this, "cboWordOrder"};
  ComboBox cboDisplayFormat{*this, "cboDisplayFormat"};
  CheckBox chkSuppressWords{*this, "chkSuppressWords", "Suppress display of words during count"};
  Label lblTwirler{*this, "lblTwirler", " ", "Terminal"};

  // The output, and the labels that stand over it while it is empty.
  TextBox txbOutput{*this, "txbOutput"};
  Label Label1{*this, "Label1"};
  Label Label2{*this, "Label2"};
  Label lblCopyrightNotice{*this, "lblCopyrightNotice", "Copyright \u00A9 Orvandel Systems"};
  Label lblOnlineDocumentation{*this, "lblOnlineDocumentation", "Online documentation"};
  Label lblOrvandelSystems{*this, "lblOrvandelSystems", "Orvandel Systems"};
  CommandButton cmdClearOutput{*this, "cmdClearOutput", "Clear textbox"};
  CommandButton cmdCopyToClipboard{*this, "cmdCopyToClipboard", "Copy to clipboard"};
  CommandButton cmdExport{*this, "cmdExport", "Export..."};

  // The line above the output: what it does not show by itself, and what can be done about it.
  Label lblNotice{*this, "lblNotice"};
  std::array<CommandButton, 2> cmdNotice{CommandButton{*this, {"cmdNotice", 0}, ""},
                                         CommandButton{*this, {"cmdNotice", 1}, ""}};
  CommandButton cmdDismissNotice{*this, "cmdDismissNotice", "\u00D7"};

  // The result of a count.
  Frame fraSummary{*this, "fraSummary"};
  Label lblNumberOfWords{*this, "lblNumberOfWords"};
  Label lblNumWordsExcluded{*this, "lblNumWordsExcluded"};
  Label lblNumOccurrences{*this, "lblNumOccurrences"};
  Label lblTotalNumOccurrences{*this, "lblTotalNumOccurrences"};

  // Everything else.
  CommandButton cmdClipboardViewer{*this, "cmdClipboardViewer", "Clipboard viewer"};
  CommandButton cmdSetParameters{*this, "cmdSetParameters", "Set parameters"};
  CommandButton cmdSaveState{*this, "cmdSaveState", "Save state"};
  CommandButton cmdHelp{*this, "cmdHelp", "Help"};
  CommandButton cmdLanguage{*this, "cmdLanguage", "Deutsch"};
  CommandButton cmdQuit{*this, "cmdQuit", "Quit"};
};

}  // namespace quillomat
