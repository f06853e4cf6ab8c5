#include "ui/main_form.h"

namespace quillomat {

MainForm::MainForm() : Form("frmMain", "Quillomat") {
  chkSuppressWords.SetToolTip("Check this box for faster processing.");
}

}  // namespace quillomat
