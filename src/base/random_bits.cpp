#include "base/random_bits.h"

#include <chrono>
#include <exception>
#include <random>

namespace quillomat {

std::uint64_t RandomBits() {
  static_assert(sizeof(std::random_device::result_type) == sizeof(std::uint32_t));
  try {
    std::random_device device;
    return std::uint64_t{device()} << 32U | device();
  } catch (const std::exception&) {
    // A system without chance is no reason to do nothing: the clock is hard to foresee, too.
    return static_cast<std::uint64_t>(
        std::chrono::high_resolution_clock::now().time_since_epoch().count());
  }
}

}  // namespace quillomat
