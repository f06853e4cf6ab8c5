#include "app/list/output_box.h"

#include "app/list/set_the_focus.h"

namespace quillomat {

void OutputBox::OutputToTxb(std::string_view text) {
  if (full_) return;
  frmMain_.txbOutput.AppendText(text);
  frmMain_.txbOutput.SetSelStart(frmMain_.txbOutput.Length());
}

void OutputBox::ClearOutput() {
  frmMain_.txbOutput.SetText("");
  full_ = false;
  list_ = {};
}

void OutputBox::ShowText(std::string_view text) {
  frmMain_.txbOutput.SetText(std::string(text));
  desktop_.Repaint();
}

void OutputBox::RestoreOutputText() {
  frmMain_.txbOutput.SetText(saved_);
  list_ = savedList_;
  SetTheFocus(frmMain_);
}

}  // namespace quillomat
