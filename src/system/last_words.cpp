#include "system/last_words.h"

#include <atomic>
#include <forward_list>
#include <string>

#include "system/interruption.h"

namespace quillomat {
namespace {

/// A signal may come while the words change: it finds the former ones or the new ones, whole.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<const std::string*> lastWords{nullptr};

}  // namespace

void SetLastWords(const std::string& text) {
  static std::forward_list<std::string> kept;
  lastWords = &kept.emplace_front(text);
}

std::string_view LastWords() noexcept {
  const std::string* const words = lastWords;
  return words != nullptr ? std::string_view(*words) : std::string_view();
}

}  // namespace quillomat
