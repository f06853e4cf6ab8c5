// Every call that the program makes of the system fails once, in each of the ways in which it can:
// the outcome is a message, or as if nothing had been, and no file is lost. So it is when Ctrl+C
// comes with each of them. fault_injector.cpp does the failing.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <mutex>
#include <spawn.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "support/temporary_folder.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;

struct Scenario {
  std::vector<std::string> arguments;
  /// What the run reads, and what it writes over, by names in its folder.
  Files inputs;
  Files targets = {};
  /// Whether what cannot be read is skipped, and the rest counted.
  bool skips = false;
  /// Only calls of that name fail; all if empty.
  std::string only = {};
  /// The targets in the order in which they are written: Ctrl+C comes with each call, none of which
  /// fails. Empty if not.
  std::vector<std::string> interrupted = {};
};

/// One way in which a call fails.
struct Fault {
  /// 0 for a transfer of one byte.
  int error = 0;
  /// Whether the program is to go on as if nothing had been.
  bool isHarmless = false;
  /// Whether every call that needs the same fails from then on.
  bool stays = false;
  /// Comes in front of the call, which does not fail; 0 for none.
  int signal = 0;
};

constexpr Fault kShort{.error = 0, .isHarmless = true};
constexpr Fault kInterrupted{.error = EINTR, .isHarmless = true};
constexpr Fault kBroken{.error = EIO};
constexpr Fault kFull{.error = ENOSPC};
constexpr Fault kStaysFull{.error = ENOSPC, .stays = true};
constexpr Fault kStaysBroken{.error = EIO, .stays = true};
constexpr Fault kNoMemory{.error = ENOMEM};
constexpr Fault kDenied{.error = EACCES};
constexpr Fault kTooMany{.error = EMFILE};
constexpr Fault kNoThread{.error = EAGAIN};
constexpr Fault kControlC{.signal = SIGINT};

/// What fails together with the first call on a disk that is full or broken.
const std::string kNeedsRoom = " create write fsync rename fsetxattr fwrite fflush fclose ";
const std::string kNeedsDisk =
    " create empty open read write fsync rename ftruncate stat lstat fstat fchmod fchown "
    "flistxattr "
    "fwrite fflush fclose fopen opendir readdir ";

std::vector<Fault> FaultsOf(const std::string& call) {
  static const std::map<std::string, std::vector<Fault>> kFaults = {
      {"open", {kInterrupted, kTooMany, kNoMemory, kDenied, kStaysBroken}},
      {"create", {kInterrupted, kTooMany, kDenied, kStaysFull, kStaysBroken}},
      {"empty", {kInterrupted, kTooMany, kDenied, kStaysBroken}},
      {"read", {kShort, kInterrupted, kBroken, kNoMemory}},
      {"write", {kShort, kInterrupted, kBroken, kFull, kStaysFull}},
      {"close", {kInterrupted, kBroken, kFull}},
      {"fsync", {kInterrupted, kBroken, kFull, kStaysFull}},
      {"rename", {kBroken, kFull, kDenied}},
      {"renamed", {}},
      {"fchmod", {kBroken, kStaysFull}},
      {"fchown", {kBroken, kStaysFull}},
      {"flistxattr", {kBroken, kNoMemory}},
      {"poll", {kInterrupted, kNoMemory}},
      {"fcntl", {kTooMany}},
      {"opendir", {kTooMany, kNoMemory, kDenied}},
      {"readdir", {kBroken}},
      {"malloc", {kNoMemory}},
      {"pthread_create", {kNoThread}},
      // The library that makes workbooks minds what it is told of the whole archive only, and makes
      // that last.
      {"fwrite", {kStaysFull}},
      {"fflush", {kStaysFull}},
      {"fclose", {kStaysFull}},
      {"fopen", {kTooMany}},
      // Where the current folder is not to be had, an export names the text as it was typed.
      {"getcwd", {}},
      // Of a file that cannot be removed no program can leave nothing.
      {"unlink", {}},
      {"remove", {}},
  };
  const auto faults = kFaults.find(call);
  // stat and whatever else only asks.
  return faults == kFaults.end() ? std::vector{kBroken, kDenied, kNoMemory} : faults->second;
}

struct Outcome {
  int status = 0;
  /// The signal that ended the program, or 0.
  int signal = 0;
  std::string errors;
  Files files;
};

