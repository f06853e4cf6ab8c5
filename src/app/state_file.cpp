#include "app/state_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "app/escaped_text.h"
#include "app/setting_values.h"
#include "base/byte_sink.h"
#include "base/limited_source.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/whole_number.h"
#include "system/input_file.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

/// A text as its line holds it. A path may hold a line break, but a value is one line.
std::string Quoted(std::string_view text) {
  return "\"" + ReplaceAll(ReplaceAll(text, "\r", " "), "\n", " ") + "\"";
}

/// A path or a list of typed words is far shorter.
constexpr std::size_t kMostStateLineBytes = std::size_t{16} * 1024 * 1024;
constexpr std::size_t kMostStateBytes = std::size_t{64} * 1024 * 1024;

/// The text of a line: what stands between the quotes, or the whole line where there are none.
std::string_view Unquoted(std::string_view line) {
  line = TrimBlanks(line);
  if (!line.starts_with('"')) return line;
  line.remove_prefix(1);
  return line.substr(0, line.find('"'));
}

std::int32_t WholeNumber(std::string_view line) {
  std::int32_t number = 0;
  const std::errc error = ReadWholeNumber(Unquoted(line), number);
  if (error == std::errc::result_out_of_range) throw RunTimeError(RunTimeErrorNumber::kOverflow);
  if (error != std::errc()) throw RunTimeError(RunTimeErrorNumber::kTypeMismatch);
  return number;
}

/// The number that a text starts with, rounded; 0 when it starts with none.
std::int32_t NumericValue(std::string_view text) {
  double number = 0;
  if (text.starts_with('+')) text.remove_prefix(1);
  std::from_chars(text.data(), text.data() + text.size(), number);
  if (!std::isfinite(number)) number = 0;  // "inf" and the like, which are words here
  const double rounded = std::nearbyint(number);
  if (!(std::abs(rounded) <= std::numeric_limits<std::int16_t>::max())) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  }
  return static_cast<std::int32_t>(rounded);
}

/// A value as its line holds it.
struct LineOf {
  std::string operator()(const TextBox* box) const { return Quoted(box->Text()); }
  std::string operator()(const ComboBox* box) const { return std::to_string(box->ListIndex()); }
  std::string operator()(const CheckBox* box) const { return (*this)(box->Value()); }
  std::string operator()(CheckState state) const { return std::to_string(static_cast<int>(state)); }
  std::string operator()(const SourceButtons& source) const {
    return std::to_string(source.clipboard->Value() ? 0 : source.file->Value() ? 1 : 2);
  }
};

class ValueReader {
 public:
  explicit ValueReader(std::string_view line) : line_(line) {}

  void operator()(TextBox* box) const { box->SetText(std::string(Unquoted(line_))); }
  void operator()(ComboBox* box) const {
    const std::int32_t index = WholeNumber(line_);
    if (index < -1 || std::cmp_greater_equal(index, box->Items().size())) {
      throw ListIndexOutOfRange();
    }
    box->SetListIndex(index);
  }
  void operator()(CheckBox* box) const {
    const std::int32_t value = NumericValue(Unquoted(line_));
    if (value < 0 || value > 2) throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue);
    box->SetValue(static_cast<CheckState>(value));
  }
  void operator()(const SourceButtons& source) const {
    const std::int32_t button = WholeNumber(line_);
    (button == 0 ? source.clipboard : button == 1 ? source.file : source.folder)->SetValue(true);
  }

 private:
  std::string_view line_;
};

std::string_view NextLine(LineDecoder& lines) {
  const std::optional<std::string_view> line = lines.NextLine();
  if (!line) throw RunTimeError(RunTimeErrorNumber::kInputPastEnd);
  return *line;
}

/// What may stand behind the 45 lines.
class NamedLines {
 public:
  NamedLines(MainForm& frmMain, ParamsForm& frmParams, std::span<const Setting> settings)
      : frmMain_(frmMain), frmParams_(frmParams), settings_(settings) {
    for (const StateValue& value : StateValuesOf(frmMain, frmParams)) {
      std::visit([this](const auto& control) { NoteLineOf(control); }, value);
    }
  }

  [[nodiscard]] std::string Text() const {
    std::string text;
    for (const Setting& setting : settings_) {
      const Control& control = ControlOf(setting, frmMain_, frmParams_);
      if (HasLine(control) ? IsKeptByItsLine(setting, control) : HasDefault(setting, control)) {
        continue;
      }
      text.append(setting.control).append("=").append(ValueOf(control)).append(kCrLf);
    }
    return text;
  }

  void Read(LineDecoder& lines) const {
    for (const Setting& setting : settings_) {
      Control& control = ControlOf(setting, frmMain_, frmParams_);
      if (!HasLine(control)) SetToDefault(setting, control);
    }
    while (const auto line = lines.NextLine()) Take(*line);
  }

 private:
  void NoteLineOf(const Control* control) { controlsWithLine_.push_back(control); }
  void NoteLineOf(const SourceButtons& /*noSetting*/) {}

