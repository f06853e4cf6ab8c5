#include "export/xlsx_export.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "base/run_time_error.h"
#include "base/utf8.h"
#include "base/well_formed_text.h"
#include "export/cell_text.h"
#include "export/workbook_check.h"
#include "export/xlsx_library.h"
#include "system/input_file.h"
#include "system/write_shield.h"

namespace quillomat {
namespace {

constexpr double kWordWidth = 28;
constexpr double kNumberWidth = 14;
constexpr double kFactWidth = 48;
constexpr std::size_t kRowsPerQuestion = 4096;
constexpr std::size_t kMostUnitsOfCell = 32'767;

[[noreturn]] void Throw(lxw_error error) {
  switch (error) {
    case LXW_ERROR_MEMORY_MALLOC_FAILED:
      throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
    case LXW_ERROR_CREATING_TMPFILE:
    case LXW_ERROR_CREATING_XLSX_FILE:
      throw RunTimeError(RunTimeErrorNumber::kPathFileAccess);
    case LXW_ERROR_ZIP_FILE_OPERATION:
    case LXW_ERROR_ZIP_FILE_ADD:
    case LXW_ERROR_ZIP_CLOSE:
    case LXW_ERROR_ZIP_INTERNAL_ERROR:
      // A full disk is an error of what writes the archive.
      throw RunTimeError(RunTimeErrorNumber::kDiskFull);
    default:
      throw RunTimeError(RunTimeErrorNumber::kDeviceIo, XlsxLibrary::Get().describe(error));
  }
}

void Check(lxw_error error) {
  if (error != LXW_NO_ERROR) Throw(error);
}

/// With the decimals that the column shows: digits that nobody sees would double the file.
double RoundedNumberOf(const ExportRow& row, WordColumn column) {
  const double power = std::pow(10.0, DecimalsOf(column));
  return std::round(NumberOf(row, column) * power) / power;
}

bool IsHexDigit(char ch) {
  return (ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'f') || (ch >= 'A' && ch <= 'F');
}

/// As much of `text` as has so many units of UTF-16; behind a blank, if there is one.
std::string_view StartOf(std::string_view text, std::size_t units) {
  constexpr char32_t kFirstOfTwoUnits = 0x10000;
  if (text.size() <= units) return text;
  std::size_t end = 0;
  while (end < text.size()) {
    const auto [character, bytes] = CharacterAt(text, end);
    const std::size_t needed = character < kFirstOfTwoUnits ? 1 : 2;
    if (needed > units) {
      const std::size_t blank = text.substr(0, end).rfind(' ');
      return text.substr(0, blank == std::string_view::npos ? end : blank + 1);
    }
    units -= needed;
    end += bytes;
  }
  return text;
}

/// A workbook of the library, which is given up unless it was closed.
class Workbook {
 public:
  Workbook(const std::string& path, std::string scratchFolder)
      : scratch_(std::move(scratchFolder)) {
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = scratch_.data();
    options.use_zip64 = LXW_TRUE;
    book_ = xlsx_.newWorkbook(path.c_str(), &options);
    if (book_ == nullptr) Throw(LXW_ERROR_MEMORY_MALLOC_FAILED);
    head_ = xlsx_.addFormat(book_);
    xlsx_.setBold(head_);
    for (std::size_t column = 0; column < kWordColumnNames.size(); ++column) {
      formats_.push_back(NumberFormat(DecimalsOf(static_cast<WordColumn>(column))));
    }
  }
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;
  Workbook(Workbook&&) = delete;
  Workbook& operator=(Workbook&&) = delete;
  ~Workbook() {
    if (book_ == nullptr) return;
    for (const lxw_worksheet* sheet : sheets_) fclose(sheet->optimize_tmpfile);  // it forgets them
    xlsx_.free(book_);
  }

