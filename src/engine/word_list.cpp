#include "engine/word_list.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "engine/normal_text.h"
#include "engine/word_rules.h"

namespace quillomat {
namespace {

std::string LowerCaseBy(LetterRule letters, std::string_view text) {
  return letters == LetterRule::kAll ? NormalLowerCase(text) : LowerCase(text);
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

SplitResult ParseTypedWords(std::string_view text, LetterRule letters) {
  SplitResult result = SplitList(LowerCaseBy(letters, text), " \t\r\n", kMaxTypedWords);
  for (std::string& item : result.items) item.resize(TrimTrailingChars(item, "-'_.,:").size());
  std::erase(result.items, std::string());
  return result;
}

}  // namespace quillomat
