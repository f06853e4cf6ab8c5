#include "app/list/text_box_list_sink.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text_helpers.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::size_t kPreviewLength = 2048;

/// The lower, left, upper and right half blocks, so that the label turns as the list proceeds.
constexpr std::array<std::string_view, 4> kTwirler = {"\u2584", "\u258C", "\u2580", "\u2590"};

}  // namespace

TextBoxListSink::TextBoxListSink(MainForm& frmMain, OutputBox& output, std::string& accumulator,
                                 StopTest stopTest, const LineOptions& options)
    : frmMain_(frmMain),
      output_(output),
      accumulator_(accumulator),
      stopTest_(std::move(stopTest)),
      runsOn_(options.format == DisplayFormat::kWordCommas) {
  accumulator_.clear();
}

void TextBoxListSink::Append(std::string_view line, std::string_view ending) {
  if (!HasRoom()) return;
  accumulator_.append(line).append(ending);
  length_ += CharacterCount(line) + ending.size();
  output_.SetFull(length_ > kDisplayLimit);
}

void TextBoxListSink::TakeNotice(std::string_view text) {
  accumulator_.append(text);
  length_ += CharacterCount(text);
  frmMain_.txbOutput.SetText(accumulator_);
}

void TextBoxListSink::TakeHeader(std::string_view line) {
  Append(line, kCrLf);
  titleLines_ = static_cast<std::size_t>(std::ranges::count(accumulator_, '\n'));
  frmMain_.txbOutput.SetText(accumulator_);
}

bool TextBoxListSink::TakeWord(std::int32_t index, std::string_view line) {
  if (HasRoom()) ++wordsTaken_;
  Append(line, runsOn_ ? std::string_view(", ") : kCrLf);
  if (!previewShown_ && length_ > kPreviewLength) {
    frmMain_.txbOutput.SetText(accumulator_);
    previewShown_ = true;
  }
  TurnTwirler(index);
  return !stopTest_();
}

void TextBoxListSink::TurnTwirler(std::int32_t index) {
  const auto turn = static_cast<std::size_t>(index) % kTwirler.size();
  frmMain_.lblTwirler.SetCaption(std::string(kTwirler[turn]));
}

}  // namespace quillomat
