// A segmenter that knows no language: it cuts by the numbers of the letters, their places and the
// length of the run, so whoever hands it another run than it should comes to other words.
#pragma once

#include <memory>

#include "base/run_segmenter.h"
#include "base/utf8.h"

namespace quillomat {

class MadeUpSegmenter final : public RunSegmenter {
 public:
  bool FindCuts(std::string_view run, std::vector<std::size_t>& cuts) override {
    constexpr std::size_t kNeighbours = 7;
    constexpr std::size_t kOneIn = 3;
    std::size_t before = 0;
    std::size_t number = 0;
    for (std::size_t position = 0; position < run.size(); ++number) {
      const Utf8Character character = CharacterAt(run, position);
      const std::size_t sum = before * kNeighbours + character.codePoint + number + run.size();
      if (number > 0 && sum % kOneIn == 0) cuts.push_back(position);
      before = character.codePoint;
      position += character.bytes;
    }
    return true;
  }
};

inline std::unique_ptr<RunSegmenter> MakeMadeUpSegmenter() {
  return std::make_unique<MadeUpSegmenter>();
}

/// As on a system that has none.
inline std::unique_ptr<RunSegmenter> MakeNoSegmenter() {
  return nullptr;
}

}  // namespace quillomat
