// Shows the user that a scan gets on: the number of different words so far, and each new word in
// the output text box until that has enough.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/count/run_context.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

class WordEcho final : public NewWordListener {
 public:
  explicit WordEcho(const RunContext& context);
  WordEcho(const WordEcho&) = delete;
  WordEcho& operator=(const WordEcho&) = delete;
  WordEcho(WordEcho&&) = delete;
  WordEcho& operator=(WordEcho&&) = delete;
  /// The words are on display for as long as it lives.
  ~WordEcho() override { context_.state.displayingWords = false; }

  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override;

 private:
  void ShowNumber(std::int32_t numDifferentWords);
  void Echo(std::string_view word, bool first);

  const RunContext& context_;
  std::string separator_;
};

/// The yield of a scan: keeps the windows awake and passes on the user's wish to stop.
class RunYield final : public ScanYield {
 public:
  explicit RunYield(const RunContext& context) : pump_(context.pump), state_(context.state) {}

  bool Yield() override {
    pump_.Yield();
    return state_.StopRequested;
  }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return pump_.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override {
    pump_.YieldFor(calls);
    return state_.StopRequested;
  }

 private:
  EventPump& pump_;
  CountState& state_;
};

}  // namespace quillomat
