#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <utility>

#include "app/list/text_box_list_sink.h"
#include "base/byte_source.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "engine/fold_accents.h"
#include "engine/long_line.h"
#include "engine/parallel/threaded_scan.h"
#include "engine/word_filters.h"
#include "engine/word_scanner.h"
#include "listing/file_list_sink.h"
#include "listing/list_walk.h"
#include "properties/count_outcome.h"
#include "sources/counter.h"
#include "support/made_up_segmenter.h"
#include "support/placed_text.h"
#include "support/scripted_desktop.h"
#include "system/system_segmenter.h"

namespace quillomat::properties {
namespace {

/// Lets `calls` words be taken at a time.
class NeverStops final : public ScanYield {
 public:
  explicit NeverStops(std::uint32_t calls) : calls_(calls) {}

  bool Yield() override { return false; }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return calls_; }
  bool YieldFor(std::uint32_t /*calls*/) override { return false; }

 private:
  std::uint32_t calls_;
};

constexpr std::uint32_t kCallsOneByOne = 1;
constexpr std::uint32_t kCallsOfBlocks = 100;

/// Whether lines can stand in a file so that they are read as the same lines.
bool CanStandInAFile(const std::vector<std::string>& lines) {
  return std::ranges::all_of(lines, [](const std::string& line) {
    return line.find_first_of("\r\n") == std::string::npos;
  });
}

CheckState StateOf(int box) {
  return static_cast<CheckState>(box);
}

LetterRule LettersOf(const reference::LiteralChoices& from) {
  return from.cboLetters == 1 ? LetterRule::kAll : LetterRule::kWestern;
}

std::string FiveDigits(std::int32_t number) {
  const std::string digits = std::to_string(number);
  return std::string(5 - digits.size(), '0') + digits;
}

/// Writes down what it is told, and stops the count where that is wanted.
class EventNotes final : public CountObserver {
 public:
  explicit EventNotes(const FilesInTurn& files) : files_(files) {}

  bool Yield() override { return stops_; }
  bool YieldFor(std::uint32_t /*calls*/) override { return stops_; }
  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override {
    Note("new", word, numDifferentWords);
  }
  void OnScanBegins() override { Note("scan", "", 0); }
  void OnFileMet(const std::string& path, const CountProgress& progress) override {
    Note("met", path, progress.filesDone);
  }
  void OnFileBegins(const FileBegins& file) override {
    Note("begins", file.path, file.bytes);
    Note("of type", "", static_cast<int>(file.lineEnds));
  }
  void OnFileEnds(const FileReport& report, const CountProgress& progress) override {
    Note("ends", report.path, report.bytesRead);
    Note("in all", "", progress.runBytesRead);
    stops_ = stops_ || report.path == files_.stopBehind;
  }
  void OnSkipped(const SkippedFile& skipped) override {
    Note("skipped", skipped.path, static_cast<int>(skipped.reason));
  }
  /// Behind the count.
  void NoteReach(const CountResult& result) {
    Note("end", "", static_cast<int>(result.end));
    Note("files", "", result.files);
    Note("folders", "", result.folders);
    const CountReach reach = result.stoppedAfter.value_or(CountReach());
    Note("stopped after files", "", reach.files);
    Note("and bytes", "", reach.bytes);
  }

 private:
  void Note(std::string_view what, std::string_view name, std::int64_t number) {
    if (files_.events == nullptr) return;
    files_.events->append(what).append(" ").append(name).append(" " + std::to_string(number) +
                                                                "\n");
  }

  const FilesInTurn& files_;
  bool stops_ = false;
};

class ProgramCase {
 public:
  /// `files` is there for Counter only.
  ProgramCase(const CountCase& countCase, Reading reading, const FilesInTurn* files = nullptr)
      : case_(countCase),
        reading_(reading),
        files_(files),
        choices_(ScanChoicesOf(countCase)),
        yield_(reading == Reading::kInBlocks ? kCallsOfBlocks : kCallsOneByOne) {}

