// How the characters of a text are written as bytes: what a user may choose, with the names that
// each is known by.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillomat {

/// In the order in which they are offered. Not every system can decode the rarer ones (see
/// CanDecode). State files keep the number, so what is new stands at the end.
enum class CharacterSet : std::uint8_t {
  /// Each line is judged on its own, as line_decoder.h does it.
  kAsFound,
  /// Whatever the text's bytes look like.
  kGuess,
  kUtf8,
  /// As the byte-order mark says; without one as the text looks, or the low byte comes first.
  kUtf16,
  kWindows1250,
  kWindows1251,
  kWindows1252,
  kWindows1253,
  kWindows1254,
  kWindows1255,
  kWindows1256,
  kWindows1257,
  kWindows1258,
  kIso8859Part1,
  kIso8859Part2,
  kIso8859Part3,
  kIso8859Part4,
  kIso8859Part5,
  kIso8859Part6,
  kIso8859Part7,
  kIso8859Part8,
  kIso8859Part9,
  kIso8859Part13,
  kIso8859Part15,
  kKoi8R,
  kKoi8U,
  kShiftJis,
  kEucJp,
  kGb18030,
  kBig5,
  kEucKr,
  kMacRoman,
  kIbm437,
  kIbm850,
  kIso8859Part10,
  kIso8859Part11,
  kIso8859Part14,
  kIso8859Part16,
  kIbm852,
  kIbm855,
  kIbm866,
  kMacCyrillic,
  /// Without a byte-order mark, and the high byte first.
  kUtf16HighByteFirst,
  /// The same, and the low byte first.
  kUtf16LowByteFirst,
};

/// By number.
inline constexpr auto kCharacterSetNames = std::to_array<std::string_view>(
    {"as-found",     "guess",        "UTF-8",        "UTF-16",       "Windows-1250", "Windows-1251",
     "Windows-1252", "Windows-1253", "Windows-1254", "Windows-1255", "Windows-1256", "Windows-1257",
     "Windows-1258", "ISO-8859-1",   "ISO-8859-2",   "ISO-8859-3",   "ISO-8859-4",   "ISO-8859-5",
     "ISO-8859-6",   "ISO-8859-7",   "ISO-8859-8",   "ISO-8859-9",   "ISO-8859-13",  "ISO-8859-15",
     "KOI8-R",       "KOI8-U",       "Shift_JIS",    "EUC-JP",       "GB18030",      "Big5",
     "EUC-KR",       "MacRoman",     "IBM437",       "IBM850",       "ISO-8859-10",  "ISO-8859-11",
     "ISO-8859-14",  "ISO-8859-16",  "IBM852",       "IBM855",       "IBM866",       "MacCyrillic",
     "UTF-16BE",     "UTF-16LE"});

[[nodiscard]] constexpr std::string_view NameOf(CharacterSet set) {
  return kCharacterSetNames[static_cast<std::size_t>(set)];
}

/// The set that goes by that name or a usual other one ("cp1252", "latin1"), whatever its letter
/// case, hyphens, underscores and blanks; nothing if there is none.
[[nodiscard]] std::optional<CharacterSet> FindCharacterSet(std::string_view name);

}  // namespace quillomat
