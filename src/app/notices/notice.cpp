#include "app/notices/notice.h"

#include <algorithm>
#include <optional>

#include "text/caption_table.h"

namespace quillomat {
namespace {

using Values = std::optional<std::vector<NoticeValue>>;

/// One notice: which text it has, in another form where its first value is 1, and when it holds.
struct NoticeRow {
  int text = 0;
  int textOfOne = 0;
  /// What goes into the text; nothing while the notice does not hold.
  Values (*values)(const NoticeFacts& facts) = nullptr;
  std::array<NoticeAction, 2> actions{};
};

Values If(bool holds) {
  return holds ? Values(std::in_place) : std::nullopt;
}

Values NumberOf(std::int64_t number) {
  return number > 0 ? Values(std::vector<NoticeValue>{number}) : std::nullopt;
}

Values NameOf(const std::string& name) {
  return name.empty() ? std::nullopt : Values(std::vector<NoticeValue>{name});
}

/// A new count would be of another text than the list is of.
bool NamesOtherText(const NoticeFacts& facts) {
  return !facts.file.empty() || !facts.folder.empty() || facts.clipboard;
}

/// 0 where they do, or do not, belong in front of letters that were not counted.
std::int64_t LinesNotUtf8(const NoticeFacts& facts, bool beforeLetters) {
  return beforeLetters == (facts.foreignLetters > 0) ? facts.linesNotUtf8 : 0;
}

using enum NoticeAction;

// First what makes the list other than it looks, then what is missing in it by the user's own will.
constexpr auto kRows = std::to_array<NoticeRow>({
    {kWordsGoneText,
     0,
     [](const NoticeFacts& facts) { return If(facts.wordsGone); },
     {kCountAgain}},
    {kListNotCompleteText,
     0,
     [](const NoticeFacts& facts) { return NameOf(facts.stopped); },
     {kCountAgain}},
    {kNoCountOnlyWordText,
     0,
     [](const NoticeFacts& facts) { return If(facts.noCountOnlyWord); },
     {kChangeCountOnlyWords}},
    {kFilesSkippedText,
     kFileSkippedText,
     [](const NoticeFacts& facts) { return NumberOf(facts.skipped); },
     {kShowSkipped}},
    {kListOfFileText, 0, [](const NoticeFacts& facts) { return NameOf(facts.file); }},
    {kListOfFolderText, 0, [](const NoticeFacts& facts) { return NameOf(facts.folder); }},
    {kListOfClipboardText, 0, [](const NoticeFacts& facts) { return If(facts.clipboard); }},
    {kSettingsChangedText,
     0,
     [](const NoticeFacts& facts) { return If(facts.settingsChanged); },
     {kCountAgain}},
    {kOrderFiguresMissingText,
     0,
     [](const NoticeFacts& facts) { return If(facts.orderFiguresMissing); },
     {kCountAgain}},
    {kBytesNotDecodedText,
     kByteNotDecodedText,
     [](const NoticeFacts& facts) {
       return facts.firstNotDecoded.empty() ? NumberOf(facts.bytesNotDecoded) : Values();
     },
     {kChangeEncoding}},
    {kBytesNotDecodedInText,
     kByteNotDecodedInText,
     [](const NoticeFacts& facts) {
       if (facts.bytesNotDecoded == 0 || facts.firstNotDecoded.empty()) return Values();
       return Values(std::vector<NoticeValue>{facts.bytesNotDecoded, facts.firstNotDecoded});
     },
     {kChangeEncoding}},
    // Letters of another alphabet that are read so are others than were written.
    {kLinesNotUtf8Text,
     kLineNotUtf8Text,
     [](const NoticeFacts& facts) { return NumberOf(LinesNotUtf8(facts, true)); },
     {kChangeEncoding}},
    {kLettersNotCountedText,
     kLetterNotCountedText,
     [](const NoticeFacts& facts) { return NumberOf(facts.foreignLetters); },
     {kCountAllLetters}},
    {kRunsLeftWholeText, 0, [](const NoticeFacts& facts) { return If(facts.runsLeftWhole); }},
    {kListsReadAgainText, 0, [](const NoticeFacts& facts) { return NameOf(facts.listsReadAgain); }},
    {kOnlyWordsCountedText,
     kOnlyWordCountedText,
     [](const NoticeFacts& facts) { return NumberOf(facts.countOnlyWords); },
     {kChangeCountOnlyWords}},
    {kPartShownText,
     0,
     [](const NoticeFacts& facts) {
       if (facts.wordsShown >= facts.words) return Values();
       return Values(std::vector<NoticeValue>{facts.wordsShown, facts.words});
     },
     {kShowTable, kExport}},
    {kLinesNotUtf8Text,
     kLineNotUtf8Text,
     [](const NoticeFacts& facts) { return NumberOf(LinesNotUtf8(facts, false)); },
     {kChangeEncoding}},
    {kGuessedText,
     0,
     [](const NoticeFacts& facts) { return NameOf(facts.guessed); },
     {kChangeEncoding}},
    {kFilesLeftOutText,
     kFileLeftOutText,
     [](const NoticeFacts& facts) {
       if (facts.filesLeftOut == 0) return Values();
       return Values(std::vector<NoticeValue>{facts.filesLeftOut, facts.leftOutBecause});
     },
     {kShowLeftOut}},
    {kWordsToIgnoreText,
     kWordToIgnoreText,
     [](const NoticeFacts& facts) { return NumberOf(facts.wordsToIgnore); },
     {kChangeWordsToIgnore}},
});

bool StartsWithOne(const std::vector<NoticeValue>& values) {
  return !values.empty() && values.front() == NoticeValue(std::int64_t{1});
}

}  // namespace

std::vector<Notice> NoticesOf(const NoticeFacts& facts) {
  std::vector<Notice> notices;
  if (!facts.listStands && !facts.wordsGone) return notices;
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    const NoticeRow& row = kRows.at(i);
    Values values = row.values(facts);
    if (!values) continue;
    const bool one = row.textOfOne != 0 && StartsWithOne(*values);
    notices.push_back({i, one ? row.textOfOne : row.text, std::move(*values), row.actions});
    if (NamesOtherText(facts)) std::ranges::replace(notices.back().actions, kCountAgain, kNone);
  }
  return notices;
}

int CaptionOf(NoticeAction action) {
  switch (action) {
    case kNone:
      return 0;
    case kShowSkipped:
    case kShowLeftOut:
      return kWhichText;
    case kCountAgain:
      return kCountAgainText;
    case kCountAllLetters:
      return kCountThemText;
    case kChangeEncoding:
    case kChangeCountOnlyWords:
    case kChangeWordsToIgnore:
      return kChangeText;
    case kShowTable:
      return kTableViewText;
    case kExport:
      return kExportText;
  }
  return 0;
}

}  // namespace quillomat
