#include "ui/desktop.h"

#include "base/text_helpers.h"

namespace quillomat {

std::vector<FileFilter> SplitFileFilter(std::string_view filter) {
  std::vector<FileFilter> filters;
  while (!filter.empty()) {
    const std::size_t bar = filter.find('|');
    const std::size_t nextBar = bar == filter.npos ? filter.npos : filter.find('|', bar + 1);
    const std::string_view description = filter.substr(0, bar);
    const std::string_view pattern =
        bar == filter.npos ? "*" : filter.substr(bar + 1, nextBar - bar - 1);
    filters.push_back({std::string(TrimBlanks(description)), std::string(TrimBlanks(pattern))});
    filter = nextBar == filter.npos ? std::string_view() : filter.substr(nextBar + 1);
  }
  return filters;
}

}  // namespace quillomat
