#include "sources/encoding_guess.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <uchardet.h>

#include "base/text_decoder.h"

namespace quillomat {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

struct DetectorCloser {
  void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};
using Detector = std::unique_ptr<uchardet, DetectorCloser>;

bool HasUtf16Mark(std::string_view head) {
  return head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF");
}

/// Without a mark: the zero bytes that western characters have, and none but those.
bool LooksLikeUtf16(std::string_view head) {
  std::size_t high = 0;
  for (std::size_t i = 0; i < head.size(); ++i) {
    if (head[i] != '\0') continue;
    if (i % 2 == 0) return false;
    ++high;
  }
  return high > head.size() / 4;
}

/// By what the library knows of languages.
CharacterSet Detected(std::string_view head) {
  const Detector detector(uchardet_new());
  if (uchardet_handle_data(detector.get(), head.data(), head.size()) != 0) {
    return CharacterSet::kAsFound;
  }
  uchardet_data_end(detector.get());
  return FindCharacterSet(uchardet_get_charset(detector.get())).value_or(CharacterSet::kAsFound);
}

CharacterSet Guess(std::string_view head) {
  if (LooksLikeUtf8(head)) return CharacterSet::kAsFound;
  return LooksLikeUtf16(head) ? CharacterSet::kUtf16 : Detected(head);
}

}  // namespace

bool LooksLikeUtf8(std::string_view head) {
  Utf8Decoder decoder;
  std::string text;
  decoder.Decode(head, text);
  if (head.size() < kGuessBytes) decoder.End(text);
  return decoder.BytesNotDecoded() == 0 && text.find('\0') == std::string::npos;
}

CharacterSet CharacterSetOf(std::string_view head, CharacterSet choice) {
  if (HasUtf16Mark(head)) return CharacterSet::kUtf16;
  if (choice == CharacterSet::kAsFound) return choice;
  if (choice == CharacterSet::kGuess) return Guess(head.substr(0, kGuessBytes));
  return head.starts_with(kUtf8Mark) ? CharacterSet::kUtf8 : choice;
}

CharacterSet CharacterSetOfWords(std::string_view head, CharacterSet choice) {
  const bool isChosen = choice != CharacterSet::kAsFound && choice != CharacterSet::kGuess;
  return CharacterSetOf(head, isChosen && LooksLikeUtf8(head) ? CharacterSet::kAsFound : choice);
}

}  // namespace quillomat
