// What is said about settings on a command line: options of their own, and "--set".
//
// Both are applied together, so their order does not matter. Where two of them want different
// values for the same control, neither wins: that is an error which names both.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "app/settings_table.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

/// A setting's option as it was given, once or several times.
struct GivenOption {
  const Setting* setting = nullptr;
  /// Of a switch "true" for the option, "false" for its opposite.
  std::vector<std::string> values;
};

/// Names and values of controls, as --set takes them.
using ControlValues = std::vector<std::pair<std::string, std::string>>;

/// Sets the controls. Returns what is wrong with a name or a value, in words that name the option
/// and what is possible, or nothing. After an error some of the controls are set.
[[nodiscard]] std::optional<std::string> ApplySettings(MainForm& frmMain, ParamsForm& frmParams,
                                                       std::span<const GivenOption> options,
                                                       const ControlValues& set);

// Which words file is none, and the way out; nothing if all are there.

/// Of those that an option names.
[[nodiscard]] std::optional<std::string> FindWordsFileFault(std::span<const GivenOption> options);
/// Of those that the panel names, which are a state's where no option does.
[[nodiscard]] std::optional<std::string> FindWordsFileFault(const ParamsForm& frmParams);

}  // namespace quillomat
