#include "sources/line_tally.h"

#include "base/byte_order_mark.h"

namespace quillomat {
namespace {

/// So many, that their number fits into a byte: then many bytes are counted together.
constexpr std::size_t kBytesTogether = 255;

struct Counted {
  std::size_t lineFeeds = 0;
  std::size_t returns = 0;
  /// Carriage returns with a line feed behind them.
  std::size_t pairs = 0;
  bool high = false;
};

/// `before` is the byte in front of the piece, of at most kBytesTogether bytes.
void CountTogether(std::string_view piece, char before, Counted& counted) {
  unsigned char lineFeeds = piece.front() == '\n' ? 1 : 0;
  unsigned char returns = piece.front() == '\r' ? 1 : 0;
  auto pairs = static_cast<unsigned char>(before == '\r' && piece.front() == '\n');
  auto bits = static_cast<unsigned char>(piece.front());
  for (std::size_t i = 1; i < piece.size(); ++i) {
    const auto isFeed = static_cast<unsigned char>(piece[i] == '\n');
    const auto behindReturn = static_cast<unsigned char>(piece[i - 1] == '\r');
    lineFeeds = static_cast<unsigned char>(lineFeeds + isFeed);
    returns = static_cast<unsigned char>(returns + static_cast<unsigned char>(piece[i] == '\r'));
    pairs = static_cast<unsigned char>(pairs + (isFeed & behindReturn));
    bits = static_cast<unsigned char>(bits | static_cast<unsigned char>(piece[i]));
  }
  counted.lineFeeds += lineFeeds;
  counted.returns += returns;
  counted.pairs += pairs;
  counted.high = counted.high || bits > 127;
}

}  // namespace

void LineTally::Take(std::string_view bytes) {
  if (bytes.empty()) return;
  if (unit_ == Unit::kByte) {
    TakeBytes(bytes);
  } else {
    TakeUnits(bytes);
  }
}

void LineTally::TakeBytes(std::string_view bytes) {
  Counted counted;
  char before = afterReturn_ ? '\r' : '\0';
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::string_view piece = rest.substr(0, kBytesTogether);
    CountTogether(piece, before, counted);
    before = piece.back();
    rest.remove_prefix(piece.size());
  }
  Note(counted.lineFeeds, counted.returns, counted.pairs);
  figures_.ascii = figures_.ascii && !counted.high;
  afterReturn_ = bytes.back() == '\r';
  inLine_ = bytes.back() != '\r' && bytes.back() != '\n';
  start_ += bytes.substr(0, kMostMarkBytes + 1 - start_.size());
}

void LineTally::TakeUnits(std::string_view bytes) {
  figures_.ascii = false;
  for (const char ch : bytes) {
    const auto byte = static_cast<unsigned char>(ch);
    if (!hasOddByte_) {
      oddByte_ = byte;
    } else if (unit_ == Unit::kLittleEndian) {
      TakeUnit(static_cast<char16_t>(oddByte_ | (byte << 8)));
    } else {
      TakeUnit(static_cast<char16_t>(byte | (oddByte_ << 8)));
    }
    hasOddByte_ = !hasOddByte_;
  }
}

void LineTally::TakeUnit(char16_t unit) {
  constexpr char16_t kMark = 0xFEFF;
  const bool isFeed = unit == u'\n';
  const bool isReturn = unit == u'\r';
  Note(isFeed ? 1 : 0, isReturn ? 1 : 0, isFeed && afterReturn_ ? 1 : 0);
  afterReturn_ = isReturn;
  inLine_ = !isFeed && !isReturn && (inLine_ || unit != kMark);
}

/// The two ends of a pair were counted as two.
void LineTally::Note(std::size_t lineFeeds, std::size_t returns, std::size_t pairs) {
  const auto together = static_cast<std::int64_t>(pairs);
  figures_.crLf += together;
  figures_.lineFeeds += static_cast<std::int64_t>(lineFeeds) - together;
  figures_.returns += static_cast<std::int64_t>(returns) - together;
}

bool LineTally::IsMarkAlone() const {
  return !start_.empty() && WithoutUtf8Mark(start_).empty();
}

LineEndFigures LineTally::Figures() const {
  LineEndFigures figures = figures_;
  figures.endsOpen = (inLine_ && !IsMarkAlone()) || hasOddByte_;
  return figures;
}

}  // namespace quillomat
