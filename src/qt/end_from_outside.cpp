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

/// What is at work may take its time to end, and whoever asks may not have it.
void EndFromOutside::Quit() {
  Keep();
  desktop_.StopAsking();
  // Later, when the boxes that were open are gone.
  QMetaObject::invokeMethod(
      &session_, [this] { program_.Quit(); }, Qt::QueuedConnection);
}

}  // namespace quillomat
