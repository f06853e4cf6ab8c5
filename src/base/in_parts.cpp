#include "base/in_parts.h"

#include <algorithm>
#include <future>
#include <system_error>
#include <thread>

namespace quillomat {

std::size_t UsualParts() {
  constexpr unsigned kMost = 8;
  return std::clamp(std::thread::hardware_concurrency(), 1U, kMost);
}

std::vector<Part> PartsOf(std::size_t size, std::size_t most, std::size_t smallest) {
  const std::size_t count =
      std::clamp<std::size_t>(size / smallest, 1, std::max<std::size_t>(most, 1));
  std::vector<Part> parts;
  for (std::size_t i = 0; i < count; ++i) {
    const Part part{size * i / count, size * (i + 1) / count};
    if (part.begin < part.end) parts.push_back(part);
  }
  return parts;
}

void ForEachPart(const std::vector<Part>& parts,
                 const std::function<void(const Part& part, std::size_t number)>& work) {
  if (parts.empty()) return;
  std::vector<std::future<void>> others;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    try {
      others.push_back(std::async(std::launch::async, [&, i] { work(parts[i], i); }));
    } catch (const std::system_error&) {
      work(parts[i], i);  // the system has no thread to give
    }
  }
  work(parts.front(), 0);
  for (std::future<void>& other : others) other.get();
}

}  // namespace quillomat