/// A folder in which the program runs, again and again.
class Stage {
 public:
  explicit Stage(const Scenario& scenario) : scenario_(scenario) {
    static_cast<void>(folder_.Make("tmp"));
    for (const auto& [name, contents] : scenario.inputs) {
      static_cast<void>(folder_.Write("place/" + name, contents));
    }
  }

  /// Runs the program with these additions to its environment.
  Outcome Run(const std::vector<std::string>& faults) {
    for (const auto& [name, contents] : scenario_.targets) {
      const std::string path = folder_ / ("place/" + name);
      if (!fs::exists(path) || ContentsOf(path) != contents) {
        static_cast<void>(folder_.Write("place/" + name, contents));
      }
    }
    Outcome outcome = Start(faults);
    outcome.errors = ContentsOf(folder_ / "errors");
    outcome.files = FilesIn("place");
    for (const auto& [name, contents] : FilesIn("tmp")) outcome.files["tmp/" + name] = contents;
    for (const auto& [name, contents] : outcome.files) {
      if (!scenario_.inputs.contains(name) && !scenario_.targets.contains(name)) {
        fs::remove(folder_ / (name.starts_with("tmp/") ? name : "place/" + name));
      }
    }
    return outcome;
  }

  [[nodiscard]] std::string Log() const { return ContentsOf(folder_ / "log"); }

 private:
  [[nodiscard]] Files FilesIn(const std::string& name) const {
    Files files;
    const fs::path place = folder_ / name;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(place)) {
      if (entry.is_directory()) continue;
      const std::string path = entry.path().lexically_relative(place).string();
      files[path] = ContentsOf(entry.path().string());
    }
    return files;
  }

  Outcome Start(const std::vector<std::string>& faults) const {
    std::vector<std::string> environment = {
        "LD_PRELOAD=" QUILLOMAT_FAULT_INJECTOR, "QUILLOMAT_DATA=" QUILLOMAT_TEST_DATA,
        "FAULT_LOG=" + folder_ / "log", "TMPDIR=" + folder_ / "tmp",
        "XDG_CONFIG_HOME=" + folder_ / "settings"};
    environment.insert(environment.end(), faults.begin(), faults.end());
    std::vector<std::string> arguments = scenario_.arguments;
    arguments.insert(arguments.begin(), QUILLOMAT_TERMINAL_PROGRAM);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const std::string place = folder_ / "place";
    const std::string errors = folder_ / "errors";
    posix_spawn_file_actions_addchdir_np(&actions, place.c_str());
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0600);
    // Who runs the tests in the background has the signal ignored.
    sigset_t usual{};
    sigaddset(&usual, SIGINT);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &usual);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    pid_t process = 0;
    const int failed = posix_spawn(&process, QUILLOMAT_TERMINAL_PROGRAM, &actions, &attributes,
                                   Pointers(arguments).data(), Pointers(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    Outcome outcome;
    int ended = 0;
    if (failed != 0 || waitpid(process, &ended, 0) != process) {
      outcome.signal = -1;
    } else if (WIFSIGNALED(ended)) {
      outcome.signal = WTERMSIG(ended);
    } else {
      outcome.status = WEXITSTATUS(ended);
    }
    return outcome;
  }

  static std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  const Scenario& scenario_;
  TemporaryFolder folder_;
};

struct Trial {
  int call = 0;
  std::string name;
  Fault fault;
};

std::string NameOf(const Trial& trial) {
  return "call " + std::to_string(trial.call) + ", " + trial.name + ", error " +
         std::to_string(trial.fault.error) + (trial.fault.stays ? " that stays" : "") +
         (trial.fault.signal != 0 ? ", signal " + std::to_string(trial.fault.signal) : "");
}

/// All faults of all calls of one run, on all cores.
class Sweep {
 public:
  explicit Sweep(const Scenario& scenario) : scenario_(scenario) {}

  void Run() {
    if (!FindCalls()) return;
    std::vector<std::thread> workers;
    const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
    for (unsigned i = 0; i < std::min(cores, 4U); ++i) {
      workers.emplace_back([this] { Work(); });
    }
    for (std::thread& worker : workers) worker.join();
    for (const std::string& fault : faults_) ADD_FAILURE() << fault;
    std::cout << calls_ << " calls, " << trials_.size() << " outcomes checked\n";
  }

 private:
  [[nodiscard]] Outcome RunUndisturbed(Stage& stage) const {
    return stage.Run(scenario_.only.empty()
                         ? std::vector<std::string>()
                         : std::vector<std::string>{"FAULT_ONLY=" + scenario_.only});
  }

