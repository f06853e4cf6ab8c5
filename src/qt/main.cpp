// quillomat: the program with its windows.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QScopeGuard>
#include <algorithm>
#include <iostream>
#include <memory_resource>
#include <string>
#include <vector>

#include "base/terminal_text.h"
#include "base/version.h"
#include "engine/kernel_choice.h"
#include "qt/clear_boxes.h"
#include "qt/end_from_outside.h"
#include "qt/guarded_application.h"
#include "qt/program_windows.h"
#include "qt/text_conversion.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/large_pages.h"
#include "system/paths.h"

namespace quillomat {
namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
/// Without a display the toolkit would end the program with a message of its own making.
bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}
#else
bool HasDisplay() {
  return true;
}
#endif

/// Without those of the toolkit. Where paths are bytes, it would make text of them.
QStringList Arguments([[maybe_unused]] int argc, [[maybe_unused]] char** argv) {
#ifdef Q_OS_WIN
  return QCoreApplication::arguments();
#else
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments.append(ToQt(argv[i]));
  return arguments;
#endif
}

/// What is to be counted, as it is given.
std::vector<std::string> PathsFromCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Counts how often each word occurs in a text."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("path"),
                               QStringLiteral("A text file or a folder to be counted."),
                               QStringLiteral("[path]"));
  parser.process(arguments);
  std::vector<std::string> paths;
  for (const QString& path : parser.positionalArguments()) paths.push_back(FromQt(path));
  return paths;
}

/// Why they are no command line; "" for no reason. An empty one, most often a variable without a
/// value, would be the current folder.
std::string FaultIn(const std::vector<std::string>& paths) {
  if (std::ranges::count(paths, "") > 0) {
    return "an argument is empty; check what should stand there";
  }
  if (paths.size() < 2) return {};
  return "one file or folder at a time, but there is also " + EscapedForTerminal(paths[1]) +
         ". quillomat-cli counts several together";
}

int RunOnDesktop(GuardedApplication& application, const QStringList& arguments) {
  const std::vector<std::string> paths = PathsFromCommandLine(arguments);
  if (const std::string fault = FaultIn(paths); !fault.empty()) {
    std::cerr << "quillomat: " << fault << '\n';
    return 2;
  }
  // The program leaves the current folder.
  const std::string path = paths.empty() ? std::string() : AbsolutePath(paths.front());
  QtDesktop desktop;
  Program program(desktop);
  Windows windows(program, desktop);
  application.tell = [&program](const RunTimeError& error) { program.Lister().ReportError(error); };
  const auto untold = qScopeGuard([&application] { application.tell = nullptr; });
  windows.RestorePlaces();
  program.Ended.Connect([&windows] {
    windows.KeepPlaces();
    // Not quit(), which would ask the windows, and they leave the answer to the program.
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(InterruptionStatus()); }, Qt::QueuedConnection);
  });
  const EndFromOutside endFromOutside(program, windows, desktop);
  if (!program.Start()) return program.HasEnded() ? InterruptionStatus() : 1;
  if (!path.empty()) program.Sources().ChooseText(path);
  return QApplication::exec();
}

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  using namespace quillomat;
  if (!HasDisplay()) {
    std::cerr << "quillomat: there is no display. quillomat-cli counts in a terminal.\n";
    return 1;
  }
  if (const std::string fault = KernelFault(); !fault.empty()) {
    std::cerr << "quillomat: " << fault << '\n';
    return 1;
  }
  try {
    LetDrivesBeEmpty();
    std::pmr::set_default_resource(&LargePageMemory());
    const Interruption interruption(Interruption::First::kIsNoted);
    GuardedApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillomat"));
    QApplication::setApplicationVersion(ToQt(VersionText()));
    QApplication::setDesktopFileName(QStringLiteral("quillomat"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new ClearBoxes);  // which it takes over
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/quillomat.png")));
    return RunOnDesktop(application, Arguments(argc, argv));
  } catch (const std::exception& error) {
    std::cerr << "quillomat: unexpected failure: " << error.what() << '\n';
    return 1;
  }
}
