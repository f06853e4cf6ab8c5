// A text in an encoding of bytes, character by character: what its bytes stand for is asked of the
// operating system once for each character, and kept. So it makes no difference in which blocks the
// bytes come, nor how a system's own converters go on behind bytes that are no character.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/character_form.h"
#include "base/character_set.h"
#include "base/text_decoder.h"

namespace quillomat {

/// What the system knows of the characters of one set.
class EncodedCharacters {
 public:
  EncodedCharacters() = default;
  EncodedCharacters(const EncodedCharacters&) = delete;
  EncodedCharacters& operator=(const EncodedCharacters&) = delete;
  EncodedCharacters(EncodedCharacters&&) = delete;
  EncodedCharacters& operator=(EncodedCharacters&&) = delete;
  virtual ~EncodedCharacters() = default;

  /// The character in UTF-8 that is written as `bytes`, which have the form of one; nothing if
  /// there is none. A letter with its mark may be two there, of four bytes at most together.
  [[nodiscard]] virtual std::string TextOf(std::string_view bytes) = 0;
};

/// Of a set in which each byte of ASCII stands for itself where no other leads it. In one with
/// characters of several bytes no single byte is a control beyond ASCII. Of bytes that have the
/// form of a character and are none, all are replaced together, except that what is ASCII stays: it
/// may be a letter of its own.
class CharacterDecoder final : public TextDecoder {
 public:
  CharacterDecoder(CharacterSet set, std::unique_ptr<EncodedCharacters> characters);

  void Decode(std::string_view bytes, std::string& text) override;
  void End(std::string& text) override;

 private:
  struct Character {
    std::array<char, 4> text{};
    /// Of UTF-8; 0 for bytes that are no character, or were not asked for yet.
    std::uint8_t length = 0;
    bool isAsked = false;
  };
  static constexpr Character kReplacement{{'\xEF', '\xBF', '\xBD'}, 3, true};
  /// By the last byte of a character.
  using Row = std::array<Character, 256>;

  struct Found {
    Character character;
    /// 0 where more must come to tell.
    std::size_t bytes = 0;
  };

  /// Appends the characters of the start of `bytes` to `text`; how many bytes these have. 0 where
  /// more must come.
  std::size_t DecodePiece(std::string_view bytes, std::string& text);
  [[nodiscard]] Found KeptFirst(std::string_view bytes) const;
  Found FindFirst(std::string_view bytes);
  /// What bytes of the form of one character stand for.
  Character CharacterOf(std::string_view bytes);
  Character Ask(std::string_view bytes);

  CharacterSet set_;
  bool hasLongForms_;
  std::unique_ptr<EncodedCharacters> characters_;
  Row singles_;
  /// Of characters of two bytes, by the first.
  std::array<std::unique_ptr<Row>, 256> pairs_;
  /// The start of a character, or of what may be one.
  std::string unfinished_;
};

}  // namespace quillomat
