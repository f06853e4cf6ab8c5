// A list on its way into a file or a pipe: lines gather in a block, and full blocks are written.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>

#include "listing/list_walk.h"

namespace quillomat {

class FileListSink final : public ListSink {
 public:
  /// Writes all it is given or throws RunTimeError.
  using Writer = std::function<void(std::string_view)>;
  /// Called after every word; true when the list is to be stopped.
  using StopTest = std::function<bool()>;

  /// `numDifferentWords` is the size of the store: "word (+commas)" puts its comma behind every
  /// word but the one at the last alphabetical place, wherever in the list that one stands.
  FileListSink(Writer writer, StopTest stopTest, const LineOptions& options,
               std::int32_t numDifferentWords);

  /// Ends the list after so many words.
  void TakeAtMost(std::int32_t words) { mostWords_ = words; }

  void TakeHeader(std::string_view line) override;
  bool TakeWord(std::int32_t index, std::string_view line) override;
  std::string& LineRoom() override { return block_; }
  bool TakeLineInRoom(std::int32_t index) override;
  /// Writes what has gathered. Must be called at the end of the list.
  void Flush();

 private:
  void WriteWhenFull();

  Writer writer_;
  StopTest stopTest_;
  bool runsOn_;
  std::string lineBreak_;
  std::int32_t numDifferentWords_;
  std::int32_t mostWords_ = std::numeric_limits<std::int32_t>::max();
  std::int32_t wordsTaken_ = 0;
  std::string block_;
};

}  // namespace quillomat
