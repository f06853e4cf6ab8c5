#include "app/count/word_list_reader.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "app/count/common_words.h"
#include "app/count/line_ending_warning.h"
#include "app/count/panel_choices.h"
#include "app/count/path_boxes.h"
#include "app/count/word_echo.h"
#include "app/list/summary.h"
#include "base/limited_source.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/uncounted.h"
#include "engine/word_scanner.h"
#include "sources/converted_source.h"
#include "sources/encoding_guess.h"
#include "sources/late_guess_source.h"
#include "sources/line_endings.h"
#include "sources/read_sources.h"
#include "system/file_system.h"
#include "system/system_segmenter.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

/// So many bytes at the start of a words file say whether it is a text.
constexpr std::size_t kListTestBytes = 16'384;
/// Of a line of a words file, and of one that has no length of its own and may have no end: a pipe,
/// a device.
constexpr std::size_t kMostWordsBytes = std::size_t{16} * 1024 * 1024;
constexpr const char* kLoadedTitle = "Words loaded";
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

/// `text` is what stands in the file.
LineEndingType TypeOf(HeadedSource& text, const std::string& path) {
  if (FileLength(path) == 0) return LineEndingType::kZeroLength;
  return LineEndingTypeOf(text.Ahead(HeadBytes(kListTestBytes)), kListTestBytes);
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
  return path.empty() || (rulesInForce_[IndexOf(kind)] == ReadKeyRule(frmParams_) &&
                          encodingsInForce_[IndexOf(kind)] == ReadEncoding(frmParams_));
}

/// What is typed in a terminal may be any bytes: they are taken as those of a file are.
void WordListReader::DecodeTypedWords(WordListKind kind) {
  TextBox& box = ExtraBox(kind);
  if (IsWellFormedUtf8(box.Text())) return;
  box.SetText(DecodeLine(box.Text()));
  messages_.Warn(Filled(messages_.Text(kTypedNotUtf8Text), {KindName(kind)}), "Invalid input");
}

std::string WordListReader::GetExtraWords(WordListKind kind) {
  SplitResult typed = ParseTypedWords(TrimBlanks(ExtraBox(kind).Text()),
                                      ReadKeyRule(frmParams_).letters, MakeSystemSegmenter);
  if (!typed.fits) {
    return IsIgnore(kind) ? "Too many words to ignore." : "Too many count-only words.";
  }
  std::string cleaned = JoinWithBlanks(typed.items);
  ExtraList(kind) = WordList(std::move(typed.items));
  return cleaned;
}

void WordListReader::OnExtraWordsLostFocus(WordListKind kind) {
  TextBox& box = ExtraBox(kind);
  box.SetText(std::string(TrimBlanks(box.Text())));
  if (box.Text().empty()) {
    ExtraList(kind) = WordList();
    return;
  }
  const std::string result = GetExtraWords(kind);
  if (result.ends_with('.')) {
    messages_.Refuse(result, "Invalid input");
  } else {
    box.SetText(result);
  }
}

