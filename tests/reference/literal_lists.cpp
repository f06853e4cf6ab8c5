#include "reference/literal_lists.h"

#include "reference/literal_engine.h"
#include "reference/literal_rules.h"

namespace quillomat::reference {

void WordList::Add(std::string_view word) {
  entries.push_back(FromUtf8(word));
  count += 1;
}

std::vector<std::string> WordList::Words() const {
  std::vector<std::string> words;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(count); ++i) {
    words.push_back(ToUtf8(entries[i]));
  }
  return words;
}

bool IsInList(const Characters& word, const std::vector<Characters>& list, std::int32_t first,
              std::int32_t count, bool sorted,
              const std::function<Characters(const Characters&)>& keyOf) {
  if (word.empty() || count == 0) return false;
  const Characters wordKey = keyOf(word);
  for (std::int32_t i = first; i <= first + count - 1; ++i) {
    const Characters& entry = list[static_cast<std::size_t>(i)];
    if (sorted && keyOf(entry) > wordKey) return false;
    if (entry == word) return true;
  }
  return false;
}

std::int32_t SplitList(const Characters& text, char32_t separator, std::vector<Characters>& array) {
  const std::size_t upperBound = array.size() - 1;
  std::vector<Characters> items;
  Characters item;
  for (const char32_t character : text + separator) {
    if (character != separator) {
      item += character;
    } else if (!item.empty()) {
      items.push_back(item);
      item.clear();
    }
  }
  if (items.size() > upperBound) return kItemsDoNotFit;
  for (std::size_t i = 0; i < items.size(); ++i) array[i] = items[i];
  return static_cast<std::int32_t>(items.size());
}

/// As the words of a text are cut in which every sign is allowed.
std::vector<Characters> LiteralEngine::CutItems(const std::vector<Characters>& items) const {
  std::vector<Characters> cut;
  for (const Characters& item : items) {
    for (const Characters& part : CutRun(item, true, U"-'_:\\/().,@0123456789", findWords)) {
      cut.push_back(part);
    }
  }
  return cut;
}

std::string LiteralEngine::GetExtraWords(int index) {
  const std::string& typed = choices.txbWordsToIgnoreOrCount[static_cast<std::size_t>(index)];
  Characters text = Trim(Lower(FromUtf8(typed)));
  for (char32_t& character : text) {
    if (character == U'\t' || character == U'\r' || character == U'\n') character = U' ';
  }
  std::vector<Characters> work(1001);
  const std::int32_t n = SplitList(text, U' ', work);
  if (n == kItemsDoNotFit) {
    return index == 0 ? "Too many words to ignore." : "Too many count-only words.";
  }
  std::vector<Characters> items(work.begin(), work.begin() + n);
  if (AllLetters() && findWords) items = CutItems(items);
  if (items.size() > 1000) {
    return index == 0 ? "Too many words to ignore." : "Too many count-only words.";
  }
  WordList list;
  Characters cleaned;
  for (const Characters& whole : items) {
    const Characters item = TrimTrailingChars(whole, U"-'_.,:");
    if (item.empty()) continue;  // signs alone are no word
    if (!cleaned.empty()) cleaned += U" ";
    cleaned += item;
    list.entries.push_back(item);
    ++list.count;
  }
  (index == 0 ? ExtraIgnoreList : ExtraCountOnlyList) = list;
  return ToUtf8(cleaned);
}

std::vector<std::string> LiteralEngine::ReadListLines(const std::vector<std::string>& lines) {
  ReadingWordList = true;
  SetAllowWordsFlags();
  BuildExtraWordChars();
  ClearListCharFlags();
  const int suppressWords = choices.chkSuppressWords;
  const int allowCommentMarkers = choices.chkAllowCommentMarkers;
  const auto restore = [&] {
    choices.chkSuppressWords = suppressWords;
    choices.chkAllowCommentMarkers = allowCommentMarkers;
  };
  choices.chkSuppressWords = 1;
  choices.chkAllowCommentMarkers = 1;
  SetCommentMarkers("C");
  EmptyStore();
  try {
    CollectListWords(lines);
  } catch (const Overflow&) {
    restore();
    throw;
  }
  restore();
  std::vector<std::string> words;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(NumDifferentWords); ++i) {
    words.push_back(ToUtf8(WordStore[i].Word));
  }
  return words;
}

void LiteralEngine::CollectListWords(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    const Characters trimmed = Trim(FromUtf8(line));
    if (trimmed.empty()) continue;
    LineBuffer = AllLetters() ? LowerCaseOfAll(NormalForm(trimmed)) : LowerCase(trimmed);
    LineBuffer += U" ";
    GetWords();
  }
}

void LiteralEngine::ReadWords(int index, const std::vector<std::string>& lines) {
  WordList list;
  for (const std::string& word : ReadListLines(lines)) list.Add(word);
  if (index == 1) {
    CountOnlyList = list;
    TickAllowBoxesForListWords();
  } else {
    IgnoreList = list;
  }
}

}  // namespace quillomat::reference
