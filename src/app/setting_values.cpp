#include "app/setting_values.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace quillomat {

Control& ControlOf(const Setting& setting, const MainForm& frmMain, const ParamsForm& frmParams) {
  Control* const control = setting.window == SettingWindow::kMain ? frmMain.Find(setting.control)
                                                                  : frmParams.Find(setting.control);
  if (control == nullptr) {
    throw std::logic_error("no control named " + std::string(setting.control));
  }
  return *control;
}

void SetToDefault(const Setting& setting, Control& control) {
  if (auto* box = control.As<CheckBox>()) box->SetChecked(std::get<int>(setting.initial) != 0);
  if (auto* combo = control.As<ComboBox>()) combo->SetListIndex(std::get<int>(setting.initial));
  if (auto* text = control.As<TextBox>()) {
    text->SetText(std::string(std::get<std::string_view>(setting.initial)));
  }
}

bool HasDefault(const Setting& setting, const Control& control) {
  if (const auto* text = control.As<TextBox>()) {
    return text->Text() == std::get<std::string_view>(setting.initial);
  }
  const int initial = std::get<int>(setting.initial);
  if (const auto* combo = control.As<ComboBox>()) return combo->ListIndex() == initial;
  const auto* box = control.As<CheckBox>();
  return box != nullptr && static_cast<int>(box->Value()) == initial;
}

std::string ValueTextOf(const Control& control) {
  if (const auto* box = control.As<CheckBox>())
    return std::to_string(static_cast<int>(box->Value()));
  if (const auto* combo = control.As<ComboBox>()) return combo->Text();
  if (const auto* text = control.As<TextBox>()) return text->Text();
  return {};
}

std::string LanguageFreeValueOf(const Control& control) {
  if (const auto* combo = control.As<ComboBox>()) return std::to_string(combo->ListIndex());
  return ValueTextOf(control);
}

std::vector<CheckBox*> BoxesInClearingOrder(const ParamsForm& frmParams) {
  std::vector<CheckBox*> boxes;
  for (const std::string_view name : kClearingOrder) {
    if (Control* const control = frmParams.Find(name)) boxes.push_back(control->As<CheckBox>());
  }
  for (Control* control : frmParams.Controls()) {
    auto* const box = control->As<CheckBox>();
    if (box != nullptr && std::ranges::find(boxes, box) == boxes.end()) boxes.push_back(box);
  }
  return boxes;
}

}  // namespace quillomat
