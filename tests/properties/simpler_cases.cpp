#include <algorithm>

#include "base/utf8.h"
#include "properties/count_case.h"

namespace quillomat::properties {
namespace {

using reference::LiteralChoices;

constexpr std::array kBoxes = {&LiteralChoices::chkAllowWordsWithHyphens,
                               &LiteralChoices::chkAllowWordsWithApostrophes,
                               &LiteralChoices::chkAllowWordsWithUnderscores,
                               &LiteralChoices::chkAllowWordsWithColons,
                               &LiteralChoices::chkAllowWordsWithBackslashes,
                               &LiteralChoices::chkAllowWordsWithForwardslashes,
                               &LiteralChoices::chkAllowWordsWithParentheses,
                               &LiteralChoices::chkAllowWordsWithPeriods,
                               &LiteralChoices::chkAllowWordsWithCommas,
                               &LiteralChoices::chkAllowWordsWithAtSigns,
                               &LiteralChoices::chkAllowWordsWithNumerals,
                               &LiteralChoices::cboLetters,
                               &LiteralChoices::chkFoldAccents,
                               &LiteralChoices::chkCaseSignificant,
                               &LiteralChoices::chkDropFinalS,
                               &LiteralChoices::chkAllowCommentMarkers,
                               &LiteralChoices::chkIgnoreShortWords,
                               &LiteralChoices::chkIgnoreInfrequentWords,
                               &LiteralChoices::chkIgnoreRepetitions,
                               &LiteralChoices::chkIgnoreRomNum40,
                               &LiteralChoices::chkIgnoreNoVowelOrY,
                               &LiteralChoices::cboShortWordSize,
                               &LiteralChoices::cboThresholdFrequency,
                               &LiteralChoices::longWordSize,
                               &LiteralChoices::chkUseLog10,
                               &LiteralChoices::chkOutputWithCommas};
constexpr std::array kBoxNames = {"chkAllowWordsWithHyphens",
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
                                  "cboLetters",
                                  "chkFoldAccents",
                                  "chkCaseSignificant",
                                  "chkDropFinalS",
                                  "chkAllowCommentMarkers",
                                  "chkIgnoreShortWords",
                                  "chkIgnoreInfrequentWords",
                                  "chkIgnoreRepetitions",
                                  "chkIgnoreRomNum40",
                                  "chkIgnoreNoVowelOrY",
                                  "cboShortWordSize",
                                  "cboThresholdFrequency",
                                  "longWordSize",
                                  "chkUseLog10",
                                  "chkOutputWithCommas"};
static_assert(kBoxes.size() == kBoxNames.size());

/// Collects variants of a case.
class Variants {
 public:
  explicit Variants(const CountCase& original) : original_(original) {}

  template <typename Change>
  void Add(const Change& change) {
    cases_.push_back(original_);
    change(cases_.back());
  }

  /// Variants with one item of a list left out, for lists that can be found again in a copy.
  template <typename Find>
  void AddWithoutItems(const Find& find) {
    CountCase copy = original_;
    for (std::size_t i = 0; i < find(copy).size(); ++i) {
      Add([&](CountCase& simpler) {
        auto& list = find(simpler);
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
      });
    }
  }

  /// Variants with a part of a text left out: the halves, then single characters.
  template <typename Find>
  void AddShorterTexts(const Find& find) {
    CountCase copy = original_;
    const std::string text = find(copy);
    if (text.empty()) return;
    const std::size_t half = BytesOfFirst(text, CharacterCount(text) / 2);
    if (half > 0) {
      Add([&](CountCase& simpler) { find(simpler) = text.substr(half); });
      Add([&](CountCase& simpler) { find(simpler) = text.substr(0, half); });
    }
    constexpr std::size_t kMostCharacters = 400;
    std::size_t position = 0;
    for (std::size_t i = 0; i < kMostCharacters && position < text.size(); ++i) {
      const std::size_t bytes = CharacterAt(text, position).bytes;
      Add([&](CountCase& simpler) {
        find(simpler) = text.substr(0, position) + text.substr(position + bytes);
      });
      position += bytes;
    }
  }

  std::vector<CountCase> Take() { return std::move(cases_); }

 private:
  const CountCase& original_;
  std::vector<CountCase> cases_;
};

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char ch : text) {
    const auto byte = static_cast<unsigned char>(ch);
    if (ch == '"' || ch == '\\') {
      quoted += '\\';
      quoted += ch;
    } else if (byte < 0x20 || byte >= 0x80) {
      constexpr std::string_view kHex = "0123456789ABCDEF";
      quoted.append("\\x").append(1, kHex[byte >> 4U]).append(1, kHex[byte & 15U]).append("\"\"");
    } else {
      quoted += ch;
    }
  }
  return quoted + "\"";
}

