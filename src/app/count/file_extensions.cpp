#include "app/count/file_extensions.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

constexpr std::string_view kInvalidInput = "Invalid input";

}  // namespace

bool FileExtensions::GetFileExtensions(ExtensionList which) {
  TextBox& box = frmMain_.txbFileExtensions[static_cast<std::size_t>(which)];
  ParsedExtensions parsed = ParseExtensions(box.Text());
  box.SetText(JoinWithBlanks(parsed.entries));
  (which == ExtensionList::kIncluded ? filter_.only : filter_.except) = std::move(parsed.entries);
  return parsed.fits;
}

FileExtensions::BoxTexts FileExtensions::Texts() const {
  const auto& boxes = frmMain_.txbFileExtensions;
  return {boxes[0].Text(), boxes[1].Text()};
}

void FileExtensions::TellTooMany(ExtensionList which) const {
  const bool included = which == ExtensionList::kIncluded;
  const std::string example = included ? "E.g.: txt htm html xml" : "E.g.: c cpp";
  messages_.Refuse(std::string("Too many file extensions to ") +
                       (included ? "include" : "exclude") + "." + std::string(kCrLf) + example,
                   std::string(kInvalidInput));
}

void FileExtensions::TellFaultsOnce(ExtensionList which, bool fits) {
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
  const auto isNoText = [](const std::string& extension) {
    return extension == "doc" || extension == "pdf";
  };
  if (std::ranges::any_of(filter_.only, isNoText)) {
    messages_.Warn("MS-word .doc files and .pdf files are not text files" + std::string(kCrLf) +
                       "and cannot be scanned using this software.",
                   "No doc files");
  }
  static_cast<void>(CheckFileExtensions());
}

bool FileExtensions::CheckFileExtensions() const {
  const std::optional<ExtensionFault> fault = FindExtensionFault(filter_);
  if (!fault) return true;
  const bool inBoth = fault->kind == ExtensionFault::Kind::kBothLists;
  messages_.Refuse(
      "File extension '" + fault->extension + "'" +
          (inBoth ? " is both included and excluded." : " contains an invalid character."),
      std::string(kInvalidInput));
  return false;
}

}  // namespace quillomat
