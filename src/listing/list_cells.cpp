#include "listing/list_cells.h"

#include <algorithm>
#include <cstddef>

namespace quillomat {

void ListCells::Add(std::string_view entry, std::span<const CellSpan> cells) {
  std::size_t next = 0;
  for (std::size_t begin = 0; begin < entry.size();) {
    const std::size_t end = std::min(entry.find('\n', begin), entry.size());
    std::vector<CellSpan> ofLine;
    for (; next < cells.size() && cells[next].end <= end; ++next) {
      ofLine.push_back({cells[next].begin - begin, cells[next].end - begin});
    }
    std::string_view line = entry.substr(begin, end - begin);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (ofLine.size() > 1) cells_.insert_or_assign(std::string(line), std::move(ofLine));
    begin = end + 1;
  }
}

std::span<const CellSpan> ListCells::Of(std::string_view line) const {
  const auto found = cells_.find(line);
  if (found == cells_.end()) return {};
  return found->second;
}

void CellSink::TakeHeader(std::string_view /*line*/) {
  AddLineOf(0);
}

bool CellSink::TakeWord(std::int32_t index, std::string_view /*line*/) {
  if (wordsLeft_ == 0) return false;
  AddLineOf(index);
  return --wordsLeft_ > 0;
}

void CellSink::AddLineOf(std::int32_t index) {
  std::string line;
  std::vector<CellSpan> cells;
  formatter_.FormatWordLine(line, index, &cells);
  cells_.Add(line, cells);
}

}  // namespace quillomat
