// What is saved comes back: every control, with texts of any kind.
#include <cstdint>
#include <gmock/gmock.h>
#include <iostream>
#include <random>

#include "app/program_image.h"
#include "app/state_file.h"
#include "base/utf8.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using Random = std::mt19937_64;

/// Anything that a box of one line can hold but a double quote, which is not kept.
std::string AwkwardText(Random& random) {
  static const std::vector<std::string> pieces = {
      " ",      ",",      "'",       "\\",     "\t",         "#TRUE#",     "-1",
      "\u00E9", "\u20AC", "\u0085",  "\u2028", "\u00A0",     "\U0001F600", "\uFEFF",
      "\x7F",   "45",     "\u0301a", "&lt;",   "C:\\a b\\c", "/x/y",       "=1+1"};
  std::string text;
  for (std::size_t left = random() % 6; left > 0; --left) text += pieces[random() % pieces.size()];
  return text;
}

class RoundTrip : public ProgramFixture {
 protected:
  void SetAtRandom(Random& random) {
    for (const StateValue& value : StateValuesOf(Main(), Panel())) {
      if (auto* const* box = std::get_if<TextBox*>(&value)) {
        (*box)->SetText(AwkwardText(random));
      } else if (auto* const* combo = std::get_if<ComboBox*>(&value)) {
        (*combo)->SetListIndex(static_cast<int>(random() % (*combo)->Items().size()));
      } else if (auto* const* check = std::get_if<CheckBox*>(&value)) {
        (*check)->SetValue(static_cast<CheckState>(random() % 3));
      } else {
        OptionButton* const buttons[] = {&Main().optOnClipboard, &Main().optInFile,
                                         &Main().optFolder};
        buttons[random() % 3]->SetValue(true);
      }
    }
  }
};

TEST_F(RoundTrip, OfTheControlsIsExact) {
  const std::uint64_t fresh = std::random_device()();
  std::cout << "fresh seed " << fresh << std::endl;
  for (const std::uint64_t seed : {std::uint64_t{99}, fresh}) {
    Random random(seed);
    for (int round = 0; round < 150; ++round) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
      SetAtRandom(random);
      const ProgramImage before = ImageOf(program);
      ASSERT_EQ(program.States().SaveState(folder / "state.qlm"), "");
      SetAtRandom(random);
      ASSERT_EQ(program.States().ReadControls(folder / "state.qlm"), RestoreResult::kRestored);
      EXPECT_EQ(Differences(before, ImageOf(program)), "");
    }
  }
}

TEST_F(RoundTrip, OfAWholeStateIsStable) {
  Random random(std::uint64_t{4711});
  for (int round = 0; round < 100; ++round) {
    SCOPED_TRACE(round);
    SetAtRandom(random);
    // An item of a typed list that holds nothing but separators goes at each reading, so these are
    // words.
    for (TextBox& box : Panel().txbWordsToIgnoreOrCount) {
      box.SetText(round % 3 == 0 ? "" : " Ox,cow.  hen's ");
    }
    Panel().txbWordsFile[0].SetText("");
    Panel().txbWordsFile[1].SetText(round % 2 == 0 ? "" : folder.Write("w.txt", "ox cow ox\n"));
    ASSERT_EQ(program.States().SaveState(folder / "first.qlm"), "");
    ASSERT_EQ(program.States().RestoreSavedState(folder / "first.qlm"), RestoreResult::kRestored);
    const ProgramImage restored = ImageOf(program);
    ASSERT_EQ(program.States().SaveState(folder / "second.qlm"), "");
    program.Initialize();
    ASSERT_EQ(program.States().RestoreSavedState(folder / "second.qlm"), RestoreResult::kRestored);
    EXPECT_EQ(Differences(restored, ImageOf(program)), "");
  }
}

}  // namespace
}  // namespace quillomat