bool WordListReader::ReadWords(WordListKind kind) {
  const std::string path = PathBox(kind).Text();
  ForgetWordsOfFile(kind);
  tooLong_.clear();
  try {
    const PhaseGuard guard(run_, RunPhase::kReading);
    InputFile file(path);  // opened once: what comes from a pipe comes only once
    if (file.AwaitsWriter()) {
      messages_.Refuse("Nothing is written into this pipe.", "Invalid input");
      return false;
    }
    PatientSource patient(file, run_);
    HeadedSource text(patient);
    LineEndingType type = TypeOf(text, path);
    const CharacterSet from = FindEncoding(text, type);
    if (run_.StopRequested()) return false;
    if (type == LineEndingType::kNotText) {
      messages_.Refuse("This is not a text file.", "Invalid input");
      return false;
    }
    if (IsWorthAWarning(type) && !IsOwnList(path)) ShowLineEndingWarning(messages_, type);
    ScanSettings& settings = inForce_.settings;
    const ScanChoices choices = ReadScanChoices(frmParams_);
    settings.ReadingWordList = true;
    settings.SetAllowWordsFlags(choices);
    settings.BuildExtraWordChars();
    settings.ClearListCharFlags();
    settings.SetCommentMarkers(kCPreset, choices);
    words_.GiveWay();  // first, so that the boxes' handlers find no count to ask about
    const ListReadingBoxes boxes(frmMain_, frmParams_);
    words_.store.Files().Reset(false);
    ConcealNumWords(frmMain_, false);
    output_.ShowText(IsIgnore(kind) ? "Now reading words to ignore . . . "
                                    : "Now reading count-only words . . . ");
    ScanWordsFile(text, {from, file.Length() == 0});
    TakeWordsFromStore(kind);
    FileInForce(kind) = path;
    rulesInForce_[IndexOf(kind)] = choices.Keys();
    encodingsInForce_[IndexOf(kind)] = ReadEncoding(frmParams_);
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

/// What the words file is converted from. `type` is what it is as its bytes stand, and becomes what
/// it is then.
CharacterSet WordListReader::FindEncoding(HeadedSource& text, LineEndingType& type) const {
  const CharacterSet choice = ReadEncoding(frmParams_);
  constexpr std::size_t kHeadBytes = HeadBytes(kListTestBytes);
  const bool asFound = choice == CharacterSet::kAsFound;
  const std::string_view head = text.Ahead(asFound ? kHeadBytes : kGuessBytes);
  const CharacterSet from = CharacterSetOfWords(head, choice);
  if (from != CharacterSet::kAsFound) {
    type = LineEndingTypeOf(ConvertedHead(head.substr(0, kHeadBytes), from), kListTestBytes);
  }
  return from;
}

void WordListReader::ScanWordsFile(ByteSource& text, const WordsFileForm& form) {
  const ScanChoices choices = ReadScanChoices(frmParams_);
  const WordLists lists = inForce_.lists;
  WordEcho echo(frmMain_, output_, messages_, inForce_.settings);
  const ListenerGuard listening(words_.store, echo);
  WordScanner scanner(inForce_.settings, choices, lists, words_.store, run_);
  SourceLimits limits{.lineBytes = kMostWordsBytes};
  if (form.mayBeEndless) limits.bytes = kMostWordsBytes;
  LimitedSource limited(text, limits);
  bytesNotDecoded_ = 0;
  CharacterSet guessed = form.from;
  std::unique_ptr<ByteSource> converted;
  if (form.from != CharacterSet::kAsFound) {
    converted = std::make_unique<ConvertedSource>(limited, form.from, bytesNotDecoded_);
  } else if (ReadEncoding(frmParams_) == CharacterSet::kGuess) {
    converted = std::make_unique<LateGuessSource>(limited, guessed, bytesNotDecoded_);
  }
  LineDecoder lines(converted ? *converted : limited);
  std::string buffer;
  lettersNotRead_ = 0;
  while (const auto line = lines.NextLine()) {
    if (choices.letters == LetterRule::kWestern)
      lettersNotRead_ += CountForeignLetters(*line, false);
    const std::string_view trimmed = TrimBlanks(*line);
    if (!trimmed.empty()) scanner.GetWords(PrepareLine(trimmed, false, buffer, choices.letters));
    if (run_.Yield()) return;
  }
}

void WordListReader::TakeWordsFromStore(WordListKind kind) {
  const WordStore& store = words_.store;
  std::vector<std::string> words;
  words.reserve(static_cast<std::size_t>(store.NumDifferentWords()));
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    words.emplace_back(store.At(index).Word);
  }
  FileList(kind) = WordList(std::move(words));
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

/// Whoever names a list of Russian while only western letters are counted would wonder.
void WordListReader::TellLoaded(WordListKind kind, const std::string& path) {
  std::string text =
      messages_.Grouped(FileList(kind).Count()) + " " + KindName(kind) + " loaded from " + path;
  if (lettersNotRead_ == 0 && bytesNotDecoded_ == 0) {
    return messages_.Tell(std::move(text), kLoadedTitle, MessageIcon::kInformation);
  }
  if (lettersNotRead_ > 0) {
    const int reason = lettersNotRead_ == 1 ? kListLetterNotReadText : kListLettersNotReadText;
    text.append(kCrLf).append(Filled(messages_.Text(reason), {messages_.Grouped(lettersNotRead_)}));
  }
  if (bytesNotDecoded_ > 0) text.append(kCrLf).append(NotDecodedText(path));
  messages_.Warn(std::move(text), kLoadedTitle);
}

std::string WordListReader::NotDecodedText(const std::string& path) const {
  const int text = bytesNotDecoded_ == 1 ? kListByteNotDecodedText : kListBytesNotDecodedText;
  return Filled(messages_.Text(text), {messages_.Grouped(bytesNotDecoded_), path});
}

/// False. While a state is restored the panel says that it could not be loaded as a whole. The box
/// of count-only words keeps the path then, so the next count will tell; words to ignore are the
/// default ones from then on.
bool WordListReader::TellNotFound(WordListKind kind) {
  ForgetWordsOfFile(kind);
  if (flags_.blnStartUpCompleted && !flags_.blnInhibitPrompt) {
    messages_.Refuse("File for " + KindName(kind) + " not found.", "File not found");
    PathBox(kind).SetText("");
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
  } else if (!IsInForce(kind, path)) {
    AttemptToReadWords(kind);
  }
}

bool WordListReader::TakeBoxes() {
  for (const WordListKind kind : {WordListKind::kIgnore, WordListKind::kCountOnly}) {
    if (!TakeTypedWords(kind) || !TakeWordsFile(kind)) return false;
  }
  return true;
}

bool WordListReader::TakeTypedWords(WordListKind kind) {
  DecodeTypedWords(kind);
  const std::string result = GetExtraWords(kind);
  if (!result.ends_with('.')) return true;
  messages_.Refuse(result, "Invalid input");
  return false;
}

bool WordListReader::TakeWordsFile(WordListKind kind) {
  const std::string path = PathBox(kind).Text();
  if (path.empty()) ForgetWordsOfFile(kind);
  if (IsInForce(kind, path)) return true;
  if (!FileExists(path)) return TellNotFound(kind);
  const bool ok = ReadWords(kind);
  if (run_.Quitting()) return false;
  if (!ok) TellNotLoaded(kind, path);
  if (ok && bytesNotDecoded_ > 0) messages_.Warn(NotDecodedText(path), kLoadedTitle);
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
  FileDialog dialog;
  dialog.title = IsIgnore(kind) ? "Specify file containing words to ignore"
                                : "Specify file containing count-only words";
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.pathMustExist = true;
  dialog.fileMustExist = true;
  dialog.hideReadOnly = true;
  const std::optional<std::string> path = paths_.ChooseFileFor(PathBox(kind), dialog);
  if (!path) return;
  PathBox(kind).SetText(*path);
  AttemptToReadWords(kind);
}

void WordListReader::ClearWordsFile(WordListKind kind) {
  PathBox(kind).SetText("");
  ForgetWordsOfFile(kind);
}

void WordListReader::ForgetWordsOfFile(WordListKind kind) {
  FileList(kind) = WordList();
  FileInForce(kind).clear();
}

void WordListReader::SetPathToCWDs_Eng() {
  PathBox(WordListKind::kIgnore).SetText(JoinPath(DataFolder(), kDefaultIgnoreFile));
}

}  // namespace quillomat
