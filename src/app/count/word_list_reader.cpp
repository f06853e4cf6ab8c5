#include "app/count/word_list_reader.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "app/count/common_words.h"
#include "app/count/line_ending_warning.h"
#include "app/count/list_losses.h"
#include "app/count/panel_choices.h"
#include "app/count/path_boxes.h"
#include "app/count/word_echo.h"
#include "app/count/words_file.h"
#include "app/list/summary.h"
#include "base/limited_source.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "sources/line_endings.h"
#include "sources/read_sources.h"
#include "system/file_system.h"
#include "system/paths.h"
#include "system/system_segmenter.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

constexpr const char* kLoadedTitle = "Words loaded";
constexpr const char* kTypedTitle = "Extra words";
constexpr std::string_view kDefaultIgnoreFile = "cwds_en.txt";

std::size_t IndexOf(WordListKind kind) {
  return static_cast<std::size_t>(kind);
}
bool IsIgnore(WordListKind kind) {
  return kind == WordListKind::kIgnore;
}

std::string KindName(WordListKind kind) {
  return IsIgnore(kind) ? "words-to-ignore" : "count-only words";
}

/// Whether it came with the program: its line ends are nobody's concern.
bool IsOwnList(const std::string& path) {
  return std::ranges::any_of(FindCommonWords(), [&path](const CommonWordsList& list) {
    return IsSameFile(path, list.path);
  });
}

/// While it lives, the boxes that a words file is read with stand as it needs them.
class ListReadingBoxes {
 public:
  ListReadingBoxes(MainForm& frmMain, ParamsForm& frmParams)
      : boxes_{&frmMain.chkSuppressWords, &frmParams.chkAllowCommentMarkers},
        values_{boxes_[0]->Value(), boxes_[1]->Value()} {
    for (CheckBox* box : boxes_) box->SetChecked(true);
  }
  ListReadingBoxes(const ListReadingBoxes&) = delete;
  ListReadingBoxes& operator=(const ListReadingBoxes&) = delete;
  ListReadingBoxes(ListReadingBoxes&&) = delete;
  ListReadingBoxes& operator=(ListReadingBoxes&&) = delete;
  ~ListReadingBoxes() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->SetValue(values_[i]);
  }

 private:
  std::array<CheckBox*, 2> boxes_;
  std::array<CheckState, 2> values_;
};

/// Tells a listener of new words while it lives.
class ListenerGuard {
 public:
  ListenerGuard(WordStore& store, NewWordListener& listener) : store_(store) {
    store_.SetListener(&listener);
  }
  ListenerGuard(const ListenerGuard&) = delete;
  ListenerGuard& operator=(const ListenerGuard&) = delete;
  ListenerGuard(ListenerGuard&&) = delete;
  ListenerGuard& operator=(ListenerGuard&&) = delete;
  ~ListenerGuard() { store_.SetListener(nullptr); }

 private:
  WordStore& store_;
};

}  // namespace

WordList& WordListReader::FileList(WordListKind kind) {
  WordLists& lists = inForce_.lists;
  return IsIgnore(kind) ? lists.IgnoreList : lists.CountOnlyList;
}

WordList& WordListReader::ExtraList(WordListKind kind) {
  WordLists& lists = inForce_.lists;
  return IsIgnore(kind) ? lists.ExtraIgnoreList : lists.ExtraCountOnlyList;
}

TextBox& WordListReader::PathBox(WordListKind kind) {
  return frmParams_.txbWordsFile[IndexOf(kind)];
}

TextBox& WordListReader::ExtraBox(WordListKind kind) {
  return frmParams_.txbWordsToIgnoreOrCount[IndexOf(kind)];
}

std::string& WordListReader::FileInForce(WordListKind kind) {
  return inForce_.filesRead.wordsFiles[IndexOf(kind)];
}

bool WordListReader::IsInForce(WordListKind kind, const std::string& path) {
  if (path != FileInForce(kind)) return false;
  return path.empty() || inForce_.listForms[IndexOf(kind)] == ReadListForm(frmParams_);
}

