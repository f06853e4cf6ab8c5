#include "sources/count_observer.h"

#include <algorithm>

namespace quillomat {
namespace {

double Share(std::int64_t done, std::int64_t whole) {
  if (whole <= 0) return 0;
  return std::min(1.0, static_cast<double>(done) / static_cast<double>(whole));
}

}  // namespace

double CountProgress::ShareOfFile() const {
  return Share(bytesRead, bytesInFile);
}

double CountProgress::ShareOfRun() const {
  if (bytesInRun > 0) return Share(runBytesRead, bytesInRun);
  if (filesInRun <= 0) return ShareOfFile();
  return std::min(1.0, (filesDone + ShareOfFile()) / filesInRun);
}

}  // namespace quillomat
