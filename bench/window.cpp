// What the window costs: its first frame, and a count as a person makes it, from the click to the
// list, or to the box that says what became of it, on the screen.
//   quillomat_window START [PATH [OUTPUT]]
// START is when the program was started, in nanoseconds since 1970: "$(date +%s%N)". PATH is a text
// file, or a folder, which wants an OUTPUT file, too; with subfolders. With
// QT_QPA_PLATFORM=offscreen no display is needed.
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <iostream>
#include <memory_resource>
#include <string>
#include <string_view>
#include <utility>

#include "app/program.h"
#include "qt/clear_boxes.h"
#include "qt/program_windows.h"
#include "system/large_pages.h"

namespace quillomat {
namespace {

constexpr std::size_t kRounds = 11;

double Milliseconds(std::chrono::nanoseconds time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

/// Of all threads.
double ProcessorMilliseconds() {
  return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

/// Notes that a widget was painted.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QObject& watched) { watched.installEventFilter(this); }

  [[nodiscard]] bool WasPainted() const { return painted_; }

  bool eventFilter(QObject* watched, QEvent* event) override {
    painted_ = painted_ || event->type() == QEvent::Paint;
    return QObject::eventFilter(watched, event);
  }

 private:
  bool painted_ = false;
};

struct Times {
  double wall = 0;
  double processor = 0;
};

/// Counts again and again. Boxes are closed as soon as they are seen, and end the time of a round.
class Rounds {
 public:
  explicit Rounds(Program& program) : program_(program) {
    QObject::connect(&boxCloser_, &QTimer::timeout, [this] { CloseBox(); });
    boxCloser_.start(0);
  }

  /// The medians.
  Times Run() {
    std::array<double, kRounds> wall{};
    std::array<double, kRounds> processor{};
    for (std::size_t round = 0; round < kRounds; ++round) {
      const Times times = Count();
      wall[round] = times.wall;
      processor[round] = times.processor;
    }
    std::ranges::sort(wall);
    std::ranges::sort(processor);
    return {wall[kRounds / 2], processor[kRounds / 2]};
  }

 private:
  Times Count() {
    ended_ = false;
    start_ = std::chrono::steady_clock::now();
    processorStart_ = ProcessorMilliseconds();
    program_.frmMain.cmdCountWords.PerformClick();
    QApplication::processEvents();
    End();
    return times_;
  }
  void CloseBox() {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    End();
    box->close();
  }
  void End() {
    if (std::exchange(ended_, true)) return;
    times_.wall = Milliseconds(std::chrono::steady_clock::now() - start_);
    times_.processor = ProcessorMilliseconds() - processorStart_;
  }

  Program& program_;
  QTimer boxCloser_;
  std::chrono::steady_clock::time_point start_;
  double processorStart_ = 0;
  Times times_;
  bool ended_ = true;
};

int Measure(std::chrono::system_clock::time_point start, const std::string& path,
            const std::string& output) {
  QtDesktop desktop;
  Program program(desktop);
  Windows windows(program, desktop);
  windows.RestorePlaces();
  const PaintWatch watch(windows.Main());
  if (!program.Start()) return 1;
  while (!watch.WasPainted()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  std::cout << "first frame: " << Milliseconds(std::chrono::system_clock::now() - start) << " ms\n";
  if (path.empty()) return 0;
  program.Sources().ChooseText(path);
  program.frmMain.chkIncludeSubfolders.SetChecked(true);
  program.frmMain.txbFile[1].EnterText(output);
  program.frmParams.chkWarnOnOverwrite.SetChecked(false);
  const Times times = Rounds(program).Run();
  std::cout << "count of " << program.Words().WordsRead << " words: " << times.wall
            << " ms, processor " << times.processor << " ms (medians of " << kRounds << ")\n";
  return 0;
}

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  using namespace quillomat;
  const std::string_view given = argc > 1 ? argv[1] : "";
  std::int64_t nanoseconds = 0;
  if (std::from_chars(given.data(), given.data() + given.size(), nanoseconds).ec != std::errc()) {
    std::cerr << "usage: quillomat_window \"$(date +%s%N)\" [PATH [OUTPUT]]\n";
    return 2;
  }
  std::pmr::set_default_resource(&LargePageMemory());
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(new ClearBoxes);  // which it takes over
  return Measure(std::chrono::system_clock::time_point(std::chrono::nanoseconds(nanoseconds)),
                 argc > 2 ? argv[2] : "", argc > 3 ? argv[3] : "");
}
