// Cuts runs of word characters that hold letters of scripts written without blanks: Han, kana,
// Thai, Lao, Khmer and Burmese. By the western rule there is nothing to cut.
//
// A run is cut where such letters meet others, digits or signs, and what stands between two of
// these places is taken as if blanks stood around it; signs alone are nothing. The letters of such
// scripts are cut into words by the segmenter that the choices name. Without one every run stays
// whole.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "base/run_segmenter.h"
#include "engine/char_class.h"
#include "engine/letter_rule.h"

namespace quillomat {

/// Whether a letter with that code point belongs to such a script.
[[nodiscard]] bool IsInUnspacedScript(char32_t codePoint);

/// For one thread.
class RunCutter {
 public:
  /// `charClass` must outlive it. The segmenter is made when it is needed first.
  RunCutter(const CharClass& charClass, LetterRule letters, SegmenterMaker makeSegmenter)
      : charClass_(charClass),
        letters_(letters),
        makeSegmenter_(makeSegmenter),
        wantsSegmenter_(makeSegmenter != nullptr) {}

  /// Gives `take` the parts of the run in their order: the run itself, if nothing is to be cut.
  template <typename Take>
  void ForEachPart(std::string_view run, Take take) {
    if (letters_ == LetterRule::kWestern || !MayBeUnspaced(run) || !FindParts(run)) {
      take(run);
      return;
    }
    for (const std::string_view part : parts_) take(part);
  }

  /// Whether a run was left whole since there is no segmenter, although one is named, or since it
  /// failed.
  [[nodiscard]] bool HasLeftWhole() const { return hasLeftWhole_; }

 private:
  /// The scripts stand behind U+0800 all: their characters have three bytes or four.
  static bool MayBeUnspaced(std::string_view run) {
    constexpr unsigned char kLeadOfThree = 0xE0;
    return std::ranges::any_of(
        run, [](char ch) { return static_cast<unsigned char>(ch) >= kLeadOfThree; });
  }

  [[nodiscard]] bool FindParts(std::string_view run);
  [[nodiscard]] bool HasSegmenter();
  void NoteLeftWhole(std::string_view run);
  void AddUnspaced(std::string_view stretch);
  void AddOthers(std::string_view stretch);

  const CharClass& charClass_;
  LetterRule letters_;
  SegmenterMaker makeSegmenter_;
  bool wantsSegmenter_;
  std::unique_ptr<RunSegmenter> segmenter_;
  bool hasLeftWhole_ = false;
  std::vector<std::string_view> parts_;
  std::vector<std::size_t> cuts_;
};

}  // namespace quillomat
