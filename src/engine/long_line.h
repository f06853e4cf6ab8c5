// Scans a line of any length part by part: with the words of the line as a whole, in memory that
// grows with its different words and not with its bytes.
//
// Whether a line is UTF-8 or Windows-1252 depends on all of its bytes. Up to the first byte above
// 127 that is the same; from there on the line is scanned in both ways, apart from the store, until
// a byte that cannot be UTF-8, or the end of the line, decides which of the two is counted.
//
// Memory grows with the bytes only while there is no place for a cut (see LineCutter): where 64 KB
// hold no separator at all and are not one plain run of letters either; what is held must stay
// below 2^32 bytes (see token_classes.h). If the store has a listener
// to the order of words, every word from the first byte above 127 on takes eight bytes more, until
// it is decided which way is counted.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "engine/line_block.h"
#include "engine/line_cutter.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

class LongLine {
 public:
  struct Scan {
    ScanSettings& settings;
    const ScanChoices& choices;
    const WordLists& lists;
    WordStore& store;
    ScanYield& yield;
    /// Of the settings, lists and store.
    WordScanner& scanner;
  };
  static constexpr std::size_t kPartBytes = std::size_t{8} * 1024;

  /// At the start of a line. Everything must outlive the object. The scanner takes parts of lines
  /// (CanTakeParts). About `partBytes` are scanned at once.
  explicit LongLine(const Scan& scan, std::size_t partBytes = kPartBytes);
  LongLine(const LongLine&) = delete;
  LongLine& operator=(const LongLine&) = delete;
  LongLine(LongLine&&) = delete;
  LongLine& operator=(LongLine&&) = delete;
  ~LongLine();

  /// The next bytes of the line, as they stand in the file. Throws RunTimeError 6 when a counter
  /// overflows.
  void Take(std::string_view bytes);
  /// The line ends here; nothing is taken afterwards.
  void End();
  /// The line goes on, but the scan does not: what stands behind the last place for a cut, be it
  /// half a word or half a character, is not counted. Nothing is taken afterwards.
  void BreakOff();

 private:
  enum class Encoding { kAscii, kOpen, kWindows1252 };
  class Alternative;

  [[nodiscard]] std::size_t ScanParts(std::string_view bytes);
  void ScanPart(std::string_view part);
  void ScanBothWays(std::string_view part);
  void Settle(Alternative& chosen);

  Scan scan_;
  std::size_t partBytes_;
  LineCutter cutter_;
  LinePartState state_;
  Encoding encoding_ = Encoding::kAscii;
  std::unique_ptr<Alternative> asUtf8_;
  std::unique_ptr<Alternative> asWindows1252_;
  /// Behind the last cut.
  std::string held_;
  /// There is no cut among the first of them.
  std::size_t searched_ = 0;
};

}  // namespace quillomat
