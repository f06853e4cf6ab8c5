#include "app/count/words_file.h"

#include <cstdint>
#include <string_view>

#include "base/limited_source.h"
#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "engine/word_list.h"
#include "sources/converted_source.h"
#include "sources/encoding_guess.h"
#include "sources/late_guess_source.h"

namespace quillomat {
namespace {

/// So many bytes at the start of a words file say whether it is a text.
constexpr std::size_t kListTestBytes = 16'384;
/// Of a line of a words file, and of one that has no length of its own and may have no end: a pipe,
/// a device.
constexpr std::size_t kMostWordsBytes = std::size_t{16} * 1024 * 1024;

/// Of all letters a list has each word that it means, whatever accents do in a text. By the western
/// rule words that are one in a text are one in a list.
ScanChoices ChoicesForWords(ScanChoices choices) {
  if (choices.letters == LetterRule::kAll) choices.foldAccents = CheckState::kUnchecked;
  return choices;
}

}  // namespace

void SetUpForWordsFile(ScanSettings& settings, const ScanChoices& choices) {
  settings.ReadingWordList = true;
  settings.SetAllowWordsFlags(choices);
  settings.BuildExtraWordChars();
  settings.ClearListCharFlags();
  settings.SetCommentMarkers(kCPreset, choices);
}

WordsFile::WordsFile(ByteSource& source, CharacterSet encoding, bool mayBeEndless)
    : text_(source), choice_(encoding), mayBeEndless_(mayBeEndless) {
  constexpr std::size_t kHeadBytes = HeadBytes(kListTestBytes);
  const bool asFound = choice_ == CharacterSet::kAsFound;
  const std::string_view head = text_.Ahead(asFound ? kHeadBytes : kGuessBytes);
  from_ = CharacterSetOfWords(head, choice_);
  const std::string_view judged = head.substr(0, kHeadBytes);
  type_ = from_ == CharacterSet::kAsFound
              ? LineEndingTypeOf(judged, kListTestBytes)
              : LineEndingTypeOf(ConvertedHead(judged, from_), kListTestBytes);
}

GuessedSets WordsFile::Guessed() const {
  GuessedSets guessed;
  if (choice_ == CharacterSet::kGuess) guessed.Add(from_);
  return guessed;
}

Uncounted WordsFile::Scan(ScanSettings& settings, const ScanChoices& choices, WordStore& store,
                          ScanYield& yield) {
  Uncounted lost;
  const WordLists none;
  const ScanChoices listed = ChoicesForWords(choices);
  WordScanner scanner(settings, listed, none, store, yield);
  SourceLimits limits{.lineBytes = kMostWordsBytes};
  if (mayBeEndless_) limits.bytes = kMostWordsBytes;
  LimitedSource limited(text_, limits);
  const std::unique_ptr<ByteSource> converted = Converted(limited, lost);
  LineDecoder lines(converted ? *converted : limited);
  lines.CountLinesNotUtf8In(lost.linesNotUtf8);
  std::string buffer;
  while (const auto line = lines.NextLine()) {
    if (choices.letters == LetterRule::kWestern) {
      lost.foreignLetters += CountForeignLetters(*line, false);
    }
    const std::string_view trimmed = TrimBlanks(*line);
    if (!trimmed.empty()) scanner.GetWords(PrepareLine(trimmed, false, buffer, choices.letters));
    if (yield.Yield()) break;
  }
  return lost;
}

/// Nothing where the text is read as it is.
std::unique_ptr<ByteSource> WordsFile::Converted(ByteSource& text, Uncounted& lost) {
  if (from_ != CharacterSet::kAsFound) {
    return std::make_unique<ConvertedSource>(text, from_, lost.bytesNotDecoded);
  }
  if (choice_ != CharacterSet::kGuess) return nullptr;
  return std::make_unique<LateGuessSource>(text, from_, lost.bytesNotDecoded);
}

std::vector<std::string> WordsIn(const WordStore& store) {
  std::vector<std::string> words;
  words.reserve(static_cast<std::size_t>(store.NumDifferentWords()));
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    words.emplace_back(store.At(index).Word);
  }
  return words;
}

}  // namespace quillomat
