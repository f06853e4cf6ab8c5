// From bytes to lines of text. A line ends at CR LF, CR or LF, in any mixture. Each line is judged
// on its own: well-formed UTF-8 is UTF-8, anything else is Windows-1252, so every sequence of bytes
// is some text. A UTF-8 byte-order mark at the start is dropped; bytes that start with a UTF-16
// byte-order mark are UTF-16 from end to end.
//
// Bytes are read in blocks. Memory is bounded by the longest line plus two blocks; by two blocks
// where long lines are taken part by part.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"
#include "base/bytes_ahead.h"
#include "base/text_decoder.h"

namespace quillomat {

/// The position of the first CR or LF of `bytes`, or its size.
[[nodiscard]] std::size_t FindLineEnd(std::string_view bytes);

/// `bytes` read as Windows-1252, in UTF-8. The five bytes that Windows-1252 leaves undefined become
/// the control characters of the same number.
[[nodiscard]] std::string DecodeWindows1252(std::string_view bytes);

/// `line` as text: as it is when it is well-formed UTF-8, else as Windows-1252.
[[nodiscard]] std::string DecodeLine(std::string_view line);

/// All of the source as text, line breaks included; decoded as LineDecoder does it.
/// Lines that were not UTF-8 are counted in `linesNotUtf8`.
[[nodiscard]] std::string DecodeText(ByteSource& source, std::int64_t* linesNotUtf8 = nullptr);

/// The bytes of `source` without a byte-order mark; UTF-16 comes out as UTF-8 (a lone surrogate or
/// an odd last byte as U+FFFD). All who look at a file's text look through this.
class UnmarkedSource final : public ByteSource {
 public:
  explicit UnmarkedSource(ByteSource& source) : source_(source) {}

  /// The source is not at its start any more, so what looks like a mark is none.
  void BeginInside() { detected_ = true; }

  std::size_t Read(std::span<char> buffer) override;
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return !pending_.IsEmpty() || ended_ || source_.IsReady(longest);
  }

 private:
  void Detect();
  void DecodeUtf16Block();

  ByteSource& source_;
  bool detected_ = false;
  bool ended_ = false;
  std::optional<Utf16Decoder> utf16_;  // none for other bytes
  BytesAhead pending_;
};

class LineDecoder {
 public:
  /// `source` must outlive the decoder.
  explicit LineDecoder(ByteSource& source);

  /// Of a text that has no mark to be dropped; it is read where it stands and must outlive the
  /// decoder.
  explicit LineDecoder(std::string_view text) : text_(text), end_(text.size()) {}

  /// Lines of NextLine that were not UTF-8 are counted in `count` from now on, which must outlive
  /// the decoder.
  void CountLinesNotUtf8In(std::int64_t& count) { linesNotUtf8_ = &count; }

  /// The next line without its end, or nothing after the last. The view is good until the next
  /// call. Passes on what the source throws.
  [[nodiscard]] std::optional<std::string_view> NextLine();

  /// Whole lines that NextLine would give next, with their line feeds, as they stand in the source;
  /// at most kMostBytesOfLines. The last line of a source has got one if it had none. Empty when
  /// there is no line feed so near: then NextLine has the next line. The view is good until the
  /// next call of NextLine or NextLines.
  [[nodiscard]] std::string_view NextLines();
  /// Passes over the first `bytes` of NextLines(), which are whole lines.
  void SkipLines(std::size_t bytes) { begin_ += bytes; }

  static constexpr std::size_t kMostBytesOfLines = 8192;

  /// Whether the line that NextLine would give has more than so many bytes, and can be had part by
  /// part instead. To be asked when NextLines() is empty.
  [[nodiscard]] bool IsAtLongLine() const;
  /// The next bytes of that line, as they stand in the source; empty behind its end, which is
  /// passed over. The view is good until the next call.
  [[nodiscard]] std::string_view NextPartOfLine();

 private:
  /// `bytes` of the source from `start` on, which were read and are still at hand.
  [[nodiscard]] std::string_view AtHand(std::size_t start, std::size_t bytes) const {
    return source_ ? std::string_view(buffer_.data() + start, bytes) : text_.substr(start, bytes);
  }
  void SkipLineFeed();
  [[nodiscard]] bool ReadBlock();
  void EndLastLine();
  [[nodiscard]] std::optional<std::string_view> NextRawLine();

  std::optional<UnmarkedSource> source_;  // none when the text is at hand
  std::string_view text_;
  std::vector<char> buffer_;
  /// The bytes not yet given out are begin_ to end_, of the text or of the buffer.
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  /// No line feed is at hand before this place, or at none behind begin_.
  std::size_t noLineFeedTo_ = 0;
  bool skipLineFeed_ = false;
  /// The last block filled the buffer, so the source is likely to have more.
  bool moreToCome_ = false;
  std::string decoded_;
  std::int64_t* linesNotUtf8_ = nullptr;
};

}  // namespace quillomat
