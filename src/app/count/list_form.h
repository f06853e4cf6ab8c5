// What the words of a words file hang on, besides its bytes.
#pragma once

#include "base/character_set.h"
#include "engine/letter_rule.h"

namespace quillomat {

struct ListForm {
  KeyRule keys;
  CharacterSet encoding = CharacterSet::kAsFound;

  bool operator==(const ListForm&) const = default;
};

}  // namespace quillomat
