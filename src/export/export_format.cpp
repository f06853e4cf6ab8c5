#include "export/export_format.h"

#include <algorithm>

#include "base/letter_case.h"
#include "system/paths.h"

namespace quillomat {

std::optional<ExportFormat> ExportFormatOfPath(std::string_view path) {
  std::string ending = LowerCase(ExtensionOf(path));
  if (ending == "htm") ending = "html";
  if (ending == "markdown") ending = "md";
  const auto found = std::ranges::find(kExportFormats, ending, &ExportFormatInfo::ending);
  if (found == kExportFormats.end()) return std::nullopt;
  return found->format;
}

std::string ExportEndings() {
  std::string endings;
  for (const ExportFormatInfo& info : kExportFormats) {
    endings.append(endings.empty() ? "" : ", ").append(info.ending);
  }
  return endings;
}

}  // namespace quillomat
