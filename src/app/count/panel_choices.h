// The parameters panel as the engine sees it: a snapshot of its controls.
#pragma once

#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "ui/params_form.h"

namespace quillomat {

[[nodiscard]] ScanChoices ReadScanChoices(ParamsForm& frmParams);
[[nodiscard]] FilterChoices ReadFilterChoices(const ParamsForm& frmParams);

}  // namespace quillomat
