// The mark with which a text may begin: it says what the bytes behind it are, and is no part of the
// text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillomat {

struct ByteOrderMark {
  enum class Kind : std::uint8_t { kNone, kUtf8, kUtf16LittleEndian, kUtf16BigEndian };

  Kind kind = Kind::kNone;
  /// It stands in so many bytes.
  std::size_t bytes = 0;

  [[nodiscard]] bool IsUtf16() const {
    return kind == Kind::kUtf16LittleEndian || kind == Kind::kUtf16BigEndian;
  }
};

/// No mark has more bytes.
inline constexpr std::size_t kMostMarkBytes = 3;

/// Of the text that begins with `head`, kMostMarkBytes or all that there are.
[[nodiscard]] constexpr ByteOrderMark MarkOf(std::string_view head) {
  using enum ByteOrderMark::Kind;
  if (head.starts_with("\xEF\xBB\xBF")) return {kUtf8, 3};
  if (head.starts_with("\xFF\xFE")) return {kUtf16LittleEndian, 2};
  if (head.starts_with("\xFE\xFF")) return {kUtf16BigEndian, 2};
  return {};
}

/// `text`, in UTF-8, without its mark.
[[nodiscard]] constexpr std::string_view WithoutUtf8Mark(std::string_view text) {
  const ByteOrderMark mark = MarkOf(text);
  return mark.kind == ByteOrderMark::Kind::kUtf8 ? text.substr(mark.bytes) : text;
}

}  // namespace quillomat
