#include "listing/list_cells.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// The columns of the formats of one line a word: N for a number, W for the word.
constexpr std::array<std::string_view, 12> kColumns = {"NNW", "NWN", "NN", "NW", "NN",    "NW",
                                                       "WN",  "WN",  "W",  "W",  "NNNNW", "WNN"};
constexpr std::array<std::string_view, 7> kHeaders = {"Rank",  "Freq",   "No. files", "L10(R)",
                                                      "LN(R)", "L10(F)", "LN(F)"};
constexpr std::string_view kWordHeader = "Word";
constexpr std::size_t kPathIndent = 4;
/// A frequency with more digits leaves no blank before it.
constexpr std::size_t kFrequencyWidth = 5;

bool IsNumber(std::string_view cell) {
  return !cell.empty() && cell.find_first_not_of("0123456789.") == std::string_view::npos;
}

bool IsNumberCell(std::string_view cell) {
  return IsNumber(cell) || std::ranges::find(kHeaders, cell) != kHeaders.end();
}

bool IsWordCell(std::string_view cell) {
  return cell.find(' ') == std::string_view::npos || cell.starts_with(kWordHeader);
}

/// Takes the text up to the next blanks off `rest`.
std::string_view TakeCell(std::string_view& rest) {
  const std::string_view cell = rest.substr(0, rest.find(' '));
  rest = TrimBlanks(rest.substr(cell.size()));
  return cell;
}

std::vector<std::string_view> CellsOfColumns(std::string_view line, std::string_view columns) {
  std::string_view rest = TrimBlanks(line);
  std::vector<std::string_view> cells;
  for (std::size_t i = 0; i + 1 < columns.size(); ++i) cells.push_back(TakeCell(rest));
  cells.push_back(rest);  // of a header it may have blanks
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const bool fits = columns[i] == 'N' ? IsNumberCell(cells[i]) : IsWordCell(cells[i]);
    if (!fits || cells[i].empty()) return {line};
  }
  return cells;
}

std::vector<std::string_view> CellsOfFile(std::string_view line) {
  const std::string_view indent = line.substr(0, kPathIndent);
  if (line.size() <= kPathIndent || !TrimBlanks(indent).empty()) return {line};
  return {line.substr(0, 0), line.substr(kPathIndent)};
}

std::vector<std::string_view> CellsOfFileWithFrequency(std::string_view line) {
  const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
  const std::size_t end = line.find(' ', start);
  if (end == std::string_view::npos || end < kFrequencyWidth) return {line};
  const std::string_view frequency = line.substr(start, end - start);
  if (!IsNumber(frequency) || end != std::max(kFrequencyWidth, frequency.size())) return {line};
  return {line.substr(0, 0), frequency, line.substr(end + 1)};
}

}  // namespace

std::vector<std::string_view> CellsOf(std::string_view line, DisplayFormat format) {
  if (format == DisplayFormat::kWordCommas) return {line};
  if (format == DisplayFormat::kWordFileList) return CellsOfFile(line);
  if (format == DisplayFormat::kWordFileListFreq) return CellsOfFileWithFrequency(line);
  return CellsOfColumns(line, kColumns[static_cast<std::size_t>(format)]);
}

}  // namespace quillomat
