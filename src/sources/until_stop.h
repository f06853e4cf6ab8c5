// A stream that a stop brings to its end.
#pragma once

#include <chrono>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "base/character_set.h"
#include "sources/line_tally.h"
#include "sources/stop_question.h"

namespace quillomat {

/// The bytes of a stream, which cannot be had a second time, until the count is stopped: what was
/// read before is to be counted. Where more is at hand, the word at their end is read to its end,
/// and a character that the stop leaves unfinished is not given out, so that a stop makes no words.
class UntilStop final : public ByteSource {
 public:
  /// Both outlive it. `choice` is the encoding that the user wants.
  UntilStop(ByteSource& source, StopQuestion& stop, CharacterSet choice);

  /// What the characters consist of, known once all that was read, which is `head`, has been looked
  /// at, and what it is converted from. Until then they are bytes. Whatever comes behind ends with
  /// a whole unit; characters of more bytes are left to who converts them.
  void SetUnit(LineTally::Unit unit, CharacterSet from, std::string_view head);

  std::size_t Read(std::span<char> buffer) override;
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return ended_ || stop_.Stopped() || source_.IsReady(longest);
  }
  /// Whether there may have been more.
  [[nodiscard]] bool WasStopped() const { return wasStopped_; }

 private:
  [[nodiscard]] std::size_t ReadUnits(std::span<char> buffer);
  [[nodiscard]] std::size_t UnfinishedBytes(std::string_view bytes) const;
  [[nodiscard]] std::size_t ReadRestOfWord(std::span<char> buffer);
  [[nodiscard]] std::size_t FirstUnit(std::string_view bytes) const;
  [[nodiscard]] bool IsBetweenWords(std::string_view unit) const;
  [[nodiscard]] std::size_t BehindLastBlank(std::string_view bytes) const;
  [[nodiscard]] std::size_t FirstBlank(std::string_view bytes) const;

  ByteSource& source_;
  StopQuestion& stop_;
  LineTally::Unit unit_ = LineTally::Unit::kByte;
  std::size_t bytesRead_ = 0;
  /// Whether the bytes are those of UTF-8, or may be.
  bool mayBeUtf8_;
  /// Read from the source, and the start of a unit or of a character.
  std::string held_;
  /// Whether such a start was given out, as there was no room for more.
  bool torn_ = false;
  /// So many bytes were read since a blank or a line end.
  std::size_t bytesOfWord_ = 0;
  bool ended_ = false;
  bool wasStopped_ = false;
};

}  // namespace quillomat
