#include "sources/until_stop.h"

#include <algorithm>

#include "base/text_decoder.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::string_view kBetweenWords = " \t\r\n";
/// Who writes longer ones may have one torn.
constexpr std::size_t kLongestWord = 1024;
constexpr std::chrono::milliseconds kNoWait{0};
/// Bytes of a unit of UTF-16.
constexpr std::size_t kUnitBytes = 2;
/// Of a character of UTF-8.
constexpr std::size_t kMostContinuationBytes = kMostUtf8Bytes - 1;

/// How many of them `bytes` begin with.
std::size_t ContinuationBytes(std::string_view bytes) {
  const auto other = std::ranges::find_if_not(bytes, IsContinuationByte);
  return static_cast<std::size_t>(other - bytes.begin());
}

}  // namespace

UntilStop::UntilStop(ByteSource& source, StopQuestion& stop, CharacterSet choice)
    : source_(source),
      stop_(stop),
      mayBeUtf8_(choice == CharacterSet::kAsFound || choice == CharacterSet::kGuess) {}

void UntilStop::SetUnit(LineTally::Unit unit, CharacterSet from, std::string_view head) {
  unit_ = unit;
  mayBeUtf8_ = from == CharacterSet::kAsFound;
  bytesOfWord_ = head.size() - BehindLastBlank(head);
}

std::size_t UntilStop::Read(std::span<char> buffer) {
  if (ended_ || buffer.empty()) return 0;
  if (stop_.Stopped()) return ReadRestOfWord(buffer);
  const std::size_t bytes = ReadUnits(buffer);
  ended_ = bytes == 0;
  // The source may have ended since it was told to stop.
  if (ended_) wasStopped_ = stop_.YieldForMany();
  const std::string_view read(buffer.data(), bytes);
  const std::size_t behind = BehindLastBlank(read);
  bytesOfWord_ = (behind == 0 ? bytesOfWord_ : 0) + bytes - behind;
  return bytes;
}

/// The start of a unit or of a character waits for the rest, unless the text ends with it.
std::size_t UntilStop::ReadUnits(std::span<char> buffer) {
  std::size_t bytes = held_.copy(buffer.data(), buffer.size());
  held_.erase(0, bytes);
  torn_ = bytes > 0;
  while (bytes < buffer.size()) {
    const std::size_t fresh = source_.Read(buffer.subspan(bytes));
    bytes += fresh;
    const std::size_t unfinished = UnfinishedBytes({buffer.data(), bytes});
    if (fresh == 0) {
      if (unfinished > 0 && stop_.YieldForMany()) bytes -= unfinished;
      break;
    }
    torn_ = unfinished == bytes;
    if (torn_) continue;
    bytes -= unfinished;
    held_.assign(buffer.data() + bytes, unfinished);
    break;
  }
  bytesRead_ += bytes;
  return bytes;
}

/// How many of `bytes`, which come next, are the start of a unit or of a character, at their end. A
/// line that is not UTF-8 before that is Windows-1252, where all bytes are characters.
std::size_t UntilStop::UnfinishedBytes(std::string_view bytes) const {
  if (bytes.empty()) return 0;
  if (unit_ != LineTally::Unit::kByte) return (bytesRead_ + bytes.size()) % kUnitBytes;
  const std::size_t unfinished = mayBeUtf8_ ? UnfinishedUtf8Bytes(bytes) : 0;
  if (unfinished == 0) return 0;
  bytes.remove_suffix(unfinished);
  std::string_view line = bytes.substr(bytes.find_last_of("\r\n") + 1);
  // A buffer without room for a character may have taken its start.
  line.remove_prefix(std::min(ContinuationBytes(line), kMostContinuationBytes));
  return IsWellFormedUtf8(line) ? unfinished : 0;
}

/// Behind a stop.
std::size_t UntilStop::ReadRestOfWord(std::span<char> buffer) {
  wasStopped_ = true;
  const bool goesOn = torn_ || (bytesOfWord_ > 0 && bytesOfWord_ <= kLongestWord);
  ended_ = !goesOn || !source_.IsReady(kNoWait);
  if (ended_) return 0;
  const std::size_t bytes = ReadUnits(buffer.first(std::min(buffer.size(), kLongestWord)));
  const std::size_t rest = FirstBlank({buffer.data(), bytes});
  ended_ = bytes == 0 || rest < bytes;
  bytesOfWord_ += bytes;
  return rest;
}

/// Where the first whole unit of `bytes` begins, which were the last to be read.
std::size_t UntilStop::FirstUnit(std::string_view bytes) const {
  return std::min((bytesRead_ - bytes.size()) % kUnitBytes, bytes.size());
}

/// Whether a unit of UTF-16 does not belong to a word.
bool UntilStop::IsBetweenWords(std::string_view unit) const {
  const bool lowFirst = unit_ == LineTally::Unit::kLittleEndian;
  const char low = unit[lowFirst ? 0 : 1];
  const char high = unit[lowFirst ? 1 : 0];
  return high == 0 && kBetweenWords.find(low) != kBetweenWords.npos;
}

/// Of bytes that were the last to be read: where what stands behind the last blank begins, 0 if
/// there is none.
std::size_t UntilStop::BehindLastBlank(std::string_view bytes) const {
  if (unit_ == LineTally::Unit::kByte) return bytes.find_last_of(kBetweenWords) + 1;
  const std::size_t first = FirstUnit(bytes);
  for (std::size_t units = (bytes.size() - first) / kUnitBytes; units > 0; --units) {
    const std::size_t end = first + units * kUnitBytes;
    if (IsBetweenWords(bytes.substr(end - kUnitBytes, kUnitBytes))) return end;
  }
  return 0;
}

/// The same: where the first blank begins, or their number if there is none.
std::size_t UntilStop::FirstBlank(std::string_view bytes) const {
  if (unit_ == LineTally::Unit::kByte) {
    return std::min(bytes.find_first_of(kBetweenWords), bytes.size());
  }
  std::size_t place = FirstUnit(bytes);
  for (; place + kUnitBytes <= bytes.size(); place += kUnitBytes) {
    if (IsBetweenWords(bytes.substr(place, kUnitBytes))) return place;
  }
  return bytes.size();
}

}  // namespace quillomat
