// What a scan goes by besides the panel's controls: the lists that were taken from the boxes and
// files, and what was worked out of the parameters. One object for the program's whole life.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "app/count/content_mark.h"
#include "app/count/list_form.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"
#include "sources/output_rules.h"

namespace quillomat {

struct InForce {
  ScanSettings settings;
  WordLists lists;
  /// What the words of the files in `lists` were read by: those to ignore, the count-only words.
  std::array<ListForm, 2> listForms;
  /// What those files held when they were read; nothing where that cannot be told.
  std::array<std::optional<ContentMark>, 2> listContents;
  /// The words files that had other words when the last count began than when they were read
  /// before: their names, with ", " between them.
  std::string listsReadAgain;
  /// Where the lists, the state and the clipboard's text come from.
  FilesRead filesRead;
  /// How many threads may scan a large text at the same time; with 1 it is scanned by the caller's.
  std::size_t scanThreads = 1;
  /// The figures that hang on the order of words are worked out, too (CountRequest).
  bool wantsOrderFigures = false;
  /// What became of each file is kept, too (CountRequest).
  bool wantsFileReports = false;
};

}  // namespace quillomat
