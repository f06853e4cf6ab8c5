#include "engine/run_cutter.h"

#include <array>
#include <utility>

#include "base/utf8.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

bool IsMarkAt(std::string_view text, std::size_t position) {
  return UnicodeTraits::Get().Is(CharacterAt(text, position).codePoint, CodePointTraits::kMark);
}

bool IsUnspacedLetter(char32_t codePoint) {
  return IsInUnspacedScript(codePoint) &&
         UnicodeTraits::Get().Is(codePoint, CodePointTraits::kLetter);
}

bool IsLetterOrDigit(char ch) {
  const bool ascii = static_cast<unsigned char>(ch) < 0x80;
  return !ascii || (ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
}

/// Where the letters that begin `text`, with their marks, or what else begins it, come to an end.
std::size_t StretchBytes(std::string_view text, bool unspaced) {
  std::size_t position = 0;
  while (position < text.size()) {
    const Utf8Character character = CharacterAt(text, position);
    const bool mark = position > 0 && IsMarkAt(text, position);
    if (!mark && IsUnspacedLetter(character.codePoint) != unspaced) break;
    position += character.bytes;
  }
  return position;
}

}  // namespace

bool IsInUnspacedScript(char32_t codePoint) {
  // The blocks of Unicode for these scripts, as the library does not know scripts.
  static constexpr std::array<std::pair<char32_t, char32_t>, 13> kBlocks = {{
      {0x0E00, 0x0EFF},    // Thai, Lao
      {0x1000, 0x109F},    // Burmese
      {0x1780, 0x17FF},    // Khmer
      {0x3000, 0x30FF},    // signs of Han that are letters, kana
      {0x31F0, 0x31FF},    // kana
      {0x3400, 0x4DBF},    // Han
      {0x4E00, 0x9FFF},    //
      {0xA9E0, 0xA9FF},    // Burmese
      {0xAA60, 0xAA7F},    //
      {0xF900, 0xFAFF},    // Han
      {0xFF66, 0xFF9F},    // narrow kana
      {0x1AFF0, 0x1B16F},  // kana
      {0x20000, 0x3FFFF},  // Han
  }};
  if (codePoint < kBlocks.front().first) return false;
  return std::ranges::any_of(kBlocks, [codePoint](const auto& block) {
    return codePoint >= block.first && codePoint <= block.second;
  });
}

/// False when the run is to be taken as it is.
bool RunCutter::FindParts(std::string_view run) {
  const std::size_t others = StretchBytes(run, false);
  if (others == run.size()) return false;
  if (!HasSegmenter()) {
    NoteLeftWhole(run);
    return false;
  }
  parts_.clear();
  if (others > 0) AddOthers(run.substr(0, others));
  bool unspaced = true;
  for (std::size_t start = others; start < run.size(); unspaced = !unspaced) {
    const std::string_view stretch = run.substr(start, StretchBytes(run.substr(start), unspaced));
    if (unspaced) {
      AddUnspaced(stretch);
    } else {
      AddOthers(stretch);
    }
    start += stretch.size();
  }
  return true;
}

/// It is asked for once.
bool RunCutter::HasSegmenter() {
  if (makeSegmenter_ != nullptr) segmenter_ = std::exchange(makeSegmenter_, nullptr)();
  return segmenter_ != nullptr;
}

/// In a single letter there are no words to find.
void RunCutter::NoteLeftWhole(std::string_view run) {
  const bool isOneLetter = CharacterAt(run, 0).bytes == run.size();
  hasLeftWhole_ = hasLeftWhole_ || (wantsSegmenter_ && !isOneLetter);
}

/// A mark stays with its letter, whatever the segmenter thinks of it.
void RunCutter::AddUnspaced(std::string_view stretch) {
  cuts_.clear();
  if (!segmenter_->FindCuts(stretch, cuts_)) NoteLeftWhole(stretch);
  std::size_t start = 0;
  for (const std::size_t cut : cuts_) {
    if (IsMarkAt(stretch, cut)) continue;
    parts_.push_back(stretch.substr(start, cut - start));
    start = cut;
  }
  parts_.push_back(stretch.substr(start));
}

void RunCutter::AddOthers(std::string_view stretch) {
  std::size_t start = 0;
  while (start < stretch.size() && !charClass_.MayStartWord(stretch, start)) {
    start += CharacterAt(stretch, start).bytes;
  }
  const std::string_view part = stretch.substr(start);
  if (std::ranges::any_of(part, IsLetterOrDigit)) parts_.push_back(part);
}

}  // namespace quillomat
