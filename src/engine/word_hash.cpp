#include "engine/word_hash.h"

#include <random>

#include "base/random_bits.h"

namespace quillomat {

const HashSeed& DrawnHashSeed() {
  // Once, as drawing takes longer than counting a small file.
  static const HashSeed kSeed = HashSeedAfter({RandomBits(), 0});
  return kSeed;
}

HashSeed HashSeedAfter(const HashSeed& seed) {
  std::seed_seq bits{seed.first, seed.first >> 32U, seed.second, seed.second >> 32U};
  std::mt19937_64 random(bits);
  const std::uint64_t first = random();
  return {first, random()};
}

}  // namespace quillomat
