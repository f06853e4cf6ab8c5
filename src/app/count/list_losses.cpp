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
    {&Uncounted::linesNotUtf8, kListLinesNotUtf8Text, kListLineNotUtf8Text},
    {&Uncounted::bytesNotDecoded, kListBytesNotDecodedText, kListByteNotDecodedText},
    {&Uncounted::foreignLetters, kListLettersNotReadText, kListLetterNotReadText},
};

std::string LossText(const Loss& loss, const Uncounted& lost, const std::string& name,
                     const Messages& messages) {
  const std::int64_t number = lost.*loss.number;
  const int pattern = number == 1 ? loss.oneText : loss.manyText;
  return Filled(messages.Text(pattern), {messages.Grouped(number), name});
}

}  // namespace

std::string ListLossText(const Uncounted& lost, const std::string& path, const Messages& messages) {
  std::string text;
  for (const Loss& loss : kLosses) {
    if (lost.*loss.number == 0) continue;
    if (!text.empty()) text.append(kCrLf);
    text.append(LossText(loss, lost, path, messages));
  }
  return text;
}

std::string TypedLossText(std::string_view cleaned, LetterRule letters, const std::string& list,
                          const Messages& messages) {
  const Loss loss{&Uncounted::foreignLetters, kTypedLettersNotUsedText, kTypedLetterNotUsedText};
  const Uncounted lost{.foreignLetters = CountForeignLetters(cleaned, false)};
  if (letters == LetterRule::kAll || lost.foreignLetters == 0) return {};
  return LossText(loss, lost, list, messages);
}

}  // namespace quillomat
