#include "base/character_decoder.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

namespace quillomat {
namespace {

constexpr std::size_t kPieceBytes = 2048;
constexpr std::size_t kAsciiCharacters = 128;

bool IsAscii(char ch) {
  return static_cast<unsigned char>(ch) < kAsciiCharacters;
}

/// U+0080 to U+00A0: what systems put, or do not, for single bytes that stand for nothing in a set
/// of characters of several bytes.
bool IsStandIn(std::string_view character) {
  return character >= "\xC2\x80" && character <= "\xC2\xA0";
}

/// How many of the bytes of one form, which are no character, are replaced together.
std::size_t BytesToReplace(std::string_view bytes) {
  return std::ranges::any_of(bytes, IsAscii) ? 1 : bytes.size();
}

}  // namespace

CharacterDecoder::CharacterDecoder(CharacterSet set, std::unique_ptr<EncodedCharacters> characters)
    : set_(set), hasLongForms_(HasLongForms(set)), characters_(std::move(characters)) {
  for (std::size_t byte = 0; byte < kAsciiCharacters; ++byte) {
    singles_[byte] = {{static_cast<char>(byte)}, 1, true};
  }
}

void CharacterDecoder::Decode(std::string_view bytes, std::string& text) {
  std::string joined;
  if (!unfinished_.empty()) {
    joined = std::exchange(unfinished_, {}).append(bytes);
    bytes = joined;
  }
  while (!bytes.empty()) {
    const std::size_t decoded = DecodePiece(bytes.substr(0, kPieceBytes), text);
    bytes.remove_prefix(decoded);
    if (decoded == 0) {
      unfinished_ = bytes;
      return;
    }
  }
}

void CharacterDecoder::End(std::string& text) {
  while (!unfinished_.empty()) {
    Replace(1, text);
    const std::string behind = std::exchange(unfinished_, {}).substr(1);
    Decode(behind, text);
  }
}

std::size_t CharacterDecoder::DecodePiece(std::string_view bytes, std::string& text) {
  constexpr std::size_t kRoom = sizeof Character::text;
  std::array<char, kPieceBytes * kRoom> piece;  // NOLINT(*-member-init): speed
  char* end = piece.data();
  std::string_view rest = bytes;
  while (!rest.empty()) {
    Found first = KeptFirst(rest);
    if (first.character.length == 0) first = FindFirst(rest);
    if (first.bytes == 0) break;
    std::memcpy(end, first.character.text.data(), kRoom);
    end += first.character.length;
    rest.remove_prefix(first.bytes);
  }
  text.append(piece.data(), end);
  return bytes.size() - rest.size();
}

CharacterDecoder::Found CharacterDecoder::KeptFirst(std::string_view bytes) const {
  const auto first = static_cast<unsigned char>(bytes[0]);
  const Character& single = singles_[first];
  if (single.length > 0 || bytes.size() == 1 || !pairs_[first]) return {single, 1};
  return {(*pairs_[first])[static_cast<unsigned char>(bytes[1])], 2};
}

CharacterDecoder::Found CharacterDecoder::FindFirst(std::string_view bytes) {
  const std::optional<std::size_t> form = BytesOfForm(set_, bytes);
  if (!form) return {};
  const std::string_view asked = bytes.substr(0, *form);
  const Character character = CharacterOf(asked);
  if (character.length > 0) return {character, asked.size()};
  const std::size_t replaced = BytesToReplace(asked);
  CountNotDecoded(replaced);
  return {kReplacement, replaced};
}

CharacterDecoder::Character CharacterDecoder::CharacterOf(std::string_view bytes) {
  if (bytes.size() > 2) return Ask(bytes);
  const auto first = static_cast<unsigned char>(bytes.front());
  if (bytes.size() == 2 && !pairs_[first]) pairs_[first] = std::make_unique<Row>();
  Row& row = bytes.size() == 2 ? *pairs_[first] : singles_;
  Character& kept = row[static_cast<unsigned char>(bytes.back())];
  if (!kept.isAsked) kept = Ask(bytes);
  return kept;
}

CharacterDecoder::Character CharacterDecoder::Ask(std::string_view bytes) {
  const std::string text = characters_->TextOf(bytes);
  Character character;
  character.isAsked = true;
  if (bytes.size() == 1 && hasLongForms_ && IsStandIn(text)) return character;
  if (text.size() <= character.text.size()) {
    std::ranges::copy(text, character.text.begin());
    character.length = static_cast<std::uint8_t>(text.size());
  }
  return character;
}

}  // namespace quillomat
