#include "text/help_text.h"

#include <array>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

constexpr std::string_view kWhatItDoes =
    "This software scans a file, a set of files, or  text on the clipboard, and counts the number "
    "of "
    "occurrences of the different words. It will also count just words in a given list.  The text "
    "can be in a language other than English. The words which are found and displayed can be "
    "ordered alphabetically or by frequency.  ";

constexpr std::string_view kInputFiles =
    "An input file may have any extension, but it must consist only of text, that is, it cannot "
    "contain any bytes with ASCII values less than 32 except for 9 (tab), 10 (line-feed) and 13 "
    "(carriage-return). To count the words of a word-processor document, open it in its own "
    "program, copy its text to the clipboard, and choose the clipboard as the source of the text.";

constexpr std::string_view kSizes =
    "There is no limit on the size of an input file, but there is a limit on the text which the "
    "output textbox can hold, normally something beyond 30,000 characters, so (in the case of a "
    "large file) only about 1000 to 2000 words can appear in the list. For a large file specify an "
    "output file: the results are written to it before they are displayed. The table beside the "
    "text shows all words.";

constexpr std::string_view kOwnText =
    "You can also write text in the textbox yourself. Copy it to the clipboard to have its words "
    "counted.";

constexpr std::string_view kParameters =
    "In the 'Set parameters' window you can specify words to ignore or count-only words, and much "
    "else. The parameters are saved when you quit, if you wish, and restored when you start the "
    "program the next time.";

constexpr std::string_view kWordsToIgnore =
    "Words to ignore (common words such as 'the') can be read from a file of your choice. Files of "
    "common words come with the program for English, German, French, Italian, Spanish and "
    "Portuguese, and for Czech, Dutch, Greek, Polish, Russian, Swedish, Turkish and Ukrainian. The "
    "words of such a file need not be sorted, nor stand on separate lines, but the "
    "file must consist of text only.";

constexpr std::string_view kOtherLanguages =
    "The program works with text in languages other than English, and with the source code of "
    "programs.";

constexpr std::string_view kComments =
    "Comments can be ignored: anything between a start-comment marker and an end-comment marker, "
    "which you set in the 'Set parameters' window. The defaults are /* and */. For input files "
    "with "
    "the extensions htm, html, shtml, xml and php the markers are set to < and > automatically, so "
    "that tags are ignored.";

constexpr std::string_view kFolders =
    "When the source of the text is a folder you can restrict the files which are scanned: list "
    "the "
    "file extensions to be included, or those to be excluded. 'List files to be scanned' shows "
    "which files these are; it is a good idea to look before you count.";

constexpr std::string_view kCountOnlyWords =
    "When there are count-only words the 'Ignore words' settings have no effect, and the words to "
    "ignore make no difference (except that if a word is included in both the count-only words and "
    "the words-to-ignore then it will be counted). When they are counted in a folder there are "
    "further display formats: (i) the words found plus their frequencies and the number of files "
    "in "
    "which they occur and (ii) the words found plus a list of the files in which they occur.";

constexpr std::string_view kSpreadsheets =
    "To use a list in a spreadsheet copy it, save it as text and read it in, or export it as a "
    "workbook with 'Export...'. An output file can be "
    "written as comma-delimited so that it can be read by other software.";

constexpr std::string_view kClosing =
    "Quillomat was made for people who want to know which words a text is made of: writers, "
    "teachers, translators, students of language. It has counted novels, laws, songs and programs; "
    "we hope that it serves you as well.";

std::string WhereTheManualIs() {
  return "The full user manual is online at " + std::string(kOnlineDocumentation) +
         ". This help window may be resized for easier reading.";
}

}  // namespace

std::string HelpText() {
  const std::array<std::string, 13> paragraphs = {
      std::string(kWhatItDoes),    WhereTheManualIs(),           std::string(kInputFiles),
      std::string(kSizes),         std::string(kOwnText),        std::string(kParameters),
      std::string(kWordsToIgnore), std::string(kOtherLanguages), std::string(kComments),
      std::string(kFolders),       std::string(kCountOnlyWords), std::string(kSpreadsheets),
      std::string(kClosing)};
  std::string text;
  for (const std::string& paragraph : paragraphs) {
    if (!text.empty()) text.append(kCrLf).append(kCrLf);
    text.append(paragraph);
  }
  return text;
}

}  // namespace quillomat
