// Feeds bytes to the loader of the numbered texts. It checks:
// 1. Nothing is thrown; the result is a number of texts, or a code that has a message.
// 2. It does not depend on the blocks in which the bytes come.
// 3. A failure leaves the texts as they were.
// 4. Texts are well-formed UTF-8 and no longer than they may be.
#include <cstdint>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "base/utf8.h"
#include "fuzzing.h"
#include "text/load_result.h"
#include "text/program_text.h"
#include "text/text_table.h"

namespace {

using quillomat::ProgramText;
using quillomat::fuzzing::PiecewiseSource;
using quillomat::fuzzing::Require;

constexpr int kNumbersTried = 700;

std::string AllTexts(ProgramText& texts) {
  std::string all;
  for (const quillomat::Language language : quillomat::kLanguages) {
    texts.SetLanguage(language);
    for (int number = 0; number < kNumbersTried; ++number) {
      const std::string text = texts.GetText(number);
      Require(quillomat::IsWellFormedUtf8(text), "texts are well-formed");
      Require(quillomat::CharacterCount(text) <= quillomat::kLongestText, "texts have a limit");
      all.append(text).append("\n");
    }
  }
  return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ProgramText texts;
  quillomat::TextSource before("1 EN before\n1 DE vorher\n");
  Require(texts.Load(before) == 2, "texts are loaded");
  const std::string textsBefore = AllTexts(texts);
  quillomat::TextSource whole(bytes);
  const int result = texts.Load(whole);
  const std::string textsAfter = AllTexts(texts);
  if (result <= 0) {
    Require(textsAfter == textsBefore, "a failure leaves the texts as they were");
    Require(!quillomat::LoadErrorMessage(result, "texts.dat").empty(), "a failure has a message");
  }
  ProgramText again;
  PiecewiseSource pieces(bytes, 3);
  Require(again.Load(pieces) == result, "the result does not depend on blocks");
  if (result > 0) Require(AllTexts(again) == textsAfter, "texts do not depend on blocks");
  return 0;
}
