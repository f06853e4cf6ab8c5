// What the tests of the literal engine have in common: a run from lines, and its words in one line.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "reference/literal_engine.h"

namespace quillomat::reference {

class LiteralEngineTest : public testing::Test {
 protected:
  /// Starts a run over one file, with no comment markers unless a preset is named.
  void Begin(std::string_view preset = "") {
    engine.BeginRun();
    engine.SetCommentMarkers(preset);
    engine.ForceCommentMarkers = preset == "HTML" || preset == "C";
  }

  /// A whole run; the result is as of Stored.
  std::string Count(const std::vector<std::string>& lines, std::string_view preset = "") {
    Begin(preset);
    for (const std::string& line : lines) engine.ScanLine(line);
    engine.FinishRun();
    return Stored();
  }

  std::string Count(const std::string& line) { return Count(std::vector<std::string>{line}); }

  /// The words of the store in their order, a blank between them; "*2" and so on after a word that
  /// occurs more than once.
  [[nodiscard]] std::string Stored() const { return Words(false); }

  /// As Stored, without the words that the filters have excluded.
  [[nodiscard]] std::string Included() const { return Words(true); }

  [[nodiscard]] const WordRec& Entry(std::string_view word) const {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(engine.NumDifferentWords); ++i) {
      if (ToUtf8(engine.WordStore[i].Word) == word) return engine.WordStore[i];
    }
    ADD_FAILURE() << "no word " << word;
    return engine.WordStore[0];
  }

  void AllowEverything() {
    engine.choices.chkAllowWordsWithHyphens = 1;
    engine.choices.chkAllowWordsWithApostrophes = 1;
    engine.choices.chkAllowWordsWithUnderscores = 1;
    engine.choices.chkAllowWordsWithColons = 1;
    engine.choices.chkAllowWordsWithBackslashes = 1;
    engine.choices.chkAllowWordsWithForwardslashes = 1;
    engine.choices.chkAllowWordsWithParentheses = 1;
    engine.choices.chkAllowWordsWithPeriods = 1;
    engine.choices.chkAllowWordsWithCommas = 1;
    engine.choices.chkAllowWordsWithAtSigns = 1;
    engine.choices.chkAllowWordsWithNumerals = 1;
  }

  void CountOnly(const std::string& words) {
    engine.choices.txbWordsToIgnoreOrCount[1] = words;
    engine.GetExtraWords(1);
  }

  void Ignore(const std::string& words) {
    engine.choices.txbWordsToIgnoreOrCount[0] = words;
    engine.GetExtraWords(0);
  }

  LiteralEngine engine;

 private:
  [[nodiscard]] std::string Words(bool includedOnly) const {
    std::string words;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(engine.NumDifferentWords); ++i) {
      const WordRec& entry = engine.WordStore[i];
      if (includedOnly && !entry.Included) continue;
      if (!words.empty()) words += ' ';
      words += ToUtf8(entry.Word);
      if (entry.Count > 1) words += "*" + std::to_string(entry.Count);
    }
    return words;
  }
};

}  // namespace quillomat::reference