  [[nodiscard]] lxw_worksheet* AddSheet(const std::string& name) {
    lxw_worksheet* sheet = xlsx_.addSheet(book_, name.c_str());
    if (sheet == nullptr) Throw(LXW_ERROR_CREATING_TMPFILE);
    sheets_.push_back(sheet);
    return sheet;
  }
  /// Throws when there was no room for the rows until now, which the library does not notice.
  void ExpectGathered() const {
    for (const lxw_worksheet* sheet : sheets_) {
      if (fflush(sheet->optimize_tmpfile) == 0 && ferror(sheet->optimize_tmpfile) == 0) continue;
      throw RunTimeError(RunTimeErrorNumber::kDiskFull);
    }
  }
  [[nodiscard]] lxw_format* Head() { return head_; }
  [[nodiscard]] lxw_format* FormatOf(WordColumn column) {
    return formats_[static_cast<std::size_t>(column)];
  }
  void Close() {
    ExpectGathered();
    lxw_workbook* book = std::exchange(book_, nullptr);
    Check(xlsx_.close(book));  // which frees it, too
  }

 private:
  lxw_format* NumberFormat(int decimals) {
    lxw_format* format = xlsx_.addFormat(book_);
    const std::string pattern =
        "#,##0" + (decimals == 0 ? std::string()
                                 : "." + std::string(static_cast<std::size_t>(decimals), '0'));
    xlsx_.setNumberFormat(format, pattern.c_str());
    return format;
  }

  const XlsxLibrary& xlsx_ = XlsxLibrary::Get();
  std::string scratch_;
  lxw_workbook* book_ = nullptr;
  std::vector<lxw_worksheet*> sheets_;
  lxw_format* head_ = nullptr;
  std::vector<lxw_format*> formats_;
};

/// The sheets of words: begins a new one when one is full.
class WordSheets {
 public:
  WordSheets(Workbook& book, const ExportTable& table, std::size_t rowsPerSheet)
      : book_(book), table_(table), rowsPerSheet_(rowsPerSheet) {
    BeginSheet();
  }

  void Take(const ExportRow& row) {
    if (row_ > rowsPerSheet_) BeginSheet();
    lxw_col_t place = 0;
    for (const WordColumn column : table_.columns) {
      WriteCell(row, column, place);
      ++place;
    }
    ++row_;
  }

 private:
  void BeginSheet() {
    book_.ExpectGathered();
    ++sheets_;
    sheet_ = book_.AddSheet(sheets_ == 1 ? "Words" : "Words " + std::to_string(sheets_));
    xlsx_.freezePanes(sheet_, 1, 0);
    lxw_col_t place = 0;
    for (const WordColumn column : table_.columns) {
      xlsx_.setColumn(sheet_, place, place, IsText(column) ? kWordWidth : kNumberWidth, nullptr);
      const std::string name(NameOf(column));
      Check(xlsx_.writeString(sheet_, 0, place, name.c_str(), book_.Head()));
      ++place;
    }
    row_ = 1;
  }

  void WriteCell(const ExportRow& row, WordColumn column, lxw_col_t place) {
    const auto line = static_cast<lxw_row_t>(row_);
    if (IsText(column)) {
      text_ = TextOf(row, column);
      if (text_.find("_x") != std::string::npos) text_ = XlsxText(text_);
      Check(xlsx_.writeString(sheet_, line, place, text_.c_str(), nullptr));
    } else if (HasNumber(row, column)) {
      Check(xlsx_.writeNumber(sheet_, line, place, RoundedNumberOf(row, column),
                              book_.FormatOf(column)));
    }
  }

  const XlsxLibrary& xlsx_ = XlsxLibrary::Get();
  Workbook& book_;
  const ExportTable& table_;
  std::size_t rowsPerSheet_;
  lxw_worksheet* sheet_ = nullptr;
  std::size_t sheets_ = 0;
  std::size_t row_ = 0;
  std::string text_;
};

/// The sheet of totals, statistics and settings, once there is any.
class FactSheet {
 public:
  explicit FactSheet(Workbook& book) : book_(book) {}

  void Take(const char* title, const std::vector<ExportFact>& facts) {
    if (facts.empty()) return;
    if (sheet_ == nullptr) {
      sheet_ = book_.AddSheet("Count");
      xlsx_.setColumn(sheet_, 0, 1, kFactWidth, nullptr);
    }
    Check(xlsx_.writeString(sheet_, row_++, 0, title, book_.Head()));
    for (const ExportFact& fact : facts) Write(fact);
    ++row_;
  }

