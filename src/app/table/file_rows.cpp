#include "app/table/file_rows.h"

#include <algorithm>
#include <numeric>
#include <variant>

#include "app/count/reach_text.h"
#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "system/paths.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

int ReasonTextOf(Refusal refusal) {
  switch (refusal) {
    case Refusal::kNotText:
      return kFileIsNoTextText;
    case Refusal::kEmpty:
      return kFileIsEmptyText;
    case Refusal::kNeverText:
      return kFileIsNeverTextText;
    case Refusal::kNotFound:
      return kFileNotFoundText;
    case Refusal::kFolderUnreadable:
      return kFolderUnreadableText;
    case Refusal::kReadFailed:
      return kFileReadFailedText;
    case Refusal::kIsOutput:
      return kFileIsOutputText;
    case Refusal::kIsFolder:
      return kFileIsFolderText;
    default:
      return kFileNotOpenedText;
  }
}

bool IsNotRead(const FileReport& file) {
  return file.refusal != Refusal::kNone || IsReadInPart(file);
}

}  // namespace

FileRows::FileRows(const CurrentWords& words, const ProgramText& text)
    : words_(words), text_(text) {
  words_.FilesKnown.Connect([this] { TakeFiles(); });
  words_.FilesGo.Connect([this] {
    if (places_.empty()) return;
    Changing.Fire();
    places_.clear();
    anyNotRead_ = false;
    Changed.Fire();
  });
}

void FileRows::TakeFiles() {
  Changing.Fire();
  places_.resize(words_.files.size());
  anyNotRead_ = std::ranges::any_of(words_.files, IsNotRead);
  Arrange();
  Changed.Fire();
}

std::optional<std::size_t> FileRows::FirstNotRead(bool byDesign) const {
  const auto found = std::ranges::find_if(places_, [&](std::uint32_t place) {
    const FileReport& file = words_.files[place];
    return file.refusal != Refusal::kNone && IsFault(file.refusal) != byDesign;
  });
  if (found == places_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - places_.begin());
}

std::optional<std::size_t> FileRows::RowOfPlace(std::uint32_t place) const {
  const auto found = std::ranges::find(places_, place);
  if (found == places_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - places_.begin());
}

std::optional<std::size_t> FileRows::FindName(std::string_view text, std::size_t from) const {
  const std::string beginning = LowerCase(text);
  for (std::size_t passed = 0; passed < places_.size(); ++passed) {
    const std::size_t row = (from + passed) % places_.size();
    const std::string name = FileNamePartOf(words_.files[places_[row]].path);
    if (LowerCase(name).starts_with(beginning)) return row;
  }
  return std::nullopt;
}

void FileRows::SetOrder(std::optional<Order> order) {
  Changing.Fire();
  order_ = order;
  Arrange();
  Changed.Fire();
}

void FileRows::ShowLanguage() {
  SetOrder(order_);
}

FileCell FileRows::SortKeyOf(const FileReport& file, FileColumn column) const {
  if (column != FileColumn::kSkipped || !IsNotRead(file)) return ShownCell(file, column);
  const bool byDesign = file.refusal != Refusal::kNone && !IsFault(file.refusal);
  return (byDesign ? "1" : "2") + ReasonText(file);
}

/// Files that are alike in a column stay in the order of the count.
void FileRows::Arrange() {
  std::iota(places_.begin(), places_.end(), 0U);
  if (!order_) return;
  std::vector<FileCell> keys;
  keys.reserve(places_.size());
  for (const std::uint32_t place : places_) {
    keys.push_back(SortKeyOf(words_.files[place], order_->column));
  }
  std::ranges::stable_sort(places_, [&](std::uint32_t left, std::uint32_t right) {
    return order_->descending ? keys[right] < keys[left] : keys[left] < keys[right];
  });
}

std::string FileRows::ReasonText(const FileReport& file) const {
  if (IsReadInPart(file)) return text_.GetText(kFileReadInPartText);
  if (file.refusal == Refusal::kNone) return {};
  std::string reason = text_.GetText(ReasonTextOf(file.refusal));
  if (file.error && file.refusal != Refusal::kNotFound) {
    reason.append(": ").append(file.error->Description());
  }
  return reason;
}

std::string FileRows::StoppedText(const NumberSigns& signs) const {
  if (places_.empty() || !words_.stoppedAfter) return {};
  return ReachText(*words_.stoppedAfter, text_, signs);
}

/// In the current language, where it has one.
FileCell FileRows::ShownCell(const FileReport& file, FileColumn column) const {
  if (column == FileColumn::kSkipped) return ReasonText(file);
  if (column == FileColumn::kLineEnds && file.lines) {
    const LineEndKind kind = LineEndKindOf(*file.lines);
    if (kind == LineEndKind::kNone) return text_.GetText(kNoLineEndsText);
    if (kind == LineEndKind::kMixed) return text_.GetText(kMixedLineEndsText);
  }
  return CellOf(file, column);
}

std::string FileRows::TextAt(std::size_t row, FileColumn column, const NumberSigns& signs) const {
  const FileCell cell = ShownCell(words_.files[places_[row]], column);
  if (const auto* number = std::get_if<std::int64_t>(&cell)) {
    return GroupDigits(*number, signs.group);
  }
  const auto* text = std::get_if<std::string>(&cell);
  return text != nullptr ? *text : std::string();
}

}  // namespace quillomat