  [[nodiscard]] bool HasLine(const Control& control) const {
    return std::ranges::find(controlsWithLine_, &control) != controlsWithLine_.end();
  }

  static bool IsKeptByItsLine(const Setting& setting, const Control& control) {
    if (!setting.isPath) return true;
    const std::string& path = control.As<TextBox>()->Text();
    return Unquoted(DecodeLine(Quoted(path))) == path;
  }

  static std::string ValueOf(const Control& control) {
    if (const auto* text = control.As<TextBox>()) return EscapedText(text->Text());
    if (const auto* combo = control.As<ComboBox>()) return LineOf()(combo);
    return LineOf()(control.As<CheckBox>());
  }

  void Take(std::string_view line) const {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return;
    const Setting* const setting = FindSetting(settings_, line.substr(0, equals));
    if (setting == nullptr) return;
    const std::string_view value = line.substr(equals + 1);
    Control& control = ControlOf(*setting, frmMain_, frmParams_);
    if (auto* text = control.As<TextBox>()) {
      std::optional<std::string> unescaped = UnescapedText(value);
      if (!unescaped) throw RunTimeError(RunTimeErrorNumber::kTypeMismatch);
      return text->SetText(std::move(*unescaped));
    }
    static_cast<void>(WholeNumber(value));  // here a check box takes nothing else either
    const ValueReader reader(value);
    if (auto* combo = control.As<ComboBox>()) reader(combo);
    if (auto* box = control.As<CheckBox>()) reader(box);
  }

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  std::span<const Setting> settings_;
  std::vector<const Control*> controlsWithLine_;
};

}  // namespace

std::array<StateValue, kStateValues> StateValuesOf(MainForm& frmMain, ParamsForm& frmParams) {
  return {&frmMain.txbFolder,
          &frmParams.txbWordsToIgnoreOrCount[0],
          &frmMain.txbFile[0],
          &frmMain.txbFileExtensions[0],
          &frmParams.txbStartComment[0],
          &frmParams.txbEndComment[0],
          &frmParams.txbWordsToIgnoreOrCount[1],
          &frmMain.txbFile[1],
          &frmMain.txbFileExtensions[1],
          &frmParams.txbStartComment[1],
          &frmParams.txbEndComment[1],
          &frmParams.cboShortWordSize,
          &frmParams.cboLongWordSize,
          &frmParams.cboThresholdFrequency,
          &frmParams.chkIgnoreShortWords,
          &frmParams.chkIgnoreInfrequentWords,
          &frmParams.chkIgnoreRepetitions,
          &frmParams.chkIgnoreRomNum40,
          &frmParams.chkIgnoreNoVowelOrY,
          &frmParams.chkCaseSignificant,
          &frmParams.chkDropFinalS,
          &frmParams.chkAllowWordsWithHyphens,
          &frmParams.chkAllowWordsWithApostrophes,
          &frmParams.chkAllowWordsWithUnderscores,
          &frmParams.chkAllowWordsWithColons,
          &frmParams.chkAllowWordsWithBackslashes,
          &frmParams.chkAllowWordsWithForwardslashes,
          &frmParams.chkAllowWordsWithParentheses,
          &frmParams.chkAllowWordsWithPeriods,
          &frmParams.chkAllowWordsWithCommas,
          &frmParams.chkAllowWordsWithAtSigns,
          &frmParams.chkAllowWordsWithNumerals,
          &frmParams.chkOutputWithCommas,
          &frmParams.chkUseLog10,
          &frmParams.chkAllowCommentMarkers,
          &frmParams.chkWarnOnOverwrite,
          &frmParams.chkSaveStateOnQuit,
          &frmMain.chkSuppressWords,
          &frmMain.chkDisableOutputToFile,
          &frmMain.chkIncludeSubfolders,
          &frmMain.cboWordOrder,
          &frmMain.cboDisplayFormat,
          &frmParams.txbWordsFile[0],
          &frmParams.txbWordsFile[1],
          SourceButtons{&frmMain.optOnClipboard, &frmMain.optInFile, &frmMain.optFolder}};
}

void WriteStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams,
                    std::span<const Setting> settings, const CheckBox* switchedOn) {
  OutputFile file(path);
  for (const StateValue& value : StateValuesOf(frmMain, frmParams)) {
    CheckBox* const* const box = std::get_if<CheckBox*>(&value);
    const bool isSwitchedOn = box != nullptr && *box == switchedOn;
    file.Write(isSwitchedOn ? LineOf()(CheckState::kUnchecked) : std::visit(LineOf(), value));
    file.Write(kCrLf);
  }
  file.Write(NamedLines(frmMain, frmParams, settings).Text());
  file.Close();
}

void ReadStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams,
                   std::span<const Setting> settings) {
  InputFile file(path);
  LimitedSource limited(file, {.lineBytes = kMostStateLineBytes, .bytes = kMostStateBytes});
  LineDecoder lines(limited);
  for (const StateValue& value : StateValuesOf(frmMain, frmParams)) {
    std::visit(ValueReader(NextLine(lines)), value);
  }
  NamedLines(frmMain, frmParams, settings).Read(lines);
}

}  // namespace quillomat
