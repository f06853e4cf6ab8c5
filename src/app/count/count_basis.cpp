#include "app/count/count_basis.h"

#include <algorithm>

#include "app/count/panel_choices.h"
#include "app/setting_values.h"

namespace quillomat {
namespace {

/// Paths and what bears on the list alone stand on the main window, too, and are no matter here.
bool TellsFilesOfFolder(const Setting& setting) {
  return setting.window == SettingWindow::kMain && setting.entails == Entails::kRescan &&
         !setting.isPath;
}

bool TellsWords(const Setting& setting) {
  return setting.window == SettingWindow::kPanel && setting.entails != Entails::kNothing;
}

std::string ValueInForce(const Setting& setting, const MainForm& frmMain,
                         const ParamsForm& frmParams) {
  if (!setting.switchedBy.empty()) {
    const auto* box = frmParams.Find(setting.switchedBy)->As<CheckBox>();
    if (box != nullptr && !box->IsChecked()) return {};
  }
  return LanguageFreeValueOf(ControlOf(setting, frmMain, frmParams));
}

/// `lists` were taken from the panel.
bool NamesNoCountOnlyWord(const ParamsForm& frmParams, const WordLists& lists) {
  using enum WordListKind;
  const bool namesSome = !WordsFileBoxOf(frmParams, kCountOnly).Text().empty() ||
                         !TypedWordsBoxOf(frmParams, kCountOnly).Text().empty();
  return namesSome && !lists.HasCountOnlyWords();
}

}  // namespace

CountBasis CountBasisOf(const MainForm& frmMain, const ParamsForm& frmParams,
                        const InForce& inForce) {
  CountBasis basis;
  for (const Setting& setting : AllSettings()) {
    if (TellsWords(setting)) {
      std::vector<std::string>& values = setting.ofFilesAlone ? basis.ofFiles : basis.panel;
      values.push_back(ValueInForce(setting, frmMain, frmParams));
    }
    if (TellsFilesOfFolder(setting))
      basis.ofFolder.push_back(ValueInForce(setting, frmMain, frmParams));
  }
  basis.wordsFromFiles = std::ranges::any_of(inForce.filesRead.wordsFiles,
                                             [](const std::string& path) { return !path.empty(); });
  basis.listsReadAgain = inForce.listsReadAgain;
  const WordLists& lists = inForce.lists;
  basis.countOnlyWords = lists.CountOnlyList.Count() + lists.ExtraCountOnlyList.Count();
  basis.namesNoCountOnlyWord = NamesNoCountOnlyWord(frmParams, lists);
  if (basis.countOnlyWords == 0) {
    basis.wordsToIgnore = lists.IgnoreList.Count() + lists.ExtraIgnoreList.Count();
  }
  return basis;
}

bool CountAlike(const CountBasis& one, const CountBasis& other, CountedText::Source source) {
  const bool ofFolder = source == CountedText::Source::kFolder;
  const bool ofFiles =
      source != CountedText::Source::kClipboard || one.wordsFromFiles || other.wordsFromFiles;
  return one.panel == other.panel && (!ofFiles || one.ofFiles == other.ofFiles) &&
         (!ofFolder || one.ofFolder == other.ofFolder);
}

}  // namespace quillomat
