#include "cli/help_formatter.h"

#include <sstream>
#include <string_view>

namespace quillomat {
namespace {

constexpr std::size_t kLineWidth = 80;
constexpr std::size_t kNameWidth = 32;

/// `text` with line breaks between words where a line would be too long.
std::string Wrapped(const std::string& text, std::size_t width) {
  std::istringstream words(text);
  std::string wrapped;
  std::size_t column = 0;
  for (std::string word; words >> word; column += word.size()) {
    if (column == 0) {
      wrapped += word;
    } else if (column + 1 + word.size() > width) {
      wrapped.append("\n").append(word);
      column = 0;
    } else {
      wrapped.append(" ").append(word);
      ++column;
    }
  }
  return wrapped;
}

}  // namespace

HelpFormatter::HelpFormatter() {
  column_width(kNameWidth);
  label("Positionals", "The text");
}

std::string HelpFormatter::make_option_name(const CLI::Option* option, bool isPositional) const {
  if (isPositional) return option->get_name(true, false);
  std::string names;
  for (const std::string& name : option->get_snames()) names.append(", -").append(name);
  for (const std::string& name : option->get_lnames()) names.append(", --").append(name);
  return names.substr(std::string_view(", ").size());
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
  const bool takesValue = option->get_type_size() != 0;
  return takesValue ? " " + option->get_option_text() : "";
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  return Wrapped(option->get_description(), kLineWidth - kNameWidth);
}

}  // namespace quillomat
