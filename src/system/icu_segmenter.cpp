#include "system/icu_segmenter.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr int kWordBoundaries = 1;  // UBRK_WORD

/// Words of each script that the library has a dictionary for.
constexpr std::string_view kAllScripts = "日本 ひら カタ ไทย ລາວ မြန်မာ ខ្មែរ";

class IteratorCloser {
 public:
  explicit IteratorCloser(void (*close)(void*)) : close_(close) {}
  void operator()(void* iterator) const { close_(iterator); }

 private:
  void (*close_)(void*);
};
using Iterator = std::unique_ptr<void, IteratorCloser>;

class IcuSegmenter final : public RunSegmenter {
 public:
  IcuSegmenter(const IcuFunctions& functions, Iterator iterator)
      : functions_(functions), iterator_(std::move(iterator)) {}

  bool FindCuts(std::string_view run, std::vector<std::size_t>& cuts) override {
    TakeText(run);
    int error = 0;
    const auto units = static_cast<std::int32_t>(text_.size());
    functions_.setText(iterator_.get(), text_.data(), units, &error);
    if (error > 0) return false;
    for (std::int32_t place = functions_.next(iterator_.get()); place > 0 && place < units;
         place = functions_.next(iterator_.get())) {
      cuts.push_back(places_[static_cast<std::size_t>(place)]);
    }
    return true;
  }

 private:
  /// In UTF-16, with the place in `run` of each unit.
  void TakeText(std::string_view run) {
    constexpr char32_t kFirstOfPairs = 0x10000;
    text_.clear();
    places_.clear();
    for (std::size_t position = 0; position < run.size();) {
      const Utf8Character character = CharacterAt(run, position);
      places_.push_back(position);
      position += character.bytes;
      if (character.codePoint < kFirstOfPairs) {
        text_.push_back(static_cast<char16_t>(character.codePoint));
        continue;
      }
      const char32_t rest = character.codePoint - kFirstOfPairs;
      text_.push_back(static_cast<char16_t>(0xD800 + (rest >> 10U)));
      text_.push_back(static_cast<char16_t>(0xDC00 + (rest & 0x3FFU)));
      places_.push_back(position);  // never a boundary
    }
  }

  const IcuFunctions& functions_;
  Iterator iterator_;
  std::u16string text_;
  std::vector<std::size_t> places_;
};

}  // namespace

/// The root locale, so that a text has the same words for everybody. The library loads a dictionary
/// when it meets the first letter of its script, and before that takes signs that several scripts
/// share (ー) for letters without one: with all of them loaded, it is all the same what was cut
/// before.
std::unique_ptr<RunSegmenter> MakeIcuSegmenter(const IcuFunctions& functions) {
  int error = 0;
  Iterator iterator(functions.open(kWordBoundaries, "", nullptr, 0, &error),
                    IteratorCloser(functions.close));
  if (error > 0 || iterator == nullptr) return nullptr;
  auto segmenter = std::make_unique<IcuSegmenter>(functions, std::move(iterator));
  std::vector<std::size_t> cuts;
  static_cast<void>(segmenter->FindCuts(kAllScripts, cuts));  // if it fails, the next time tells
  return segmenter;
}

}  // namespace quillomat
