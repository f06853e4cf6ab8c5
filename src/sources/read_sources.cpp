#include "sources/read_sources.h"

namespace quillomat {
std::string_view HeadedSource::Ahead(std::size_t bytes, const std::function<bool()>& goesOn) {
  ahead_.erase(0, aheadStart_);
  aheadStart_ = 0;
  while (ahead_.size() < bytes && !ended_ && goesOn()) {
    const std::size_t before = ahead_.size();
    ahead_.resize(bytes);
    std::size_t bytesRead = 0;
    try {
      bytesRead = source_.Read(std::span(ahead_).subspan(before));
    } catch (...) {
      error_ = std::current_exception();
    }
    ahead_.resize(before + bytesRead);
    ended_ = bytesRead == 0;
  }
  if (ahead_.empty() && error_) std::rethrow_exception(error_);
  return std::string_view(ahead_).substr(0, bytes);
}

/// An end stays one: a terminal would be asked anew.
std::size_t HeadedSource::Read(std::span<char> buffer) {
  if (aheadStart_ < ahead_.size()) {
    const std::size_t bytes = std::min(buffer.size(), ahead_.size() - aheadStart_);
    if (bytes > 0) std::memcpy(buffer.data(), ahead_.data() + aheadStart_, bytes);
    aheadStart_ += bytes;
    return bytes;
  }
  if (error_) std::rethrow_exception(error_);
  if (ended_ || buffer.empty()) return 0;
  const std::size_t bytes = source_.Read(buffer);
  ended_ = bytes == 0;
  return bytes;
}

void HeadedSource::PutBack(std::string_view bytes) {
  ahead_.replace(0, aheadStart_, bytes);
  aheadStart_ = 0;
}

bool PatientSource::IsReady(std::chrono::milliseconds longest) const {
  for (auto left = longest; !file_.IsReady(std::min(left, kLongestWait)); left -= kLongestWait) {
    if (left <= kLongestWait) return false;
    if (yield_.YieldFor(yield_.CallsLeft())) return true;
  }
  return true;
}

}  // namespace quillomat