bool WordListReader::HoldsTheSame(WordListKind kind) {
  const std::optional<ContentMark>& then = inForce_.listContents[IndexOf(kind)];
  return !then || ContentMarkOf(FileInForce(kind)) == then;
}

/// What is typed in a terminal may be any bytes: they are taken as those of a file are.
void WordListReader::DecodeTypedWords(WordListKind kind) {
  TextBox& box = ExtraBox(kind);
  if (IsWellFormedUtf8(box.Text())) return;
  box.SetText(DecodeLine(box.Text()));
  messages_.Warn(Filled(messages_.Text(kTypedNotUtf8Text), {KindName(kind)}), "Invalid input");
}

WordListReader::TypedWords WordListReader::GetExtraWords(WordListKind kind) {
  const LetterRule letters = ReadKeyRule(frmParams_).letters;
  SplitResult typed =
      ParseTypedWords(TrimBlanks(ExtraBox(kind).Text()), letters, MakeSystemSegmenter);
  if (!typed.fits) {
    return {false, IsIgnore(kind) ? "Too many words to ignore." : "Too many count-only words."};
  }
  std::string cleaned = JoinWithBlanks(typed.items);
  ExtraList(kind) = WordList(std::move(typed.items), letters);
  ListTaken.Fire();
  return {true, std::move(cleaned)};
}

void WordListReader::OnExtraWordsLostFocus(WordListKind kind) {
  TextBox& box = ExtraBox(kind);
  box.SetText(std::string(TrimBlanks(box.Text())));
  if (box.Text().empty()) {
    ExtraList(kind) = WordList();
    lossyTyped_[IndexOf(kind)].clear();
    return ListTaken.Fire();
  }
  const TypedWords words = GetExtraWords(kind);
  if (words.taken) {
    box.SetText(words.text);
    TellTypedLosses(kind, words.text);
  } else {
    messages_.Refuse(words.text, "Invalid input");
  }
}

/// Once, though the same list is taken with every count.
void WordListReader::TellTypedLosses(WordListKind kind, const std::string& cleaned) {
  std::string losses =
      TypedLossText(cleaned, ReadKeyRule(frmParams_).letters, KindName(kind), messages_);
  const std::string& lossy = losses.empty() ? losses : cleaned;
  if (std::exchange(lossyTyped_[IndexOf(kind)], lossy) == lossy) return;
  if (!losses.empty()) messages_.Warn(std::move(losses), kTypedTitle);
}

