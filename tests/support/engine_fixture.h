// The engine as a test drives it: choices as on the parameters panel, lists, and lines of text that
// are counted. Words are shown in alphabetical order with a blank between them, and "*2" and so on
// behind a word that occurs more than once: "cat*2 dog".
//
// A fixture starts with the panel's defaults: hyphens are allowed and nothing else, letter case is
// not significant, comment markers are off.
#pragma once

#include <concepts>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "base/letter_case.h"
#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "engine/word_list.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

/// Counts the yields of a scan, and stops it at one of them if asked to.
class CountingYield final : public ScanYield {
 public:
  bool Yield() override { return ++yields == stopAt; }

  std::int64_t yields = 0;
  /// 0 for never.
  std::int64_t stopAt = 0;
};

class EngineFixture : public testing::Test {
 protected:
  EngineFixture() {
    Allow(AllowFlag::kHyphen);
    choices.startComment = {"/*", "//"};
    choices.endComment = {"*/", ""};
    filters.shortWordSizeIndex = 1;
    filters.ignoreRepetitions = CheckState::kChecked;
    filters.ignoreRomNum40 = CheckState::kChecked;
    filters.ignoreNoVowelOrY = CheckState::kChecked;
  }

  // The panel.

  void Allow(AllowFlag flag, CheckState state = CheckState::kChecked) {
    choices.allowWordsWith[static_cast<std::size_t>(flag)] = state;
  }
  void AllowNothing() { choices.allowWordsWith.fill(CheckState::kUnchecked); }
  void AllowEverything() { choices.allowWordsWith.fill(CheckState::kChecked); }
  void CaseIsSignificant() { choices.caseSignificant = CheckState::kChecked; }
  /// The letters of all languages, in the text, in the lists given afterwards and in the filters.
  void UseAllLetters() {
    choices.letters = LetterRule::kAll;
    filters.letters = LetterRule::kAll;
  }
  void KeepAccents() { choices.foldAccents = CheckState::kUnchecked; }
  void DropFinalS() { choices.dropFinalS = CheckState::kChecked; }

  /// The user's own markers, which are in force.
  void UseMarkers(const std::string& start, const std::string& end,
                  const std::string& secondStart = {}, const std::string& secondEnd = {}) {
    choices.allowCommentMarkers = CheckState::kChecked;
    choices.startComment = {start, secondStart};
    choices.endComment = {end, secondEnd};
    forcedPreset_.clear();
  }
  /// The markers "HTML" or "C", as for a file of that kind; "" for the user's again.
  void UsePreset(std::string preset) { forcedPreset_ = std::move(preset); }

  /// Lists typed by hand.
  void Ignore(std::string_view words) { lists.ExtraIgnoreList = Typed(words); }
  void CountOnly(std::string_view words) { lists.ExtraCountOnlyList = Typed(words); }

  // Counting.

  /// Counts a new text of these lines.
  std::string Count(const std::vector<std::string>& lines) {
    StartCount();
    WordScanner scanner(settings, choices, lists, store, yield);
    std::string buffer;
    for (const std::string& line : lines) {
      scanner.GetWords(PrepareLine(line, IsSet(choices.caseSignificant), buffer, choices.letters));
    }
    wordsRead = scanner.WordsRead();
    return Words();
  }
  /// Counts one piece of text. A template, so that braces always mean lines.
  template <std::convertible_to<std::string> Text>
  std::string Count(const Text& text) {
    return Count(std::vector<std::string>{text});
  }

  /// Reads the lines of a words file. What is in the store then would be the list.
  std::string ReadList(const std::vector<std::string>& lines) {
    store.Clear();
    settings.ReadingWordList = true;
    settings.SetAllowWordsFlags(choices);
    settings.BuildExtraWordChars();
    settings.ClearListCharFlags();
    settings.SetCommentMarkers("C", choices);
    WordScanner scanner(settings, choices, lists, store, yield);
    std::string buffer;
    for (const std::string& line : lines) {
      scanner.GetWords(PrepareLine(line, false, buffer, choices.letters));
    }
    wordsRead = scanner.WordsRead();
    return Words();
  }

  /// The words of the store as a list of their own, in the store's order.
  [[nodiscard]] WordList StoredList() const {
    std::vector<std::string> words;
    for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
      words.emplace_back(store.At(i).Word);
    }
    return WordList(words, choices.letters);
  }

  /// Empties the store and makes the settings ready for a text.
  void StartCount() {
    store.Clear();
    settings.ReadingWordList = false;
    settings.SetAllowWordsFlags(choices);
    settings.BuildExtraWordChars();
    settings.CountOnlyMode = lists.HasCountOnlyWords();
    settings.ForceCommentMarkers = !forcedPreset_.empty();
    settings.SetCommentMarkers(forcedPreset_.empty() ? "user" : forcedPreset_, choices);
  }

  // What came of it.

  [[nodiscard]] std::string Words() const { return Shown(false); }
  /// The words that the filters leave.
  std::string Listed() {
    ApplyWordFilters(store, filters);
    return Shown(true);
  }

  /// The alphabetical place of the entry that shows `word`; fails the test when there is none.
  [[nodiscard]] std::int32_t PlaceOf(std::string_view word) const {
    for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
      if (store.At(i).Word == word) return i;
    }
    ADD_FAILURE() << "no word " << word;
    return 0;
  }

  ScanChoices choices;
  FilterChoices filters;
  WordLists lists;
  ScanSettings settings;
  WordStore store;
  CountingYield yield;
  /// Candidate words of the last count, counted or not.
  std::int32_t wordsRead = 0;

 private:
  [[nodiscard]] WordList Typed(std::string_view words) const {
    return WordList(ParseTypedWords(words, choices.letters, choices.makeSegmenter).items,
                    choices.letters);
  }

  [[nodiscard]] std::string Shown(bool includedOnly) const {
    std::string shown;
    for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
      const WordRec& record = store.At(i);
      if (includedOnly && !record.Included) continue;
      if (!shown.empty()) shown += ' ';
      shown += record.Word;
      if (record.Count > 1) shown += "*" + std::to_string(record.Count);
    }
    return shown;
  }

  std::string forcedPreset_;
};

}  // namespace quillomat
