#include "export/cell_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>
#include <variant>

#include "base/well_formed_text.h"

namespace quillomat {
namespace {

constexpr int kPercentDecimals = 6;
constexpr int kPerMillionDecimals = 2;

void AppendInteger(std::string& out, std::int64_t number) {
  std::array<char, 24> text{};
  char* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  out.append(text.data(), end);
}

/// `value` is not negative and below 10^12.
void AppendDecimal(std::string& out, double value, int decimals) {
  constexpr std::array<std::int64_t, 7> kPowers = {1, 10, 100, 1000, 10'000, 100'000, 1'000'000};
  const std::int64_t power = kPowers.at(static_cast<std::size_t>(decimals));
  const std::int64_t scaled = std::llround(value * static_cast<double>(power));
  AppendInteger(out, scaled / power);
  std::array<char, 8> fraction{};
  fraction[0] = '.';
  std::int64_t rest = scaled % power;
  for (int place = decimals; place > 0; --place) {
    fraction.at(static_cast<std::size_t>(place)) = static_cast<char>('0' + rest % 10);
    rest /= 10;
  }
  out.append(fraction.data(), static_cast<std::size_t>(decimals) + 1);
}

/// The files of the count, by their numbers.
std::vector<std::string> NamesOfFiles(const WordStore& store) {
  std::vector<std::string> names;
  names.reserve(store.Files().FileList().size());
  for (const std::string& path : store.Files().FileList()) names.push_back(WellFormedText(path));
  return names;
}

/// A row for each file of the word at `place`, which `row` is of.
bool TakeRowsOfFiles(const WordTable& words, std::int32_t place,
                     const std::vector<std::string>& names, ExportRow& row,
                     const std::function<bool(const ExportRow&)>& take) {
  const FileTally* files = words.Words().store.FilesOf(place);
  if (files == nullptr) return true;
  for (std::size_t i = 0; i < files->FileNumbers.size(); ++i) {
    row.file = names[static_cast<std::size_t>(files->FileNumbers[i])];
    words.SetFrequency(row.word, files->FileCounts[i]);
    if (!take(row)) return false;
  }
  return true;
}

}  // namespace

std::vector<ExportFact> FactsOf(const Statistics& statistics) {
  std::vector<ExportFact> facts;
  for (Statistic& statistic : ListStatistics(statistics)) {
    FactValue value =
        std::visit([](auto& each) { return FactValue(std::move(each)); }, statistic.value);
    facts.push_back({std::string(NameOf(statistic.name)), std::move(value)});
  }
  return facts;
}

std::vector<WordColumn> UsualColumns(bool knowsFiles) {
  std::vector<WordColumn> columns = {WordColumn::kRank,       WordColumn::kWord,
                                     WordColumn::kFrequency,  WordColumn::kPercent,
                                     WordColumn::kPerMillion, WordColumn::kCumulative,
                                     WordColumn::kLength};
  if (knowsFiles) columns.push_back(WordColumn::kFiles);
  return columns;
}

std::string_view TextOf(const ExportRow& row, WordColumn column) {
  return column == WordColumn::kFile ? row.file : row.word.word;
}

bool HasNumber(const ExportRow& row, WordColumn column) {
  return column != WordColumn::kFiles || row.word.files.has_value();
}

double NumberOf(const ExportRow& row, WordColumn column) {
  switch (column) {
    case WordColumn::kRank:
      return row.word.rank;
    case WordColumn::kFrequency:
      return row.word.frequency;
    case WordColumn::kPercent:
      return row.word.percent;
    case WordColumn::kPerMillion:
      return row.word.perMillion;
    case WordColumn::kCumulative:
      return row.word.cumulativePercent;
    case WordColumn::kLength:
      return static_cast<double>(row.word.length);
    case WordColumn::kFiles:
      return row.word.files.value_or(0);
    case WordColumn::kWord:
    case WordColumn::kFile:
      return 0;
  }
  return 0;
}

int DecimalsOf(WordColumn column) {
  switch (column) {
    case WordColumn::kPercent:
    case WordColumn::kCumulative:
      return kPercentDecimals;
    case WordColumn::kPerMillion:
      return kPerMillionDecimals;
    default:
      return 0;
  }
}

void AppendNumber(std::string& out, const ExportRow& row, WordColumn column) {
  if (!HasNumber(row, column)) return;
  const int decimals = DecimalsOf(column);
  if (decimals == 0) {
    AppendInteger(out, static_cast<std::int64_t>(NumberOf(row, column)));
  } else {
    AppendDecimal(out, NumberOf(row, column), decimals);
  }
}

void AppendHtml(std::string& out, std::string_view text) {
  for (const char ch : text) {
    switch (ch) {
      case '&':
        out.append("&amp;");
        break;
      case '<':
        out.append("&lt;");
        break;
      case '>':
        out.append("&gt;");
        break;
      case '"':
        out.append("&quot;");
        break;
      default:
        out.push_back(ch);
    }
  }
}

std::string TextOf(const ExportFact& fact) {
  if (const auto* text = std::get_if<std::string>(&fact.value)) return WellFormedText(*text);
  if (const auto* yes = std::get_if<bool>(&fact.value)) return *yes ? "true" : "false";
  std::string number;
  if (const auto* texts = std::get_if<std::vector<std::string>>(&fact.value)) {
    std::string lines;
    for (const std::string& each : *texts) {
      lines.append(lines.empty() ? "" : "\n").append(WellFormedText(each));
    }
    return lines;
  }
  if (const auto* points = std::get_if<std::vector<GrowthPoint>>(&fact.value)) {
    for (const GrowthPoint& point : *points) {
      if (!number.empty()) number.append("; ");
      AppendInteger(number, point.instances);
      number.append(": ");
      AppendInteger(number, point.differentWords);
    }
    return number;
  }
  if (const auto* whole = std::get_if<std::int64_t>(&fact.value)) {
    AppendInteger(number, *whole);
    return number;
  }
  std::array<char, 40> text{};
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), std::get<double>(fact.value)).ptr;
  return {text.data(), end};
}

bool ForEachRow(const ExportTable& table, const std::function<bool(const ExportRow&)>& take) {
  constexpr std::size_t kFetchedAhead = 16;
  const bool perFile = std::ranges::find(table.columns, WordColumn::kFile) != table.columns.end();
  const WordStore& store = table.words.Words().store;
  const std::vector<std::string> names = perFile ? NamesOfFiles(store) : std::vector<std::string>();
  ExportRow row;
  for (std::size_t i = 0; i < table.places.size(); ++i) {
    // Words that follow each other by frequency lie anywhere in the memory.
    if (i + kFetchedAhead < table.places.size()) store.PrefetchAt(table.places[i + kFetchedAhead]);
    const std::int32_t place = table.places[i];
    row.word = table.words.RowOf(place);
    if (perFile ? !TakeRowsOfFiles(table.words, place, names, row, take) : !take(row)) {
      return false;
    }
  }
  return true;
}

}  // namespace quillomat
