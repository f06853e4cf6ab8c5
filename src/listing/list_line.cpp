#include "listing/list_line.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <utility>

#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/short_bytes.h"

namespace quillomat {
namespace {

constexpr std::string_view kFolderMark = "{Folder}";
constexpr std::size_t kLongestBareFolder = kFolderMark.size() + 5;
constexpr std::size_t kFilesWidth = 4;
constexpr std::size_t kFileFrequencyWidth = 5;

std::size_t DecimalWidth(std::int32_t number) {
  return std::to_string(number).size();
}

void AppendPadded(std::string& line, std::string_view text, std::size_t width) {
  if (text.size() < width) line.append(width - text.size(), ' ');
  line.append(text);
}

/// The decimal digits of a number below 100,000,000, the first of 8 in the lowest byte. All 8 are
/// worked out together: two numbers of four digits, four of two, eight of one.
std::uint64_t EightDigits(std::uint32_t number) {
  const std::uint64_t fours = number / 10'000 | std::uint64_t{number % 10'000} << 32U;
  const std::uint64_t hundreds = (fours * 10'486 >> 20U) & 0x7F0000007F;  // divided by 100
  const std::uint64_t twos = hundreds | (fours - 100 * hundreds) << 16U;
  const std::uint64_t tens = (twos * 103 >> 10U) & 0x000F000F000F000F;  // divided by 10
  return tens | (twos - 10 * tens) << 8U;
}

constexpr std::int32_t kEightDigits = 100'000'000;
constexpr std::size_t kMostQuickDigits = 8;

/// A number in its column, which has at most kMostQuickDigits characters: the first is the lowest
/// byte.
struct NumberCell {
  std::uint64_t text;
  std::size_t size;
};

/// `number` is not negative, and less than kEightDigits.
NumberCell CellOf(std::int32_t number, std::size_t width) {
  const std::uint64_t digits = EightDigits(static_cast<std::uint32_t>(number));
  // The last digit is shown even if it is 0.
  const auto zeroBits = static_cast<unsigned>(std::countr_zero(digits | std::uint64_t{1} << 56U));
  const std::size_t zeros = zeroBits / 8;
  const std::uint64_t blanks = (std::uint64_t{1} << 8 * zeros) - 1;
  const std::uint64_t text =
      digits | (0x2020202020202020 & blanks) | (0x3030303030303030 & ~blanks);
  const std::size_t size = std::max(width, kMostQuickDigits - zeros);
  return {text >> 8 * (kMostQuickDigits - size), size};
}

/// `number` is not negative.
void AppendNumber(std::string& line, std::int32_t number, std::size_t width) {
  if (number >= kEightDigits || width > kMostQuickDigits) {
    return AppendPadded(line, std::to_string(number), width);
  }
  const NumberCell cell = CellOf(number, width);
  for (std::size_t i = 0; i < cell.size; ++i) line.push_back(static_cast<char>(cell.text >> 8 * i));
}

/// A line of numbers and a word, put together at the end of a text without a call for each of its
/// columns: a list may have millions.
class QuickLine {
 public:
  static constexpr std::size_t kMostColumns = 3;
  static constexpr std::size_t kMostLead = 4;

  explicit QuickLine(std::string& text) : text_(text), size_(text.size()) {
    constexpr std::size_t kMostBytes = kMostColumns * (kMostLead + kMostShortBytes);
    static_assert(kMostShortBytes >= kMostQuickDigits);
    text_.resize(size_ + kMostBytes);
  }

  void Add(std::string_view text) {
    CopyShortBytes(text_.data() + size_, text.data(), text.size());
    size_ += text.size();
  }
  void Add(const NumberCell& cell) {
    char* const to = text_.data() + size_;
    for (std::size_t i = 0; i < kMostQuickDigits; ++i) {  // becomes one store
      to[i] = static_cast<char>(cell.text >> 8 * i);
    }
    size_ += cell.size;
  }
  /// To be called at the end of the line.
  void End() { text_.resize(size_); }

