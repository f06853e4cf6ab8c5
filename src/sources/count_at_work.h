// A count at work: what those who read its texts share. It lives as long as they do.
#pragma once

#include <cstdint>
#include <utility>

#include "engine/scan_settings.h"
#include "listing/order_figures.h"
#include "sources/count_observer.h"
#include "sources/count_request.h"
#include "sources/count_result.h"
#include "sources/stop_question.h"

namespace quillomat {

struct CountAtWork {
  CountAtWork(const CountRequest& itsRequest, CountObserver& itsObserver)
      : request(itsRequest), observer(itsObserver), stop(itsObserver) {
    settings.SetAllowWordsFlags(request.scan);
    settings.BuildExtraWordChars();
    settings.CountOnlyMode = request.lists.HasCountOnlyWords();
    settings.OpenComment = request.openComment;
    result.countOnlyMode = settings.CountOnlyMode;
    if (request.orderFigures) result.store.SetOrderListener(&orderFigures);
  }

  void BeginScan(bool tallyFiles) {
    scanning = true;
    result.store.Files().Reset(tallyFiles, request.tallyUse);
    result.store.SetListener(&observer);
    observer.OnScanBegins();
  }
  void EndScan(const CountReach& reach) {
    if (!stop.Stopped()) return;
    result.end = CountEnd::kStopped;
    result.stoppedAfter = reach;
  }
  void Refuse(Refusal refusal) {
    result.end = CountEnd::kRefused;
    result.refusal = refusal;
  }
  void Fail(const RunTimeError& error) {
    result.end = CountEnd::kFailed;
    result.error = error;
  }

  const CountRequest& request;
  CountObserver& observer;
  StopQuestion stop;
  CountResult result;
  /// Of the words that were counted until now, if the request wants them.
  OrderFigureCounter orderFigures;
  /// The allow flags are ready; the markers are those of the text that is being read.
  ScanSettings settings;
  CountProgress progress;
  bool scanning = false;
};

}  // namespace quillomat
