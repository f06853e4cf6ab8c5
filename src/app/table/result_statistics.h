// The statistics of the last count, as the window shows them: a name and a value each, in the
// current language. They come when a count has ended and go before its words do.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/list/current_words.h"
#include "app/table/row_cells.h"
#include "listing/statistics.h"
#include "text/program_text.h"
#include "ui/event.h"

namespace quillomat {

class ResultStatistics {
 public:
  /// Both outlive the object.
  ResultStatistics(const CurrentWords& words, const ProgramText& text);

  /// Fired when there are others, or none any more.
  Event<> Changed;

  struct Row {
    std::string name;
    std::string value;
    bool isNumber = true;

    bool operator==(const Row&) const = default;
  };
  /// None while there is no count; first, what they are missing if they are not of the whole text.
  /// Worked out when first asked for, which takes a moment.
  [[nodiscard]] std::vector<Row> Rows(const NumberSigns& signs);

 private:
  void AddIncompleteness(std::vector<Row>& rows, const NumberSigns& signs) const;

  const CurrentWords& words_;
  const ProgramText& text_;
  bool hasWords_ = false;
  std::optional<Statistics> statistics_;
};

}  // namespace quillomat
