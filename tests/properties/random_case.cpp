#include <array>
#include <cstddef>
#include <string_view>

#include "properties/count_case.h"

namespace quillomat::properties {
namespace {

/// Pieces of text around which rules turn. The more often a piece stands here the more often it
/// comes.
constexpr std::array kPieces = std::to_array<std::string_view>({" ",
                                                                " ",
                                                                " ",
                                                                " ",
                                                                " ",
                                                                "a",
                                                                "b",
                                                                "e",
                                                                "s",
                                                                "t",
                                                                "n",
                                                                "S",
                                                                "I",
                                                                "x",
                                                                "v",
                                                                "the",
                                                                "The",
                                                                "THE",
                                                                "cat",
                                                                "cats",
                                                                "dog",
                                                                "maths",
                                                                "physics",
                                                                "ICS",
                                                                "isn",
                                                                "couldn",
                                                                "weren",
                                                                "don",
                                                                "ss",
                                                                "gas",
                                                                "'s",
                                                                "'t",
                                                                "-",
                                                                "'",
                                                                "_",
                                                                ":",
                                                                "\\",
                                                                "/",
                                                                "(",
                                                                ")",
                                                                ".",
                                                                ",",
                                                                "@",
                                                                "0",
                                                                "7",
                                                                "42",
                                                                "--",
                                                                "---",
                                                                "/*",
                                                                "*/",
                                                                "//",
                                                                "/*/",
                                                                "<",
                                                                ">",
                                                                "<b>",
                                                                "</b>",
                                                                "|",
                                                                "END",
                                                                "end",
                                                                "rem",
                                                                "REM",
                                                                "#",
                                                                ";",
                                                                "&",
                                                                "&eacute;",
                                                                "&Eacute;",
                                                                "&ETH;",
                                                                "&amp;",
                                                                "&#233;",
                                                                "&lt;",
                                                                "&T;",
                                                                "& ;",
                                                                "&szlig;",
                                                                "\xC3\xA9",
                                                                "\xC3\x89",
                                                                "\xC3\x9F",
                                                                "\xC3\xBC",
                                                                "\xC3\x9C",
                                                                "\xC3\x97",
                                                                "\xC3\xB7",
                                                                "\xC3\xBF",
                                                                "\xC5\xB8",
                                                                "\xC5\xA0",
                                                                "\xC5\x92",
                                                                "\xC3\x86",
                                                                "\xC3\xB8",
                                                                "\xC3\xB0",
                                                                "\xC3\x9E",
                                                                "\xE2\x80\x94",
                                                                "\xF0\x9F\x99\x82",
                                                                "\t",
                                                                "well-known",
                                                                "o'clock",
                                                                "xiv",
                                                                "hmm",
                                                                "aaa",
                                                                "ren",
                                                                "dn",
                                                                "en",
                                                                "ns",
                                                                "es"});

constexpr auto kStartMarkers = std::to_array<std::string_view>(
    {"/*", "//", "<", "#", "", "|", "rem", "&", "\xC3\x89", " t", " ", "-"});
constexpr auto kEndMarkers = std::to_array<std::string_view>(
    {"*/", "", ">", "#", "end", "|", "END", ";", "\xC3\xA9", " ", "- "});
constexpr std::array<std::string_view, 4> kMarkerKinds = {"", "HTML", "C", "user"};

class CaseMaker {
 public:
  explicit CaseMaker(Random& random) : random_(random) {}

