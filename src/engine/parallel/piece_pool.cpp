#include "engine/parallel/piece_pool.h"

#include <algorithm>
#include <utility>

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
                     const WordLists& lists, std::size_t threads, bool keepOrder)
    : scanners_(MakeScanners(std::max<std::size_t>(threads, 1), settings, choices, lists, stop_,
                             keepOrder)),
      jobs_(threads, stop_, [this](Piece& piece, std::size_t scanner) {
        Scan(piece, scanner);
        return std::size_t{0};  // the owner sees to it that there are few
      }) {}

void PiecePool::Scan(Piece& piece, std::size_t scanner) {
  piece.scanner = scanner;
  try {
    piece.count = scanners_[scanner]->Scan(piece.text.Text(), piece.settings);
  } catch (...) {
    scanners_[scanner]->ForgetWords();  // which may be half a word
    throw;
  }
}

void PiecePool::Submit(TextPiece text, const ScanSettings& settings) {
  jobs_.Submit({.text = std::move(text), .settings = settings, .count = {}});
}

void PiecePool::Clear() {
  jobs_.Clear([this] {
    for (const auto& scanner : scanners_) scanner->ForgetWords();
  });
}

}  // namespace quillomat
