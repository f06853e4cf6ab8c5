#include "cli/progress_line.h"

#include <algorithm>
#include <ostream>

#include "cli/standard_output.h"

namespace quillomat {
namespace {

constexpr auto kBetweenPaintings = std::chrono::milliseconds(100);
constexpr auto kBetweenLines = std::chrono::seconds(1);
constexpr std::size_t kBarWidth = 20;
constexpr double kWhole = 100;

std::string Bar(double share) {
  const auto done = static_cast<std::size_t>(share * kBarWidth);
  std::string bar(done, '=');
  if (done < kBarWidth) bar.append(">").append(kBarWidth - done - 1, ' ');
  return "[" + bar + "]";
}

}  // namespace

std::string ProgressText(BytesDone bytes, ProgressLine::Duration elapsed,
                         std::string_view decimalSign) {
  const auto amount = [decimalSign](double size) { return AmountText(size, decimalSign); };
  const auto done = static_cast<double>(bytes.done);
  const auto whole = static_cast<double>(bytes.whole);
  const std::string speed = "  " + amount(BytesPerSecond(bytes, elapsed)) + "/s  ";
  if (bytes.whole <= 0) {
    const double seconds = std::chrono::duration<double>(elapsed).count();
    return amount(done) + speed + ClockText(seconds);
  }
  const double share = std::min(1.0, done / whole);
  const std::string percent = std::to_string(static_cast<int>(share * kWhole)) + "%";
  std::string text = Bar(share) + std::string(5 - std::min<std::size_t>(5, percent.size()), ' ') +
                     percent + "  " + amount(done) + " of " + amount(whole) + speed;
  const std::optional<double> left = SecondsLeft(bytes, elapsed);
  return left ? text + ClockText(*left) + " left" : text;
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
  Paint(ProgressText(bytes, now - start_, decimalSign_));
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
