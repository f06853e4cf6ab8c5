#include "app/count/pace_text.h"

#include <chrono>
#include <optional>

#include "base/work_pace.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {

std::string PaceText(const Progress& progress, const ProgramText& text, const NumberSigns& signs) {
  constexpr auto kFirstMoments = std::chrono::seconds(1);
  if (progress.elapsed < kFirstMoments) return {};
  const BytesDone bytes{progress.done, progress.whole};
  const std::optional<double> left = SecondsLeft(bytes, progress.elapsed);
  if (!left) return {};
  const std::string pace = AmountText(BytesPerSecond(bytes, progress.elapsed), signs.decimal);
  const std::string clock = ClockText(*left);
  if (clock == ClockText(0)) return Filled(text.GetText(kAlmostDoneText), {pace});
  return Filled(text.GetText(kPaceText), {pace, clock});
}

}  // namespace quillomat
