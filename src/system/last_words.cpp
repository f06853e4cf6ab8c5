#include "system/last_words.h"

#include <atomic>
#include <forward_list>
#include <utility>
#include <vector>

#include "system/interruption.h"

namespace quillomat {
namespace {

using LineOfFiles = std::function<std::string(std::span<const std::string> paths)>;

// Not constant: all that a signal handler can get at are variables of the process.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
LineOfFiles lineOfFiles;
std::vector<std::string> written;
/// A signal may come while the words change: it finds the former ones or the new ones, whole.
std::forward_list<std::string> kept;
std::atomic<const std::string*> lastWords{nullptr};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

}  // namespace

void TellOfWrittenFiles(LineOfFiles line) {
  lineOfFiles = std::move(line);
  written.clear();
  lastWords = nullptr;
}

WordsOfWrittenFile::WordsOfWrittenFile(std::string path) : path_(std::move(path)) {
  if (!lineOfFiles) return;
  std::vector<std::string> withIt = written;
  withIt.push_back(path_);
  words_ = &kept.emplace_front(lineOfFiles(withIt));
  written.reserve(withIt.size());
}

void WordsOfWrittenFile::TakeTheirPlace() noexcept {
  if (words_ == nullptr) return;
  lastWords = words_;
  written.push_back(std::move(path_));
}

std::string_view LastWords() noexcept {
  const std::string* const words = lastWords;
  return words != nullptr ? std::string_view(*words) : std::string_view();
}

}  // namespace quillomat
