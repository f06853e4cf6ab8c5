// What a count went by, apart from its text: kept with the list, so that it can be told when the
// windows say something else by now.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/count/in_force.h"
#include "sources/output_rules.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

struct CountBasis {
  /// The values of the settings that bear on the words, in the order of the settings' table. One
  /// without effect, as long as another setting does not switch it on, is "".
  std::vector<std::string> panel;
  /// The same, of those that mean something for files alone.
  std::vector<std::string> ofFiles;
  /// A file of words is in force.
  bool wordsFromFiles = false;
  /// See InForce.
  std::string listsReadAgain;
  /// The same, of which files of a folder are read.
  std::vector<std::string> ofFolder;
  std::int32_t countOnlyWords = 0;
  /// Count-only words are named, and none of them can be counted: then all words are.
  bool namesNoCountOnlyWord = false;
  /// 0 where only some words are counted.
  std::int32_t wordsToIgnore = 0;
};

/// As the windows stand now.
[[nodiscard]] CountBasis CountBasisOf(const MainForm& frmMain, const ParamsForm& frmParams,
                                      const InForce& inForce);

/// Whether a count of that kind of text would come to the same by both.
[[nodiscard]] bool CountAlike(const CountBasis& one, const CountBasis& other,
                              CountedText::Source source);

}  // namespace quillomat
