#include "app/explain/lists_to_try.h"

#include <cstdint>
#include <new>
#include <utility>

#include "app/count/panel_choices.h"
#include "app/count/words_file.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/scan_settings.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

/// So much is read before anybody notices; a pipe, which has no length, can be read once only.
constexpr std::int64_t kMostBytes = std::int64_t{1024} * 1024;

// In the order of the panel's boxes.
constexpr std::array kOfFile = {&WordLists::IgnoreList, &WordLists::CountOnlyList};
constexpr std::array kTyped = {&WordLists::ExtraIgnoreList, &WordLists::ExtraCountOnlyList};

class NeverStopped final : public ScanYield {
 public:
  bool Yield() override { return false; }
};

std::optional<WordList> WordsOfFile(const std::string& path, const ScanChoices& choices,
                                    CharacterSet encoding) {
  const std::optional<std::int64_t> bytes = FileLength(path);
  if (!bytes || *bytes > kMostBytes) return std::nullopt;
  try {
    InputFile input(path);
    WordsFile file(input, encoding, *bytes == 0);
    if (file.Type() == LineEndingType::kNotText) return std::nullopt;
    ScanSettings settings;
    SetUpForWordsFile(settings, choices);
    WordStore store;
    NeverStopped yield;
    static_cast<void>(file.Scan(settings, choices, store, yield));
    return WordList(WordsIn(store), choices.letters);
  } catch (const RunTimeError&) {
    return std::nullopt;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

}  // namespace

const WordLists& ListsToTry::Lists() {
  const ListForm form = ReadListForm(frmParams_);
  for (std::size_t kind = 0; kind < madeOf_.size(); ++kind) {
    const std::string& typed = frmParams_.txbWordsToIgnoreOrCount[kind].Text();
    std::optional<MadeOf>& madeOf = madeOf_[kind];
    const std::optional<ContentMark> contents = ContentsOfFile(kind);
    const bool sameForm = madeOf && madeOf->form == form;
    if (!sameForm || madeOf->contents != contents) lists_.*kOfFile[kind] = OfFile(kind, contents);
    if (!sameForm || madeOf->typed != typed) lists_.*kTyped[kind] = Typed(kind);
    madeOf = {form, contents, typed};
  }
  return lists_;
}

/// Nothing where nobody would read them.
std::optional<ContentMark> ListsToTry::ContentsOfFile(std::size_t kind) const {
  const std::string& path = inForce_.filesRead.wordsFiles[kind];
  if (path.empty() || FileLength(path).value_or(0) > kMostBytes) return std::nullopt;
  return ContentMarkOf(path);
}

WordList ListsToTry::OfFile(std::size_t kind, const std::optional<ContentMark>& contents) const {
  const WordList& inForce = inForce_.lists.*kOfFile[kind];
  const std::string& path = inForce_.filesRead.wordsFiles[kind];
  const ListForm form = ReadListForm(frmParams_);
  const bool isRead = inForce_.listForms[kind] == form && inForce_.listContents[kind] == contents;
  if (path.empty() || isRead) return inForce;
  return WordsOfFile(path, ReadScanChoices(frmParams_), form.encoding).value_or(inForce);
}

/// Those in force where a count would refuse them.
WordList ListsToTry::Typed(std::size_t kind) const {
  const WordList& inForce = inForce_.lists.*kTyped[kind];
  const std::string& text = frmParams_.txbWordsToIgnoreOrCount[kind].Text();
  if (!IsWellFormedUtf8(text)) return inForce;
  const ScanChoices choices = ReadScanChoices(frmParams_);
  SplitResult typed = ParseTypedWords(TrimBlanks(text), choices.letters, choices.makeSegmenter);
  return typed.fits ? WordList(std::move(typed.items), choices.letters) : inForce;
}

}  // namespace quillomat
