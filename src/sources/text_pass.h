// The reading of one text of a count: whether it is one, what the observer is told of it, and what
// its report says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "sources/count_at_work.h"
#include "sources/count_result.h"
#include "sources/encoding_guess.h"
#include "sources/line_endings.h"
#include "sources/line_tally.h"
#include "sources/stop_question.h"
#include "sources/text_reader.h"
#include "system/input_file.h"

namespace quillomat {

/// So many bytes at the start of a file say whether it is a text.
inline constexpr std::size_t kTextTestBytes = 10'240;

/// What the lines of a text of that encoding are made of.
[[nodiscard]] LineTally::Unit LineUnitOf(TextEncoding encoding);

/// So many bytes at the start of a text are wanted to judge it.
[[nodiscard]] constexpr std::size_t HeadBytesFor(CharacterSet encoding) {
  return encoding == CharacterSet::kGuess ? kGuessBytes : HeadBytes(kTextTestBytes);
}

/// Notes what the text that starts with `head` is, where the user wants that encoding. False when
/// it is none, and the report says so. Throws RunTimeError where the system cannot decode it.
[[nodiscard]] bool JudgeText(std::string_view head, CharacterSet encoding, FileReport& report);

class TextPass {
 public:
  /// The state outlives the pass.
  explicit TextPass(CountAtWork& state)
      : state_(state),
        question_(state.stop),
        reader_({state.settings, state.result.store, state.result.wordsRead}, state.request.scan,
                state.request.lists, state.request.threads, question_) {}

  [[nodiscard]] bool UsesThreads() const { return reader_.UsesThreads(); }

  using ReadReported = std::function<void(FileReport&)>;
  /// What fails in `read` is a matter of that text, but for an overflow, which is thrown.
  void Try(FileReport& report, const ReadReported& read);

  /// In one piece.
  void ReadClipboard(std::string_view text);
  /// The file of the report.
  void ReadFile(FileReport& report);
  /// A file that is open and was not read. One that ends before the length that it had when it was
  /// opened is a RunTimeError (62) behind its last word, unless the count was stopped; of one that
  /// has grown, all is read.
  void ReadFile(InputFile& file, FileReport& report);
  /// What has no length, or has not told it.
  void ReadStream(ByteSource& source, FileReport& report);

  /// A text begins that was judged to be one: its markers are chosen, and the observer is told.
  void Begin(const FileReport& report, std::int64_t bytes);
  /// So many of its bytes were read.
  void NoteBytes(std::int64_t bytes, FileReport& report);
  /// Lines of so many bytes are counted now (CountProgress::bytesWithLongLineEnds).
  void NoteLines(std::int64_t bytes);
  /// Whether the observer is told of the progress in that text.
  [[nodiscard]] bool IsTold() const {
    return state_.progress.bytesInFile == 0 ||
           state_.progress.bytesInFile > CountProgress::kInstantBytes;
  }

 private:
  void ReadText(ByteSource& source, bool worthThreads, FileReport& report);
  [[nodiscard]] std::unique_ptr<ByteSource> Converted(ByteSource& text, FileReport& report) const;
  void ReadBytes(ByteSource& source, bool worthThreads, FileReport& report);

  CountAtWork& state_;
  ScanQuestion question_;
  TextReader reader_;
  /// In the texts before this one.
  std::int64_t runBytesBefore_ = 0;
};

}  // namespace quillomat