 private:
  std::string& text_;
  std::size_t size_;
};

/// Four decimals, and no zero before the point.
void AppendLogarithm(std::string& line, std::int32_t number, bool useLog10, std::size_t width) {
  const double value = useLog10 ? Log10(number) : std::log(number);
  std::array<char, 32> text{};
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 4).ptr;
  std::string_view shown(text.data(), static_cast<std::size_t>(end - text.data()));
  if (shown.starts_with("0.")) shown.remove_prefix(1);
  AppendPadded(line, shown, width);
}

/// How the columns of a format follow each other. In a layout R, F, N, L, M and W stand for the
/// rank, frequency, files, log-rank, log-frequency and word cells, w for the word without padding;
/// blanks and commas stand for themselves. The leads and separators are uneven, and are kept so.
struct Layout {
  std::string_view plain;
  std::string_view withCommas;
};
constexpr std::array<Layout, 12> kLayouts = {{
    {" R  F  w", "  R,  F,  w"},
    {" R  W  F", "  R,  W,  F"},
    {" R  F", "  R,  F"},
    {" R  w", "  R,  w"},
    {" F  R", "  F,  R"},
    {"  F  w", "  F,  w"},
    {"  W R", "  W, R"},
    {"  W F", "  W, F"},
    {"w", "w"},
    {"w", "w"},
    {" R  F  L  M  w", "  R,  F,  L,  M,  w"},
    {"  W F N", "  W F N"},
}};

/// The cell that was appended from `begin` on. Numbers and words hold no blank at either end.
CellSpan WithoutBlanks(std::string_view line, std::size_t begin) {
  const std::size_t first = line.find_first_not_of(' ', begin);
  if (first == std::string_view::npos) return {line.size(), line.size()};
  return {first, line.find_last_not_of(' ') + 1};
}

bool IsFileList(DisplayFormat format) {
  return format == DisplayFormat::kWordFileList || format == DisplayFormat::kWordFileListFreq;
}

/// The formats whose header tells the length of the longest word: the word comes last and is what
/// the list is about.
bool TellsLongestWord(DisplayFormat format) {
  return format == DisplayFormat::kRankFrequencyWord || format == DisplayFormat::kRankWord ||
         format == DisplayFormat::kFrequencyWord || format == DisplayFormat::kWord;
}

}  // namespace

double Log10(double x) {
  return std::log(x) / std::log(10.0);
}

LineFormatter::LineFormatter(const CountedWords& words, LineOptions options)
    : words_(words), options_(std::move(options)), columns_(ChosenColumns()) {
  ComputeColumnWidths(options_.minimumColumnWidth);
  isQuick_ = IsQuick();
}

void LineFormatter::ComputeColumnWidths(std::int16_t minimumColumnWidth) {
  const auto minimum = static_cast<std::size_t>(minimumColumnWidth);
  rankWidth_ = std::max(minimum, DecimalWidth(words_.totals.NumIncludedWords));
  frequencyWidth_ = std::max(minimum, DecimalWidth(words_.totals.MaxCount));
  wordWidth_ = std::max(minimum, static_cast<std::size_t>(words_.totals.MaxWordLength));
}

std::string_view LineFormatter::BareWord(std::int32_t index) const {
  return index == 0 ? std::string_view("Word") : words_.store.WordOf(index);
}

std::int32_t LineFormatter::RankOf(std::int32_t index) const {
  return words_.ranking.rankOf[static_cast<std::size_t>(index)];
}

void LineFormatter::RankCell(std::string& line, std::int32_t index) const {
  if (index == 0) return AppendPadded(line, "Rank", rankWidth_);
  AppendNumber(line, RankOf(index), rankWidth_);
}

void LineFormatter::FreqCell(std::string& line, std::int32_t index) const {
  if (index == 0) return AppendPadded(line, "Freq", frequencyWidth_);
  AppendNumber(line, words_.store.CountOf(index), frequencyWidth_);
}

void LineFormatter::FilesCell(std::string& line, std::int32_t index) const {
  if (index == 0) {
    line.append("  No. files");
    return;
  }
  const FileTally* files = words_.store.FilesOf(index);
  const std::size_t listed = files == nullptr ? 0 : files->ListedFiles();
  AppendNumber(line, static_cast<std::int32_t>(listed), kFilesWidth);
}

void LineFormatter::LogRankCell(std::string& line, std::int32_t index, bool useLog10) const {
  if (index == 0) return AppendPadded(line, useLog10 ? "L10(R)" : "LN(R)", rankWidth_);
  AppendLogarithm(line, RankOf(index), useLog10, rankWidth_);
}

void LineFormatter::LogFreqCell(std::string& line, std::int32_t index, bool useLog10) const {
  if (index == 0) return AppendPadded(line, useLog10 ? "L10(F)" : "LN(F)", frequencyWidth_);
  AppendLogarithm(line, words_.store.CountOf(index), useLog10, frequencyWidth_);
}

void LineFormatter::WordCell(std::string& line, std::int32_t index) const {
  const std::string_view word = BareWord(index);
  line.append(word);
  const std::size_t length = CharacterCount(word);
  if (length < wordWidth_) line.append(wordWidth_ - length, ' ');
}

void LineFormatter::AppendColumn(std::string& line, std::int32_t index, char column) const {
  switch (column) {
    case 'R':
      return RankCell(line, index);
    case 'F':
      return FreqCell(line, index);
    case 'N':
      return FilesCell(line, index);
    case 'L':
      return LogRankCell(line, index, options_.useLog10);
    case 'M':
      return LogFreqCell(line, index, options_.useLog10);
    case 'W':
      return WordCell(line, index);
    default:
      line.append(BareWord(index));
  }
}

