// Feeds bytes to the reader of state files. It checks:
// 1. It throws nothing but run-time errors.
// 2. IsStateFile says beforehand whether it will take the file.
// 3. What it has read is written as a state that gives the same settings and the same bytes again;
//    but for double quotes in boxes that hold no path, which are cut there the first time.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <unistd.h>

#include "app/program.h"
#include "app/setting_values.h"
#include "app/settings_table.h"
#include "app/state_check.h"
#include "app/state_file.h"
#include "base/run_time_error.h"
#include "fuzzing.h"
#include "support/scripted_desktop.h"
#include "system/file_system.h"

namespace {

using quillomat::Program;
using quillomat::fuzzing::Require;

/// Files of one run, in memory where the system has such a place.
class Place {
 public:
  Place() {
    const std::filesystem::path memory = "/dev/shm";
    folder_ = (std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path()) /
              ("quillomat-state-fuzzer." + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  Place(Place&&) = delete;
  Place& operator=(Place&&) = delete;
  ~Place() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  [[nodiscard]] std::string operator/(const char* name) const { return (folder_ / name).string(); }

 private:
  std::filesystem::path folder_;
};

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The windows of a program, with their lists filled.
struct Windows {
  Windows() { Require(program.Start({.userSettings = false, .window = false}), "the start"); }

  /// As a state is read into them.
  bool Read(const std::string& path) {
    try {
      ReadStateFile(path, program.frmMain, program.frmParams);
      return true;
    } catch (const quillomat::RunTimeError&) {
      return false;
    }
  }
  std::string Written(const std::string& path) {
    WriteStateFile(path, program.frmMain, program.frmParams);
    return BytesOf(path);
  }

  /// In a text box that is no path's.
  bool HoldQuotes() {
    return std::ranges::any_of(quillomat::AllSettings(), [this](const quillomat::Setting& setting) {
      const auto* text =
          ControlOf(setting, program.frmMain, program.frmParams).As<quillomat::TextBox>();
      return text != nullptr && !setting.isPath && text->Text().find('"') != std::string::npos;
    });
  }

  quillomat::ScriptedDesktop desktop;
  Program program{desktop};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Place kPlace;
  static Windows windows;
  static Windows others;
  // Values set by a state are nobody's wish here.
  windows.program.BeginControls();
  others.program.BeginControls();
  const std::string path = kPlace / "in.qlm";
  std::ofstream(path, std::ios::binary)
      << std::string_view(reinterpret_cast<const char*>(data), size);
  const bool isState = IsStateFile(path, windows.program.frmMain, windows.program.frmParams);
  Require(windows.Read(path) == isState, "IsStateFile knows");
  if (!isState) return 0;
  const bool willBeCut = windows.HoldQuotes();
  const std::string first = windows.Written(kPlace / "first.qlm");
  Require(others.Read(kPlace / "first.qlm"), "what is written can be read");
  const std::string second = others.Written(kPlace / "second.qlm");
  Require(second == first || willBeCut, "a state gives the same state");
  Require(windows.Read(kPlace / "second.qlm"), "what is written again can be read");
  Require(windows.Written(kPlace / "third.qlm") == second, "nothing is cut twice");
  return 0;
}
