// Scans one text after the other into the store of a count: line by line, in blocks of lines, or in
// pieces on several threads, whichever is the quickest that the text allows. The result is the same
// in each way.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "engine/parallel/threaded_scan.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

/// Chooses the comment markers of a text by its path's extension: those of HTML or C files, which
/// are in force whatever the user chose, else the user's own or none.
void LoadMarkersFor(std::string_view path, const ScanChoices& choices, ScanSettings& settings);

class TextReader {
 public:
  /// Shorter texts are not worth several threads.
  static constexpr std::int64_t kBytesWorthThreads = std::int64_t{2} * LinePieces::kPieceBytes;

  /// Everything outlives the reader. The allow flags of the target's settings are ready; the store
  /// is neither sorted nor cleared while the reader lives.
  TextReader(const ThreadedScan::Target& target, const ScanChoices& choices, const WordLists& lists,
             std::size_t threads, ScanYield& yield)
      : target_(target),
        choices_(choices),
        lists_(lists),
        threads_(threads),
        yield_(yield),
        scanner_(target.settings, choices, lists, target.store, yield) {}

  [[nodiscard]] bool UsesThreads() const { return threads_ > 1; }

  /// Scans `text` in one piece.
  void ReadPiece(std::string_view text);

  /// Is told of the bytes of lines, decoded and with two for every line end, before they are
  /// scanned.
  using OnBytes = std::function<void(std::int64_t)>;

  /// Scans the lines of a source to its end or to a stop. Throws what the source throws, and
  /// RunTimeError 6 when a counter overflows; the words before it have been counted.
  void ReadLines(ByteSource& source, const OnBytes& onBytes);
  /// The same on several threads.
  void ReadLinesOnThreads(ByteSource& source, const OnBytes& onBytes);

 private:
  [[nodiscard]] bool ReadLongLine(LineDecoder& lines, const OnBytes& onBytes);
  void ReadLine(std::string_view line);
  void ReadPlainLines(std::string_view lines);

  ThreadedScan::Target target_;
  const ScanChoices& choices_;
  const WordLists& lists_;
  std::size_t threads_;
  ScanYield& yield_;
  WordScanner scanner_;
  std::string buffer_;
  std::optional<ThreadedScan> threadedScan_;
};

}  // namespace quillomat
