#include "app/table/result_statistics.h"

#include <cstdint>
#include <variant>

#include "app/count/reach_text.h"
#include "base/text_helpers.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

std::string Localized(double number, const NumberSigns& signs) {
  return ReplaceAll(NumberText(number), ".", signs.decimal);
}

std::string ValueOf(const StatisticValue& value, const NumberSigns& signs) {
  if (const auto* whole = std::get_if<std::int64_t>(&value))
    return GroupDigits(*whole, signs.group);
  if (const auto* number = std::get_if<double>(&value)) return Localized(*number, signs);
  return std::get<std::string>(value);
}

}  // namespace

ResultStatistics::ResultStatistics(const CurrentWords& words, const ProgramText& text)
    : words_(words), text_(text) {
  words_.WordsRanked.Connect([this] {
    hasWords_ = true;
    statistics_.reset();
    Changed.Fire();
  });
  words_.WordsGo.Connect([this] {
    if (!hasWords_) return;
    hasWords_ = false;
    statistics_.reset();
    Changed.Fire();
  });
}

void ResultStatistics::AddIncompleteness(std::vector<Row>& rows, const NumberSigns& signs) const {
  const std::string name = text_.GetText(kPartOfTextText);
  if (words_.stoppedAfter) {
    rows.push_back({name, ReachText(*words_.stoppedAfter, text_, signs), false});
  }
  const std::int64_t skipped = words_.folder.skipped;
  if (skipped == 0) return;
  rows.push_back({name,
                  Filled(text_.GetText(skipped == 1 ? kFileSkippedText : kFilesSkippedText),
                         {GroupDigits(skipped, signs.group)}),
                  false});
}

std::vector<ResultStatistics::Row> ResultStatistics::Rows(const NumberSigns& signs) {
  std::vector<Row> rows;
  if (!hasWords_) return rows;
  AddIncompleteness(rows, signs);
  if (!statistics_) statistics_ = StatisticsOf(words_.store, words_.orderFigures);
  for (const Statistic& statistic : ListStatistics(*statistics_)) {
    const std::string name = text_.GetText(kFirstStatisticText + static_cast<int>(statistic.name));
    const auto* points = std::get_if<std::vector<GrowthPoint>>(&statistic.value);
    if (points == nullptr) {
      const bool isNumber = !std::holds_alternative<std::string>(statistic.value);
      rows.push_back({name, ValueOf(statistic.value, signs), isNumber});
      continue;
    }
    for (const GrowthPoint& point : *points) {
      const std::string& after =
          point.instances == 1 ? text_.GetText(kWordsAfterOneInstanceText) : name;
      rows.push_back({Filled(after, {GroupDigits(point.instances, signs.group)}),
                      GroupDigits(point.differentWords, signs.group)});
    }
  }
  return rows;
}

}  // namespace quillomat
