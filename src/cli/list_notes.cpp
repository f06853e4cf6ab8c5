#include "cli/list_notes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

#include "app/count/panel_choices.h"
#include "cli/option_conflicts.h"
#include "cli/standard_output.h"
#include "engine/explain/text_explainer.h"
#include "engine/word_list.h"

namespace quillomat {
namespace {

constexpr Headed kNote{MessageTone::kWarning, "Note: "};

/// The file or the option that names count-only words; "" where nothing does. Words that are typed
/// and turn out to be signs alone have left the panel by now.
std::string CountOnlySource(const CommandLine& options, const Program& program) {
  const std::string& file = WordsFileBoxOf(program.frmParams, WordListKind::kCountOnly).Text();
  if (!file.empty()) return file;
  return IsGiven(options, "--only-words") ? "--only-words" : "";
}

bool IsCountOnly(const WordLists& lists, const std::string& word) {
  return lists.CountOnlyList.IsInList(word) || lists.ExtraCountOnlyList.IsInList(word);
}

/// Whether a text may hold one of the count-only words. Those of a file were found in it as in a
/// text.
bool CanOccur(const WordLists& lists, const ScanChoices& choices) {
  if (lists.CountOnlyList.Count() > 0) return true;
  return std::ranges::any_of(lists.ExtraCountOnlyList.Words(), [&](const std::string& word) {
    return std::ranges::any_of(
        ExplainText(word, choices, {}, lists).candidates,
        [](const Candidate& part) { return part.fate == CandidateFate::kCounted; });
  });
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

void TellListsWithoutEffect(const CommandLine& options, Program& program, const Messages& messages,
                            std::ostream& err) {
  const WordLists& lists = program.Settings().lists;
  const std::string source = CountOnlySource(options, program);
  if (!source.empty() && !lists.HasCountOnlyWords()) {
    err << kNote << source
        << " gives no count-only word that can be counted; all words are counted.\n";
  } else if (lists.HasCountOnlyWords() && !CanOccur(lists, ReadScanChoices(program.frmParams))) {
    err << kNote << "under these settings no text holds any of the count-only words as they are "
        << "typed; none is counted.\n";
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
