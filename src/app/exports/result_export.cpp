#include "app/exports/result_export.h"

#include <algorithm>
#include <iterator>

#include "app/setting_values.h"
#include "app/settings_table.h"
#include "listing/statistics.h"

namespace quillomat {
namespace {

std::vector<ExportFact> SettingsOf(const MainForm& frmMain, const ParamsForm& frmParams) {
  std::vector<ExportFact> facts;
  for (const Setting& setting : AllSettings()) {
    facts.push_back(
        {std::string(setting.control), ValueTextOf(ControlOf(setting, frmMain, frmParams))});
  }
  return facts;
}

std::vector<ExportFact> TotalsOf(const CurrentWords& words) {
  std::vector<ExportFact> facts = {{"words", std::int64_t{words.totals.NumIncludedWords}},
                                   {"words-excluded", std::int64_t{words.totals.NumExcludedWords}},
                                   {"instances", std::int64_t{words.totals.TotalIncludedCount}},
                                   {"instances-of-all-words", std::int64_t{words.WordsRead}}};
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
  if (wish.among) places = Common(places, *wish.among);
  if (wish.first && *wish.first < places.size()) places.resize(*wish.first);
  return places;
}

}  // namespace

bool NeedsFiles(WordColumn column) {
  return column == WordColumn::kFile || column == WordColumn::kFiles;
}

std::optional<NeededAs> WhyNotToExport(const std::string& path, const CurrentWords& words,
                                       const InForce& inForce) {
  return WhyNotToWrite(path, words.counted, inForce.filesRead);
}

ResultExport::ResultExport(const CurrentWords& words, const MainForm& frmMain,
                           const ParamsForm& frmParams, const ExportWish& wish)
    : words_(words.Counted(), words.WordsRead),
      places_(PlacesOf(words_, wish)),
      table_{words_,
             places_,
             wish.columns,
             TotalsOf(words),
             FactsOf(StatisticsOf(words.store, words.orderFigures)),
             SettingsOf(frmMain, frmParams)} {}

}  // namespace quillomat
