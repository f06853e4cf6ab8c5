#include "qt/end_from_outside.h"

#include <QGuiApplication>

namespace quillomat {

EndFromOutside::EndFromOutside(Program& program, Windows& windows, QtDesktop& desktop)
    : program_(program),
      windows_(windows),
      desktop_(desktop),
      watch_([this, calls = calls_] { calls->Call([this] { Quit(); }); }) {
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &session_, [this] { Keep(); });
}

EndFromOutside::~EndFromOutside() {
  calls_->End();
}

void EndFromOutside::Keep() {
  program_.KeepSettings();
  windows_.KeepPlaces();
}

/// What is at work may take its time to end, and whoever asks may not have it, so the settings are
/// kept first. Who has asked in a box finds the program quitting when the box is gone.
void EndFromOutside::Quit() {
  Keep();
  desktop_.StopAsking();
  program_.Quit();
}

}  // namespace quillomat
