#include "sources/file_extensions.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "engine/char_class.h"
#include "engine/word_list.h"
#include "system/paths.h"

namespace quillomat {
namespace {

constexpr std::string_view kInvalidInput = "Invalid input";

template <typename List>
bool Contains(const List& list, std::string_view item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

std::string Quoted(const std::string& extension) {
  return "File extension '" + extension + "'";
}

}  // namespace

bool FileExtensions::GetFileExtensions(ExtensionList which) {
  const auto index = static_cast<std::size_t>(which);
  TextBox& box = context_.frmMain.txbFileExtensions[index];
  std::vector<std::string> entries;
  for (const std::string& piece : SplitList(box.Text(), " ,;", box.Text().size()).items) {
    const std::size_t start = std::min(piece.find_first_not_of("*.?"), piece.size());
    if (start < piece.size()) entries.push_back(piece.substr(start));
  }
  const bool fits = entries.size() <= kMaxExtensions;
  if (!fits) entries.resize(kMaxExtensions);
  box.SetText(JoinWithBlanks(entries));
  lists_[index] = std::move(entries);
  return fits;
}

FileExtensions::BoxTexts FileExtensions::Texts() const {
  const auto& boxes = context_.frmMain.txbFileExtensions;
  return {boxes[0].Text(), boxes[1].Text()};
}

void FileExtensions::TellTooMany(ExtensionList which) const {
  const bool included = which == ExtensionList::kIncluded;
  const std::string example = included ? "E.g.: txt htm html xml" : "E.g.: c cpp";
  Refuse(context_,
         std::string("Too many file extensions to ") + (included ? "include" : "exclude") + "." +
             std::string(kCrLf) + example,
         std::string(kInvalidInput));
}

void FileExtensions::OnLostFocus(ExtensionList which) {
  const bool fits = GetFileExtensions(which);
  if (fits && checked_ == Texts()) return;
  checked_ = Texts();  // first: a message takes the focus from the box, which is left once more
  if (!fits) TellTooMany(which);
  TellFaults();
}

void FileExtensions::OnRestored() {
  static_cast<void>(TakeBoxes());
  checked_ = Texts();
  TellFaults();
}

bool FileExtensions::TakeBoxes() {
  bool fit = true;
  for (const ExtensionList which : {ExtensionList::kIncluded, ExtensionList::kExcluded}) {
    if (GetFileExtensions(which)) continue;
    TellTooMany(which);
    fit = false;
  }
  return fit;
}

void FileExtensions::TellFaults() const {
  const auto& list = List(ExtensionList::kIncluded);
  if (Contains(list, "doc") || Contains(list, "pdf")) {
    Refuse(context_,
           "MS-word .doc files and .pdf files are not text files" + std::string(kCrLf) +
               "and cannot be scanned using this software.",
           "No doc files");
  }
  static_cast<void>(CheckFileExtensions());
}

bool FileExtensions::CheckFileExtensions() const {
  const auto& included = List(ExtensionList::kIncluded);
  const auto& excluded = List(ExtensionList::kExcluded);
  for (const std::string& extension : included) {
    if (!Contains(excluded, extension)) continue;
    Refuse(context_, Quoted(extension) + " is both included and excluded.",
           std::string(kInvalidInput));
    return false;
  }
  for (const auto& list : lists_) {
    for (const std::string& extension : list) {
      if (!ContainsAnyOf(extension, "*?.")) continue;
      Refuse(context_, Quoted(extension) + " contains an invalid character.",
             std::string(kInvalidInput));
      return false;
    }
  }
  return true;
}

bool FileExtensions::IsScannable(std::string_view fileName) const {
  const std::string extension = LowerCase(ExtensionOf(fileName));
  if (Contains(kNonTextExtensions, extension)) return false;
  const auto& included = List(ExtensionList::kIncluded);
  if (!included.empty()) return Contains(included, extension);
  return !Contains(List(ExtensionList::kExcluded), extension);
}

}  // namespace quillomat