void LineFormatter::AppendColumns(std::string& line, std::int32_t index,
                                  std::vector<CellSpan>* cells) const {
  if (isQuick_ && index > 0 && cells == nullptr && AppendQuickly(line, index)) return;
  for (const Column& column : columns_) {
    line.append(column.lead);
    const std::size_t begin = line.size();
    AppendColumn(line, index, column.cell);
    if (cells != nullptr) cells->push_back(WithoutBlanks(line, begin));
  }
}

/// Whether lines can be put together by AppendQuickly.
bool LineFormatter::IsQuick() const {
  const auto isQuick = [](const Column& column) {
    const bool known = column.cell == 'R' || column.cell == 'F' || column.cell == 'w';
    return known && column.lead.size() <= QuickLine::kMostLead;
  };
  return rankWidth_ <= kMostQuickDigits && frequencyWidth_ <= kMostQuickDigits &&
         columns_.size() <= QuickLine::kMostColumns && std::ranges::all_of(columns_, isQuick);
}

/// False for a line that has to be put together column by column.
bool LineFormatter::AppendQuickly(std::string& line, std::int32_t index) const {
  const std::string_view word = words_.store.WordOf(index);
  const std::int32_t count = words_.store.CountOf(index);
  if (word.size() > kMostShortBytes || count >= kEightDigits) return false;
  QuickLine quick(line);
  for (const Column& column : columns_) {
    quick.Add(column.lead);
    if (column.cell == 'w') {
      quick.Add(word);
    } else {
      quick.Add(column.cell == 'R' ? CellOf(RankOf(index), rankWidth_)
                                   : CellOf(count, frequencyWidth_));
    }
  }
  quick.End();
  return true;
}

/// Those of the format, none for a list of files.
std::vector<LineFormatter::Column> LineFormatter::ChosenColumns() const {
  std::vector<Column> columns;
  if (IsFileList(options_.format)) return columns;
  const Layout& layout = kLayouts[static_cast<std::size_t>(options_.format)];
  std::string_view rest = options_.withCommas ? layout.withCommas : layout.plain;
  while (!rest.empty()) {
    const std::size_t cell = rest.find_first_not_of(" ,");
    columns.push_back({rest.substr(0, cell), rest[cell]});
    rest.remove_prefix(cell + 1);
  }
  return columns;
}

void LineFormatter::FormatWordLine(std::string& line, std::int32_t index,
                                   std::vector<CellSpan>* cells) const {
  if (!IsFileList(options_.format)) {
    AppendColumns(line, index, cells);
    if (index == 0) FinishHeader(line);
    if (index == 0 && cells != nullptr) cells->back().end = WithoutBlanks(line, 0).end;
    return;
  }
  if (index == 0) return FolderHeader(line);
  line.append(BareWord(index)).append(options_.lineBreak);
  FileListText(line, index, options_.format == DisplayFormat::kWordFileListFreq, cells);
}

void LineFormatter::FinishHeader(std::string& line) const {
  if (!TellsLongestWord(options_.format)) return;
  line.append(" (longest has ").append(std::to_string(words_.totals.MaxWordLength));
  line.append(" characters)");
}

/// A folder of a few characters is not worth a name of its own.
bool LineFormatter::ShowsPathsInFolder() const {
  return CharacterCount(options_.folder) > kLongestBareFolder;
}

void LineFormatter::FolderHeader(std::string& line) const {
  if (!ShowsPathsInFolder()) return;
  line.append(options_.lineBreak).append(kFolderMark).append(" = ").append(options_.folder);
  line.append(options_.lineBreak);
}

void LineFormatter::FileListText(std::string& line, std::int32_t index, bool withFreq,
                                 std::vector<CellSpan>* cells) const {
  const FileTally* files = words_.store.FilesOf(index);
  if (files == nullptr) return;
  const std::vector<std::string>& paths = words_.store.Files().FileList();
  for (std::size_t k = 0, listed = files->ListedFiles(); k < listed; ++k) {
    const std::size_t begin = line.size();
    if (cells != nullptr) cells->push_back({begin, begin});  // below the word
    if (withFreq) {
      AppendNumber(line, files->ListedCount(k), kFileFrequencyWidth);
      if (cells != nullptr) cells->push_back(WithoutBlanks(line, begin));
      line.push_back(' ');
    } else {
      line.append(4, ' ');
    }
    const std::size_t pathBegin = line.size();
    std::string_view path = paths[static_cast<std::size_t>(files->FileNumbers[k])];
    if (ShowsPathsInFolder()) {
      line.append(kFolderMark);
      path.remove_prefix(BytesOfFirst(path, CharacterCount(options_.folder)));
    }
    line.append(path);
    if (cells != nullptr) cells->push_back({pathBegin, line.size()});
    line.append(options_.lineBreak);
  }
}

}  // namespace quillomat
