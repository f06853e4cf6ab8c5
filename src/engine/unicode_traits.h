// What the program has to know of each character of Unicode, in a table whose pages are made when
// they are first asked for: most texts need few, and all of them take some milliseconds. All
// threads can read it. The knowledge is the library utf8proc's; its own functions are too slow for
// every letter of a text.
//
// A "code point" is any number up to U+10FFFF that is no surrogate.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

namespace quillomat {

struct CodePointTraits {
  /// General category L: letters of all kinds, with and without case.
  static constexpr std::uint8_t kLetter = 1;
  /// General category M: what stands on, under or around a letter.
  static constexpr std::uint8_t kMark = 2;
  /// General category Nd: a digit of a number in base ten.
  static constexpr std::uint8_t kDigit = 4;
  /// In a text in normal form it stands not at all, or only with regard to its neighbours.
  static constexpr std::uint8_t kUnsettled = 8;
  /// A letter of which it makes no difference whether it has accents.
  static constexpr std::uint8_t kLatinOrGreek = 16;
  /// Consists of others: a letter and its marks, most often.
  static constexpr std::uint8_t kComposed = 32;
  /// A letter of the Latin script.
  static constexpr std::uint8_t kLatin = 64;
  /// General category Cf: signs that most often cannot be seen, and say how others are laid out.
  static constexpr std::uint8_t kFormat = 128;

  /// To be added for the small letter (simple lower case).
  std::int32_t toLower = 0;
  /// To be added for what stands for all letters that differ in case only (simple case folding; of
  /// a letter that has none of its own, the small letter).
  std::int32_t toFolded = 0;
  std::uint8_t kinds = 0;

  bool operator==(const CodePointTraits&) const = default;
};

class UnicodeTraits {
 public:
  /// The one table.
  [[nodiscard]] static const UnicodeTraits& Get();

  [[nodiscard]] const CodePointTraits& Of(char32_t codePoint) const {
    const std::size_t number = codePoint >> kPageBits;
    const Page* page = pages_[number].load(std::memory_order_acquire);
    if (page == nullptr) page = &MakePage(number);
    return (*page)[codePoint & (kPageSize - 1)];
  }
  [[nodiscard]] bool Is(char32_t codePoint, std::uint8_t kinds) const {
    return (Of(codePoint).kinds & kinds) != 0;
  }

 private:
  static constexpr unsigned kPageBits = 8;
  static constexpr std::size_t kPageSize = std::size_t{1} << kPageBits;
  static constexpr std::size_t kPages = 0x110000 / kPageSize;
  using Page = std::array<CodePointTraits, kPageSize>;

  UnicodeTraits() = default;
  [[nodiscard]] const Page& MakePage(std::size_t number) const;

  // A page is made once and stays: who finds it need not wait for those who make others.
  mutable std::array<std::atomic<const Page*>, kPages> pages_{};
  mutable std::mutex making_;
  mutable std::deque<Page> made_;
};

/// Takes a composed character apart (canonical decomposition); others stay as they are. The result
/// is appended.
void AppendDecomposed(char32_t codePoint, std::vector<std::int32_t>& codePoints);

/// Puts the marks into the canonical order and composes what can be (Normalization Form C). The
/// characters are taken apart. In no more than n log n time, however many marks there are.
void Compose(std::vector<std::int32_t>& codePoints);

/// The version of Unicode, as "15.0.0".
[[nodiscard]] std::string UnicodeVersion();

}  // namespace quillomat
