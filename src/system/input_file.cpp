#include "system/input_file.h"

#include <algorithm>
#include <cstring>

namespace quillomat {

InputFile::InputFile(const std::string& path) : InputFile(NativeFile::OpenForReading(path)) {
  isPlaced_ = length_ > 0;
}

std::optional<PlacedRest> InputFile::Rest() const {
  if (!isPlaced_) return std::nullopt;
  const auto ahead = static_cast<std::int64_t>(ahead_.size() - aheadStart_);
  return PlacedRest{*this, bytesRead_ - ahead, length_};
}

void InputFile::Skip(std::int64_t bytes) {
  const auto ahead = static_cast<std::int64_t>(ahead_.size() - aheadStart_);
  const std::int64_t ofThese = std::min(bytes, ahead);
  aheadStart_ += static_cast<std::size_t>(ofThese);
  bytesRead_ += bytes - ofThese;
}

/// A pipe without a writer is at its end, though it is not ready.
bool InputFile::AwaitsWriter() {
  if (length_ > 0 || bytesRead_ > 0 || IsReady(std::chrono::milliseconds{0})) return false;
  char first = 0;
  const std::optional<std::size_t> bytes = file_.ReadAtHand({&first, 1});
  if (!bytes) return false;
  ahead_.append(&first, *bytes);
  bytesRead_ += static_cast<std::int64_t>(*bytes);
  return *bytes == 0;
}

std::size_t InputFile::Read(std::span<char> buffer) {
  if (aheadStart_ == ahead_.size()) return ReadFile(buffer);
  const std::size_t bytes = std::min(buffer.size(), ahead_.size() - aheadStart_);
  if (bytes > 0) std::memcpy(buffer.data(), ahead_.data() + aheadStart_, bytes);
  aheadStart_ += bytes;
  return bytes;
}

std::string_view InputFile::Ahead(std::size_t bytes) {
  ahead_.erase(0, aheadStart_);
  aheadStart_ = 0;
  // That a file of known length is at its end is not asked for: most files are small, and every
  // question costs.
  while (ahead_.size() < bytes && !ended_ && (length_ == 0 || bytesRead_ != length_)) {
    const std::size_t before = ahead_.size();
    ahead_.resize(bytes);
    std::size_t bytesRead = 0;
    try {
      bytesRead = ReadFile(std::span(ahead_).subspan(before));
    } catch (...) {
      ahead_.resize(before);
      throw;
    }
    ahead_.resize(before + bytesRead);
  }
  return std::string_view(ahead_).substr(0, bytes);
}

/// An end stays one, though a file may grow meanwhile.
std::size_t InputFile::ReadFile(std::span<char> buffer) {
  if (ended_ || buffer.empty()) return 0;
  const std::size_t bytes = isPlaced_ ? file_.ReadAt(bytesRead_, buffer) : file_.Read(buffer);
  ended_ = bytes == 0;
  bytesRead_ += static_cast<std::int64_t>(bytes);
  return bytes;
}

}  // namespace quillomat
