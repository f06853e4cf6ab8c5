// The parameters panel as the engine sees it: a snapshot of its controls.
#pragma once

#include "app/count/list_form.h"
#include "base/character_set.h"
#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "ui/params_form.h"

namespace quillomat {

[[nodiscard]] ScanChoices ReadScanChoices(ParamsForm& frmParams);
/// What makes words the same, as in the choices of a scan.
[[nodiscard]] KeyRule ReadKeyRule(const ParamsForm& frmParams);
[[nodiscard]] CharacterSet ReadEncoding(const ParamsForm& frmParams);
/// What words files are read by.
[[nodiscard]] ListForm ReadListForm(const ParamsForm& frmParams);
[[nodiscard]] FilterChoices ReadFilterChoices(const ParamsForm& frmParams);

}  // namespace quillomat
