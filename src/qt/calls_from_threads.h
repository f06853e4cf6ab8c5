// Carries calls from other threads into that of the windows, as long as somebody is there to take
// them. It is shared: a thread may outlive whoever has started it.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <mutex>

namespace quillomat {

class CallsFromThreads {
 public:
  /// From any thread: `function` is called later, in the thread in which this was made; never, once
  /// End was called.
  void Call(const std::function<void()>& function);

  /// In the thread in which this was made. Calls that are on their way are dropped.
  void End();

 private:
  std::mutex mutex_;
  std::unique_ptr<QObject> receiver_ = std::make_unique<QObject>();
};

}  // namespace quillomat