  std::string Outcome() {
    try {
      Describe();
    } catch (const RunTimeError& error) {
      if (error.Number() != static_cast<int>(RunTimeErrorNumber::kOverflow)) throw;
      out_ << kOverflow;
    }
    return out_.str();
  }

 private:
  void Describe() {
    for (std::size_t kind = 0; kind < 2; ++kind) ReadLists(kind);
    Count();
    DescribeWords();
    List();
  }

  void ReadLists(std::size_t kind) {
    SplitResult typed = ParseTypedWords(TrimBlanks(case_.choices.txbWordsToIgnoreOrCount[kind]),
                                        choices_.letters, choices_.makeSegmenter);
    std::string cleaned;
    for (std::size_t i = 0; i < typed.items.size(); ++i) {
      cleaned += (i > 0 ? " " : "") + typed.items[i];
    }
    // Runs without blanks may be many words.
    if (!typed.fits)
      cleaned = kind == 0 ? "Too many words to ignore." : "Too many count-only words.";
    out_ << "typed: " << cleaned << '\n';
    (kind == 0 ? lists_.ExtraIgnoreList : lists_.ExtraCountOnlyList) =
        WordList(std::move(typed.items), choices_.letters);
    if (case_.wordsFiles[kind].empty()) return;
    // Read twice, as the comment that a file leaves open goes on in the next.
    ReadWordsFile(case_.wordsFiles[kind]);
    out_ << "list:";
    for (const std::string& word : WordsInStore()) out_ << ' ' << word;
    ReadWordsFile(case_.wordsFiles[kind]);
    (kind == 0 ? lists_.IgnoreList : lists_.CountOnlyList) =
        WordList(WordsInStore(), choices_.letters);
    out_ << "\nflags:";
    for (const bool flag : settings_.ListCharFlags) out_ << ' ' << flag;
    out_ << '\n';
  }

  void ReadWordsFile(const std::vector<std::string>& lines) {
    settings_.ReadingWordList = true;
    settings_.SetAllowWordsFlags(choices_);
    settings_.BuildExtraWordChars();
    settings_.ClearListCharFlags();
    settings_.SetCommentMarkers("C", choices_);
    store_.Clear();
    const WordLists none;
    WordScanner scanner(settings_, choices_, none, store_, yield_);
    for (const std::string& line : lines) {
      const std::string_view trimmed = TrimBlanks(line);
      if (!trimmed.empty())
        scanner.GetWords(PrepareLine(trimmed, false, buffer_, choices_.letters));
    }
  }

  std::vector<std::string> WordsInStore() {
    std::vector<std::string> words;
    for (std::int32_t i = 1; i <= store_.NumDifferentWords(); ++i) {
      words.emplace_back(store_.At(i).Word);
    }
    return words;
  }

  void Count() {
    settings_.CountOnlyMode = lists_.HasCountOnlyWords();
    settings_.ReadingWordList = false;
    settings_.SetAllowWordsFlags(choices_);
    settings_.BuildExtraWordChars();
    if (files_ != nullptr) return CountFiles();
    store_.Clear();
    store_.SetOrderListener(&order_);
    store_.Files().Reset(case_.choices.optFolder && settings_.CountOnlyMode);
    CountTexts();
    const std::string order = DescribedOrder();
    if (!settings_.CountOnlyMode) ApplyWordFilters(store_, FilterChoicesOf(case_.choices));
    totals_ = store_.TallyWords();
    ranking_ = RankByFrequency(store_);
    DescribeCount(order);
  }

  void DescribeCount(const std::string& order) {
    out_ << "read " << wordsRead_ << " open " << settings_.OpenComment << " foreign "
         << settings_.Uncounted.foreignLetters << '\n'
         << order;
  }

  /// Places are good until the words are sorted.
  std::string DescribedOrder() const {
    std::string described = "order";
    std::string buffer;
    for (const std::uint32_t place : order_.places) {
      described.append(" ").append(SortKeyOf(store_.WordAtPlace(place), choices_.Keys(), buffer));
    }
    return described + '\n';
  }

