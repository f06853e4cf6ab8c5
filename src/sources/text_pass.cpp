#include "sources/text_pass.h"

#include <chrono>
#include <memory>
#include <new>
#include <optional>
#include <span>

#include "base/byte_order_mark.h"
#include "base/run_time_error.h"
#include "sources/converted_source.h"
#include "sources/late_guess_source.h"
#include "sources/line_endings.h"
#include "sources/read_sources.h"
#include "sources/until_stop.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

/// A stream that is silent for so long is judged by what has come.
constexpr std::chrono::milliseconds kWaitForHead{500};
constexpr std::chrono::milliseconds kMoment{8};

TextEncoding EncodingOf(std::string_view head) {
  switch (MarkOf(head).kind) {
    case ByteOrderMark::Kind::kUtf8:
      return TextEncoding::kUtf8WithMark;
    case ByteOrderMark::Kind::kUtf16LittleEndian:
      return TextEncoding::kUtf16LittleEndian;
    case ByteOrderMark::Kind::kUtf16BigEndian:
      return TextEncoding::kUtf16BigEndian;
    default:
      return TextEncoding::kUtf8OrWindows1252;
  }
}

bool IsOverflow(const RunTimeError& error) {
  return error.Number() == static_cast<int>(RunTimeErrorNumber::kOverflow);
}

/// Of a file that was cut while it was read, or that a network gave no more of: a list without the
/// rest would look like one of the whole.
RunTimeError EndedEarly(const FileReport& report) {
  return {RunTimeErrorNumber::kInputPastEnd, "Ended early, behind byte " +
                                                 std::to_string(report.bytesRead) + " of " +
                                                 std::to_string(report.bytes.value_or(0))};
}

/// Tallies the lines of what is read through it.
class TallyingSource final : public ByteSource {
 public:
  TallyingSource(ByteSource& source, LineTally::Unit unit) : source_(source), tally_(unit) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = source_.Read(buffer);
    tally_.Take({buffer.data(), bytes});
    return bytes;
  }
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return source_.IsReady(longest);
  }
  [[nodiscard]] LineEndFigures Figures() const { return tally_.Figures(); }

 private:
  ByteSource& source_;
  LineTally tally_;
};

}  // namespace

LineTally::Unit LineUnitOf(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kUtf16LittleEndian:
      return LineTally::Unit::kLittleEndian;
    case TextEncoding::kUtf16BigEndian:
      return LineTally::Unit::kBigEndian;
    default:
      return LineTally::Unit::kByte;
  }
}

bool JudgeText(std::string_view head, CharacterSet encoding, FileReport& report) {
  report.encoding = EncodingOf(head);
  report.convertedFrom = CharacterSetOf(head, encoding);
  if (report.convertedFrom == CharacterSet::kAsFound) {
    report.lineEnds = LineEndingTypeOf(head, kTextTestBytes);
  } else {
    const std::string_view judged = head.substr(0, HeadBytes(kTextTestBytes));
    report.lineEnds = LineEndingTypeOf(ConvertedHead(judged, report.convertedFrom), kTextTestBytes);
  }
  const bool hasNoMark = report.encoding == TextEncoding::kUtf8OrWindows1252;
  const bool isUtf16 = report.convertedFrom == CharacterSet::kUtf16;
  if ((isUtf16 && hasNoMark) || report.convertedFrom == CharacterSet::kUtf16LowByteFirst) {
    report.encoding = TextEncoding::kUtf16LittleEndian;
  } else if (report.convertedFrom == CharacterSet::kUtf16HighByteFirst) {
    report.encoding = TextEncoding::kUtf16BigEndian;
  }
  if (report.lineEnds != LineEndingType::kNotText) return true;
  report.refusal = Refusal::kNotText;
  return false;
}

void TextPass::Try(FileReport& report, const ReadReported& read) {
  const std::int32_t wordsBefore = state_.result.wordsRead;
  const Uncounted uncountedBefore = state_.settings.Uncounted;
  try {
    read(report);
  } catch (const RunTimeError& error) {
    if (IsOverflow(error)) throw;
    report.refusal = Refusal::kReadFailed;
    report.error = error;
  } catch (const std::bad_alloc&) {
    report.refusal = Refusal::kReadFailed;
    report.error = RunTimeError(RunTimeErrorNumber::kOutOfMemory);
  }
  state_.settings.Uncounted.bytesNotDecoded += report.uncounted.bytesNotDecoded;
  report.wordsRead = state_.result.wordsRead - wordsBefore;
  report.uncounted = state_.settings.Uncounted;
  report.uncounted -= uncountedBefore;
  if (state_.request.encoding == CharacterSet::kGuess && report.refusal == Refusal::kNone) {
    state_.result.guessed.Add(report.convertedFrom);
  }
  if (report.identity) state_.result.filesRead.push_back(*report.identity);
}

void TextPass::ReadClipboard(std::string_view text) {
  LoadMarkersFor({}, state_.request.scan, state_.settings);
  state_.BeginScan(false);
  question_.SetStream(false);
  reader_.ReadPiece(text);
  state_.EndScan({});
}

