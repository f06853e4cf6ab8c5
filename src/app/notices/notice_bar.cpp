#include "app/notices/notice_bar.h"

#include <algorithm>
#include <variant>
#include <vector>

#include "app/count/count_basis.h"
#include "app/count/named_text.h"
#include "app/count/reach_text.h"
#include "app/setting_values.h"
#include "base/text_helpers.h"
#include "system/paths.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

/// What a person calls a folder or a file.
std::string NameOf(const std::string& path) {
  const std::string name = FileNamePartOf(path);
  return name.empty() ? path : name;
}

}  // namespace

void NoticeBar::Connect() {
  for (const Setting& setting : AllSettings()) {
    ControlOf(setting, frmMain_, frmParams_).Changed.Connect([this] { UpdateWhenIdle(); });
  }
  for (OptionButton* source :
       {&frmMain_.optOnClipboard, &frmMain_.optInFile, &frmMain_.optFolder}) {
    source->Changed.Connect([this] { UpdateWhenIdle(); });
  }
  frmMain_.txbOutput.Change.Connect([this] { OnOutputChange(); });
  run_.BecameIdle.Connect([this] { UpdateWhenIdle(); });
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    frmMain_.cmdNotice[i].Click.Connect([this, i] { Do(actions_[i]); });
  }
  frmMain_.cmdDismissNotice.Click.Connect([this] { Dismiss(); });
  Hide();
}

void NoticeBar::SetTextShown(bool shown) {
  textShown_ = shown;
  UpdateWhenIdle();
}

void NoticeBar::UpdateWhenIdle() {
  if (!run_.Busy()) Update();
}

/// With a new count the old list is gone, and a notice of it would be in the way.
void NoticeBar::OnOutputChange() {
  if (!run_.Busy()) return Update();
  if (run_.Phase() == RunPhase::kListingAgain) return;
  dismissed_.clear();
  if (frmMain_.lblNotice.Visible()) Hide();
}

void NoticeBar::Update() {
  const std::vector<Notice> notices = NoticesOf(Facts());
  const auto notice = std::ranges::find_if(
      notices, [this](const Notice& each) { return !dismissed_.contains(each.row); });
  if (notice == notices.end()) return Hide();
  Show(*notice);
}

NoticeFacts NoticeBar::Facts() const {
  NoticeFacts facts;
  // A count that was refused has emptied the text, and leaves the other views.
  const bool wordsStand = words_.CanBeListed() || words_.totals.NumIncludedWords > 0;
  facts.listStands = wordsStand && (!textShown_ || TextHoldsList());
  facts.wordsGone = words_.gaveWay && output_.Part().all > 0;
  if (!facts.listStands) return facts;
  if (words_.stoppedAfter) {
    facts.stopped = ReachText(*words_.stoppedAfter, messages_.Texts(), messages_.Signs());
  }
  if (words_.counted.source == CountedText::Source::kFolder) {
    facts.skipped = countRun_.SkippedInAll();
    const LeftOut& leftOut = words_.folder.leftOut;
    facts.filesLeftOut = leftOut.InAll();
    facts.firstNotDecoded = NameOf(words_.folder.firstNotDecoded);
    facts.leftOutBecause = leftOut.Reasons(messages_.Text(kNoTextOrEmptyText));
  }
  AddTextCounted(facts);
  const CountBasis& basis = countRun_.Basis();
  facts.settingsChanged =
      !CountAlike(basis, CountBasisOf(frmMain_, frmParams_, inForce_), words_.counted.source);
  facts.orderFiguresMissing = inForce_.wantsOrderFigures && !words_.orderFigures;
  facts.foreignLetters = words_.uncounted.foreignLetters;
  facts.runsLeftWhole = words_.uncounted.runsLeftWhole;
  facts.bytesNotDecoded = words_.uncounted.bytesNotDecoded;
  facts.linesNotUtf8 = words_.uncounted.linesNotUtf8;
  facts.guessed = words_.guessed.Names();
  facts.listsReadAgain = basis.listsReadAgain;
  facts.countOnlyWords = basis.countOnlyWords;
  facts.noCountOnlyWord = basis.namesNoCountOnlyWord;
  facts.wordsToIgnore = basis.wordsToIgnore;
  const ListPart part = output_.Part();
  facts.words = part.all;
  facts.wordsShown = textShown_ ? part.shown : part.all;
  return facts;
}

/// Or says that there are no words.
bool NoticeBar::TextHoldsList() const {
  if (words_.totals.NumIncludedWords == 0) return !output_.IsEmpty();
  return output_.Part().all > 0;
}

