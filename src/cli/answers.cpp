#include "cli/answers.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/list/output_refusal.h"
#include "base/letter_case.h"

namespace quillomat {
namespace {

constexpr std::string_view kAnyWord = "OK, Yes, No, Cancel";

/// The words on the buttons, with ", " between them.
constexpr auto kQuestions = std::to_array<std::pair<std::string_view, std::string_view>>(
    {{"Multiple files/folders", "OK, Cancel"},
     {"Large input file", "Yes, No, Cancel"},
     {"Counting interrupted", "Yes, No"},
     {"Relist?", "Yes, No"},
     {"Proceed?", "Yes, No"}});

bool Holds(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(", "), words.size());
    if (EqualIgnoringCase(words.substr(0, end), word)) return true;
    words.remove_prefix(std::min(end + 2, words.size()));
  }
  return false;
}

}  // namespace

std::optional<std::string> WhyNoAnswer(std::string_view title, std::string_view word) {
  if (title == kOverwriteTitle && !word.empty()) return std::nullopt;
  const auto question =
      std::ranges::find(kQuestions, title, [](const auto& entry) { return entry.first; });
  const std::string_view words = question != kQuestions.end() ? question->second : kAnyWord;
  if (Holds(words, word)) return std::nullopt;
  return "'" + std::string(word) + "' is no answer to '" + std::string(title) +
         "'; possible: " + std::string(title == kOverwriteTitle ? "OK, Cancel, a path" : words);
}

}  // namespace quillomat
