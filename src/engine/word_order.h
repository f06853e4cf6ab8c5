// The words of a text one after the other, as they are counted: for whatever hangs on their order.
// A store with a listener makes counting slower, one without costs nothing.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace quillomat {

/// Is told of every occurrence that is counted, in the order of the text, however it is scanned.
class WordOrderListener {
 public:
  WordOrderListener() = default;
  WordOrderListener(const WordOrderListener&) = delete;
  WordOrderListener& operator=(const WordOrderListener&) = delete;
  WordOrderListener(WordOrderListener&&) = delete;
  WordOrderListener& operator=(WordOrderListener&&) = delete;
  virtual ~WordOrderListener() = default;

  /// The next occurrences, as the places of their words in the store, where they have been counted
  /// already. Words are put there in the order in which the text first has them: from 0, without a
  /// gap.
  virtual void OnWords(std::span<const std::uint32_t> places) = 0;
};

/// Keeps them, four bytes each.
class WordOrderRecorder final : public WordOrderListener {
 public:
  void OnWords(std::span<const std::uint32_t> words) override {
    places.insert(places.end(), words.begin(), words.end());
  }

  std::vector<std::uint32_t> places;
};

}  // namespace quillomat
