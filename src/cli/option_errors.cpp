#include "cli/option_errors.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <set>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/whole_number.h"

namespace quillomat {
namespace {

using Fault = std::optional<std::string>;

bool LooksLikeOption(const std::string& argument) {
  return argument.size() > 1 && argument.starts_with('-');
}

bool TakesValue(const CLI::Option& option) {
  return option.get_items_expected_max() > 0;
}

/// How many letters must be added, left out or replaced to make one of the other.
std::size_t Distance(std::string_view one, std::string_view other) {
  std::vector<std::size_t> row(other.size() + 1);
  for (std::size_t j = 0; j <= other.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= one.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const std::size_t replaced = diagonal + (one[i - 1] == other[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row.back();
}

/// The name that was probably meant; "" if none is near.
std::string NearestName(const CLI::App& app, const std::string& name) {
  constexpr std::size_t kMostSlips = 2;
  std::string nearest;
  std::size_t best = kMostSlips + 1;
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& known : option->get_lnames()) {
      const std::size_t slips = Distance(name, "--" + known);
      if (slips >= best) continue;
      best = slips;
      nearest = "--" + known;
    }
  }
  return nearest;
}

class ArgumentCheck {
 public:
  ArgumentCheck(const CLI::App& app, std::span<const std::string> arguments)
      : app_(app), arguments_(arguments) {}

  Fault Find() {
    for (; next_ < arguments_.size() && arguments_[next_] != "--"; ++next_) {
      if (!LooksLikeOption(arguments_[next_])) continue;
      if (Fault fault = CheckOption(arguments_[next_])) return fault;
    }
    return std::nullopt;
  }

 private:
  Fault CheckOption(const std::string& argument) {
    const std::size_t equals = std::min(argument.find('='), argument.size());
    const std::string name = argument.substr(0, equals);
    const bool hasValue = equals < argument.size();
    const CLI::Option* const option = app_.get_option_no_throw(name);
    if (option == nullptr) return Unknown(name);
    if (!TakesValue(*option)) {
      if (!hasValue) return std::nullopt;
      return argument + ": " + name + " takes no value";
    }
    const bool isAgain = !given_.insert(option).second;
    if (isAgain && option->get_items_expected_max() == 1) return name + " is given twice";
    if (!hasValue) return CheckNext(name, *option);
    if (equals + 1 == argument.size()) return Missing(name, *option);
    return std::nullopt;
  }

  /// The value is the next argument.
  Fault CheckNext(const std::string& name, const CLI::Option& option) {
    if (++next_ == arguments_.size()) return Missing(name, option);
    const std::string& value = arguments_[next_];
    if (!LooksLikeOption(value) || app_.get_option_no_throw(value) == nullptr) return std::nullopt;
    return *Missing(name, option) + " before " + value + " (if that is it: " + name + "=" + value +
           ")";
  }

  static Fault Missing(const std::string& name, const CLI::Option& option) {
    return name + ": " + option.get_option_text() + " is missing";
  }

  [[nodiscard]] Fault Unknown(const std::string& name) const {
    const std::string nearest = NearestName(app_, name);
    const std::string hint =
        nearest.empty() ? "a path that begins with - is given after --" : "is it " + nearest + "?";
    return name + ": there is no such option; " + hint;
  }

  const CLI::App& app_;
  std::span<const std::string> arguments_;
  std::size_t next_ = 0;
  std::set<const CLI::Option*> given_;
};

}  // namespace

Fault FindArgumentFault(const CLI::App& app, std::span<const std::string> arguments) {
  return ArgumentCheck(app, arguments).Find();
}

CLI::Validator WholeNumberFrom(std::int32_t least, std::int32_t most) {
  const bool isLimited = most < std::numeric_limits<std::int32_t>::max();
  const std::string range =
      std::to_string(least) + (isLimited ? " to " + std::to_string(most) : " on");
  const auto check = [=](const std::string& value) -> std::string {
    std::int32_t number = 0;
    const bool isOne = ReadWholeNumber(value, number) == std::errc();
    if (isOne && number >= least && number <= most) return {};
    return "'" + value + "' is no whole number from " + range;
  };
  return {check, ""};
}

}  // namespace quillomat
