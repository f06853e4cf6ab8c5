#include "cli/list_notes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

#include "cli/option_conflicts.h"
#include "cli/standard_output.h"
#include "engine/word_list.h"

namespace quillomat {
namespace {

constexpr Headed kNote{MessageTone::kWarning, "Note: "};

/// The file or the option that names count-only words; "" where nothing does. Words that are typed
/// and turn out to be signs alone have left the panel by now.
std::string CountOnlySource(const CommandLine& options, const Program& program) {
  constexpr auto kIndex = static_cast<std::size_t>(WordListKind::kCountOnly);
  const std::string& file = program.frmParams.txbWordsFile[kIndex].Text();
  if (!file.empty()) return file;
  return IsGiven(options, "--only-words") ? "--only-words" : "";
}

bool IsCountOnly(const WordLists& lists, const std::string& word) {
  return lists.CountOnlyList.IsInList(word) || lists.ExtraCountOnlyList.IsInList(word);
}

/// A word that is typed and stands in the file, too, is one.
std::int64_t CountInBoth(const WordLists& lists) {
  const auto typed =
      std::ranges::count_if(lists.ExtraIgnoreList.Words(),
                            [&lists](const std::string& word) { return IsCountOnly(lists, word); });
  const auto ofFile =
      std::ranges::count_if(lists.IgnoreList.Words(), [&lists](const std::string& word) {
        return !lists.ExtraIgnoreList.IsInList(word) && IsCountOnly(lists, word);
      });
  return std::int64_t{typed} + ofFile;
}

}  // namespace

void TellListsWithoutEffect(const CommandLine& options, const Program& program,
                            const Messages& messages, std::ostream& err) {
  const WordLists& lists = program.Settings().lists;
  const std::string source = CountOnlySource(options, program);
  if (!source.empty() && !lists.HasCountOnlyWords()) {
    err << kNote << source
        << " gives no count-only word that can be counted; all words are counted.\n";
  }
  const std::int64_t inBoth = CountInBoth(lists);
  if (inBoth == 1) {
    err << kNote << "1 word to ignore is a count-only word, too; it is counted.\n";
  } else if (inBoth > 1) {
    err << kNote << messages.Grouped(inBoth)
        << " words to ignore are count-only words, too; they are counted.\n";
  }
}

}  // namespace quillomat