std::string QuotedList(const std::vector<std::string>& items) {
  std::string list = "{";
  for (const std::string& item : items) list += (list.size() > 1 ? ", " : "") + Quoted(item);
  return list + "}";
}

}  // namespace

std::vector<CountCase> SimplerCases(const CountCase& countCase) {
  Variants variants(countCase);
  variants.AddWithoutItems([](CountCase & c) -> auto& { return c.texts; });
  for (std::size_t t = 0; t < countCase.texts.size(); ++t) {
    variants.AddWithoutItems([t](CountCase & c) -> auto& { return c.texts[t].lines; });
    if (countCase.texts[t].whole) variants.Add([t](CountCase& c) { c.texts[t].whole = false; });
    for (std::size_t l = 0; l < countCase.texts[t].lines.size(); ++l) {
      variants.AddShorterTexts([ t, l ](CountCase & c) -> auto& { return c.texts[t].lines[l]; });
    }
  }
  for (std::size_t f = 0; f < 2; ++f) {
    variants.AddWithoutItems([f](CountCase & c) -> auto& { return c.wordsFiles[f]; });
    for (std::size_t l = 0; l < countCase.wordsFiles[f].size(); ++l) {
      variants.AddShorterTexts([ f, l ](CountCase & c) -> auto& { return c.wordsFiles[f][l]; });
    }
    variants.AddShorterTexts([f](CountCase & c) -> auto& {
      return c.choices.txbWordsToIgnoreOrCount[f];
    });
  }
  const LiteralChoices defaults;
  for (const auto box : kBoxes) {
    if (countCase.choices.*box == defaults.*box) continue;
    variants.Add([&](CountCase& c) { c.choices.*box = defaults.*box; });
  }
  for (const Segmenter segmenter : {Segmenter::kNone, Segmenter::kMadeUp}) {
    if (segmenter >= countCase.segmenter) continue;
    variants.Add([segmenter](CountCase& c) { c.segmenter = segmenter; });
  }
  return variants.Take();
}

std::string AsCode(const CountCase& countCase) {
  const LiteralChoices defaults;
  std::string code = "CountCase c;\n";
  for (std::size_t i = 0; i < kBoxes.size(); ++i) {
    const int value = countCase.choices.*kBoxes[i];
    if (value == defaults.*kBoxes[i]) continue;
    code += "c.choices." + std::string(kBoxNames[i]) + " = " + std::to_string(value) + ";\n";
  }
  if (countCase.segmenter != Segmenter::kNone) {
    code += "c.segmenter = static_cast<Segmenter>(" +
            std::to_string(static_cast<int>(countCase.segmenter)) + ");\n";
  }
  const auto pair = [](const std::array<std::string, 2>& texts) {
    return "{" + Quoted(texts[0]) + ", " + Quoted(texts[1]) + "};\n";
  };
  code += "c.choices.txbStartComment = " + pair(countCase.choices.txbStartComment);
  code += "c.choices.txbEndComment = " + pair(countCase.choices.txbEndComment);
  code += "c.choices.txbWordsToIgnoreOrCount = " + pair(countCase.choices.txbWordsToIgnoreOrCount);
  code += std::string("c.choices.optFolder = ") + (countCase.choices.optFolder ? "true" : "false");
  code += ";\nc.choices.txbFolder = " + Quoted(countCase.choices.txbFolder) + ";\n";
  for (std::size_t f = 0; f < 2; ++f) {
    if (countCase.wordsFiles[f].empty()) continue;
    code +=
        "c.wordsFiles[" + std::to_string(f) + "] = " + QuotedList(countCase.wordsFiles[f]) + ";\n";
  }
  for (const CaseText& text : countCase.texts) {
    code += "c.texts.push_back({" + Quoted(text.markers) + ", " + Quoted(text.path) + ", " +
            (text.whole ? "true" : "false") + ", " + QuotedList(text.lines) + "});\n";
  }
  return code + "c.order = " + std::to_string(countCase.order) +
         ";\nc.format = " + std::to_string(countCase.format) +
         ";\nc.numFiles = " + std::to_string(countCase.numFiles) +
         ";\nc.numFolders = " + std::to_string(countCase.numFolders) + ";\n";
}

}  // namespace quillomat::properties
