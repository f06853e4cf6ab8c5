// Saving and restoring the state, and the commands that do so.
#pragma once

#include <functional>
#include <string>

#include "app/count/count_run.h"
#include "app/count/window_count.h"
#include "app/count/word_list_reader.h"
#include "app/what_parts_share.h"

namespace quillomat {

enum class RestoreResult {
  kNoFile = -1,
  kRestored = 0,
  /// A combo box has no item selected.
  kInvalidIndex = 1,
  /// A words file could not be read; the rest is restored.
  kWordsFileFailed = 2,
  kError = 3,
};

class SavedState {
 public:
  /// All must outlive it.
  SavedState(const UserSide& user, const ProgramFacts& facts, const NamedPaths& named,
             CountRun& countRun, WordListReader& wordLists)
      : count_(WindowCountOf(user, facts)),
        frmParams_(user.frmParams),
        flags_(facts.flags),
        inputRow_(named.inputRow),
        paths_(named.paths),
        countRun_(countRun),
        wordLists_(wordLists) {}

  /// Connects the commands that save and load. `initialize` puts the program into its initial
  /// state.
  void Connect(std::function<void()> initialize);

  /// Where the state is kept from one run to the next; stands for an empty path below.
  void SetSettingsFilePath(std::string path) { settingsFilePath_ = std::move(path); }

  /// Writes the state, as if `switchedOn` were not checked, if that is given. Returns what went
  /// wrong, in words for the user, or "".
  [[nodiscard]] std::string SaveState(const std::string& path,
                                      const CheckBox* switchedOn = nullptr);

  /// Reads the state into the controls, no more: kNoFile, kRestored or kError.
  [[nodiscard]] RestoreResult ReadControls(const std::string& path);

  /// Reads the state into the controls and works out what hangs on them.
  [[nodiscard]] RestoreResult RestoreSavedState(const std::string& path);
  /// The description of the error when the last reading returned kError.
  [[nodiscard]] const std::string& ErrorDescription() const { return errorDescription_; }
  /// Whether that error was a list index beyond its list's end.
  [[nodiscard]] bool IndexWasOutOfRange() const { return indexOutOfRange_; }

  /// Works out what hangs on the controls after they were set from outside: typed lists are parsed,
  /// words files read, markers without a start dropped. The user is told what is wrong.
  RestoreResult TakeControlsAsTheyAre();

 private:
  void OnSaveToSettingsFile();
  void OnSaveToFile();
  void OnLoadFromFile();
  [[nodiscard]] std::string WhyNotToSaveTo(const std::string& path) const;
  void TakeTypedLists();
  [[nodiscard]] bool AnyComboWithoutItem() const;
  [[nodiscard]] const std::string& PathOrSettings(const std::string& path) const {
    return path.empty() ? settingsFilePath_ : path;
  }

  WindowCount count_;
  ParamsForm& frmParams_;
  WindowFlags& flags_;
  InputFileRow& inputRow_;
  PathBoxes& paths_;
  CountRun& countRun_;
  WordListReader& wordLists_;
  std::function<void()> initialize_;
  std::string settingsFilePath_;
  std::string errorDescription_;
  bool indexOutOfRange_ = false;
};

}  // namespace quillomat
