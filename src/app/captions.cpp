#include "app/captions.h"

#include <span>

#include "sources/window_state.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

constexpr int kMajorVersion = 7;
constexpr int kMinorVersion = 0;

void SetCaption(Control& control, const std::string& caption) {
  if (auto* label = control.As<Label>()) label->SetCaption(caption);
  if (auto* command = control.As<CommandButton>()) command->SetCaption(caption);
  if (auto* box = control.As<CheckBox>()) box->SetCaption(caption);
  if (auto* option = control.As<OptionButton>()) option->SetCaption(caption);
  if (auto* frame = control.As<Frame>()) frame->SetCaption(caption);
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

std::string VersionText() {
  return std::to_string(kMajorVersion) + "." + std::to_string(kMinorVersion) + "7";
}

void SetCaptions(const ProgramText& text, MainForm& frmMain, ParamsForm& frmParams,
                 HelpForm& frmHelp) {
  frmMain.SetCaption(text.GetText(kProgramTitleText) + " " + VersionText());
  SetCaptionsOf(frmMain, kMainFormCaptions, text);
  SetToolTipsOf(frmMain, kMainFormToolTips, text);
  if (frmMain.cmdCountWords.Caption() != kStopCaption) {
    frmMain.cmdCountWords.SetCaption(text.GetText(kCountCaptionText));
  }
  frmParams.SetCaption(text.GetText(kParamsFormCaption));
  SetCaptionsOf(frmParams, kParamsFormCaptions, text);
  SetToolTipsOf(frmParams, kParamsFormToolTips, text);
  frmHelp.SetCaption(text.GetText(kHelpFormCaption));
  SetCaptionsOf(frmHelp, kHelpFormCaptions, text);
  SetToolTipsOf(frmHelp, kHelpFormToolTips, text);
}

}  // namespace quillomat
