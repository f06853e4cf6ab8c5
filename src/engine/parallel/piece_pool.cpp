#include "engine/parallel/piece_pool.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

std::vector<std::unique_ptr<PieceScanner>> MakeScanners(
    std::size_t number, const ScanSettings& settings, const ScanChoices& choices,
    const WordLists& lists, const std::atomic<bool>& stop, bool keepOrder) {
  std::vector<std::unique_ptr<PieceScanner>> scanners;
  for (std::size_t i = 0; i < number; ++i) {
    scanners.push_back(std::make_unique<PieceScanner>(settings, choices, lists, stop, keepOrder));
  }
  return scanners;
}

}  // namespace

PiecePool::PiecePool(const ScanSettings& settings, const ScanChoices& choices,
                     const WordLists& lists, std::size_t threads, std::size_t bytesAtOnce,
                     bool keepOrder)
    : bytesAtOnce_(bytesAtOnce),
      scanners_(MakeScanners(std::max<std::size_t>(threads, 1), settings, choices, lists, stop_,
                             keepOrder)),
      jobs_(threads, stop_, [this](Piece& piece, std::size_t scanner) {
        Scan(piece, scanner);
        return std::size_t{0};  // the owner sees to it that there are few
      }) {}

void PiecePool::Scan(Piece& piece, std::size_t scanner) {
  piece.scanner = scanner;
  PieceScanner& scans = *scanners_[scanner];
  try {
    piece.count = piece.placed ? scans.Scan(*piece.placed, bytesAtOnce_, piece.settings)
                               : scans.Scan(piece.text.Text(), piece.settings);
  } catch (const RunTimeError&) {
    scans.ForgetWords();  // which may be half a word
    if (!piece.placed) throw;
    piece.failed = true;  // and fails again where it is read in its turn
  } catch (...) {
    scans.ForgetWords();
    throw;
  }
}

void PiecePool::Submit(TextPiece text, const ScanSettings& settings) {
  jobs_.Submit({.text = std::move(text), .placed = {}, .settings = settings, .count = {}});
}

void PiecePool::Submit(const PlacedPiece& placed, const ScanSettings& settings) {
  jobs_.Submit({.text = {}, .placed = placed, .settings = settings, .count = {}});
}

void PiecePool::Clear() {
  jobs_.Clear([this] {
    for (const auto& scanner : scanners_) scanner->ForgetWords();
  });
}

}  // namespace quillomat
