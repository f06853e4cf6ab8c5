#include "app/table/row_cells.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "app/count/reach_text.h"
#include "base/text_helpers.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

/// So many that also the rarest word of a long novel has a share that is not 0.
constexpr int kPercentDecimals = 4;
constexpr int kCumulativeDecimals = 2;
constexpr int kPerMillionDecimals = 1;

/// `number` is 0 or above.
std::string Decimal(double number, int decimals, const NumberSigns& signs) {
  const double unit = std::pow(10.0, decimals);
  const auto units = static_cast<std::int64_t>(std::llround(number * unit));
  const auto whole = units / static_cast<std::int64_t>(unit);
  const std::string fraction = std::to_string(units % static_cast<std::int64_t>(unit));
  return GroupDigits(whole, signs.group) + signs.decimal +
         std::string(static_cast<std::size_t>(decimals) - fraction.size(), '0') + fraction;
}

/// A numbered text with a number in place of "%1"; one text for 1, another for all else.
std::string Counted(std::int64_t number, int textForOne, int textForMany, const ProgramText& text,
                    const NumberSigns& signs) {
  return Filled(text.GetText(number == 1 ? textForOne : textForMany),
                {GroupDigits(number, signs.group)});
}

}  // namespace

std::string CellOf(const WordRow& row, WordColumn column, const NumberSigns& signs) {
  switch (column) {
    case WordColumn::kRank:
      return GroupDigits(row.rank, signs.group);
    case WordColumn::kWord:
      return std::string(row.word);
    case WordColumn::kFrequency:
      return GroupDigits(row.frequency, signs.group);
    case WordColumn::kPercent:
      return Decimal(row.percent, kPercentDecimals, signs);
    case WordColumn::kPerMillion:
      return Decimal(row.perMillion, kPerMillionDecimals, signs);
    case WordColumn::kCumulative:
      return Decimal(row.cumulativePercent, kCumulativeDecimals, signs);
    case WordColumn::kLength:
      return GroupDigits(static_cast<std::int64_t>(row.length), signs.group);
    case WordColumn::kFiles:
      return row.files ? GroupDigits(*row.files, signs.group) : std::string();
    case WordColumn::kFile:
      break;
  }
  return {};
}

std::string TotalsOf(const WordRows& rows, const std::optional<CountReach>& stopped,
                     const ProgramText& text, const NumberSigns& signs) {
  const auto words = static_cast<std::int64_t>(rows.Size());
  const std::string totals =
      Counted(words, kOneWordText, kWordsText, text, signs) + ", " +
      Counted(rows.Instances(), kOneInstanceText, kInstancesText, text, signs);
  return stopped ? totals + " \u2013 " + ReachText(*stopped, text, signs) : totals;
}

}  // namespace quillomat
