#include "app/count/reach_text.h"

#include "base/text_helpers.h"
#include "base/work_pace.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {

std::string ReachText(const CountReach& reach, const ProgramText& text, const NumberSigns& signs) {
  const auto files = [&](std::int32_t number) { return GroupDigits(number, signs.group); };
  const auto bytes = [&](std::int64_t number) {
    return AmountText(static_cast<double>(number), signs.decimal);
  };
  if (reach.filesInAll > 1) {
    return Filled(text.GetText(kStoppedAtFileText), {files(reach.files), files(reach.filesInAll)});
  }
  if (reach.bytes > 0 && reach.bytes < reach.bytesInAll) {
    return Filled(text.GetText(kStoppedAfterBytesText),
                  {bytes(reach.bytes), bytes(reach.bytesInAll)});
  }
  return text.GetText(kStoppedBeforeTheEndText);
}

}  // namespace quillomat
