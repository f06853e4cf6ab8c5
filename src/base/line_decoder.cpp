#include "base/line_decoder.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "base/byte_order_mark.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;
/// Most files of a large folder are small, and a large buffer for each would cost more than they.
constexpr std::size_t kFirstBufferBytes = std::size_t{16} * 1024;

/// The characters of the bytes 80 to 9F.
constexpr std::array<char16_t, 32> kWindows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendWindows1252(std::string& text, std::string_view bytes) {
  for (const char ch : bytes) {
    const auto byte = static_cast<unsigned char>(ch);
    const bool mapped = byte >= 0x80 && byte <= 0x9F;
    AppendCharacter(text, mapped ? kWindows1252High[byte - 0x80U] : char32_t{byte});
  }
}

}  // namespace

std::size_t FindLineEnd(std::string_view bytes) {
  // In small steps, so that a text that has only one kind of line end is not searched for the other
  // kind to its end for every line.
  constexpr std::size_t kStep = 256;
  for (std::size_t start = 0; start < bytes.size(); start += kStep) {
    const std::string_view step = bytes.substr(start, kStep);
    const std::size_t lineFeed = std::min(step.find('\n'), step.size());
    const std::size_t lineEnd = std::min(step.substr(0, lineFeed).find('\r'), lineFeed);
    if (lineEnd < step.size()) return start + lineEnd;
  }
  return bytes.size();
}

std::string DecodeWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 4);
  AppendWindows1252(text, bytes);
  return text;
}

std::string DecodeLine(std::string_view line) {
  return IsWellFormedUtf8(line) ? std::string(line) : DecodeWindows1252(line);
}

std::string DecodeText(ByteSource& source, std::int64_t* linesNotUtf8) {
  UnmarkedSource unmarked(source);
  std::string bytes;
  std::vector<char> block(kBlockBytes);
  while (const std::size_t size = unmarked.Read(block)) bytes.append(block.data(), size);
  if (IsWellFormedUtf8(bytes)) return bytes;
  std::string text;
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::size_t lineBytes = std::min(FindLineEnd(rest) + 1, rest.size());
    const std::string_view line = rest.substr(0, lineBytes);
    if (linesNotUtf8 != nullptr && !IsWellFormedUtf8(line)) ++*linesNotUtf8;
    text.append(DecodeLine(line));
    rest.remove_prefix(lineBytes);
  }
  return text;
}

std::size_t UnmarkedSource::Read(std::span<char> buffer) {
  if (buffer.empty()) return 0;
  if (!detected_) Detect();
  if (pending_.IsEmpty()) {
    if (!utf16_) return source_.Read(buffer);
    DecodeUtf16Block();
  }
  return pending_.GiveOut(buffer);
}

void UnmarkedSource::Detect() {
  std::array<char, kMostMarkBytes> head{};
  std::size_t have = 0;
  while (have < head.size()) {
    const std::size_t bytes = source_.Read(std::span(head).subspan(have));
    if (bytes == 0) break;
    have += bytes;
  }
  detected_ = true;
  std::string_view start(head.data(), have);
  const ByteOrderMark mark = MarkOf(start);
  start.remove_prefix(mark.bytes);
  if (mark.IsUtf16()) {
    const bool lowFirst = mark.kind == ByteOrderMark::Kind::kUtf16LittleEndian;
    utf16_.emplace(lowFirst ? Utf16Decoder::ByteOrder::kLittleEndian
                            : Utf16Decoder::ByteOrder::kBigEndian);
    utf16_->Decode(start, pending_.Emptied());
  } else {
    pending_.PutBack(start);
  }
}

/// Decodes some more into pending_; leaves it empty only at the end of the source.
void UnmarkedSource::DecodeUtf16Block() {
  std::vector<char> block(kBlockBytes);
  std::string& decoded = pending_.Emptied();
  while (decoded.empty() && !ended_) {
    const std::size_t bytes = source_.Read(block);
    ended_ = bytes == 0;
    if (ended_) {
      utf16_->End(decoded);
    } else {
      utf16_->Decode({block.data(), bytes}, decoded);
    }
  }
}

