#include "qt/calls_from_threads.h"

namespace quillomat {

void CallsFromThreads::Call(const std::function<void()>& function) {
  const std::scoped_lock lock(mutex_);
  if (receiver_) QMetaObject::invokeMethod(receiver_.get(), function, Qt::QueuedConnection);
}

void CallsFromThreads::End() {
  const std::scoped_lock lock(mutex_);
  receiver_.reset();
}

}  // namespace quillomat
