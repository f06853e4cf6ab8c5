#include "sources/extension_filter.h"

#include <algorithm>
#include <array>

#include "base/letter_case.h"
#include "engine/char_class.h"
#include "engine/word_list.h"
#include "system/paths.h"

namespace quillomat {
namespace {

constexpr std::array<std::string_view, 20> kNeverText = {
    "ico", "gif", "jpg", "png", "bmp", "zip", "bin", "xls", "mdb", "pdf",
    "com", "exe", "dll", "cab", "ocx", "vxd", "drv", "sys", "vbx", "386"};

template <typename List>
bool Contains(const List& list, std::string_view item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

}  // namespace

std::span<const std::string_view> ExtensionFilter::NeverText() {
  return kNeverText;
}

bool ExtensionFilter::Admits(std::string_view fileName) const {
  const std::string extension = LowerCase(ExtensionOf(fileName));
  return !Contains(kNeverText, extension) && IsAskedFor(extension);
}

bool ExtensionFilter::LeavesOutUnasked(std::string_view fileName) const {
  const std::string extension = LowerCase(ExtensionOf(fileName));
  return Contains(kNeverText, extension) && IsAskedFor(extension);
}

bool ExtensionFilter::IsAskedFor(const std::string& extension) const {
  return only.empty() ? !Contains(except, extension) : Contains(only, extension);
}

ParsedExtensions ParseExtensions(std::string_view text) {
  ParsedExtensions parsed;
  for (const std::string& piece : SplitList(text, " ,;", text.size()).items) {
    const std::size_t start = std::min(piece.find_first_not_of("*.?"), piece.size());
    if (start < piece.size()) parsed.entries.push_back(piece.substr(start));
  }
  parsed.fits = parsed.entries.size() <= ExtensionFilter::kMaxExtensions;
  if (!parsed.fits) parsed.entries.resize(ExtensionFilter::kMaxExtensions);
  return parsed;
}

std::optional<ExtensionFault> FindExtensionFault(const ExtensionFilter& filter) {
  for (const std::string& extension : filter.only) {
    if (Contains(filter.except, extension)) {
      return ExtensionFault{ExtensionFault::Kind::kBothLists, extension};
    }
  }
  for (const auto* list : {&filter.only, &filter.except}) {
    for (const std::string& extension : *list) {
      if (ContainsAnyOf(extension, "*?.")) {
        return ExtensionFault{ExtensionFault::Kind::kInvalidCharacter, extension};
      }
    }
  }
  return std::nullopt;
}

}  // namespace quillomat
