#include "app/list/found_below.h"

#include <optional>

#include "app/table/row_filter.h"
#include "base/text_helpers.h"
#include "listing/word_search.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {

std::string FoundBelowText(std::string_view wanted, const ListPart& part, const CountedWords& words,
                           WordOrder order, const ProgramText& text, std::string_view separator) {
  std::optional<FoundBelow> found;
  if (part.IsCut())
    found = FindBelow(words, order, part.shown, KeyOfTyped(wanted, words.store.Rule()));
  if (!found) return {};
  const std::int32_t rank = words.ranking.rankOf[static_cast<std::size_t>(found->place)];
  return Filled(
      text.GetText(found->isTheWord ? kFoundBelowText : kSimilarFoundBelowText),
      {GroupDigits(rank, separator), GroupDigits(words.store.CountOf(found->place), separator),
       std::string(words.store.WordOf(found->place))});
}

}  // namespace quillomat
