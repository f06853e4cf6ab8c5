// The controls of the help window.
#pragma once

#include "ui/controls.h"
#include "ui/form.h"

namespace quillomat {

class HelpForm final : public Form {
 public:
  HelpForm() : Form("frmHelp", "QLAV Help") {}

  TextBox txbHelpScreen{*this, "txbHelpScreen"};
  CommandButton cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace quillomat
