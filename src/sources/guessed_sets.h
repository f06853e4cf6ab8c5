// In which encodings texts were read because it was guessed so: for the user, who may know better.
#pragma once

#include <set>
#include <string>

#include "base/character_set.h"

namespace quillomat {

class GuessedSets {
 public:
  /// UTF-8 and UTF-16 are left out: they can hardly be taken for others, or others for them.
  void Add(CharacterSet set);

  /// "" for none, otherwise "KOI8-U, Windows-1251".
  [[nodiscard]] std::string Names() const;

 private:
  std::set<CharacterSet> sets_;
};

}  // namespace quillomat
