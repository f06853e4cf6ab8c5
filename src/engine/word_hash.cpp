#include "engine/word_hash.h"

#include <chrono>
#include <exception>
#include <random>

namespace quillomat {
namespace {

/// 64 bits of chance.
std::uint64_t Draw() {
  static_assert(sizeof(std::random_device::result_type) == sizeof(std::uint32_t));
  try {
    std::random_device device;
    return std::uint64_t{device()} << 32U | device();
  } catch (const std::exception&) {
    // A system without chance is no reason not to count: the clock is hard to foresee, too.
    return static_cast<std::uint64_t>(
        std::chrono::high_resolution_clock::now().time_since_epoch().count());
  }
}

}  // namespace

const HashSeed& DrawnHashSeed() {
  // Once, as drawing takes longer than counting a small file.
  static const HashSeed kSeed = HashSeedAfter({Draw(), 0});
  return kSeed;
}

HashSeed HashSeedAfter(const HashSeed& seed) {
  std::seed_seq bits{seed.first, seed.first >> 32U, seed.second, seed.second >> 32U};
  std::mt19937_64 random(bits);
  const std::uint64_t first = random();
  return {first, random()};
}

}  // namespace quillomat
