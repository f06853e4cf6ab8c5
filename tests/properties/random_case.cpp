#include <array>
#include <cstddef>
#include <string_view>

#include "base/utf8.h"
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
                                                                "\u0301",
                                                                "e\u00AD",
                                                                "\u02BC",
                                                                "\u044F",
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

/// The same for the letters of all languages: what is composed and what is not, signs that stand
/// for others, signs that are dropped, scripts with case and without, digits.
constexpr auto kPiecesOfAll =
    std::to_array<std::string_view>({"\xC5\x82",
                                     "\xC5\x81",
                                     "\xC3\xB3",
                                     "o",
                                     "\xCC\x81",
                                     "\xCC\x88",
                                     "\xCC\xA3",
                                     "\xCC\xB1",
                                     "\xCC\x87",
                                     "I\xCC\x87",
                                     "\xC4\xB0",
                                     "i",
                                     "\xC4\xB1",
                                     "H",
                                     "J",
                                     "\xCD\x85",
                                     "\xE2\x80\x99",
                                     "\xE2\x80\x98",
                                     "\xCA\xBC",
                                     "\xEF\xBC\x87",
                                     "\xE2\x80\x90",
                                     "\xE2\x80\x91",
                                     "\xEF\xAC\x81",
                                     "\xEF\xAC\x85",
                                     "\xEF\xBC\xA1",
                                     "\xEF\xBD\x82",
                                     "\xEF\xBC\x8F",
                                     "\xEF\xBC\x8A",
                                     "\xEF\xBC\x9C",
                                     "\xEF\xBC\x9E",
                                     "\xEF\xBC\x9B",
                                     "&",
                                     "\xEF\xBC\x86",
                                     "\xC2\xAD",
                                     "\xE2\x80\x8D",
                                     "\xE2\x80\x8C",
                                     "\xEF\xBB\xBF",
                                     "\xE2\x80\x8F",
                                     "\xE2\x80\xAC",
                                     "\xD8\x9C",
                                     "\xD0\xB9",
                                     "\xD0\xB8\xCC\x86",
                                     "\xD0\x98",
                                     "\xD1\x91",
                                     "\xD0\x96",
                                     "\xD0\xB6",
                                     "\xD1\x81\xD0\xBB\xD0\xBE\xD0\xB2\xD0\xBE",
                                     "\xCE\xA3",
                                     "\xCF\x83",
                                     "\xCF\x82",
                                     "\xCE\xAC",
                                     "\xCE\xAC",
                                     "\xCE\x86",
                                     "\xE1\xBE\xB3",
                                     "\xE1\xBE\xBC",
                                     "\xD7\x90",
                                     "\xD7\x91\xD6\xBC",
                                     "\xD7\x91",
                                     "\xD6\xB0",
                                     "\xE0\xA4\x95",
                                     "\xE0\xA4\xBF",
                                     "\xE0\xA7\x87",
                                     "\xE0\xA6\xBE",
                                     "\xED\x95\x9C",
                                     "\xE1\x84\x92",
                                     "\xE1\x85\xA1",
                                     "\xE1\x86\xAB",
                                     "\xE6\xBC\xA2\xE5\xAD\x97",
                                     "\xE3\x81\x8B\xE3\x82\x99",
                                     "\xE3\x81\x8C",
                                     "\xE0\xB9\x84\xE0\xB8\x97\xE0\xB8\xA2",
                                     "\xD9\xA3",
                                     "\xE0\xA5\xA9",
                                     "\xEF\xBC\x95",
                                     "\xC3\x9F",
                                     "\xE1\xBA\x9E",
                                     "\xC7\x85",
                                     "\xE2\x84\xAA",
                                     "\xE2\x84\xAB",
                                     "\xE2\x84\xA6",
                                     "\xCD\xBE",
                                     "\xCE\x87",
                                     "=\xCC\xB8",
                                     "\xCC\xB8",
                                     "\xE1\xBA\xA1",
                                     "\xE1\xBA\xB9\xCC\x81",
                                     "\xC7\xBF",
                                     "\xC7\xBD",
                                     "\xC4\x91",
                                     "\xC4\xA7",
                                     "\xC5\xA7",
                                     "\xC5\x93",
                                     "\xC3\xB0",
                                     "\xC3\xBE",
                                     "\xD1\x90",
                                     "\xF0\x9D\x92\x9C",
                                     "\xF0\x90\x90\x80",
                                     "\xF0\x90\x90\xA8",
                                     "\xF0\x9F\x99\x82",
                                     "\xE1\x8E\xA0",
                                     "\xEA\xAD\xB0",
                                     "\xC4\xB3",
                                     "\xC5\x89",
                                     "\xC7\xB0",
                                     "\xE1\xBD\x85",
                                     "\xE2\x85\x93",
                                     "\xE2\x85\xA3",
                                     "\xE2\x85\xB0",
                                     "\xC2\xAA",
                                     "\xC2\xBA",
                                     "\xC2\xB5",
                                     "\xE2\x80\x94",
                                     "\xE2\x80\x9C",
                                     "\xC2\xAB",
                                     "\xE2\x80\xA8",
                                     "\xC5\xB5",
                                     "\xC3\xBD",
                                     "\xC5\xA0"});

