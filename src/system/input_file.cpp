#include "system/input_file.h"

namespace quillomat {

InputFile::InputFile(const std::string& path) : InputFile(NativeFile::OpenForReading(path)) {
  isPlaced_ = length_ > 0;
}

std::optional<PlacedRest> InputFile::Rest() const {
  if (!isPlaced_) return std::nullopt;
  return PlacedRest{*this, bytesRead_ - static_cast<std::int64_t>(ahead_.NumBytes()), length_};
}

void InputFile::Skip(std::int64_t bytes) {
  bytesRead_ += bytes - static_cast<std::int64_t>(ahead_.Skip(static_cast<std::size_t>(bytes)));
}

/// A pipe without a writer is at its end, though it is not ready.
bool InputFile::AwaitsWriter() {
  if (length_ > 0 || bytesRead_ > 0 || IsReady(std::chrono::milliseconds{0})) return false;
  char first = 0;
  const std::optional<std::size_t> bytes = file_.ReadAtHand({&first, 1});
  if (!bytes) return false;
  ahead_.PutBack({&first, *bytes});
  bytesRead_ += static_cast<std::int64_t>(*bytes);
  return *bytes == 0;
}

std::size_t InputFile::Read(std::span<char> buffer) {
  return ahead_.IsEmpty() ? ReadFile(buffer) : ahead_.GiveOut(buffer);
}

std::string_view InputFile::Ahead(std::size_t bytes) {
  // That a file of known length is at its end is not asked for: most files are small, and every
  // question costs.
  const auto goesOn = [this] { return length_ == 0 || bytesRead_ != length_; };
  return ahead_.Ahead(
      bytes, [this](std::span<char> buffer) { return ReadFile(buffer); }, goesOn);
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
