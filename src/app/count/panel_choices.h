// The parameters panel as the engine sees it: a snapshot of its controls.
#pragma once

#include <cstddef>

#include "app/count/list_form.h"
#include "base/character_set.h"
#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "engine/word_list.h"
#include "ui/params_form.h"

namespace quillomat {

/// The box that names the words file of that kind.
[[nodiscard]] inline const TextBox& WordsFileBoxOf(const ParamsForm& frmParams, WordListKind kind) {
  return frmParams.txbWordsFile[static_cast<std::size_t>(kind)];
}
/// The box in which words of that kind are typed.
[[nodiscard]] inline const TextBox& TypedWordsBoxOf(const ParamsForm& frmParams,
                                                    WordListKind kind) {
  return frmParams.txbWordsToIgnoreOrCount[static_cast<std::size_t>(kind)];
}

[[nodiscard]] ScanChoices ReadScanChoices(ParamsForm& frmParams);
/// What makes words the same, as in the choices of a scan.
[[nodiscard]] KeyRule ReadKeyRule(const ParamsForm& frmParams);
[[nodiscard]] CharacterSet ReadEncoding(const ParamsForm& frmParams);
/// What words files are read by.
[[nodiscard]] ListForm ReadListForm(const ParamsForm& frmParams);
[[nodiscard]] FilterChoices ReadFilterChoices(const ParamsForm& frmParams);

}  // namespace quillomat