void TextPass::ReadFile(FileReport& report) {
  std::optional<InputFile> file;
  try {
    file.emplace(report.path);
  } catch (const RunTimeError& error) {
    report.bytes = FileLength(report.path);
    report.refusal = FileExists(report.path) ? Refusal::kCannotBeOpened : Refusal::kNotFound;
    report.error = error;
    return;
  }
  ReadFile(*file, report);
}

void TextPass::ReadFile(InputFile& file, FileReport& report) {
  if (file.Length() == 0) {
    PatientSource source(file, state_.stop);
    return ReadStream(source, report);
  }
  report.bytes = file.Length();
  const CharacterSet encoding = state_.request.encoding;
  if (!JudgeText(file.Ahead(HeadBytesFor(encoding)), encoding, report)) return;
  Begin(report, file.Length());
  question_.SetStream(false);
  report.identity = file.Identity();
  ReadText(file, file.Length() >= TextReader::kBytesWorthThreads, report);
  if (report.bytesRead < file.Length() && !state_.stop.Stopped()) throw EndedEarly(report);
}

void TextPass::ReadStream(ByteSource& source, FileReport& report) {
  const CharacterSet encoding = state_.request.encoding;
  UntilStop bytes(source, state_.stop, encoding);
  HeadedSource text(bytes);
  // Who speaks slowly is heard as he speaks; but a guess is not to depend on that.
  const std::string_view head = encoding == CharacterSet::kGuess
                                    ? text.Ahead(HeadBytesFor(encoding))
                                    : text.Ahead(HeadBytesFor(encoding), kWaitForHead);
  if (head.empty() && !state_.stop.Stopped()) {
    report.refusal = Refusal::kEmpty;
    return;
  }
  if (!JudgeText(head, encoding, report)) return;
  bytes.SetUnit(LineUnitOf(report.encoding), report.convertedFrom, head);
  Begin(report, 0);
  question_.SetStream(true);
  constexpr auto kWorthThreads = static_cast<std::size_t>(TextReader::kBytesWorthThreads);
  const bool isLong =
      reader_.UsesThreads() &&
      (text.Ahead(kWorthThreads, kMoment).size() == kWorthThreads || !text.HasEnded());
  ReadText(text, isLong, report);
  report.wasStopped = bytes.WasStopped();
}

void TextPass::Begin(const FileReport& report, std::int64_t bytes) {
  LoadMarkersFor(report.path, state_.request.scan, state_.settings);
  if (!state_.scanning) state_.BeginScan(false);
  state_.progress.bytesInFile = bytes;
  runBytesBefore_ = state_.progress.runBytesRead;
  state_.observer.OnFileBegins({report.path, bytes, report.lineEnds, report.encoding});
}

void TextPass::NoteBytes(std::int64_t bytes, FileReport& report) {
  state_.progress.bytesRead = bytes;
  state_.progress.runBytesRead = runBytesBefore_ + bytes;
  report.bytesRead = bytes;
}

void TextPass::NoteLines(std::int64_t bytes) {
  state_.progress.bytesWithLongLineEnds += bytes;
  state_.observer.OnProgress(state_.progress);
}

void TextPass::ReadText(ByteSource& source, bool worthThreads, FileReport& report) {
  if (!state_.request.keepReports) return ReadBytes(source, worthThreads, report);
  TallyingSource tallied(source, LineUnitOf(report.encoding));
  ReadBytes(tallied, worthThreads, report);
  report.lines = tallied.Figures();
}

/// Nothing where the text is read as it is.
std::unique_ptr<ByteSource> TextPass::Converted(ByteSource& text, FileReport& report) const {
  std::int64_t& bytesNotDecoded = report.uncounted.bytesNotDecoded;
  if (report.convertedFrom != CharacterSet::kAsFound) {
    return std::make_unique<ConvertedSource>(text, report.convertedFrom, bytesNotDecoded,
                                             &state_.stop);
  }
  if (state_.request.encoding != CharacterSet::kGuess) return nullptr;
  return std::make_unique<LateGuessSource>(text, report.convertedFrom, bytesNotDecoded,
                                           &state_.stop);
}

void TextPass::ReadBytes(ByteSource& source, bool worthThreads, FileReport& report) {
  CountingSource text(source);
  TextReader::OnBytes onBytes;
  if (IsTold()) {
    onBytes = [&](std::int64_t bytes) {
      NoteBytes(text.BytesRead(), report);
      NoteLines(bytes);
    };
  }
  const std::unique_ptr<ByteSource> converted = Converted(text, report);
  ByteSource& lines = converted ? *converted : text;
  if (worthThreads && reader_.UsesThreads()) {
    reader_.ReadLinesOnThreads(lines, onBytes);
  } else {
    reader_.ReadLines(lines, onBytes);
  }
  NoteBytes(text.BytesRead(), report);
}

}  // namespace quillomat
