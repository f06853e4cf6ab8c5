#include "engine/word_list.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "engine/char_class.h"
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

ListVerdict WordLists::VerdictOn(std::string_view word, bool countOnlyMode,
                                 LetterRule letters) const {
  using enum ListVerdict;
  if (countOnlyMode) {
    const std::string lower = LowerCaseBy(letters, word);
    const bool listed = ExtraCountOnlyList.IsInList(lower) || CountOnlyList.IsInList(lower);
    return listed ? kAdmitted : kNotCountOnly;
  }
  if (ExtraIgnoreList.Count() == 0 && IgnoreList.Count() == 0) return kAdmitted;
  const std::string lower = LowerCaseBy(letters, word);
  if (ExtraIgnoreList.IsInList(lower)) return kTypedToIgnore;
  return IgnoreList.IsInList(lower) ? kFileToIgnore : kAdmitted;
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
