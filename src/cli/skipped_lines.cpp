#include "cli/skipped_lines.h"

#include <ostream>

#include "cli/standard_output.h"

namespace quillomat {

void PrintSkipped(std::ostream& err, const std::vector<std::string>& items, std::int64_t inAll,
                  const Messages& messages) {
  constexpr Headed kSkipped{MessageTone::kWarning, "Skipped: "};
  for (const std::string& item : items) err << kSkipped << item << '\n';
  const std::int64_t more = inAll - static_cast<std::int64_t>(items.size());
  if (more > 0) err << kSkipped << messages.Grouped(more) << " more\n";
}

}  // namespace quillomat
