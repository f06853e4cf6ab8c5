// What the tests of a whole count share: something done by the user while it runs, and what a label
// showed in the course of it.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/count/sources_fixture.h"

namespace quillomat {

/// Remembers the captions of a label, from when it is made.
class CaptionLog {
 public:
  explicit CaptionLog(Label& label) : last_(label.Caption()) {
    label.Changed.Connect([this, &label] {
      if (label.Caption() == last_) return;
      last_ = label.Caption();
      captions_.push_back(last_);
    });
  }

  [[nodiscard]] const std::vector<std::string>& Captions() const { return captions_; }

 private:
  std::string last_;
  std::vector<std::string> captions_;
};

class CountFixture : public SourcesFixture {
 protected:
  CountFixture() { EveryYieldPumps(); }

  void TearDown() override { EXPECT_EQ(actionsToCome_, 0) << "a yield was never reached"; }

  /// Does it at the n-th yield from now, which the test must reach. A count yields after each word
  /// that it reads (a file also after each line), then each list after each word that it lists.
  void AtYield(int number, std::function<void()> action) {
    ++actionsToCome_;
    desktop.AtPump(desktop.Pumps() + number, [this, action = std::move(action)] {
      --actionsToCome_;
      action();
    });
  }
  void StopAtYield(int number) {
    AtYield(number, [this] { Count(); });
  }

  void ListTo(const std::string& path) { Main().txbFile[1].SetText(path); }
  void DoNotWarn() { Panel().chkWarnOnOverwrite.SetChecked(false); }
  void ChooseOrder(WordOrder order) { Main().cboWordOrder.SetListIndex(static_cast<int>(order)); }
  void ChooseFormat(DisplayFormat format) {
    Main().cboDisplayFormat.SetListIndex(static_cast<int>(format));
  }

  /// So many different words of nine letters, with a blank behind each; in alphabetical order.
  [[nodiscard]] static std::string ManyWords(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
      std::string word = "wordaaaaa";
      for (std::size_t place = word.size(), rest = static_cast<std::size_t>(i); rest > 0;
           rest /= 26) {
        word[--place] = static_cast<char>('a' + rest % 26);
      }
      text.append(word).append(" ");
    }
    return text;
  }

 private:
  int actionsToCome_ = 0;
};

}  // namespace quillomat