/// Letters of scripts without blanks, with marks of theirs, and words of such languages.
constexpr auto kUnspacedPieces =
    std::to_array<std::string_view>({"\u4E2D",
                                     "\u56FD",
                                     "\u4EBA",
                                     "\u4E2D\u56FD\u4EBA",
                                     "\u624B\u673A",
                                     "\u6211\u559C\u6B22",
                                     "\u3001",
                                     "\uFF0C",
                                     "\u3002",
                                     "\u3005",
                                     "\u3007",
                                     "\u304B\u3099",
                                     "\u3042",
                                     "\u3044\u307E\u3059",
                                     "\u30AB\u30BF",
                                     "\u30FC",
                                     "\uFF76",
                                     "\uFF9E",
                                     "\u65E5\u672C\u8A9E",
                                     "\u302A",
                                     "\u0E20\u0E32\u0E29\u0E32",
                                     "\u0E44\u0E17\u0E22",
                                     "\u0E01",
                                     "\u0E34",
                                     "\u0E48",
                                     "\u0E51",
                                     "\u0E2F",
                                     "\u0E9E\u0EB2\u0EAA\u0EB2",
                                     "\u0EA5",
                                     "\u0EBB",
                                     "\u1797\u17B6\u179F\u17B6",
                                     "\u1780",
                                     "\u17D2",
                                     "\u17E1",
                                     "\u1019\u103C\u1014\u103A\u1019\u102C",
                                     "\u1005\u102C",
                                     "\u1041",
                                     "\uAA60",
                                     "\u200B",
                                     "\u200D",
                                     "\U00020000",
                                     "\U0002F800",
                                     "\U0001B000",
                                     "\uAC00",
                                     "\u0915",
                                     "a",
                                     "x",
                                     "7",
                                     "-",
                                     "_",
                                     "'",
                                     "\u0301"});

/// Words that texts and lists shall have in common: those that differ in letter case alone, or in
/// accents, with letters that have several small ones; and words of Latin letters that have no like
/// among A to Z.
constexpr auto kWordsOfAll = std::to_array<std::string_view>({" \u03C4\u03B7\u03C2 ",
                                                              " \u03C4\u03B7\u03C3 ",
                                                              " \u03A4\u0397\u03A3 ",
                                                              " \u03A4\u03B7\u03C2 ",
                                                              " \u03C4\u03AE\u03C2 ",
                                                              " \u03A4\u0389\u03A3 ",
                                                              " wi\u017F\u017Fen ",
                                                              " wissen ",
                                                              " WISSEN ",
                                                              " \u00B5m ",
                                                              " \u03BCm ",
                                                              " \u039Cm ",
                                                              " stra\u00DFe ",
                                                              " STRA\u1E9EE ",
                                                              " strasse ",
                                                              " \u0130s ",
                                                              " is ",
                                                              " \u13A0\u13F0 ",
                                                              " \uAB70\u13F8 ",
                                                              " \u01C5s ",
                                                              " \u01C6s ",
                                                              " or\u00F0s ",
                                                              " \u00DE\u0155\u0110 ",
                                                              " s\u00E1\u014Bs ",
                                                              " \u014At\u014B ",
                                                              " n\u0259s ",
                                                              " N\u018Fs ",
                                                              " gb\u025B ",
                                                              " x\u0254\u0301s ",
                                                              " k\u0133k ",
                                                              " x\u1D26s ",
                                                              " \u02BBks ",
                                                              " k\u02BCks "});

constexpr auto kStartMarkers =
    std::to_array<std::string_view>({"/*", "//", "<", "#", "", "|", "rem", "&", "\xC3\x89", " t",
                                     " ", "-", "\xD0\x96", "i\xCC\x81", "\xD9\xA3"});
constexpr auto kEndMarkers = std::to_array<std::string_view>(
    {"*/", "", ">", "#", "end", "|", "END", ";", "\xC3\xA9", " ", "- "});
constexpr std::array<std::string_view, 4> kMarkerKinds = {"", "HTML", "C", "user"};

class CaseMaker {
 public:
  explicit CaseMaker(Random& random) : random_(random) {}

  CountCase Make() {
    CountCase result;
    MakeChoices(result.choices);
    result.segmenter = static_cast<Segmenter>(Below(3));
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
    all_ = OneIn(2);
    unspaced_ = all_ && OneIn(3);
    choices.cboLetters = all_ ? 1 : 0;
    choices.chkFoldAccents = OneIn(4) ? 0 : 1;
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
    for (std::size_t pieces = Below(mostPieces + 1); pieces > 0; --pieces) {
      if (unspaced_ && !OneIn(3)) {
        line += Pick(kUnspacedPieces);
      } else if (all_ && OneIn(6)) {
        line += Pick(kWordsOfAll);
      } else if (all_ && OneIn(2)) {
        line += Pick(kPiecesOfAll);
      } else if (OneIn(all_ ? 8 : 60)) {
        AppendCharacter(line, AnyCharacter());
      } else {
        line += Pick(kPieces);
      }
    }
    if (OneIn(40)) line += LongWord();
    if (OneIn(8)) line.insert(0, " ");
    return line;
  }

  /// Of all planes, but for what ends a line; half of them of the first.
  char32_t AnyCharacter() {
    const std::size_t below = OneIn(2) ? 0x3000 : OneIn(2) ? 0x20000 : 0x110000;
    const auto character = static_cast<char32_t>(Below(below));
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    return surrogate || character == '\r' || character == '\n' ? U'x' : character;
  }

  /// About the greatest length of a stored word or, seldom, of a run of word characters.
  std::string LongWord() {
    const std::size_t length = OneIn(60) ? 64'998 + Below(5) : 98 + Below(5);
    std::string word;
    std::string_view unit = OneIn(3) ? "\xC3\xA9" : "a";
    if (unspaced_ && OneIn(2)) unit = "\u4E2D\u56FD";
    for (std::size_t i = 0; i < length; ++i) word += OneIn(9) ? std::string_view("-") : unit;
    return word;
  }

  Random& random_;
  /// The letters of all languages.
  bool all_ = false;
  /// Text with many letters of scripts without blanks.
  bool unspaced_ = false;
};

}  // namespace

CountCase RandomCase(Random& random) {
  return CaseMaker(random).Make();
}

}  // namespace quillomat::properties
