// Lists the counted words: into the output file when one is named, and always into the output text
// box. Runs at the end of a count, and again whenever the user changes the order or the format.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "app/what_parts_share.h"
#include "base/byte_sink.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "listing/display_format.h"
#include "listing/list_walk.h"
#include "sources/output_rules.h"

namespace quillomat {

class WordLister {
 public:
  /// All must outlive the lister.
  WordLister(const UserSide& user, const ProgramFacts& facts);

  /// Lists the words of the last count; asks before an existing output file is overwritten. What
  /// goes wrong is shown to the user. The stop flag ends it early; an output file that is not whole
  /// then is as it was.
  void ListWords();

  /// A face that shows no text box can do without the list in it, and without complaints that it is
  /// full.
  void SetTextBoxWanted(bool wanted) { textBoxWanted_ = wanted; }

  /// As ListWords, but into the text box alone.
  void ListInTextBox();

  /// Tells the user, if the last list has filled the text box; to be called when the run is over,
  /// so that nothing looks as if it went on behind the message.
  void TellFullBox();

  /// What ends the lines of a list that goes to a file or to standard output; the platform's line
  /// break if not set.
  void SetFileLineBreak(std::string lineBreak) { fileLineBreak_ = std::move(lineBreak); }

  /// How many words a list that goes to a file or to standard output may have; all if not set.
  void SetMostWordsInFile(std::int32_t words) { mostWordsInFile_ = words; }

  /// Writes the list into a file that is open; the caller closes it, unless the list was stopped.
  /// Throws RunTimeError.
  void WriteList(ByteSink& file);

  /// Shows a problem in a message box. Code 7: the text box is full, whatever `text` says.
  void ReportProblem(int code, std::string_view text);
  /// Tells of an error. One for want of memory is told with what was done then, unless that is
  /// empty: "reading a.txt".
  void ReportError(const RunTimeError& error, std::string_view doing = {});
  /// Tells that there was not enough memory, which is another thing than a full text box.
  void ReportOutOfMemory(std::string_view doing = {});

  /// Whether the source that is chosen can serve a format.
  [[nodiscard]] bool CanServe(DisplayFormat format) const;

  /// Refuses a format that the source cannot serve: tells the user, goes back to the first format
  /// and returns false.
  bool CheckDisplayFormat();
  /// Whether the words on display can be listed in the chosen format.
  [[nodiscard]] bool FormatFitsWords() const;
  /// While CheckDisplayFormat changes the format the change is nobody else's affair.
  [[nodiscard]] bool IsChangingFormat() const { return changingFormat_; }

  /// A new run begins: what was written before is not its result.
  void ForgetOutputFile() { fileWritten_ = false; }

  /// Whether the list goes to a file, too.
  [[nodiscard]] bool HasOutputFile() const;
  /// Whether no output file is wanted, or one that nothing is read from: neither `text`, nor a
  /// words file, nor the state that was loaded, by any link. If not, the user is told.
  [[nodiscard]] bool MayWriteOutputFile(const CountedText& text) const;

  /// Whether the last ListWords wrote the output file.
  [[nodiscard]] bool FileWritten() const { return fileWritten_; }

 private:
  [[nodiscard]] LineOptions OptionsFor(bool toFile) const;
  [[nodiscard]] std::string InOutputFolder(std::string_view path) const;
  /// Whether the output file may be written; the user may name another one.
  bool AskToOverwrite();
  /// MayWriteOutputFile for the text that was counted, which a path typed after the count or at the
  /// question may forbid; file output is off then.
  bool SparesWhatIsRead();
  void ListNoWords();
  bool ListIntoFile();
  [[nodiscard]] std::string PathWorthNaming(const RunTimeError& error) const;
  void ListIntoTextBox();
  void Walk(const LineFormatter& formatter, ListSink& sink);
  [[nodiscard]] std::string ScanHeader() const;
  [[nodiscard]] bool StopsNow();
  [[nodiscard]] std::string FullBoxMessage();
  [[nodiscard]] std::string ErrorMessage(int code, std::string_view text) const;
  void RemoveLastComma();

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  OutputBox& output_;
  RunState& run_;
  const CurrentWords& words_;
  const InForce& inForce_;
  const Messages& messages_;
  Desktop& desktop_;
  std::string accumulator_;
  std::string fullBoxMessage_;
  bool fileWritten_ = false;
  bool changingFormat_ = false;
  bool textBoxWanted_ = true;
  std::string fileLineBreak_{kPlatformLineBreak};
  std::optional<std::int32_t> mostWordsInFile_;
};

}  // namespace quillomat
