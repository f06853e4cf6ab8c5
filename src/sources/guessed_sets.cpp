#include "sources/guessed_sets.h"

#include "base/text_decoder.h"

namespace quillomat {

void GuessedSets::Add(CharacterSet set) {
  const bool isNone = set == CharacterSet::kAsFound || set == CharacterSet::kGuess;
  if (!isNone && !MakeUnicodeDecoder(set)) sets_.insert(set);
}

std::string GuessedSets::Names() const {
  std::string names;
  for (const CharacterSet set : sets_) names.append(names.empty() ? "" : ", ").append(NameOf(set));
  return names;
}

}  // namespace quillomat
