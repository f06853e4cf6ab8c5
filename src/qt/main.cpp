// quillomat: the program with its windows.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QScopeGuard>
#include <iostream>
#include <memory_resource>

#include "base/version.h"
#include "engine/kernel_choice.h"
#include "qt/clear_boxes.h"
#include "qt/guarded_application.h"
#include "qt/program_windows.h"
#include "qt/text_conversion.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/large_pages.h"

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

/// The file or folder to be counted, as an absolute path: the program leaves the current folder.
QString PathFromCommandLine(const QApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Counts how often each word occurs in a text."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("path"),
                               QStringLiteral("A text file or a folder to be counted."),
                               QStringLiteral("[path]"));
  parser.process(application);
  const QStringList paths = parser.positionalArguments();
  return paths.isEmpty() ? QString() : QFileInfo(paths.constFirst()).absoluteFilePath();
}

/// An empty one, most often a variable without a value, would be the current folder.
bool HasEmptyArgument() {
  return QCoreApplication::arguments().contains(QString());
}

int RunOnDesktop(GuardedApplication& application) {
  if (HasEmptyArgument()) {
    std::cerr << "quillomat: an argument is empty; check what should stand there\n";
    return 2;
  }
  const QString path = PathFromCommandLine(application);
  QtDesktop desktop;
  Program program(desktop);
  Windows windows(program, desktop);
  application.tell = [&program](const RunTimeError& error) { program.Lister().ReportError(error); };
  const QObject desktopSession;
  const auto untold = qScopeGuard([&application] { application.tell = nullptr; });
  windows.RestorePlaces();
  program.Ended.Connect([&windows] {
    windows.KeepPlaces();
    // Not quit(), which would ask the windows, and they leave the answer to the program.
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
  });
  // The session of the desktop ends: nobody may be asked anything, and no time may be lost.
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &desktopSession,
                   [&program, &windows] {
                     program.KeepSettings();
                     windows.KeepPlaces();
                   });
  if (!program.Start()) return program.HasEnded() ? 0 : 1;
  if (!path.isEmpty()) program.Sources().ChooseText(FromQt(QDir::toNativeSeparators(path)));
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
    const Interruption interruption;
    GuardedApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillomat"));
    QApplication::setApplicationVersion(ToQt(VersionText()));
    QApplication::setDesktopFileName(QStringLiteral("quillomat"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new ClearBoxes);  // which it takes over
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/quillomat.png")));
    return RunOnDesktop(application);
  } catch (const std::exception& error) {
    std::cerr << "quillomat: unexpected failure: " << error.what() << '\n';
    return 1;
  }
}