  bool FindCalls() {
    Stage stage(scenario_);
    Outcome undisturbed = RunUndisturbed(stage);
    EXPECT_EQ(undisturbed.status, 0) << undisturbed.errors;
    EXPECT_EQ(undisturbed.signal, 0);
    for (const auto& [name, contents] : scenario_.targets) {
      EXPECT_NE(undisturbed.files[name], contents) << name;
    }
    std::istringstream log(stage.Log());
    for (std::string name; std::getline(log, name);) {
      ++calls_;
      const bool isInterrupted = !scenario_.interrupted.empty();
      const auto faults = isInterrupted ? std::vector{kControlC} : FaultsOf(name);
      for (const Fault& fault : faults) trials_.push_back({calls_, name, fault});
    }
    EXPECT_GT(calls_, 0);
    return !testing::Test::HasFailure();
  }

  void Work() {
    Stage stage(scenario_);
    // Exports name the folder that they were made of, and every stage has its own.
    const Files whole = RunUndisturbed(stage).files;
    for (std::size_t next = next_++; next < trials_.size(); next = next_++)
      Try(stage, trials_[next], whole);
  }

  void Try(Stage& stage, const Trial& trial, const Files& whole) {
    std::vector<std::string> faults = {"FAULT_AT=" + std::to_string(trial.call),
                                       "FAULT_ERROR=" + std::to_string(trial.fault.error),
                                       "FAULT_SIGNAL=" + std::to_string(trial.fault.signal)};
    if (trial.fault.stays) {
      faults.push_back("FAULT_AFTER=" + (trial.fault.error == EIO ? kNeedsDisk : kNeedsRoom));
    }
    if (!scenario_.only.empty()) faults.push_back("FAULT_ONLY=" + scenario_.only);
    const Outcome outcome = stage.Run(faults);
    std::string fault = trial.fault.signal != 0 ? FaultOfInterruption(outcome, whole)
                                                : FaultOf(outcome, trial.fault, whole);
    if (stage.Log().empty()) fault = "the call did not come";
    if (fault.empty()) return;
    const std::lock_guard lock(mutex_);
    faults_.push_back(NameOf(trial) + ": " + fault + "\nstatus " + std::to_string(outcome.status) +
                      "\n" + outcome.errors);
  }

  /// What is wrong with an outcome, or "".
  [[nodiscard]] std::string FaultOf(const Outcome& outcome, const Fault& fault,
                                    const Files& whole) const {
    if (outcome.signal != 0) return "ended by signal " + std::to_string(outcome.signal);
    if (outcome.errors.find("unexpected") != std::string::npos) return "not told what it is";
    const bool worked = outcome.status == 0;
    if (fault.isHarmless && !worked) return "gave up";
    if (!worked && outcome.errors.empty()) return "failed without a word";
    const bool skipped = scenario_.skips && outcome.errors.find("Skipped:") != std::string::npos;
    for (const auto& [name, contents] : outcome.files) {
      const auto input = scenario_.inputs.find(name);
      const auto target = scenario_.targets.find(name);
      const auto finished = whole.find(name);
      const bool isInput = input != scenario_.inputs.end() && contents == input->second;
      const bool isOld = target != scenario_.targets.end() && contents == target->second;
      const bool isNew = finished != whole.end() && contents == finished->second;
      if (isInput || isNew || (isOld && !worked)) continue;
      if (worked && skipped && target != scenario_.targets.end()) continue;
      if (isOld) return name + " is the old one, and nothing was said";
      return target == scenario_.targets.end() ? name + " was left"
                                               : name + " is neither old nor new";
    }
    for (const auto& [name, contents] : scenario_.targets) {
      if (!outcome.files.contains(name)) return name + " is gone";
    }
    return {};
  }

  /// The same of a run that was to end at once: it says which targets are written by then.
  [[nodiscard]] std::string FaultOfInterruption(const Outcome& outcome, const Files& whole) const {
    std::string told;
    std::size_t written = 0;
    for (const std::string& name : scenario_.interrupted) {
      const auto file = outcome.files.find(name);
      if (file == outcome.files.end()) return name + " is gone";
      if (file->second == scenario_.targets.at(name)) continue;
      if (file->second != whole.at(name)) return name + " is neither old nor new";
      told.append(written == 0 ? "Interrupted. Written by then: " : ", ").append(name);
      ++written;
    }
    if (written > 0) told += '\n';
    for (const auto& [name, contents] : outcome.files) {
      const bool isKnown = scenario_.inputs.contains(name) || scenario_.targets.contains(name);
      if (!isKnown) return name + " was left";
    }
    // In front of its first steps and behind its last the program leaves the signal to the system.
    const bool isAtAnEnd = written == 0 || written == scenario_.interrupted.size();
    if (outcome.signal == kControlC.signal && isAtAnEnd) return {};
    if (outcome.status != 128 + kControlC.signal) return "not ended by it";
    return outcome.errors == told ? "" : "this should be said: " + told;
  }

