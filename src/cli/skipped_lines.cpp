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

void PrintLeftOut(std::ostream& err, const LeftOut& leftOut, const Messages& messages) {
  const std::int64_t files = leftOut.InAll();
  if (files == 0) return;
  err << Headed{MessageTone::kWarning, "Note: "} << messages.Grouped(files)
      << (files == 1 ? " file was" : " files were")
      << " left out: " << leftOut.Reasons("no text or empty") << "; --report names "
      << (files == 1 ? "it" : "them") << ".\n";
}

}  // namespace quillomat