/// A box that is empty names no other text.
void NoticeBar::AddTextCounted(NoticeFacts& facts) const {
  using Source = CountedText::Source;
  const CountedText& counted = words_.counted;
  const CountedText named = TextNamedIn(frmMain_);
  const bool namesNothing = named.source != Source::kClipboard && named.path.empty();
  const bool same = named.source == counted.source && named.path == counted.path;
  if (same || namesNothing) return;
  if (counted.source == Source::kFile) facts.file = NameOf(counted.path);
  if (counted.source == Source::kFolder) facts.folder = NameOf(counted.path);
  facts.clipboard = counted.source == Source::kClipboard;
}

void NoticeBar::Show(const Notice& notice) {
  shownRow_ = notice.row;
  std::vector<std::string> values;
  for (const NoticeValue& value : notice.values) {
    const auto* number = std::get_if<std::int64_t>(&value);
    values.push_back(number != nullptr ? messages_.Grouped(*number) : std::get<std::string>(value));
  }
  frmMain_.lblNotice.SetCaption(Filled(messages_.Text(notice.text), values));
  actions_ = notice.actions;
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const bool shown = CanDo(actions_[i]);
    frmMain_.cmdNotice[i].SetCaption(shown ? messages_.Text(CaptionOf(actions_[i])) : "");
    frmMain_.cmdNotice[i].SetVisible(shown);
  }
  frmMain_.cmdDismissNotice.SetVisible(true);
  frmMain_.lblNotice.SetVisible(true);
}

void NoticeBar::Hide() {
  frmMain_.lblNotice.SetCaption("");
  for (CommandButton& command : frmMain_.cmdNotice) {
    command.SetCaption("");
    command.SetVisible(false);
  }
  frmMain_.cmdDismissNotice.SetVisible(false);
  frmMain_.lblNotice.SetVisible(false);
}

bool NoticeBar::CanDo(NoticeAction action) const {
  if (action == NoticeAction::kShowTable) return static_cast<bool>(showTable_);
  if (action == NoticeAction::kShowLeftOut) return static_cast<bool>(showSkipped_);
  if (action == NoticeAction::kExport) return static_cast<bool>(export_);
  if (action == NoticeAction::kCountAllLetters) return static_cast<bool>(countAllLetters_);
  return action != NoticeAction::kNone;
}

void NoticeBar::Do(NoticeAction action) {
  if (run_.Busy() || !CanDo(action)) return;
  switch (action) {
    case NoticeAction::kNone:
      return;
    case NoticeAction::kShowSkipped:
      return ShowSkipped();
    case NoticeAction::kShowLeftOut:
      return showSkipped_(true);
    case NoticeAction::kCountAgain:
      return frmMain_.cmdCountWords.PerformClick();
    case NoticeAction::kCountAllLetters:
      return countAllLetters_();
    case NoticeAction::kChangeEncoding:
      return OpenPanelAt(frmParams_.cboEncoding);
    case NoticeAction::kChangeCountOnlyWords:
      return OpenPanelAt(WordsBox(WordListKind::kCountOnly));
    case NoticeAction::kChangeWordsToIgnore:
      return OpenPanelAt(WordsBox(WordListKind::kIgnore));
    case NoticeAction::kShowTable:
      return showTable_();
    case NoticeAction::kExport:
      return export_();
  }
}

void NoticeBar::OpenPanelAt(Control& control) {
  frmMain_.cmdSetParameters.PerformClick();
  if (frmParams_.Visible()) frmParams_.SetFocus(control);
}

/// Where the words come from that the count went by: typed, or of a file.
Control& NoticeBar::WordsBox(WordListKind kind) {
  const auto index = static_cast<std::size_t>(kind);
  TextBox& typed = frmParams_.txbWordsToIgnoreOrCount[index];
  TextBox& file = frmParams_.txbWordsFile[index];
  return typed.Text().empty() && !file.Text().empty() ? file : typed;
}

void NoticeBar::Dismiss() {
  dismissed_.insert(shownRow_);
  UpdateWhenIdle();
}

void NoticeBar::ShowSkipped() {
  if (showSkipped_) return showSkipped_(false);
  std::string lines;
  for (const SkippedItem& item : countRun_.Skipped()) {
    lines.append(item.path).append(" (").append(item.reason).append(")").append(kCrLf);
  }
  const auto more =
      countRun_.SkippedInAll() - static_cast<std::int64_t>(countRun_.Skipped().size());
  if (more > 0) {
    lines.append(Filled(messages_.Text(kMoreSkippedText), {messages_.Grouped(more)}));
  }
  desktop_.ShowText(lines, messages_.Text(kSkippedTitleText));
}

}  // namespace quillomat