  void CountFiles() {
    CountRequest request;
    request.source = files_->source;
    request.scan = choices_;
    request.filters = FilterChoicesOf(case_.choices);
    request.lists = lists_;
    request.openComment = settings_.OpenComment;
    request.threads = files_->threads;
    request.orderFigures = files_->told == Told::kGrowth;
    EventNotes notes(*files_);
    CountResult result = Counter(request, notes, files_->batches).Run();
    notes.NoteReach(result);
    if (result.error) throw RunTimeError(*result.error);
    result.Rank(request.filters);
    store_ = std::move(result.store);
    totals_ = result.totals;
    ranking_ = std::move(result.ranking);
    wordsRead_ = result.wordsRead;
    settings_.OpenComment = result.openComment;
    settings_.Uncounted = result.uncounted;
    DescribeCount(request.orderFigures ? DescribedGrowth(result.orderFigures.value()) : "");
  }

  static std::string DescribedGrowth(const OrderFigures& figures) {
    std::string growth = "growth";
    for (const GrowthPoint& point : figures.growth) {
      growth.append(" ").append(std::to_string(point.differentWords));
    }
    return growth + '\n';
  }

  void CountTexts() {
    WordScanner scanner(settings_, choices_, lists_, store_, yield_);
    std::optional<ThreadedScan> threaded;
    if (reading_ == Reading::kOnThreads) {
      constexpr std::size_t kThreads = 3;
      // Pieces of very few lines.
      const std::size_t pieceBytes = 8 + case_.texts.size() * 37 % 200;
      threaded.emplace(ThreadedScan::Target{settings_, store_, wordsRead_}, choices_, lists_,
                       kThreads, pieceBytes);
    }
    for (const CaseText& text : case_.texts) {
      PrepareFor(text);
      if (threaded && !text.whole && CanStandInAFile(text.lines)) {
        const std::string file = AsFile(text.lines);
        TextSource inTurn(file);
        PlacedText placed(file);
        const bool isPlaced = file.size() % 2 == 0;
        ByteSource& source = isPlaced ? static_cast<ByteSource&>(placed) : inTurn;
        threaded->Scan(source, {[] { return false; }, [](std::int64_t) {}});
        continue;
      }
      scanner.SetWordsRead(wordsRead_);
      Scan(scanner, text);
      wordsRead_ = scanner.WordsRead();
    }
  }

  void PrepareFor(const CaseText& text) {
    settings_.SetCommentMarkers(text.markers, choices_);
    settings_.ForceCommentMarkers = text.markers == "HTML" || text.markers == "C";
    store_.Files().SetFileBeingScanned(text.path);
  }

  static std::string AsFile(const std::vector<std::string>& lines) {
    std::string file;
    for (const std::string& line : lines) file += line + (file.size() % 3 == 0 ? "\r\n" : "\n");
    return file;
  }

  void Scan(WordScanner& scanner, const CaseText& text) {
    const bool caseSignificant = IsSet(choices_.caseSignificant);
    if (reading_ == Reading::kInBlocks && !text.whole && CanStandInAFile(text.lines)) {
      return ScanBlocks(scanner, text.lines);
    }
    if (reading_ == Reading::kInParts && !text.whole && CanStandInAFile(text.lines)) {
      return ScanParts(scanner, text.lines);
    }
    std::string all;
    for (const std::string& line : text.lines) {
      all += line + "\r\n";
      const std::string_view trimmed = TrimBlanks(line);
      if (text.whole || trimmed.empty()) continue;
      scanner.GetWords(PrepareLine(trimmed, caseSignificant, buffer_, choices_.letters));
    }
    if (text.whole) scanner.GetWords(PrepareLine(all, caseSignificant, buffer_, choices_.letters));
  }

