#include "engine/long_line.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "base/checked_count.h"
#include "base/line_decoder.h"
#include "base/utf8.h"

namespace quillomat {

/// One way of reading the line, apart from the store of the count.
class LongLine::Alternative {
 public:
  Alternative(const Scan& scan, const LinePartState& state)
      : settings_(scan.settings),
        state_(state),
        scanner_(settings_, scan.choices, scan.lists, store_, scan.yield) {
    if (scan.store.OrderListener() != nullptr) store_.SetOrderListener(&order_);
  }

  void Take(std::string_view part) { scanner_.GetWordsOfPart(part, state_); }

  [[nodiscard]] const LinePartState& State() const { return state_; }

  /// Counts in `scan` what was found.
  void Join(const Scan& scan) {
    std::int32_t read = scan.scanner.WordsRead();
    AddChecked(read, scanner_.WordsRead());
    scan.scanner.SetWordsRead(read);
    scan.settings.OpenComment = settings_.OpenComment;
    scan.settings.Uncounted = settings_.Uncounted;
    std::vector<std::uint32_t> places(static_cast<std::size_t>(store_.NumDifferentWords()));
    for (const auto& [place, times] : store_.TakeCountedWords()) {
      const std::uint32_t joined = scan.store.AddWord(store_.WordAtPlace(place)).value();
      if (times > 1) scan.store.CountWordAt(joined, times - 1);
      places[place] = joined;
    }
    if (WordOrderListener* const listener = scan.store.OrderListener()) {
      for (std::uint32_t& place : order_.places) place = places[place];
      listener->OnWords(order_.places);
    }
  }

 private:
  ScanSettings settings_;
  LinePartState state_;
  WordStore store_;
  WordOrderRecorder order_;
  WordScanner scanner_;
};

LongLine::LongLine(const Scan& scan, std::size_t partBytes)
    : scan_(scan), partBytes_(partBytes), cutter_(scan.scanner.Classes(), scan.settings) {}

LongLine::~LongLine() = default;

void LongLine::Take(std::string_view bytes) {
  if (held_.empty()) {
    held_ = bytes.substr(ScanParts(bytes));
  } else {
    held_.append(bytes);
    held_.erase(0, ScanParts(held_));
  }
}

void LongLine::End() {
  ScanPart(held_);
  BreakOff();
}

void LongLine::BreakOff() {
  held_.clear();
  if (encoding_ == Encoding::kOpen) Settle(*asUtf8_);
}

/// Scans what can be cut off the front of `bytes`, and returns how many bytes that are.
std::size_t LongLine::ScanParts(std::string_view bytes) {
  std::size_t scanned = 0;
  std::size_t window = std::max(partBytes_, searched_ + 1);
  while (scanned + window <= bytes.size()) {
    const std::string_view atHand = bytes.substr(scanned, window);
    if (const std::size_t cut = cutter_.LastCut(atHand, searched_); cut > 0) {
      ScanPart(atHand.substr(0, cut));
      scanned += cut;
      searched_ = 0;
      window = partBytes_;
    } else {
      searched_ = window - 1;  // the last byte may be cut off once it is seen what follows
      window += std::max(partBytes_, window / 2);
    }
  }
  return scanned;
}

void LongLine::ScanPart(std::string_view part) {
  if (encoding_ == Encoding::kAscii && !IsAscii(part)) {
    encoding_ = Encoding::kOpen;
    asUtf8_ = std::make_unique<Alternative>(scan_, state_);
    asWindows1252_ = std::make_unique<Alternative>(scan_, state_);
  }
  switch (encoding_) {
    case Encoding::kAscii:
      return scan_.scanner.GetWordsOfPart(part, state_);
    case Encoding::kOpen:
      return ScanBothWays(part);
    case Encoding::kWindows1252:
      return scan_.scanner.GetWordsOfPart(DecodeWindows1252(part), state_);
  }
}

void LongLine::ScanBothWays(std::string_view part) {
  asWindows1252_->Take(DecodeWindows1252(part));
  if (IsWellFormedUtf8(part)) return asUtf8_->Take(part);
  encoding_ = Encoding::kWindows1252;
  Settle(*asWindows1252_);
  ++scan_.settings.Uncounted.linesNotUtf8;
}

void LongLine::Settle(Alternative& chosen) {
  chosen.Join(scan_);
  state_ = chosen.State();
  asUtf8_.reset();
  asWindows1252_.reset();
}

}  // namespace quillomat
