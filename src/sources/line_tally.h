// Counts the lines of a text, and which line ends it has, as its bytes are read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillomat {

/// How the lines of a text end. A line feed behind a carriage return is one end with it.
struct LineEndFigures {
  std::int64_t crLf = 0;
  std::int64_t lineFeeds = 0;
  std::int64_t returns = 0;
  /// Behind the last line end there is a line without one.
  bool endsOpen = false;
  /// No byte above 127.
  bool ascii = true;

  [[nodiscard]] std::int64_t Lines() const {
    return crLf + lineFeeds + returns + (endsOpen ? 1 : 0);
  }
  bool operator==(const LineEndFigures&) const = default;
};

class LineTally {
 public:
  /// What a line end consists of: bytes, or the units of UTF-16.
  enum class Unit : std::uint8_t { kByte, kLittleEndian, kBigEndian };

  explicit LineTally(Unit unit) : unit_(unit) {}

  /// The next bytes of the text, its mark among them.
  void Take(std::string_view bytes);
  /// Of what was taken.
  [[nodiscard]] LineEndFigures Figures() const;

 private:
  void TakeBytes(std::string_view bytes);
  void TakeUnits(std::string_view bytes);
  void TakeUnit(char16_t unit);
  [[nodiscard]] bool IsMarkAlone() const;
  void Note(std::size_t lineFeeds, std::size_t returns, std::size_t pairs);

  Unit unit_;
  LineEndFigures figures_;
  /// What was taken ends with a carriage return; with something else than a line end.
  bool afterReturn_ = false;
  bool inLine_ = false;
  /// The text begins so: with one byte more than its mark may have.
  std::string start_;
  /// Half a unit was taken, which is this byte.
  bool hasOddByte_ = false;
  unsigned char oddByte_ = 0;
};

}  // namespace quillomat
