// The lists of common words that come with the program, by language.
#pragma once

#include <string>
#include <vector>

namespace quillomat {

struct CommonWordsList {
  std::string path;
  /// The number of the text that names the language.
  int languageText = 0;
};

/// Those that the data folder holds, in the order of the languages' English names.
[[nodiscard]] std::vector<CommonWordsList> FindCommonWords();

}  // namespace quillomat
