#include "app/captions.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/version.h"

namespace quillomat {
namespace {

void SetCaption(Control& control, const std::string& caption) {
  if (auto* label = control.As<Label>()) label->SetCaption(caption);
  if (auto* command = control.As<CommandButton>()) command->SetCaption(caption);
  if (auto* box = control.As<CheckBox>()) box->SetCaption(caption);
  if (auto* option = control.As<OptionButton>()) option->SetCaption(caption);
  if (auto* frame = control.As<Frame>()) frame->SetCaption(caption);
}

/// `others` and what the settings of the window have by `number`.
std::vector<ControlCaption> WithSettings(SettingWindow window,
                                         std::span<const ControlCaption> others,
                                         int Setting::*number) {
  std::vector<ControlCaption> all(others.begin(), others.end());
  for (const Setting& setting : AllSettings()) {
    if (setting.window != window || setting.*number == 0) continue;
    all.push_back({setting.control, setting.*number});
  }
  return all;
}

void SetCaptionsOf(Form& form, std::span<const ControlCaption> captions, const ProgramText& text) {
  for (const ControlCaption& caption : captions) {
    if (Control* control = form.Find(caption.control)) {
      SetCaption(*control, text.GetText(caption.text));
    }
  }
}

void SetToolTipsOf(Form& form, std::span<const ControlCaption> toolTips, const ProgramText& text) {
  for (const ControlCaption& toolTip : toolTips) {
    if (Control* control = form.Find(toolTip.control)) {
      control->SetToolTip(text.GetText(toolTip.text));
    }
  }
}

}  // namespace

std::vector<ControlCaption> CaptionsOf(SettingWindow window) {
  const bool main = window == SettingWindow::kMain;
  return WithSettings(window,
                      main ? std::span<const ControlCaption>(kMainFormCaptions)
                           : std::span<const ControlCaption>(kParamsFormCaptions),
                      &Setting::caption);
}

std::vector<ControlCaption> ToolTipsOf(SettingWindow window) {
  const bool main = window == SettingWindow::kMain;
  return WithSettings(window,
                      main ? std::span<const ControlCaption>(kMainFormToolTips)
                           : std::span<const ControlCaption>(kParamsFormToolTips),
                      &Setting::toolTip);
}

void SetItems(const ProgramText& text, MainForm& frmMain, ParamsForm& frmParams,
              ExportForm& frmExport) {
  const auto setFirst = [&text](ComboBox& combo, std::span<const int> texts) {
    for (std::size_t i = 0; i < std::min(texts.size(), combo.Items().size()); ++i) {
      const std::string item = text.GetText(texts[i]);
      if (!item.empty()) combo.SetItem(static_cast<int>(i), item);
    }
  };
  setFirst(frmParams.cboLetters, kLetterTexts);
  setFirst(frmParams.cboEncoding, kEncodingTexts);
  std::vector<std::string> notes(kEncodingTexts.size());
  for (int number = kFirstEncodingNoteText; notes.size() < frmParams.cboEncoding.Items().size();) {
    notes.push_back(text.GetText(number++));
  }
  frmParams.cboEncoding.SetItemNotes(std::move(notes));
  setFirst(frmMain.cboWordOrder, kOrderTexts);
  setFirst(frmExport.cboOrder, kOrderTexts);
}

void SetCaptions(const ProgramText& text, MainForm& frmMain, ParamsForm& frmParams,
                 HelpForm& frmHelp, ExportForm& frmExport) {
  frmMain.SetCaption(text.GetText(kProgramTitleText) + " " + VersionText());
  SetCaptionsOf(frmMain, CaptionsOf(SettingWindow::kMain), text);
  SetToolTipsOf(frmMain, ToolTipsOf(SettingWindow::kMain), text);
  frmParams.SetCaption(text.GetText(kParamsFormCaption));
  SetCaptionsOf(frmParams, CaptionsOf(SettingWindow::kPanel), text);
  SetToolTipsOf(frmParams, ToolTipsOf(SettingWindow::kPanel), text);
  SetItems(text, frmMain, frmParams, frmExport);
  frmHelp.SetCaption(text.GetText(kHelpFormCaption));
  SetCaptionsOf(frmHelp, kHelpFormCaptions, text);
  SetToolTipsOf(frmHelp, kHelpFormToolTips, text);
  frmExport.SetCaption(text.GetText(kExportFormCaption));
  SetCaptionsOf(frmExport, kExportFormCaptions, text);
  SetToolTipsOf(frmExport, kExportFormToolTips, text);
}

}  // namespace quillomat