  CountCase Make() {
    CountCase result;
    MakeChoices(result.choices);
    for (auto& file : result.wordsFiles) {
      if (OneIn(6)) file = Lines(3, 6);
    }
    const std::size_t texts = 1 + Below(3);
    for (std::size_t i = 0; i < texts; ++i) result.texts.push_back(Text(i));
    result.order = static_cast<int>(Below(2));
    result.format = static_cast<int>(Below(14));
    result.numFiles = static_cast<std::int32_t>(Below(3) * (1 + Below(2000)));
    result.numFolders = static_cast<std::int32_t>(1 + Below(3));
    return result;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  bool OneIn(std::size_t n) { return Below(n) == 0; }

  template <typename List>
  auto Pick(const List& list) {
    return list[Below(list.size())];
  }

  /// Mostly clear or checked, seldom grey.
  int Box() { return OneIn(12) ? 2 : static_cast<int>(Below(2)); }

  void MakeChoices(reference::LiteralChoices& choices) {
    for (int* box : {&choices.chkAllowWordsWithHyphens,
                     &choices.chkAllowWordsWithApostrophes,
                     &choices.chkAllowWordsWithUnderscores,
                     &choices.chkAllowWordsWithColons,
                     &choices.chkAllowWordsWithBackslashes,
                     &choices.chkAllowWordsWithForwardslashes,
                     &choices.chkAllowWordsWithParentheses,
                     &choices.chkAllowWordsWithPeriods,
                     &choices.chkAllowWordsWithCommas,
                     &choices.chkAllowWordsWithAtSigns,
                     &choices.chkAllowWordsWithNumerals,
                     &choices.chkCaseSignificant,
                     &choices.chkDropFinalS,
                     &choices.chkAllowCommentMarkers,
                     &choices.chkIgnoreShortWords,
                     &choices.chkIgnoreInfrequentWords,
                     &choices.chkIgnoreRepetitions,
                     &choices.chkIgnoreRomNum40,
                     &choices.chkIgnoreNoVowelOrY,
                     &choices.chkUseLog10,
                     &choices.chkOutputWithCommas}) {
      *box = Box();
    }
    for (std::size_t pair = 0; pair < 2; ++pair) {
      choices.txbStartComment[pair] = Pick(kStartMarkers);
      choices.txbEndComment[pair] = Pick(kEndMarkers);
    }
    choices.cboShortWordSize = static_cast<int>(Below(4));
    choices.cboThresholdFrequency = static_cast<int>(Below(3));
    choices.longWordSize = static_cast<int>(20 + 10 * Below(9));
    if (OneIn(5)) choices.txbWordsToIgnoreOrCount[0] = Line(5);
    if (OneIn(5)) choices.txbWordsToIgnoreOrCount[1] = Line(5);
    choices.optFolder = OneIn(2);
    choices.txbFolder = OneIn(3) ? "/books" : "/home/reader/books";
  }

  CaseText Text(std::size_t number) {
    CaseText text;
    text.markers = Pick(kMarkerKinds);
    text.path = "/home/reader/books/" + std::string(1, static_cast<char>('a' + number)) + ".txt";
    text.whole = OneIn(5);
    text.lines = Lines(4, 14);
    return text;
  }

  std::vector<std::string> Lines(std::size_t most, std::size_t mostPieces) {
    std::vector<std::string> lines(1 + Below(most));
    for (std::string& line : lines) line = Line(mostPieces);
    return lines;
  }

  std::string Line(std::size_t mostPieces) {
    std::string line;
    for (std::size_t pieces = Below(mostPieces + 1); pieces > 0; --pieces) line += Pick(kPieces);
    if (OneIn(40)) line += LongWord();
    if (OneIn(8)) line.insert(0, " ");
    return line;
  }

  /// About the greatest length of a stored word or, seldom, of a run of word characters.
  std::string LongWord() {
    const std::size_t length = OneIn(60) ? 64'998 + Below(5) : 98 + Below(5);
    std::string word;
    const std::string_view unit = OneIn(3) ? "\xC3\xA9" : "a";
    for (std::size_t i = 0; i < length; ++i) word += OneIn(9) ? std::string_view("-") : unit;
    return word;
  }

  Random& random_;
};

}  // namespace

CountCase RandomCase(Random& random) {
  return CaseMaker(random).Make();
}

}  // namespace quillomat::properties
