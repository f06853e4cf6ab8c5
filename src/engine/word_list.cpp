#include "engine/word_list.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "engine/char_class.h"
#include "engine/fold_accents.h"
#include "engine/normal_text.h"
#include "engine/run_cutter.h"
#include "engine/scan_settings.h"
#include "engine/word_rules.h"

namespace quillomat {
namespace {

std::string LowerCaseBy(LetterRule letters, std::string_view text) {
  return letters == LetterRule::kAll ? NormalLowerCase(text) : LowerCase(text);
}

/// As runs of a text that may hold any sign.
void CutItems(std::vector<std::string>& items, LetterRule letters, SegmenterMaker makeSegmenter) {
  std::string signs;
  for (const std::string_view ofFlag : kAllowFlagChars) signs += ofFlag;
  const CharClass charClass(true, signs, letters);
  RunCutter cutter(charClass, letters, makeSegmenter);
  std::vector<std::string> parts;
  for (const std::string& item : items) {
    cutter.ForEachPart(item, [&parts](std::string_view part) { parts.emplace_back(part); });
  }
  items = std::move(parts);
}

}  // namespace

WordList::WordList(std::vector<std::string> words, LetterRule letters)
    : words_(std::move(words)), letters_(letters) {
  std::string scratch;
  for (const std::string& word : words_) lookup_.emplace(FormOf(word, scratch));
}

bool WordList::IsInList(std::string_view word) const {
  if (word.empty() || words_.empty()) return false;
  std::string scratch;
  return lookup_.find(FormOf(word, scratch)) != lookup_.end();
}

/// As words are told apart where accents make a difference.
std::string_view WordList::FormOf(std::string_view word, std::string& scratch) const {
  return SortKeyOf(word, {.letters = letters_, .keepAccents = true}, scratch);
}

ListVerdict WordLists::VerdictOn(std::string_view word, bool countOnlyMode) const {
  using enum ListVerdict;
  if (countOnlyMode) {
    const bool listed = ExtraCountOnlyList.IsInList(word) || CountOnlyList.IsInList(word);
    return listed ? kAdmitted : kNotCountOnly;
  }
  if (ExtraIgnoreList.IsInList(word)) return kTypedToIgnore;
  return IgnoreList.IsInList(word) ? kFileToIgnore : kAdmitted;
}

SplitResult SplitList(std::string_view text, std::string_view separators, std::size_t capacity) {
  SplitResult result;
  std::size_t start = text.find_first_not_of(separators);
  while (start != std::string_view::npos) {
    if (result.items.size() == capacity) return {false, {}};
    const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
    result.items.emplace_back(text.substr(start, end - start));
    start = text.find_first_not_of(separators, end);
  }
  return result;
}

SplitResult ParseTypedWords(std::string_view text, LetterRule letters,
                            SegmenterMaker makeSegmenter) {
  SplitResult result = SplitList(LowerCaseBy(letters, text), " \t\r\n", kMaxTypedWords);
  if (makeSegmenter != nullptr) CutItems(result.items, letters, makeSegmenter);
  if (result.items.size() > kMaxTypedWords) return {false, {}};
  for (std::string& item : result.items) item.resize(TrimTrailingChars(item, "-'_.,:").size());
  std::erase(result.items, std::string());
  return result;
}

}  // namespace quillomat
