#include "engine/parallel/piece_scanner.h"

#include <utility>

#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "engine/long_line.h"
#include "engine/parallel/line_pieces.h"

namespace quillomat {
namespace {

/// A scanner that has more different words forgets them: its table is to be small, and a text whose
/// words are all different gains nothing from it.
constexpr std::int32_t kMostWordsKept = 65'536;

}  // namespace

PieceScanner::PieceScanner(ScanSettings settings, const ScanChoices& choices,
                           const WordLists& lists, const std::atomic<bool>& stop)
    : settings_(std::move(settings)),
      choices_(choices),
      lists_(lists),
      stopTest_(stop),
      scanner_(settings_, choices, lists, store_, stopTest_) {
  store_.NoteCountedWords();
}

PieceCount PieceScanner::Scan(std::string_view text, const ScanSettings& settings) {
  if (store_.NumDifferentWords() > kMostWordsKept) ForgetWords();
  settings_ = settings;
  scanner_.SetWordsRead(0);
  PieceCount count;
  count.looksForComments = scanner_.LooksForComments();
  count.openBefore = settings_.OpenComment;
  ScanLines(text);
  count.bytesWithLongLineEnds = BytesWithLongLineEnds(text);
  count.numbersAnew = std::exchange(numbersAnew_, false);
  count.words = store_.TakeCountedWords();
  DescribeNewWords(count);
  count.wordsRead = scanner_.WordsRead();
  count.openComment = settings_.OpenComment;
  return count;
}

void PieceScanner::ScanLines(std::string_view text) {
  LineDecoder lines(text);
  while (!stopTest_.Yield()) {
    const std::string_view atHand = lines.NextLines();
    if (const std::size_t plain = scanner_.PlainLineBytes(atHand); plain > 0) {
      scanner_.GetWordsOfLines(atHand.substr(0, plain));
      lines.SkipLines(plain);
    } else if (ScanLongLine(lines)) {
      // Part by part.
    } else if (const auto line = lines.NextLine()) {
      const std::string_view trimmed = TrimBlanks(*line);
      if (trimmed.empty()) continue;
      scanner_.GetWords(
          PrepareLine(trimmed, IsSet(choices_.caseSignificant), buffer_, choices_.letters));
    } else {
      break;
    }
  }
}

/// False when the next line is none, or cannot be taken in parts.
bool PieceScanner::ScanLongLine(LineDecoder& lines) {
  if (!lines.IsAtLongLine() || !scanner_.CanTakeParts()) return false;
  LongLine line({settings_, choices_, lists_, store_, stopTest_, scanner_});
  for (std::string_view part = lines.NextPartOfLine(); !part.empty();
       part = lines.NextPartOfLine()) {
    line.Take(part);
  }
  line.End();
  return true;
}

void PieceScanner::DescribeNewWords(PieceCount& count) {
  for (; wordsTold_ < store_.NumDifferentWords(); ++wordsTold_) {
    const std::string_view word = store_.WordAtPlace(static_cast<std::uint32_t>(wordsTold_));
    count.newLetters.append(word);
    count.newWordBytes.push_back(static_cast<std::uint32_t>(word.size()));
  }
}

void PieceScanner::ForgetWords() {
  store_.Clear();
  wordsTold_ = 0;
  numbersAnew_ = true;
}

void PieceJoiner::Join(const PieceCount& piece, WordStore& store) {
  if (piece.numbersAnew) places_.clear();
  knowsNumbers_ = false;  // for one that is not joined to its end
  std::string_view letters = piece.newLetters;
  auto bytes = piece.newWordBytes.begin();
  for (const auto& [number, times] : piece.words) {
    if (number < places_.size()) {
      store.CountWordAt(places_[number], times);
      continue;
    }
    // Words are numbered as they are met, so this is the first of the new ones that are left.
    const std::uint32_t place = store.AddWord(letters.substr(0, *bytes)).value();
    if (times > 1) store.CountWordAt(place, times - 1);
    places_.push_back(place);
    letters.remove_prefix(*bytes++);
  }
  knowsNumbers_ = true;
}

}  // namespace quillomat
