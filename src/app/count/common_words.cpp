#include "app/count/common_words.h"

#include <array>
#include <string_view>
#include <utility>

#include "system/file_system.h"
#include "system/paths.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

/// In the order of the texts that name them.
constexpr auto kLanguageCodes = std::to_array<std::string_view>(
    {"cs", "nl", "en", "fr", "de", "el", "it", "pl", "pt", "ru", "es", "sv", "tr", "uk"});

}  // namespace

std::vector<CommonWordsList> FindCommonWords() {
  std::vector<CommonWordsList> lists;
  const std::string folder = DataFolder();
  int languageText = kFirstLanguageText;
  for (const std::string_view code : kLanguageCodes) {
    std::string path = JoinPath(folder, "cwds_" + std::string(code) + ".txt");
    if (FileExists(path)) lists.push_back({std::move(path), languageText});
    ++languageText;
  }
  return lists;
}

}  // namespace quillomat