  /// As a file is read: many lines at a time where that can be.
  void ScanBlocks(WordScanner& scanner, const std::vector<std::string>& lines) {
    const bool caseSignificant = IsSet(choices_.caseSignificant);
    const std::string file = AsFile(lines);
    for (std::string_view rest = file; !rest.empty();) {
      // Windows of different sizes, so that they end at different places.
      const std::string_view window = rest.substr(0, 64 + rest.size() % 997);
      const std::string_view whole = window.substr(0, window.rfind('\n') + 1);
      const std::size_t plain = scanner.PlainLineBytes(whole);
      if (plain > 0) {
        scanner.GetWordsOfLines(whole.substr(0, plain));
        rest.remove_prefix(plain);
        continue;
      }
      const std::size_t end = rest.find('\n');
      std::string_view line = rest.substr(0, end);
      if (line.ends_with('\r')) line.remove_suffix(1);
      line = TrimBlanks(line);
      if (!line.empty())
        scanner.GetWords(PrepareLine(line, caseSignificant, buffer_, choices_.letters));
      rest.remove_prefix(end + 1);
    }
  }

  /// As long lines are scanned, with parts of a few bytes.
  void ScanParts(WordScanner& scanner, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
      const std::string_view trimmed = TrimBlanks(line);
      if (scanner.CanTakeParts()) {
        LongLine longLine({settings_, choices_, lists_, store_, yield_, scanner},
                          1 + line.size() % 17);
        longLine.Take(line);
        longLine.End();
      } else if (!trimmed.empty()) {
        scanner.GetWords(
            PrepareLine(trimmed, IsSet(choices_.caseSignificant), buffer_, choices_.letters));
      }
    }
  }

  void DescribeWords() {
    out_ << "included " << totals_.NumIncludedWords << " excluded " << totals_.NumExcludedWords
         << " total " << totals_.TotalIncludedCount << " max " << totals_.MaxCount << " longest "
         << totals_.MaxWordLength << '\n';
    for (std::int32_t i = 1; i <= store_.NumDifferentWords(); ++i) {
      const WordRec& record = store_.At(i);
      out_ << record.Word << " key " << record.SortKey << " count " << record.Count
           << (record.Included ? " listed" : " left out") << " files ";
      const FileTally* files = store_.FilesOf(i);
      std::string counts;
      for (std::size_t k = 0; files != nullptr && k < files->ListedFiles(); ++k) {
        out_ << FiveDigits(files->FileNumbers[k]);
        counts += FiveDigits(files->ListedCount(k));
      }
      out_ << ' ' << counts << '\n';
    }
  }

  LineOptions OptionsFor(bool toFile) const {
    LineOptions options;
    options.format = static_cast<DisplayFormat>(case_.format);
    options.withCommas = toFile && case_.choices.chkOutputWithCommas == 1;
    options.useLog10 = case_.choices.chkUseLog10 == 1;
    options.folder = case_.choices.txbFolder;
    options.lineBreak = toFile ? "\n" : "\r\n";
    return options;
  }

  void Walk(const LineFormatter& formatter, ListSink& sink) {
    EmitHeader(formatter, sink);
    const CountedWords words{store_, ranking_, totals_};
    if (case_.order == 1) {
      ListAlphabetical(words, formatter, sink);
    } else {
      ListByFrequency(words, formatter, sink);
    }
  }

  void List() {
    if (totals_.NumIncludedWords == 0) {
      out_ << NoWordsMessage({store_.NumDifferentWords(), case_.choices.cboShortWordSize,
                              case_.choices.cboThresholdFrequency,
                              case_.choices.chkIgnoreInfrequentWords == 1});
      return;
    }
    const CountedWords words{store_, ranking_, totals_};
    MainForm frmMain;
    ScriptedDesktop desktop;
    OutputBox output(frmMain, desktop);
    std::string accumulator;
    const LineFormatter boxFormatter(words, OptionsFor(false));
    TextBoxListSink box(
        frmMain, output, accumulator, [] { return false; }, boxFormatter.Options());
    if (case_.choices.optFolder) {
      box.TakeNotice(ScanHeaderText(case_.numFiles, case_.numFolders, ",").append(kCrLf));
    }
    Walk(boxFormatter, box);
    out_ << "box" << (output.IsFull() ? " full" : "") << ":\n" << accumulator;

    out_ << "\nfile:\n";
    const LineFormatter fileFormatter(words, OptionsFor(true));
    FileListSink file([this](std::string_view bytes) { out_ << bytes; }, [] { return false; },
                      fileFormatter.Options(), store_.NumDifferentWords());
    Walk(fileFormatter, file);
    file.Flush();
  }

