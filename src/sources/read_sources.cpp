#include "sources/read_sources.h"

namespace quillomat {

std::string_view HeadedSource::Ahead(std::size_t bytes, const std::function<bool()>& goesOn) {
  const auto read = [this](std::span<char> buffer) -> std::size_t {
    try {
      return ReadSource(buffer);
    } catch (...) {
      error_ = std::current_exception();
      ended_ = true;
      return 0;
    }
  };
  const std::string_view ahead = ahead_.Ahead(bytes, read, [&] { return !ended_ && goesOn(); });
  if (ahead.empty() && error_) std::rethrow_exception(error_);
  return ahead;
}

std::size_t HeadedSource::Read(std::span<char> buffer) {
  if (!ahead_.IsEmpty()) return ahead_.GiveOut(buffer);
  if (error_) std::rethrow_exception(error_);
  return ReadSource(buffer);
}

/// An end stays one: a terminal would be asked anew.
std::size_t HeadedSource::ReadSource(std::span<char> buffer) {
  if (ended_ || buffer.empty()) return 0;
  const std::size_t bytes = source_.Read(buffer);
  ended_ = bytes == 0;
  return bytes;
}

bool PatientSource::IsReady(std::chrono::milliseconds longest) const {
  for (auto left = longest; !file_.IsReady(std::min(left, kLongestWait)); left -= kLongestWait) {
    if (left <= kLongestWait) return false;
    if (yield_.YieldFor(yield_.CallsLeft())) return true;
  }
  return true;
}

}  // namespace quillomat
