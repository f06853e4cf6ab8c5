// Events of controls and windows: a list of handlers, called in the order in which they connected.
//
// A handler may connect further handlers, to the same event too, while it runs: they are called
// from the next Fire on. Events have no way to disconnect; what a handler refers to must outlive
// the event.
#pragma once

#include <cstddef>
#include <functional>
#include <list>
#include <utility>

namespace quillomat {

template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  Event(Event&&) = delete;
  Event& operator=(Event&&) = delete;
  ~Event() = default;

  /// `handler` must not be empty.
  void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }

  /// Whether anybody is told.
  [[nodiscard]] bool IsHeard() const { return !handlers_.empty(); }

  /// Calls the handlers. What one of them throws goes to the caller, and the rest are not called.
  void Fire(Args... args) const {
    auto handler = handlers_.begin();
    for (std::size_t left = handlers_.size(); left > 0; --left, ++handler) (*handler)(args...);
  }

 private:
  std::list<Handler> handlers_;  // a list, because Connect must not move a handler that is running
};

}  // namespace quillomat
