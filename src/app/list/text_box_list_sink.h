// A list on its way into the output text box. Lines gather in the accumulator, which becomes the
// box's text when the list is done; a preview is shown once there is a screenful. A list longer
// than the box can take is cut, and the box is found full.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "app/list/output_box.h"
#include "listing/list_walk.h"

namespace quillomat {

class TextBoxListSink final : public ListSink {
 public:
  /// Called after every word; true when the list is to be stopped.
  using StopTest = std::function<bool()>;

  /// `accumulator` is emptied.
  TextBoxListSink(MainForm& frmMain, OutputBox& output, std::string& accumulator, StopTest stopTest,
                  const LineOptions& options);

  /// Puts a text, with its line break if it has one, above the list, whatever its format.
  void TakeNotice(std::string_view text);
  void TakeHeader(std::string_view line) override;
  bool TakeWord(std::int32_t index, std::string_view line) override;

  /// How many words the accumulator has taken; the others found no room.
  [[nodiscard]] std::int32_t WordsTaken() const { return wordsTaken_; }
  /// How many lines stand above the words.
  [[nodiscard]] std::size_t TitleLines() const { return titleLines_; }

 private:
  [[nodiscard]] bool HasRoom() const { return length_ < kDisplayLimit; }
  void Append(std::string_view line, std::string_view ending);
  void TurnTwirler(std::int32_t index);

  MainForm& frmMain_;
  OutputBox& output_;
  std::string& accumulator_;
  StopTest stopTest_;
  bool runsOn_;
  /// Of the accumulator, in characters.
  std::size_t length_ = 0;
  std::int32_t wordsTaken_ = 0;
  std::size_t titleLines_ = 0;
  bool previewShown_ = false;
};

}  // namespace quillomat
