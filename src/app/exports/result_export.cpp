#include "app/exports/result_export.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "listing/statistics.h"

namespace quillomat {
namespace {

/// In the order of FilterKind.
constexpr std::array<const char*, 6> kFilterNames = {"filter-contains",  "filter-begins-with",
                                                     "filter-ends-with", "filter-is",
                                                     "filter-pattern",   "filter-expression"};

/// What of the list is exported, where that is not all.
void AddSelection(std::vector<ExportFact>& facts, const ExportWish& wish, std::size_t listed,
                  std::size_t exported) {
  if (wish.among) {
    const RowFilter& filter = wish.among->filter;
    facts.push_back({kFilterNames.at(static_cast<std::size_t>(filter.kind)), filter.text});
  }
  if (wish.first) facts.push_back({"top", static_cast<std::int64_t>(*wish.first)});
  if (exported == listed) return;
  facts.push_back({"words-exported", static_cast<std::int64_t>(exported)});
}

std::vector<ExportFact> TotalsOf(const CurrentWords& words, const ExportWish& wish,
                                 std::size_t exported) {
  std::vector<ExportFact> facts = CompletenessOf(words);
  AddSelection(facts, wish, static_cast<std::size_t>(words.totals.NumIncludedWords), exported);
  facts.push_back({"words", std::int64_t{words.totals.NumIncludedWords}});
  facts.push_back({"words-excluded", std::int64_t{words.totals.NumExcludedWords}});
  facts.push_back({"instances-listed", std::int64_t{words.totals.TotalIncludedCount}});
  facts.push_back({"instances-of-all-words", std::int64_t{words.WordsRead}});
  if (words.folder.filesScanned > 0) {
    facts.push_back({"files", std::int64_t{words.folder.filesScanned}});
    facts.push_back({"folders", std::int64_t{words.folder.foldersScanned}});
  }
  return facts;
}

/// Those of `places` that are in `among`, in their order.
std::vector<std::int32_t> Common(const std::vector<std::int32_t>& places,
                                 std::vector<std::int32_t> among) {
  std::ranges::sort(among);
  std::vector<std::int32_t> common;
  common.reserve(among.size());
  std::ranges::copy_if(places, std::back_inserter(common), [&among](std::int32_t place) {
    return std::ranges::binary_search(among, place);
  });
  return common;
}

std::vector<std::int32_t> PlacesOf(const WordTable& words, const ExportWish& wish) {
  std::vector<std::int32_t> places =
      wish.order == WordOrder::kAlphabetical ? words.Alphabetical() : words.ByFrequency();
  if (wish.among) places = Common(places, wish.among->places);
  if (wish.first && *wish.first < places.size()) places.resize(*wish.first);
  return places;
}

}  // namespace

std::vector<ExportFact> CompletenessOf(const CurrentWords& words) {
  std::vector<ExportFact> facts = {{"complete", words.AreOfWholeText()}};
  const auto add = [&facts](const char* name, std::int64_t number) {
    if (number > 0) facts.push_back({name, number});
  };
  add("skipped", words.folder.skipped);
  if (!words.stoppedAfter) return facts;
  const CountReach& reach = *words.stoppedAfter;
  if (reach.filesInAll > 0) facts.push_back({"files-begun", std::int64_t{reach.files}});
  add("files-in-all", reach.filesInAll);
  add("bytes-read", reach.bytes);
  add("bytes-in-all", reach.bytesInAll);
  return facts;
}

bool NeedsFiles(WordColumn column) {
  return column == WordColumn::kFile || column == WordColumn::kFiles;
}

std::optional<NeededAs> WhyNotToExport(const std::string& path, const CurrentWords& words,
                                       const InForce& inForce) {
  return WhyNotToWrite(path, words.counted, inForce.filesRead);
}

ResultExport::ResultExport(const CurrentWords& words, const ExportWish& wish)
    : words_(words.Counted(), words.WordsRead),
      places_(PlacesOf(words_, wish)),
      table_{words_,
             places_,
             wish.columns,
             TotalsOf(words, wish, places_.size()),
             FactsOf(StatisticsOf(words.store, words.orderFigures)),
             words.settings,
             wish.order} {}

}  // namespace quillomat
