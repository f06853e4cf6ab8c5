#include "cli/direct_count.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "app/count/file_source.h"
#include "app/count/folder_observer.h"
#include "app/count/folder_source.h"
#include "app/exports/result_export.h"
#include "cli/export_options.h"
#include "cli/skipped_lines.h"
#include "cli/standard_output.h"
#include "cli/uncounted_notes.h"
#include "listing/display_format.h"
#include "sources/counter.h"
#include "sources/refusal_text.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

using Kind = InputChoice::Kind;

}  // namespace

bool DirectCount::Run() {
  const bool subfolders = program_.frmMain.chkIncludeSubfolders.IsChecked();
  const CountedText text = input_.AsText(subfolders);
  if (!program_.Count().Prepare(text)) return false;
  CountWatch watch(streams_, ProgressWanted(), input_);
  if (input_.kind == Kind::kFolder) {
    watch.SetQuestion([this](std::int32_t files) {
      return AskAboutManyFiles(messages_, files, program_.frmMain.txbFile[1].Text());
    });
  }
  const CountRequest request = Request(watch);
  CountResult result = Counter(request, watch).Run();
  streams_.endAtInterruption();
  watch.EndProgress();
  TellSkipped(watch);
  if (!HasWords(result, watch)) {
    program_.Count().TakeFiles(std::move(result), text);
    return false;
  }
  TellUncounted(result.uncounted, messages_, streams_.err,
                result.files > 1 ? result.firstNotDecoded : std::string());
  TellGuessed(result.guessed.Names(), streams_.err);
  if (result.end == CountEnd::kStopped) {
    streams_.err << Headed{MessageTone::kWarning, "Interrupted: "}
                 << (options_.exports.empty() ? "the list is" : "list and exports are")
                 << " of what was counted until then\n";
  }
  result.Rank(request.filters, request.threads);
  program_.Count().Take(std::move(result), text);
  return true;
}

CountRequest DirectCount::Request(CountWatch& watch) {
  CountRequest request = program_.Count().Request(Source(watch));
  if (input_.kind == Kind::kFolder) request.countingPass = CountingPass::kFiles;
  const bool progress = ProgressWanted() != CountWatch::Progress::kNever;
  if (progress && SizeCanBeKnown()) request.countingPass = CountingPass::kFilesAndBytes;
  // Whoever lists no files shall not meet the limit of what such lists take.
  const auto format = static_cast<DisplayFormat>(program_.frmMain.cboDisplayFormat.ListIndex());
  const bool filesAreListed = NeedsFileTallies(format);
  request.tallyFiles = filesAreListed || ExportsFiles();
  request.tallyUse = filesAreListed ? TallyUse::kListed : TallyUse::kUnlisted;
  return request;
}

/// A single file is the same for all words: it is told only to whoever names the column.
bool DirectCount::ExportsFiles() const {
  if (options_.exports.empty()) return false;
  const bool areSeveral = input_.kind == Kind::kFolder || input_.paths.size() > 1;
  return std::ranges::any_of(ExportColumns(options_, areSeveral), NeedsFiles);
}

CountSource DirectCount::Source(CountWatch& watch) {
  const bool readsInput =
      input_.kind != Kind::kFolder && std::ranges::any_of(input_.paths, IsStandardInput);
  if (readsInput) standardInput_ = streams_.openInput(watch);
  const std::string& path = input_.paths.front();
  const bool subfolders = program_.frmMain.chkIncludeSubfolders.IsChecked();
  const ExtensionFilter& extensions = program_.Count().Extensions().Filter();
  switch (input_.kind) {
    case Kind::kFolder:
      return TextOfFolder{path, subfolders, extensions};
    case Kind::kPaths:
      return TextOfPaths{input_.paths, subfolders, extensions, standardInput_.get()};
    default:
      if (readsInput) return TextOfStream{standardInput_.get(), NameOf(path)};
      return TextOfFile{path};
  }
}

/// Nobody knows how much will come from a pipe.
bool DirectCount::SizeCanBeKnown() const {
  if (input_.kind == Kind::kFile) return false;  // it is known without a pass
  return std::ranges::all_of(input_.paths, [this](const std::string& path) {
    if (input_.kind == Kind::kFolder) return true;
    return !IsStandardInput(path) && (FolderExists(path) || FileLength(path));
  });
}

CountWatch::Progress DirectCount::ProgressWanted() const {
  if (options_.progress) return CountWatch::Progress::kAlways;
  return streams_.errIsTerminal ? CountWatch::Progress::kWhenLong : CountWatch::Progress::kNever;
}

/// A text that was the only one is told of by HasWords.
void DirectCount::TellSkipped(const CountWatch& watch) const {
  if (input_.kind != Kind::kFolder && input_.paths.size() == 1) return;
  std::vector<std::string> items;
  for (const SkippedFile& skipped : watch.Skipped()) {
    items.push_back(input_.IsNamed(skipped.path)
                        ? NameOf(skipped.path) + " " +
                              RefusalBehindName(skipped.reason, skipped.error)
                        : skipped.path + ": " + RefusalInRun(skipped.reason, skipped.error));
  }
  PrintSkipped(streams_.err, items, watch.SkippedInAll(), messages_);
  PrintLeftOut(streams_.err, watch.FilesLeftOut(), messages_);
}

bool DirectCount::HasWords(const CountResult& result, const CountWatch& watch) {
  switch (result.end) {
    case CountEnd::kRefused:
      return Refuse(result.refusal, result.error);
    case CountEnd::kFailed:
      program_.Lister().ReportError(*result.error, "reading " + input_.Name());
      return false;
    case CountEnd::kStoppedCounting:
      fault_ = "interrupted before anything was read";
      return false;
    case CountEnd::kStopped:
      return true;
    case CountEnd::kComplete:
      break;
  }
  if (result.files > 0) return true;
  const std::vector<SkippedFile>& skipped = watch.Skipped();
  if (input_.paths.size() == 1 && input_.kind == Kind::kPaths && !skipped.empty()) {
    return Refuse(skipped.front().reason, skipped.front().error);
  }
  fault_ = NoFilesText();
  return false;
}

/// False, since there are no words.
bool DirectCount::Refuse(Refusal reason, const std::optional<RunTimeError>& error) {
  if (reason == Refusal::kNotText) {
    TellNotText(messages_);
  } else if (reason != Refusal::kDeclined) {
    fault_ = input_.Name() + " " + RefusalBehindName(reason, error);
  }
  return false;
}

std::string DirectCount::NoFilesText() const {
  return "no " + ScanableFilesIn(input_.Name(), program_.Count().Extensions().Filter().AnyGiven(),
                                 program_.frmMain.chkIncludeSubfolders.IsChecked());
}

}  // namespace quillomat