 private:
  /// The points of a curve and several texts stand one below the other.
  void Write(const ExportFact& fact) {
    WriteText(0, fact.name);
    if (const auto* points = std::get_if<std::vector<GrowthPoint>>(&fact.value)) {
      for (const GrowthPoint& point : *points) {
        WriteNumber(1, static_cast<double>(point.instances));
        WriteNumber(2, static_cast<double>(point.differentWords));
        ++row_;
      }
      return;
    }
    if (const auto* texts = std::get_if<std::vector<std::string>>(&fact.value)) {
      for (const std::string& text : *texts) {
        WriteLongText(1, WellFormedText(text));
        ++row_;
      }
      return;
    }
    if (const auto* whole = std::get_if<std::int64_t>(&fact.value)) {
      WriteNumber(1, static_cast<double>(*whole));
    } else if (const auto* number = std::get_if<double>(&fact.value)) {
      WriteNumber(1, *number);
    } else if (const auto* yes = std::get_if<bool>(&fact.value)) {
      Check(xlsx_.writeBoolean(sheet_, row_, 1, static_cast<int>(*yes), nullptr));
    } else {
      WriteLongText(1, TextOf(fact));
    }
    ++row_;
  }
  void WriteLongText(lxw_col_t column, std::string_view text) {
    for (const std::string& cell : XlsxCells(text)) {
      Check(xlsx_.writeString(sheet_, row_, column, cell.c_str(), nullptr));
      ++column;
    }
  }
  void WriteText(lxw_col_t column, const std::string& text) {
    Check(xlsx_.writeString(sheet_, row_, column, XlsxText(text).c_str(), nullptr));
  }
  void WriteNumber(lxw_col_t column, double number) {
    Check(xlsx_.writeNumber(sheet_, row_, column, number, nullptr));
  }

  const XlsxLibrary& xlsx_ = XlsxLibrary::Get();
  Workbook& book_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_row_t row_ = 0;
};

}  // namespace

std::string XlsxText(std::string_view text) {
  constexpr std::string_view kUnderscore = "_x005F_";
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i, kUnderscore.size());
    const bool isEscape = rest.size() == kUnderscore.size() && rest.starts_with("_x") &&
                          rest.ends_with('_') && std::ranges::all_of(rest.substr(2, 4), IsHexDigit);
    if (isEscape) {
      escaped.append(kUnderscore);
    } else {
      escaped.push_back(text[i]);
    }
  }
  return escaped;
}

std::vector<std::string> XlsxCells(std::string_view text) {
  std::vector<std::string> cells;
  while (!text.empty()) {
    std::string_view part = StartOf(text, kMostUnitsOfCell);
    std::string cell = XlsxText(part);
    if (StartOf(cell, kMostUnitsOfCell).size() < cell.size()) {
      part = StartOf(part, kMostUnitsOfCell / 2);  // which escapes at most double
      cell = XlsxText(part);
    }
    cells.push_back(std::move(cell));
    text.remove_prefix(part.size());
  }
  return cells;
}

std::optional<std::string> FindWorkbookFault() {
  try {
    static_cast<void>(XlsxLibrary::Get());
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return error.Description();
  }
}

bool WriteXlsx(const ExportTable& table, const std::string& path, const std::string& scratchFolder,
               const ExportProgress& progress, std::size_t rowsPerSheet) {
  const WriteShield shield;
  Workbook book(path, scratchFolder);
  WordSheets sheets(book, table, rowsPerSheet);
  std::size_t rows = 0;
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    sheets.Take(row);
    return ++rows % kRowsPerQuestion != 0 || !progress || progress(rows);
  });
  if (!whole) return false;
  FactSheet facts(book);
  facts.Take("Totals", table.totals);
  facts.Take("Statistics", table.statistics);
  facts.Take("Settings", table.settings);
  book.Close();
  InputFile made(path);
  if (!IsWholeWorkbook(made)) throw RunTimeError(RunTimeErrorNumber::kDiskFull);
  return true;
}

}  // namespace quillomat
