// The end of the program that comes from outside: the session of the desktop ends, or a signal asks
// for it.
#pragma once

#include <QObject>
#include <memory>

#include "app/program.h"
#include "qt/calls_from_threads.h"
#include "qt/program_windows.h"
#include "qt/qt_desktop.h"
#include "system/interruption_watch.h"

namespace quillomat {

/// A session that is about to end, which may yet be called off, has the settings and the windows'
/// places kept, and nothing else changes. An interruption, of which the first must be noted
/// (interruption.h), has the program quit as its user would have it, but nobody is asked anything:
/// what is at work is stopped first, so that no file stays half written. A second one ends it at
/// once, as interruption.h says.
class EndFromOutside {
 public:
  /// All must outlive it.
  EndFromOutside(Program& program, Windows& windows, QtDesktop& desktop);
  EndFromOutside(const EndFromOutside&) = delete;
  EndFromOutside& operator=(const EndFromOutside&) = delete;
  EndFromOutside(EndFromOutside&&) = delete;
  EndFromOutside& operator=(EndFromOutside&&) = delete;
  ~EndFromOutside();

 private:
  void Keep();
  void Quit();

  Program& program_;
  Windows& windows_;
  QtDesktop& desktop_;
  QObject session_;
  std::shared_ptr<CallsFromThreads> calls_ = std::make_shared<CallsFromThreads>();
  InterruptionWatch watch_;
};

}  // namespace quillomat