  const CountCase& case_;
  Reading reading_;
  const FilesInTurn* files_;
  ScanChoices choices_;
  ScanSettings settings_;
  WordLists lists_;
  WordStore store_;
  WordOrderRecorder order_;
  WordTotals totals_;
  FrequencyRanking ranking_;
  std::int32_t wordsRead_ = 0;
  NeverStops yield_;
  std::string buffer_;
  std::ostringstream out_;
};

}  // namespace

ScanChoices ScanChoicesOf(const reference::LiteralChoices& from) {
  ScanChoices choices;
  choices.allowWordsWith = {
      StateOf(from.chkAllowWordsWithHyphens),     StateOf(from.chkAllowWordsWithApostrophes),
      StateOf(from.chkAllowWordsWithUnderscores), StateOf(from.chkAllowWordsWithColons),
      StateOf(from.chkAllowWordsWithBackslashes), StateOf(from.chkAllowWordsWithForwardslashes),
      StateOf(from.chkAllowWordsWithParentheses), StateOf(from.chkAllowWordsWithPeriods),
      StateOf(from.chkAllowWordsWithCommas),      StateOf(from.chkAllowWordsWithAtSigns),
      StateOf(from.chkAllowWordsWithNumerals)};
  choices.caseSignificant = StateOf(from.chkCaseSignificant);
  choices.letters = LettersOf(from);
  choices.foldAccents = StateOf(from.chkFoldAccents);
  choices.dropFinalS = StateOf(from.chkDropFinalS);
  choices.allowCommentMarkers = StateOf(from.chkAllowCommentMarkers);
  choices.startComment = from.txbStartComment;
  choices.endComment = from.txbEndComment;
  return choices;
}

ScanChoices ScanChoicesOf(const CountCase& from) {
  ScanChoices choices = ScanChoicesOf(from.choices);
  choices.makeSegmenter = MakerOf(from.segmenter);
  return choices;
}

SegmenterMaker MakerOf(Segmenter segmenter) {
  switch (segmenter) {
    case Segmenter::kNone:
      return nullptr;
    case Segmenter::kMadeUp:
      return MakeMadeUpSegmenter;
    case Segmenter::kOfTheSystem:
      return MakeSystemSegmenter;
  }
  return nullptr;
}

FilterChoices FilterChoicesOf(const reference::LiteralChoices& from) {
  FilterChoices choices;
  choices.ignoreInfrequentWords = StateOf(from.chkIgnoreInfrequentWords);
  choices.thresholdFrequencyIndex = from.cboThresholdFrequency;
  choices.ignoreShortWords = StateOf(from.chkIgnoreShortWords);
  choices.shortWordSizeIndex = from.cboShortWordSize;
  choices.longWordSize = from.longWordSize;
  choices.ignoreRepetitions = StateOf(from.chkIgnoreRepetitions);
  choices.ignoreRomNum40 = StateOf(from.chkIgnoreRomNum40);
  choices.ignoreNoVowelOrY = StateOf(from.chkIgnoreNoVowelOrY);
  choices.letters = LettersOf(from);
  return choices;
}

std::string OutcomeOfProgram(const CountCase& countCase, Reading reading) {
  return ProgramCase(countCase, reading).Outcome();
}

std::string OutcomeOfCounter(const CountCase& countCase, const FilesInTurn& files) {
  return ProgramCase(countCase, Reading::kInBlocks, &files).Outcome();
}

}  // namespace quillomat::properties
