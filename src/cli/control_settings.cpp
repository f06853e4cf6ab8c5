#include "cli/control_settings.h"

#include <cstdint>
#include <string_view>

#include "base/whole_number.h"
#include "ui/controls.h"

namespace quillomat {
namespace {

std::optional<std::int32_t> WholeNumber(std::string_view text) {
  std::int32_t number = 0;
  if (ReadWholeNumber(text, number) != std::errc()) return std::nullopt;
  return number;
}

std::optional<std::string> SetCheckBox(CheckBox& box, const std::string& value) {
  const std::optional<int> number = WholeNumber(value);
  if (!number || *number < 0 || *number > 2) return "a check box takes 0, 1 or 2";
  box.SetValue(static_cast<CheckState>(*number));
  return std::nullopt;
}

std::optional<std::string> SetOption(OptionButton& option, const std::string& value) {
  if (value != "1") return "an option button takes 1, which deselects the others";
  option.SetValue(true);
  return std::nullopt;
}

/// The index that the value means, or nothing.
std::optional<int> ItemIndex(const ComboBox& box, const std::string& value) {
  const auto items = box.Items();
  const int count = static_cast<int>(items.size());
  if (value.starts_with('#')) {
    const std::optional<int> index = WholeNumber(std::string_view(value).substr(1));
    return index && *index >= 0 && *index < count ? index : std::nullopt;
  }
  for (int index = 0; index < count; ++index) {
    if (items[static_cast<std::size_t>(index)] == value) return index;
  }
  return std::nullopt;
}

std::optional<std::string> SetCombo(ComboBox& box, const std::string& value) {
  const std::optional<int> index = ItemIndex(box, value);
  if (!index) {
    std::string items;
    for (const std::string& item : box.Items())
      items.append(items.empty() ? "" : ", ").append(item);
    return "takes one of: " + items + "; or #INDEX, counted from 0";
  }
  box.SetListIndex(*index);
  return std::nullopt;
}

}  // namespace

Control* FindControl(const MainForm& frmMain, const ParamsForm& frmParams, std::string_view name) {
  Control* const control = frmParams.Find(name);
  return control != nullptr ? control : frmMain.Find(name);
}

std::optional<std::string> SetValue(Control& control, const std::string& value) {
  if (auto* box = control.As<CheckBox>()) return SetCheckBox(*box, value);
  if (auto* option = control.As<OptionButton>()) return SetOption(*option, value);
  if (auto* combo = control.As<ComboBox>()) return SetCombo(*combo, value);
  if (auto* text = control.As<TextBox>()) {
    text->SetText(value);
    return std::nullopt;
  }
  return "has no value that could be set";
}

}  // namespace quillomat
