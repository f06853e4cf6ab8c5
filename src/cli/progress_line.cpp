#include "cli/progress_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ostream>
#include <string_view>

#include "base/text_helpers.h"
#include "cli/standard_output.h"

namespace quillomat {
namespace {

constexpr auto kBetweenPaintings = std::chrono::milliseconds(100);
constexpr auto kBetweenLines = std::chrono::seconds(1);
constexpr std::size_t kBarWidth = 20;
constexpr double kWhole = 100;

/// "310 MB": at least two digits, so that it can be seen to grow.
std::string Amount(double bytes) {
  constexpr double kStep = 1000;
  constexpr std::array<std::string_view, 5> kUnits = {"B", "kB", "MB", "GB", "TB"};
  std::size_t unit = 0;
  for (; bytes >= kStep && unit + 1 < kUnits.size(); ++unit) bytes /= kStep;
  constexpr double kFirstWithoutDecimals = 10;
  const int decimals = unit > 0 && bytes < kFirstWithoutDecimals ? 1 : 0;
  std::array<char, 32> text{};
  char* const end = std::to_chars(text.data(), text.data() + text.size(), bytes,
                                  std::chars_format::fixed, decimals)
                        .ptr;
  return std::string(text.data(), end).append(" ").append(kUnits[unit]);
}

/// "0:05", "1:02:03".
std::string Clock(double seconds) {
  constexpr std::int64_t kSixty = 60;
  const auto whole = static_cast<std::int64_t>(std::lround(seconds));
  const auto twoDigits = [](std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
  };
  const std::int64_t hours = whole / kSixty / kSixty;
  const std::int64_t minutes = whole / kSixty % kSixty;
  const std::string shownMinutes =
      hours > 0 ? std::to_string(hours) + ":" + twoDigits(minutes) : std::to_string(minutes);
  return shownMinutes + ":" + twoDigits(whole % kSixty);
}

std::string Bar(double share) {
  const auto done = static_cast<std::size_t>(share * kBarWidth);
  std::string bar(done, '=');
  if (done < kBarWidth) bar.append(">").append(kBarWidth - done - 1, ' ');
  return "[" + bar + "]";
}

}  // namespace

std::string ProgressText(BytesDone bytes, ProgressLine::Duration elapsed) {
  const double seconds = std::chrono::duration<double>(elapsed).count();
  const auto done = static_cast<double>(bytes.done);
  const auto whole = static_cast<double>(bytes.whole);
  const double rate = seconds > 0 ? done / seconds : 0;
  const std::string speed = "  " + Amount(rate) + "/s  ";
  if (bytes.whole <= 0) return Amount(done) + speed + Clock(seconds);
  const double share = std::min(1.0, done / whole);
  const std::string percent = std::to_string(static_cast<int>(share * kWhole)) + "%";
  std::string text = Bar(share) + std::string(5 - std::min<std::size_t>(5, percent.size()), ' ') +
                     percent + "  " + Amount(done) + " of " + Amount(whole) + speed;
  return rate > 0 ? text + Clock(std::max(0.0, whole - done) / rate) + " left" : text;
}

ProgressLine::ProgressLine(const TerminalStreams& streams, Duration patience)
    : streams_(streams), start_(streams.clock()), nextPainting_(start_ + patience) {}

ProgressLine::~ProgressLine() {
  if (width_ > 0) Paint("");
}

void ProgressLine::Show(BytesDone bytes) {
  const auto now = streams_.clock();
  if (now < nextPainting_) return;
  nextPainting_ = now + (streams_.errIsTerminal ? Duration(kBetweenPaintings) : kBetweenLines);
  Paint(ProgressText(bytes, now - start_));
}

void ProgressLine::Paint(const std::string& text) {
  if (!streams_.errIsTerminal) {
    streams_.err << text << '\n' << std::flush;
    return;
  }
  // Blanks over what was there: not every terminal knows how to empty a line.
  std::string line = "\r" + text;
  if (width_ > text.size()) line.append(width_ - text.size(), ' ');
  if (text.empty()) line.append("\r");
  WriteUnescaped(streams_.err, line);
  streams_.err.flush();
  width_ = text.size();
}

}  // namespace quillomat