  const Scenario& scenario_;
  int calls_ = 0;
  std::vector<Trial> trials_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;
  std::vector<std::string> faults_;
};

/// More than one block of the program's, so that it is read and written in several.
std::string ManyWords(int lines = 12'000) {
  std::string text;
  for (int i = 0; i < lines; ++i) text += "word" + std::string(1 + i % 9, 'a') + " dog\n";
  return text;
}

/// Words may hold digits; all else as at a first start.
std::string StateOfNumerals() {
  const Scenario save{.arguments = {"--text", "t", "--numerals", "--save-state", "s"},
                      .inputs = {{"t", "a"}}};
  return Stage(save).Run({}).files["s"];
}

void Try(const Scenario& scenario) {
  Sweep(scenario).Run();
}

TEST(FaultSweep, OfAFileCountedIntoAList) {
  Try({.arguments = {"--file", "text.txt", "--threads", "1", "--overwrite", "--output", "list"},
       .inputs = {{"text.txt", ManyWords()}},
       .targets = {{"list", "an old list\n"}}});
}

TEST(FaultSweep, OfAFolderCountedIntoAList) {
  Try({.arguments = {"--folder", "g", "--subfolders", "--threads", "1", "--overwrite", "--output",
                     "list", "--ignore", "words"},
       .inputs =
           {{"g/a.txt", "cat dog"}, {"g/b.txt", "dog"}, {"g/s/c.txt", "fox"}, {"words", "the\n"}},
       .targets = {{"list", "an old list\n"}},
       .skips = true});
}

TEST(FaultSweep, OfPathsCountedIntoAListAndTables) {
  Try({.arguments = {"text.txt", "g", "--threads", "1", "--overwrite", "--output", "list",
                     "--export", "t.csv", "--export", "t.json"},
       .inputs = {{"text.txt", "cat dog"}, {"g/b.txt", "dog"}},
       .targets = {{"list", "old\n"}, {"t.csv", "old\n"}, {"t.json", "old\n"}},
       .skips = true});
}

TEST(FaultSweep, OfAListOnStandardOutput) {
  Try({.arguments = {"text.txt", "--threads", "1"}, .inputs = {{"text.txt", ManyWords()}}});
}

TEST(FaultSweep, OfAWorkbook) {
  Try({.arguments = {"text.txt", "--threads", "1", "--overwrite", "--export", "t.xlsx"},
       .inputs = {{"text.txt", "cat dog"}},
       .targets = {{"t.xlsx", "old\n"}}});
}

TEST(FaultSweep, OfAStateReadAndSaved) {
  Try({.arguments = {"--state", "in.qlm", "--save-state", "out.qlm", "--text", "text.txt"},
       .inputs = {{"in.qlm", StateOfNumerals()}, {"text.txt", "cat dog"}},
       .targets = {{"out.qlm", ""}}});
}

TEST(FaultSweep, OfAFoldersFilesListed) {
  Try({.arguments = {"--folder", "g", "--subfolders", "--list-files"},
       .inputs = {{"g/a.txt", "cat"}, {"g/s/b.txt", "dog"}}});
}

TEST(FaultSweep, OfControlCInARunThatWritesSeveralFiles) {
  Try({.arguments = {"text.txt", "--threads", "1", "--overwrite", "--output", "list", "--report",
                     "r.csv", "--export", "t.json", "--export", "t.xlsx"},
       .inputs = {{"text.txt", "cat dog"}},
       .targets = {{"list", "old\n"}, {"r.csv", "old\n"}, {"t.json", "old\n"}, {"t.xlsx", "old\n"}},
       .interrupted = {"list", "r.csv", "t.json", "t.xlsx"}});
}

TEST(FaultSweep, OfThreadsThatCannotBeHad) {
  Try({.arguments = {"--file", "text.txt", "--threads", "4", "--overwrite", "--output", "list"},
       .inputs = {{"text.txt", ManyWords(200'000)}},
       .targets = {{"list", "an old list\n"}},
       .only = "pthread_create"});
}

}  // namespace
}  // namespace quillomat
