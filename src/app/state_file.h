// The state file: all of the user's settings as 45 values, one a line, in a fixed order. The order
// is the file's only structure, so it never changes. Lines end with CR LF; texts are UTF-8 in
// double quotes, with nothing escaped: a text that holds a double quote is cut there when it is
// read.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <variant>

#include "base/run_time_error.h"
#include "sources/run_context.h"

namespace quillomat {

inline constexpr std::size_t kStateValues = 45;

/// The three buttons that choose the source, as one value: 0 clipboard, 1 single file, else folder.
struct SourceButtons {
  OptionButton* clipboard = nullptr;
  OptionButton* file = nullptr;
  OptionButton* folder = nullptr;
};

/// A list index in the file lies beyond its list's end.
class ListIndexOutOfRange final : public RunTimeError {
 public:
  ListIndexOutOfRange() : RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue) {}
};

using StateValue = std::variant<TextBox*, ComboBox*, CheckBox*, SourceButtons>;

/// The values in the order of the file.
[[nodiscard]] std::array<StateValue, kStateValues> StateValuesOf(MainForm& frmMain,
                                                                 ParamsForm& frmParams);

/// Writes all values into a file, replacing it. Throws RunTimeError; then the file is as it was.
void WriteStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams);

/// Sets all values from a file. Throws RunTimeError 62 when it has too few lines, 13 when a number
/// is none, 380 when a check box value is out of range, ListIndexOutOfRange (380 too) when an index
/// is, and what opening and reading it throw; what was set before stays set.
void ReadStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams);

}  // namespace quillomat