bool WordListReader::ReadWords(WordListKind kind) {
  const std::string path = PathBox(kind).Text();
  ForgetWordsOfFile(kind);
  tooLong_.clear();
  try {
    const PhaseGuard guard(run_, RunPhase::kReading);
    // First: of a file that is replaced between, the words are newer than the mark, and so they are
    // read once more and not never.
    const std::optional<ContentMark> contents = ContentMarkOf(path);
    InputFile file(path);  // opened once: what comes from a pipe comes only once
    if (file.AwaitsWriter()) {
      messages_.Refuse("Nothing is written into this pipe.", "Invalid input");
      return false;
    }
    PatientSource patient(file, run_);
    WordsFile words(patient, ReadEncoding(frmParams_), file.Length() == 0);
    const LineEndingType type = FileLength(path) == 0 ? LineEndingType::kZeroLength : words.Type();
    if (run_.StopRequested()) return false;
    if (type == LineEndingType::kNotText) {
      messages_.Refuse("This is not a text file.", "Invalid input");
      return false;
    }
    if (IsWorthAWarning(type) && !IsOwnList(path)) ShowLineEndingWarning(messages_, type);
    const ScanChoices choices = ReadScanChoices(frmParams_);
    SetUpForWordsFile(inForce_.settings, choices);
    words_.GiveWay();  // first, so that the boxes' handlers find no count to ask about
    const ListReadingBoxes boxes(frmMain_, frmParams_);
    words_.store.Files().Reset(false);
    ConcealNumWords(frmMain_, false);
    output_.ShowText(IsIgnore(kind) ? "Now reading words to ignore . . . "
                                    : "Now reading count-only words . . . ");
    ScanWordsFile(words, choices);
    TakeWordsFromStore(kind);
    FileInForce(kind) = path;
    inForce_.listForms[IndexOf(kind)] = ReadListForm(frmParams_);
    inForce_.listContents[IndexOf(kind)] = contents;
    ListTaken.Fire();
    return true;
  } catch (const InputTooLong& error) {
    tooLong_ = ":" + std::string(kCrLf) + error.Description();
    return false;
  } catch (const RunTimeError&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void WordListReader::ScanWordsFile(WordsFile& file, const ScanChoices& choices) {
  WordEcho echo(frmMain_, output_, messages_, inForce_.settings);
  const ListenerGuard listening(words_.store, echo);
  notRead_ = file.Scan(inForce_.settings, choices, words_.store, run_);
  guessed_ = file.Guessed();
}

void WordListReader::TakeWordsFromStore(WordListKind kind) {
  FileList(kind) = WordList(WordsIn(words_.store), ReadKeyRule(frmParams_).letters);
  if (!IsIgnore(kind)) TickAllowBoxesForListWords();
}

void WordListReader::TickAllowBoxesForListWords() {
  const auto boxes = frmParams_.AllowCheckBoxes();
  for (std::size_t flag = 0; flag < boxes.size(); ++flag) {
    if (inForce_.settings.ListCharFlags[flag]) boxes[flag]->SetChecked(true);
  }
}

bool WordListReader::AttemptToReadWords(WordListKind kind) {
  const std::string path = PathBox(kind).Text();
  if (!FileExists(path)) return TellNotFound(kind);
  output_.SaveOutputText();
  const bool ok = ReadWords(kind);
  ConcealNumWords(frmMain_, false);  // how many words were read is no result
  if (run_.Quitting()) {
    // The rest of the file was not read, and nobody wants to know any more.
  } else if (ok) {
    TellLoaded(kind, path);
  } else {
    TellNotLoaded(kind, path);
  }
  output_.RestoreOutputText();
  run_.BecameIdle.Fire();
  return ok;
}

/// Whoever names a list of Russian while only western letters are counted would wonder, and whoever
/// has its encoding guessed wrongly.
void WordListReader::TellLoaded(WordListKind kind, const std::string& path) {
  std::string text =
      messages_.Grouped(FileList(kind).Count()) + " " + KindName(kind) + " loaded from " + path;
  if (const std::string guessed = guessed_.Names(); !guessed.empty()) {
    text.append(kCrLf).append(Filled(messages_.Text(kGuessedText), {guessed}));
  }
  const std::string losses = ListLossText(notRead_, path, messages_);
  if (losses.empty()) {
    messages_.Tell(std::move(text), kLoadedTitle, MessageIcon::kInformation);
  } else {
    messages_.Warn(text.append(kCrLf).append(losses), kLoadedTitle);
  }
}

/// False. The box keeps the path: its disk may be away for a while, and a count without the list is
/// not what the user asked for, so each one tells until the file is back or the box is cleared;
/// whoever leaves the box is told once.
/// While a state is restored the panel says that it could not be loaded as a whole; words to ignore
/// are the default ones from then on.
bool WordListReader::TellNotFound(WordListKind kind) {
  ForgetWordsOfFile(kind);
  if (flags_.blnStartUpCompleted && !flags_.blnInhibitPrompt) {
    toldAway_[IndexOf(kind)] = PathBox(kind).Text();
    messages_.Refuse("File for " + KindName(kind) + " not found.", "File not found");
  } else if (IsIgnore(kind)) {
    SetPathToCWDs_Eng();
  }
  return false;
}

void WordListReader::TellNotLoaded(WordListKind kind, const std::string& path) {
  messages_.Refuse("Error when attempting to load " + KindName(kind) + " from " + path + tooLong_,
                   "Error");
  PathBox(kind).SetText("");
}

void WordListReader::OnWordsFileLostFocus(WordListKind kind) {
  if (run_.Busy()) return;  // the next count will see to it
  paths_.CompletePathIn(PathBox(kind));
  const std::string& path = PathBox(kind).Text();
  if (path.empty()) {
    ForgetWordsOfFile(kind);
  } else if (!IsInForce(kind, path) && (path != toldAway_[IndexOf(kind)] || FileExists(path))) {
    AttemptToReadWords(kind);
  }
}

bool WordListReader::TakeBoxes() {
  inForce_.listsReadAgain.clear();
  for (const WordListKind kind : {WordListKind::kIgnore, WordListKind::kCountOnly}) {
    if (!TakeTypedWords(kind) || !TakeWordsFile(kind)) return false;
  }
  return true;
}

bool WordListReader::TakeTypedWords(WordListKind kind) {
  DecodeTypedWords(kind);
  const TypedWords words = GetExtraWords(kind);
  if (words.taken) {
    TellTypedLosses(kind, words.text);
  } else {
    messages_.Refuse(words.text, "Invalid input");
  }
  return words.taken;
}

bool WordListReader::TakeWordsFile(WordListKind kind) {
  const std::string path = PathBox(kind).Text();
  if (path.empty()) ForgetWordsOfFile(kind);
  const bool inForce = IsInForce(kind, path);
  if (inForce && (path.empty() || HoldsTheSame(kind))) return true;
  if (!FileExists(path)) return TellNotFound(kind);
  const std::vector<std::string> before = FileList(kind).Words();
  const bool ok = ReadForCount(kind, path);
  if (ok && inForce && FileList(kind).Words() != before) {
    std::string& readAgain = inForce_.listsReadAgain;
    readAgain.append(readAgain.empty() ? "" : ", ").append(FileNamePartOf(path));
  }
  return ok;
}

bool WordListReader::ReadForCount(WordListKind kind, const std::string& path) {
  const bool ok = ReadWords(kind);
  if (run_.Quitting()) return false;
  if (!ok) TellNotLoaded(kind, path);
  std::string losses = ok ? ListLossText(notRead_, path, messages_) : std::string();
  if (!losses.empty()) messages_.Warn(std::move(losses), kLoadedTitle);
  return ok;
}

/// Asks where words to ignore would have no effect.
bool WordListReader::WantsWordsToIgnore() {
  if (PathBox(WordListKind::kCountOnly).Text().empty() &&
      ExtraBox(WordListKind::kCountOnly).Text().empty()) {
    return true;
  }
  const std::string lineBreak(kCrLf);
  const MessageAnswer answer =
      messages_.Ask("Since there are count-only words (that is," + lineBreak +
                        "only specified words are to be counted)," + lineBreak +
                        "specifying words to be ignored will have no effect." + lineBreak +
                        "Do you still wish to specify words to be ignored?",
                    "Proceed?");
  return answer == MessageAnswer::kYes && !run_.Quitting();
}

void WordListReader::ChooseCommonWords(const std::string& path) {
  if (run_.Busy() || !WantsWordsToIgnore()) return;
  PathBox(WordListKind::kIgnore).SetText(path);
  AttemptToReadWords(WordListKind::kIgnore);
}

void WordListReader::SelectWordsFile(WordListKind kind) {
  if (IsIgnore(kind) && !WantsWordsToIgnore()) return;
  const std::optional<std::string> path = paths_.ChooseTextFileFor(
      PathBox(kind), IsIgnore(kind) ? "Specify file containing words to ignore"
                                    : "Specify file containing count-only words");
  if (!path) return;
  PathBox(kind).SetText(*path);
  AttemptToReadWords(kind);
}

void WordListReader::ClearWordsFile(WordListKind kind) {
  ForgetWordsOfFile(kind);
  PathBox(kind).SetText("");
}

void WordListReader::ForgetWordsOfFile(WordListKind kind) {
  FileList(kind) = WordList();
  FileInForce(kind).clear();
  toldAway_[IndexOf(kind)].clear();
  ListTaken.Fire();
}

void WordListReader::SetPathToCWDs_Eng() {
  PathBox(WordListKind::kIgnore).SetText(JoinPath(DataFolder(), kDefaultIgnoreFile));
}

}  // namespace quillomat
