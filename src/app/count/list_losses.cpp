#include "app/count/list_losses.h"

#include <cstdint>

#include "base/text_helpers.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

struct Loss {
  std::int64_t Uncounted::*number;
  int manyText;
  int oneText;
};

constexpr Loss kLosses[] = {
    {&Uncounted::foreignLetters, kListLettersNotReadText, kListLetterNotReadText},
    {&Uncounted::linesNotUtf8, kListLinesNotUtf8Text, kListLineNotUtf8Text},
    {&Uncounted::bytesNotDecoded, kListBytesNotDecodedText, kListByteNotDecodedText},
};

}  // namespace

std::string ListLossText(const Uncounted& lost, const std::string& path, const Messages& messages) {
  std::string text;
  for (const Loss& loss : kLosses) {
    const std::int64_t number = lost.*loss.number;
    if (number == 0) continue;
    if (!text.empty()) text.append(kCrLf);
    const int pattern = number == 1 ? loss.oneText : loss.manyText;
    text.append(Filled(messages.Text(pattern), {messages.Grouped(number), path}));
  }
  return text;
}

}  // namespace quillomat
