// The state file: 45 of the user's settings, one value a line, in a fixed order that never changes.
// Lines end with CR LF; texts are UTF-8 in double quotes, with nothing escaped: a text that holds a
// double quote is cut there when it is read.
//
// Behind them may stand lines "control=value" for what the 45 cannot tell, each only where it is
// needed, so that a file without such a need has 45 lines:
// - a path that its own line does not keep (a double quote, a line break, bytes that are no UTF-8),
//   escaped as escaped_text.h tells;
// - a setting that has no line of its own, where it differs from its default.
// Any setting may stand there, and has the last word. A control that this program does not know
// belongs to a later version and is passed over, as is a line of another form; a value that does
// not fit its control is an error.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <variant>

#include "app/settings_table.h"
#include "base/run_time_error.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

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

/// Writes all values into a file, replacing it; `switchedOn`, a box of the 45 that the program has
/// checked and not the user, as unchecked. Throws RunTimeError; then the file is as it was.
void WriteStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams,
                    std::span<const Setting> settings = AllSettings(),
                    const CheckBox* switchedOn = nullptr);

/// Sets all values from a file; a setting of which it tells nothing gets its default. Throws
/// RunTimeError 62 when it has too few lines, 13 when a number
/// is none, 380 when a check box value is out of range, ListIndexOutOfRange (380 too) when an index
/// is, InputTooLong when it is longer than such files are, and what opening and reading it throw;
/// what was set before stays set.
void ReadStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams,
                   std::span<const Setting> settings = AllSettings());

}  // namespace quillomat
