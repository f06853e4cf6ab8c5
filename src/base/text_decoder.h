// From the bytes of an encoding to UTF-8, piece by piece: a piece may end within a character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/character_set.h"

namespace quillomat {

/// What stands for bytes that are no character of their encoding. It is no part of any word.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

class TextDecoder {
 public:
  TextDecoder() = default;
  TextDecoder(const TextDecoder&) = delete;
  TextDecoder& operator=(const TextDecoder&) = delete;
  TextDecoder(TextDecoder&&) = delete;
  TextDecoder& operator=(TextDecoder&&) = delete;
  virtual ~TextDecoder() = default;

  /// Appends the characters that end with `bytes` to `text`. A byte-order mark is a character as
  /// any other.
  virtual void Decode(std::string_view bytes, std::string& text) = 0;
  /// There are no more bytes: a character that is not finished is none. Called once, at last.
  virtual void End(std::string& text) = 0;

  /// How many bytes were no character, and became a replacement character.
  [[nodiscard]] std::int64_t BytesNotDecoded() const { return bytesNotDecoded_; }

 protected:
  /// Appends what stands for so many bytes together.
  void Replace(std::size_t bytes, std::string& text);
  /// So many bytes became a replacement character.
  void CountNotDecoded(std::size_t bytes) { bytesNotDecoded_ += static_cast<std::int64_t>(bytes); }

 private:
  std::int64_t bytesNotDecoded_ = 0;
};

/// A character of UTF-8 has no more.
inline constexpr std::size_t kMostUtf8Bytes = 4;

/// Whether the byte goes on with a character of UTF-8 that others have begun.
[[nodiscard]] constexpr bool IsContinuationByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// How many bytes at the end of `text` begin a character of UTF-8 that is not finished.
[[nodiscard]] std::size_t UnfinishedUtf8Bytes(std::string_view text);

/// Each byte that fits nowhere becomes a replacement character.
class Utf8Decoder final : public TextDecoder {
 public:
  void Decode(std::string_view bytes, std::string& text) override;
  void End(std::string& text) override;

 private:
  /// The start of a character, or of what may be one.
  std::string unfinished_;
};

/// A lone surrogate, or an odd last byte, becomes a replacement character.
class Utf16Decoder final : public TextDecoder {
 public:
  enum class ByteOrder : std::uint8_t { kByMark, kLittleEndian, kBigEndian };

  /// By its mark: without one the low byte comes first.
  explicit Utf16Decoder(ByteOrder order = ByteOrder::kByMark) : order_(order) {}

  void Decode(std::string_view bytes, std::string& text) override;
  void End(std::string& text) override;

 private:
  void TakeUnit(char16_t unit, std::string& text);

  ByteOrder order_;
  std::optional<unsigned char> oddByte_;
  std::optional<char16_t> highSurrogate_;
};

/// The decoder of a set of Unicode, which no system is needed for; nothing for any other set.
[[nodiscard]] std::unique_ptr<TextDecoder> MakeUnicodeDecoder(CharacterSet set);

}  // namespace quillomat