LineDecoder::LineDecoder(ByteSource& source)
    : source_(std::in_place, source), buffer_(kFirstBufferBytes) {}

std::optional<std::string_view> LineDecoder::NextLine() {
  const std::optional<std::string_view> line = NextRawLine();
  if (!line || IsWellFormedUtf8(*line)) return line;
  if (linesNotUtf8_ != nullptr) ++*linesNotUtf8_;
  decoded_.clear();
  AppendWindows1252(decoded_, *line);
  return decoded_;
}

std::string_view LineDecoder::NextLines() {
  for (;;) {
    SkipLineFeed();
    const std::size_t end = begin_ + std::min(end_ - begin_, kMostBytesOfLines);
    // A text without line feeds is not to be searched for one again with every line.
    const std::size_t unsearched = std::min(std::max(begin_, noLineFeedTo_), end);
    const std::size_t behind = AtHand(unsearched, end - unsearched).rfind('\n') + 1;
    if (behind > 0) return AtHand(begin_, unsearched + behind - begin_);
    noLineFeedTo_ = end;
    const std::size_t bytes = end_ - begin_;
    if (bytes >= kMostBytesOfLines) return {};
    if (!ReadBlock() && end_ - begin_ == bytes) return {};
  }
}

/// The line feed of a carriage return that has ended a line.
void LineDecoder::SkipLineFeed() {
  if (!skipLineFeed_ || begin_ == end_) return;
  if (AtHand(begin_, 1) == "\n") ++begin_;
  skipLineFeed_ = false;
}

std::optional<std::string_view> LineDecoder::NextRawLine() {
  std::size_t searched = 0;  // bytes from begin_ on that hold no line end
  for (;;) {
    SkipLineFeed();
    const std::string_view rest = AtHand(begin_, end_ - begin_);
    const std::size_t lineBytes = searched + FindLineEnd(rest.substr(searched));
    if (lineBytes < rest.size()) {
      skipLineFeed_ = rest[lineBytes] == '\r';
      begin_ += lineBytes + 1;
      return rest.substr(0, lineBytes);
    }
    searched = rest.size();
    if (ReadBlock()) continue;
    if (searched == 0) return std::nullopt;
    return AtHand(std::exchange(begin_, end_), searched);
  }
}

bool LineDecoder::IsAtLongLine() const {
  return end_ - begin_ >= kMostBytesOfLines &&
         FindLineEnd(AtHand(begin_, kMostBytesOfLines)) == kMostBytesOfLines;
}

std::string_view LineDecoder::NextPartOfLine() {
  if (begin_ == end_ && !ReadBlock()) return {};
  const std::string_view atHand = AtHand(begin_, end_ - begin_);
  const std::size_t bytes = FindLineEnd(atHand);
  if (bytes == 0) {
    skipLineFeed_ = atHand[0] == '\r';
    ++begin_;
  } else {
    begin_ += bytes;
  }
  return atHand.substr(0, bytes);
}

/// Reads more bytes behind those not yet given out; false at the end.
bool LineDecoder::ReadBlock() {
  if (!source_) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    noLineFeedTo_ -= std::min(noLineFeedTo_, begin_);
    begin_ = 0;
  }
  if (end_ == buffer_.size() || (moreToCome_ && buffer_.size() - end_ < kBlockBytes)) {
    buffer_.resize(std::max(buffer_.size() * 2, 2 * kBlockBytes));
  }
  const std::size_t bytes = source_->Read(std::span(buffer_).subspan(end_));
  end_ += bytes;
  moreToCome_ = end_ == buffer_.size();
  if (bytes == 0) EndLastLine();
  return bytes > 0;
}

/// Gives the last line an end when it has none, so that it is like the others.
void LineDecoder::EndLastLine() {
  if (begin_ == end_ || buffer_[end_ - 1] == '\n') return;
  buffer_[end_++] = '\n';
}

}  // namespace quillomat
