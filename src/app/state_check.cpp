#include "app/state_check.h"

#include "app/state_file.h"
#include "base/run_time_error.h"

namespace quillomat {
namespace {

void FillListsLike(const Form& model, const Form& form) {
  for (Control* control : form.Controls()) {
    auto* combo = control->As<ComboBox>();
    if (combo == nullptr) continue;
    for (const std::string& item : model.Find(control->Name())->As<ComboBox>()->Items()) {
      combo->AddItem(item);
    }
  }
}

}  // namespace

bool IsStateFile(const std::string& path, const MainForm& frmMain, const ParamsForm& frmParams) {
  MainForm main;
  ParamsForm params;
  FillListsLike(frmMain, main);
  FillListsLike(frmParams, params);
  try {
    ReadStateFile(path, main, params);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

}  // namespace quillomat
