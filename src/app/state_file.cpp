#include "app/state_file.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

#include "base/byte_sink.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "system/input_file.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

/// The text of a line: what stands between the quotes, or the whole line where there are none.
std::string_view Unquoted(std::string_view line) {
  line = TrimBlanks(line);
  if (!line.starts_with('"')) return line;
  line.remove_prefix(1);
  return line.substr(0, line.find('"'));
}

std::int32_t WholeNumber(std::string_view line) {
  const std::string_view text = Unquoted(line);
  std::int32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc::result_out_of_range) throw RunTimeError(RunTimeErrorNumber::kOverflow);
  if (error != std::errc() || last != end) throw RunTimeError(RunTimeErrorNumber::kTypeMismatch);
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

class ValueWriter {
 public:
  explicit ValueWriter(ByteSink& file) : file_(file) {}

  /// A path may hold a line break, but a value is one line.
  void operator()(const TextBox* box) const {
    WriteLine("\"" + ReplaceAll(ReplaceAll(box->Text(), "\r", " "), "\n", " ") + "\"");
  }
  void operator()(const ComboBox* box) const { WriteLine(std::to_string(box->ListIndex())); }
  void operator()(const CheckBox* box) const {
    WriteLine(std::to_string(static_cast<int>(box->Value())));
  }
  void operator()(const SourceButtons& source) const {
    const int button = source.clipboard->Value() ? 0 : source.file->Value() ? 1 : 2;
    WriteLine(std::to_string(button));
  }

 private:
  void WriteLine(const std::string& value) const {
    file_.Write(value);
    file_.Write(kCrLf);
  }

  ByteSink& file_;
};

class ValueReader {
 public:
  explicit ValueReader(LineDecoder& lines) : lines_(lines) {}

  void operator()(TextBox* box) const { box->SetText(std::string(Unquoted(NextLine()))); }
  void operator()(ComboBox* box) const {
    const std::int32_t index = WholeNumber(NextLine());
    if (index < -1 || std::cmp_greater_equal(index, box->Items().size())) {
      throw ListIndexOutOfRange();
    }
    box->SetListIndex(index);
  }
  void operator()(CheckBox* box) const {
    const std::int32_t value = NumericValue(Unquoted(NextLine()));
    if (value < 0 || value > 2) throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue);
    box->SetValue(static_cast<CheckState>(value));
  }
  void operator()(const SourceButtons& source) const {
    const std::int32_t button = WholeNumber(NextLine());
    (button == 0 ? source.clipboard : button == 1 ? source.file : source.folder)->SetValue(true);
  }

 private:
  [[nodiscard]] std::string_view NextLine() const {
    const std::optional<std::string_view> line = lines_.NextLine();
    if (!line) throw RunTimeError(RunTimeErrorNumber::kInputPastEnd);
    return *line;
  }

  LineDecoder& lines_;
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

void WriteStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams) {
  OutputFile file(path);
  const ValueWriter writer(file);
  for (const StateValue& value : StateValuesOf(frmMain, frmParams)) std::visit(writer, value);
  file.Close();
}

void ReadStateFile(const std::string& path, MainForm& frmMain, ParamsForm& frmParams) {
  InputFile file(path);
  LineDecoder lines(file);
  const ValueReader reader(lines);
  for (const StateValue& value : StateValuesOf(frmMain, frmParams)) std::visit(reader, value);
}

}  // namespace quillomat
