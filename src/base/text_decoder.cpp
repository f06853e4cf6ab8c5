#include "base/text_decoder.h"

#include <utility>

#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr char16_t kMark = 0xFEFF;
constexpr char16_t kMarkTurned = 0xFFFE;

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Of a character.

/// Whether more bytes can make a character of `bytes`, which are none yet.
bool MayBecomeCharacter(std::string_view bytes) {
  if (bytes.size() >= kMostUtf8Bytes) return false;
  // The smallest and the greatest bytes that can follow.
  for (std::string longer :
       {std::string(bytes) + '\x80', std::string(bytes) + '\x90', std::string(bytes) + '\xA0'}) {
    while (longer.size() <= kMostUtf8Bytes) {
      if (IsWellFormedUtf8(longer)) return true;
      longer.push_back('\x80');
    }
  }
  return false;
}

}  // namespace

void TextDecoder::Replace(std::size_t bytes, std::string& text) {
  AppendCharacter(text, kReplacementCharacter);
  CountNotDecoded(bytes);
}

std::size_t UnfinishedUtf8Bytes(std::string_view text) {
  for (std::size_t bytes = 1; bytes < kMostUtf8Bytes && bytes <= text.size(); ++bytes) {
    const std::string_view end = text.substr(text.size() - bytes);
    if (!IsContinuationByte(end[0])) return MayBecomeCharacter(end) ? bytes : 0;
  }
  return 0;
}

void Utf8Decoder::Decode(std::string_view bytes, std::string& text) {
  std::string joined;
  if (!unfinished_.empty()) {
    joined = std::exchange(unfinished_, {}).append(bytes);
    bytes = joined;
  }
  while (!bytes.empty()) {
    const std::size_t good = WellFormedUtf8Bytes(bytes);
    text.append(bytes.substr(0, good));
    bytes.remove_prefix(good);
    if (bytes.empty()) return;
    if (MayBecomeCharacter(bytes)) {
      unfinished_ = bytes;
      return;
    }
    Replace(1, text);
    bytes.remove_prefix(1);
  }
}

void Utf8Decoder::End(std::string& text) {
  for (std::size_t i = 0; i < unfinished_.size(); ++i) Replace(1, text);
  unfinished_.clear();
}

void Utf16Decoder::Decode(std::string_view bytes, std::string& text) {
  for (const char ch : bytes) {
    const auto byte = static_cast<unsigned char>(ch);
    if (!oddByte_) {
      oddByte_ = byte;
      continue;
    }
    const bool big = order_ == ByteOrder::kBigEndian;
    const unsigned high = big ? *oddByte_ : byte;
    const unsigned low = big ? byte : *oddByte_;
    oddByte_.reset();
    auto unit = static_cast<char16_t>((high << 8U) | low);
    if (order_ == ByteOrder::kByMark) {
      order_ = unit == kMarkTurned ? ByteOrder::kBigEndian : ByteOrder::kLittleEndian;
      if (unit == kMarkTurned) unit = kMark;
    }
    TakeUnit(unit, text);
  }
}

void Utf16Decoder::End(std::string& text) {
  const std::size_t bytes = (highSurrogate_ ? 2U : 0U) + (oddByte_ ? 1U : 0U);
  if (bytes > 0) Replace(bytes, text);
  highSurrogate_.reset();
  oddByte_.reset();
}

void Utf16Decoder::TakeUnit(char16_t unit, std::string& text) {
  if (highSurrogate_ && IsLowSurrogate(unit)) {
    const char32_t high = *highSurrogate_ - 0xD800U;
    AppendCharacter(text, 0x10000U + (high << 10U) + (unit - 0xDC00U));
    highSurrogate_.reset();
    return;
  }
  if (highSurrogate_) Replace(sizeof unit, text);
  highSurrogate_.reset();
  if (IsHighSurrogate(unit)) {
    highSurrogate_ = unit;
  } else if (IsLowSurrogate(unit)) {
    Replace(sizeof unit, text);
  } else {
    AppendCharacter(text, unit);
  }
}

std::unique_ptr<TextDecoder> MakeUnicodeDecoder(CharacterSet set) {
  using enum Utf16Decoder::ByteOrder;
  switch (set) {
    case CharacterSet::kUtf8:
      return std::make_unique<Utf8Decoder>();
    case CharacterSet::kUtf16:
      return std::make_unique<Utf16Decoder>(kByMark);
    case CharacterSet::kUtf16HighByteFirst:
      return std::make_unique<Utf16Decoder>(kBigEndian);
    case CharacterSet::kUtf16LowByteFirst:
      return std::make_unique<Utf16Decoder>(kLittleEndian);
    default:
      return nullptr;
  }
}

}  // namespace quillomat
