#include "cli/list_notes.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>

#include "cli/standard_output.h"

namespace quillomat {
namespace {

constexpr Headed kNote{MessageTone::kWarning, "Note: "};

bool IsCountOnly(const WordLists& lists, const std::string& word) {
  return lists.CountOnlyList.IsInList(word) || lists.ExtraCountOnlyList.IsInList(word);
}

/// A word that is typed and stands in the file, too, is one.
std::int64_t CountInBoth(const WordLists& lists) {
  const auto typed =
      std::ranges::count_if(lists.ExtraIgnoreList.Words(),
                            [&lists](const std::string& word) { return IsCountOnly(lists, word); });
  const auto ofFile =
      std::ranges::count_if(lists.IgnoreList.Words(), [&lists](const std::string& word) {
        return !lists.ExtraIgnoreList.IsInList(word) && IsCountOnly(lists, word);
      });
  return std::int64_t{typed} + ofFile;
}

}  // namespace

void TellListsWithoutEffect(std::string_view countOnlySource, const WordLists& lists,
                            const Messages& messages, std::ostream& err) {
  if (!countOnlySource.empty() && !lists.HasCountOnlyWords()) {
    err << kNote << countOnlySource
        << " gives no count-only word that can be counted; all words are counted.\n";
  }
  const std::int64_t inBoth = CountInBoth(lists);
  if (inBoth == 1) {
    err << kNote << "1 word to ignore is a count-only word, too; it is counted.\n";
  } else if (inBoth > 1) {
    err << kNote << messages.Grouped(inBoth)
        << " words to ignore are count-only words, too; they are counted.\n";
  }
}

}  // namespace quillomat
