#include "cli/targets.h"

#include <cstddef>
#include <new>

#include "base/run_time_error.h"
#include "export/export_format.h"
#include "system/file_system.h"
#include "system/links.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

using Fault = std::optional<std::string>;

std::string NameOf(const Target& target) {
  return std::string(target.option) + " " + target.path;
}

bool IsDevice(const std::string& path) {
  return FileExists(path) && !FileLength(path);
}

std::string WhatToDo(const RunTimeError& error, const std::string& path) {
  if (FolderExists(path)) return " (it is a folder; name a file in it)";
  switch (static_cast<RunTimeErrorNumber>(error.Number())) {
    case RunTimeErrorNumber::kPathNotFound:
      return " (its folder does not exist)";
    case RunTimeErrorNumber::kPermissionDenied:
      return " (check the permissions of the file and its folder)";
    case RunTimeErrorNumber::kPathFileAccess:
      return " (its disk may be read-only)";
    case RunTimeErrorNumber::kDiskFull:
      if (ExportFormatOfPath(path) != ExportFormat::kXlsx) return "";
      return " (a workbook needs room among the temporary files, too)";
    default:
      return "";
  }
}

std::string CannotBeWritten(const Target& target, const RunTimeError& error) {
  return NameOf(target) + " cannot be written: " + error.Description() +
         WhatToDo(error, target.path);
}

}  // namespace

bool IsStandardOutput(const std::string& path) {
  return path == "-";
}

std::vector<Target> TargetsOf(const CommandLine& options, const std::string& listPath) {
  std::vector<Target> targets;
  if (!listPath.empty()) targets.push_back({kListTarget, listPath});
  for (const std::string& path : options.exports) {
    if (!IsStandardOutput(path)) targets.push_back({"--export", path});
  }
  if (options.report) targets.push_back({"--report", *options.report});
  if (options.saveState) targets.push_back({kStateTarget, *options.saveState});
  return targets;
}

Fault FindDoubleTarget(std::span<const Target> targets) {
  for (std::size_t i = 0; i < targets.size(); ++i) {
    for (const Target& other : targets.subspan(i + 1)) {
      const Target& one = targets[i];
      if (IsDevice(one.path) || !LeadToOneFile(one.path, other.path)) continue;
      return NameOf(other) + " would replace what " + NameOf(one) +
             " has written; give each a file of its own";
    }
  }
  return std::nullopt;
}

Fault FindWriteFault(const Target& target) {
  try {
    CheckWritable(target.path);
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return CannotBeWritten(target, error);
  }
}

Fault FindLoss(const Target& target, const Program& program, const CountedText& text) {
  const auto neededAs = WhyNotToWrite(target.path, text, program.Settings().filesRead);
  if (neededAs == NeededAs::kPartOfFolder && !FileExists(target.path)) {
    return NameOf(target) + " lies in the folder that is counted; write it to another";
  }
  if (neededAs) return NameOf(target) + " is read by this count; it is not overwritten";
  if (HoldsSomething(target.path) && program.frmParams.chkWarnOnOverwrite.IsChecked()) {
    return NameOf(target) + " exists and is left as it is (--overwrite replaces it)";
  }
  return std::nullopt;
}

Fault WriteTarget(const Target& target, const Program& program,
                  const std::function<void()>& write) {
  if (Fault fault = FindLoss(target, program, program.Words().counted)) return fault;
  try {
    write();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return CannotBeWritten(target, error);
  } catch (const std::bad_alloc&) {
    return NameOf(target) +
           " cannot be written: " + DescriptionOf(RunTimeErrorNumber::kOutOfMemory);
  }
}

}  // namespace quillomat
